// The words of the facts.
#include "window/preview/ViewerFacts.h"

#include <QObject>

#include "results/CardIndex.h"
#include "results/ItemWords.h"
#include "results/Mend.h"
#include "results/MyImageObject.h"
#include "results/SizeForPeople.h"

namespace vantor {

namespace {

QString sizeOf(const ItemFacts& known, const ViewedFacts& viewed) {
    if (viewed.bytes) {
        const QString size = sizeForPeople(*viewed.bytes);
        return viewed.lengthIsKnown ? size : QObject::tr("more than %1").arg(size);
    }
    return known.soundness ? sizeForPeople(known.soundness->bytes) : QString();
}

// A gap between two runs is a place that was refused; what else could not be read is known without a number.
QString unreadableOf(const MyImageObject& item, const ItemFacts& known) {
    std::uint64_t refused = 0;
    const auto& runs = item.carved().runs;
    for (std::size_t next = 1; next < runs.size(); ++next) {
        if (runs[next].first > runs[next - 1].end) {
            refused += runs[next].first - runs[next - 1].end;
        }
    }
    if (refused > 0) {
        return numberForPeople(refused);
    }
    if (known.readFailed || (known.soundness && known.soundness->unreadable)) {
        return QObject::tr("some");
    }
    return known.soundness ? QObject::tr("none") : QString();
}

// Of what was made of the item, where that has pieces.
QString piecesOf(const ItemFacts& known) {
    if (known.mend && !known.mend->assembly.runs.empty()) {
        return numberForPeople(static_cast<std::uint64_t>(known.mend->assembly.runs.size()));
    }
    return known.soundness ? numberForPeople(static_cast<std::uint64_t>(known.soundness->pieces)) : QString();
}

}  // namespace

QList<ViewerFact> viewerFacts(const MyImageObject& item, const ItemFacts& known, const ViewedFacts& viewed) {
    QList<ViewerFact> facts;
    const auto add = [&facts](const QString& name, const QString& value) {
        if (!value.isEmpty()) {
            facts.append({name, value});
        }
    };
    add(QObject::tr("Name"), item.imageTitle());
    add(QObject::tr("Name on the card"), known.original ? originalPath(*known.original) : QString());
    add(QObject::tr("Date"), dateWords(known));
    add(QObject::tr("Size"), sizeOf(known, viewed));
    add(QObject::tr("Pixels"), pixelWords(known));
    add(QObject::tr("Camera"), known.soundness ? known.soundness->camera : QString());
    add(QObject::tr("Length"), lengthWords(known, viewed.durationMs));
    add(QObject::tr("On the card"), placeWords(item, known));
    add(QObject::tr("Pieces"), piecesOf(known));
    add(QObject::tr("Unreadable sectors"), unreadableOf(item, known));
    add(QObject::tr("State"), stateWords(known));
    add(QObject::tr("Mended"), known.mend ? describe(*known.mend) : QString());
    add(QObject::tr("Saved"), known.saved ? QObject::tr("yes") : QObject::tr("not yet"));
    return facts;
}

}  // namespace vantor
