// Numbers with their words.
#include "saving/CopyWords.h"

#include <QObject>
#include <QStringList>

#include "media/SectorReader.h"
#include "results/SizeForPeople.h"

namespace vantor {

namespace {

QString sectorsBad(std::uint64_t count) {
    return count == 1 ? QObject::tr("1 bad sector")
                      : QObject::tr("%1 bad sectors", nullptr, pluralOf(count)).arg(numberForPeople(count));
}

}  // namespace

QString copyWords(const CopyProgress& copy) {
    const double share =
        copy.sectors == 0 ? 0 : static_cast<double>(copy.copied) / static_cast<double>(copy.sectors);
    QStringList words{QObject::tr("%1% copied").arg(static_cast<int>(share * 100))};
    if (copy.bad + copy.doubtful != 0) {
        words << sectorsBad(copy.bad + copy.doubtful);
    }
    switch (copy.state) {
        case CopyProgress::State::Trimming:
        case CopyProgress::State::Scraping:
            words << QObject::tr("reading around them");
            break;
        case CopyProgress::State::MediumGone:
            words << QObject::tr("the medium is gone");
            break;
        case CopyProgress::State::CannotWrite:
            words << QObject::tr("the copy has ended");
            break;
        case CopyProgress::State::OtherMedium:
            words << QObject::tr("another medium");
            break;
        case CopyProgress::State::Resting:
        case CopyProgress::State::Copying:
            break;
    }
    return words.join(QStringLiteral(", "));
}

QString copyEndWords(const CopyProgress& copy) {
    QStringList words{
        QObject::tr("%1 of %2 copied")
            .arg(sizeForPeople(copy.copied * kSectorBytes), sizeForPeople(copy.sectors * kSectorBytes))};
    if (copy.bad != 0) {
        words << sectorsBad(copy.bad);
    }
    if (copy.doubtful != 0) {
        words << QObject::tr("%1 sectors between bad ones left out", nullptr, pluralOf(copy.doubtful))
                     .arg(numberForPeople(copy.doubtful));
    }
    return words.join(QStringLiteral(", "));
}

}  // namespace vantor
