#include "results/Mend.h"

#include <QObject>

#include "results/MediumBytes.h"
#include "results/SizeForPeople.h"

namespace vantor {

ItemSource sourceOf(const Mend& mend, const ItemSource& item) {
    ItemSource source = item;
    source.hints = {};
    if (!mend.assembly.runs.empty()) {
        source.carved = {mend.assembly.runs, item.carved.readFailed};
        source.firstBytes = {};
        source.asPublished = true;
    }
    return source;
}

QString markOf(MendKind kind) {
    switch (kind) {
        case MendKind::Completed:
            return QStringLiteral("complete");
        case MendKind::PutTogether:
            return QStringLiteral("put together");
        case MendKind::Repaired:
            break;
    }
    return QStringLiteral("repaired");
}

QString describe(const Mend& mend) {
    const std::size_t count = mend.assembly.runs.size();
    const QString pieces = numberForPeople(count);
    switch (mend.kind) {
        case MendKind::Completed:
            return QObject::tr("Complete, put together from %1 pieces", nullptr, pluralOf(count)).arg(pieces);
        case MendKind::PutTogether:
            return QObject::tr("Put together from %1 pieces: please look", nullptr, pluralOf(count))
                .arg(pieces);
        case MendKind::Repaired:
            break;
    }
    return QObject::tr("Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4")
        .arg(numberForPeople(mend.pictures), QString::number(mend.pictureSeconds, 'f', 1),
             QString::number(mend.soundSeconds, 'f', 1), mend.like);
}

}  // namespace vantor
