// Numbers with their words.
#include "saving/CopyWords.h"

#include <QStringList>

#include "media/SectorReader.h"
#include "results/SizeForPeople.h"

namespace vantor {

namespace {

QString sectorsBad(std::uint64_t count) {
    return count == 1 ? QStringLiteral("1 bad sector")
                      : QStringLiteral("%1 bad sectors").arg(numberForPeople(count));
}

}  // namespace

QString copyWords(const CopyProgress& copy) {
    const double share =
        copy.sectors == 0 ? 0 : static_cast<double>(copy.copied) / static_cast<double>(copy.sectors);
    QString words = QStringLiteral("%1% copied").arg(static_cast<int>(share * 100));
    if (copy.bad + copy.doubtful != 0) {
        words += QStringLiteral(", %1").arg(sectorsBad(copy.bad + copy.doubtful));
    }
    switch (copy.state) {
        case CopyProgress::State::Trimming:
        case CopyProgress::State::Scraping:
            return words + QStringLiteral(", reading around them");
        case CopyProgress::State::MediumGone:
            return words + QStringLiteral(", the medium is gone");
        case CopyProgress::State::CannotWrite:
            return words + QStringLiteral(", the copy has ended");
        case CopyProgress::State::OtherMedium:
            return words + QStringLiteral(", another medium");
        case CopyProgress::State::Resting:
        case CopyProgress::State::Copying:
            break;
    }
    return words;
}

QString copyEndWords(const CopyProgress& copy) {
    QStringList words{
        QStringLiteral("%1 of %2 copied")
            .arg(sizeForPeople(copy.copied * kSectorBytes), sizeForPeople(copy.sectors * kSectorBytes))};
    if (copy.bad != 0) {
        words << sectorsBad(copy.bad);
    }
    if (copy.doubtful != 0) {
        words << QStringLiteral("%1 sectors between bad ones left out").arg(numberForPeople(copy.doubtful));
    }
    return words.join(QStringLiteral(", "));
}

}  // namespace vantor
