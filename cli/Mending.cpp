// What is broken among what was saved: completed and repaired behind the search, beside the items.
#include <QFile>
#include <QObject>

#include "cli/CliSession.h"
#include "media/PlainFile.h"
#include "repair/ReferenceMovie.h"
#include "results/SizeForPeople.h"
#include "saving/TwinFile.h"

namespace vantor {

namespace {

// A file of the user's.
class FileSource final : public ByteSource {
  public:
    explicit FileSource(QFile& file) : m_file(file) {}

    std::uint64_t size() const override { return static_cast<std::uint64_t>(m_file.size()); }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        if (!m_file.seek(static_cast<qint64>(offset))) {
            return 0;
        }
        const qint64 got =
            m_file.read(reinterpret_cast<char*>(into.data()), static_cast<qint64>(into.size()));
        return got < 0 ? 0 : static_cast<std::size_t>(got);
    }

  private:
    QFile& m_file;
};

QString seconds(double value) {
    return QString::number(value, 'f', 1);
}

QString lineOf(const QString& path, const Mend& mend) {
    const std::size_t pieces = mend.assembly.runs.size();
    switch (mend.kind) {
        case MendKind::Completed:
            return QObject::tr("%1: complete, from %2 pieces", nullptr, pluralOf(pieces))
                .arg(path, numberForPeople(pieces));
        case MendKind::PutTogether:
            return QObject::tr("%1: put together from %2 pieces, please look", nullptr, pluralOf(pieces))
                .arg(path, numberForPeople(pieces));
        case MendKind::Repaired:
            break;
    }
    return QObject::tr("%1: %2 pictures, %3 s, and %4 s of sound, as in %5")
        .arg(path, numberForPeople(mend.pictures), seconds(mend.pictureSeconds), seconds(mend.soundSeconds),
             mend.like);
}

}  // namespace

void CliSession::mend() {
    if (isStopped()) {
        return;
    }
    const auto medium = openMedium();
    if (!medium) {
        m_mendingFailed = true;
        m_mendingLines.append(
            QObject::tr("Broken files were left as they are: the medium cannot be opened."));
        return;
    }
    const std::vector<MendableItem> items = mendableItems();
    ItemMending mending(*medium, stop_now, m_completing, [&](const MendableItem& item, Mend mend) {
        return takeMend(item, std::move(mend), *medium);
    });
    if (m_options.complete) {
        completeItems(mending, items);
    }
    if (m_options.repairMovies) {
        repairItems(mending, items);
    }
    isStopped();
}

std::vector<MendableItem> CliSession::mendableItems() const {
    std::vector<MendableItem> items;
    for (std::size_t i = 0; i < m_publishedCount && i < m_reported.size(); ++i) {
        if (const auto item = itemAt(i)) {
            const SaveOutcome& outcome = m_reported[i].outcome;
            items.push_back({i, item->type(), item->imageTitle(), item->carved(),
                             outcome.verdict == Verdict::Complete, outcome.checked, outcome.bytes,
                             outcome.pieces});
        }
    }
    return items;
}

bool CliSession::takeMend(const MendableItem& item, Mend made, SectorReader& medium) {
    const auto mend = std::make_shared<const Mend>(std::move(made));
    ItemSource source;
    source.carved = item.carved;
    source.medium = [&medium] { return &medium; };
    source.mediumSectors = medium.mediumSectors();
    const TwinPlace place = placeOfTwin(m_savedInto, {item.type, item.name, source}, {});
    SaveOutcome outcome = writeTwin(
        place, mend, source, [this] { return stop_now != 0; }, m_options.report);
    const bool saved = outcome.saved;
    m_mendingFailed = m_mendingFailed || !saved;
    m_mendingLines.append(saved ? lineOf(outcome.path, *mend)
                                : QStringLiteral("%1: %2").arg(item.name, outcome.error));
    const ReportedItem& reported = m_reported[item.place];
    m_reported.push_back({twinNameOf(item.name, markOf(mend->kind)), item.type, reported.firstSector,
                          reported.endSector, std::move(outcome)});
    return saved;
}

void CliSession::completeItems(ItemMending& mending, const std::vector<MendableItem>& items) {
    const auto tell = [this](const CompletionSum& sum, const QString& words) {
        m_mendingLines.append(words.arg(numberForPeople(sum.completed), numberForPeople(sum.broken),
                                        numberForPeople(sum.putTogether)));
    };
    // What a mode does not search for cannot be completed.
    if (m_options.mode == kPhotoMode) {
        m_mendingLines.append(QObject::tr("Movies are not searched for in photo mode, so none is completed"));
    } else {
        tell(mending.completeMovies(items),
             QObject::tr("%1 of %2 broken movies completed, %3 more put together: please look"));
    }
    if (m_options.mode != kVideoMode) {
        tell(mending.completePhotos(items),
             QObject::tr("%1 of %2 broken photos completed, %3 more put together: please look"));
    }
    if (m_options.mode == kRawFileMode) {
        tell(mending.completeArchives(items),
             QObject::tr(
                 "%1 of %2 broken documents and archives completed, %3 more put together: please look"));
    }
}

void CliSession::repairItems(ItemMending& mending, const std::vector<MendableItem>& items) {
    if (m_options.mode == kPhotoMode) {
        m_mendingLines.append(QObject::tr("Movies are not searched for in photo mode, so none is repaired"));
        return;
    }
    if (!m_options.reference.isEmpty() && !useReference(mending)) {
        m_mendingFailed = true;
        return;
    }
    const auto sum = mending.repairMovies(items, [this](const MendableItem& item, ItemMending::Why why) {
        m_mendingLines.append((why == ItemMending::Why::NoReference
                                   ? QObject::tr("%1: no whole movie of its camera was found")
                                   : QObject::tr("%1: no picture found"))
                                  .arg(item.name));
    });
    m_mendingLines.append(QObject::tr("%1 of %2 movies without an index repaired")
                              .arg(numberForPeople(sum.repaired), numberForPeople(sum.broken)));
}

bool CliSession::useReference(ItemMending& mending) {
    const QString& path = m_options.reference;
    QFile file(path);
    FileSource source(file);
    // It was of use before the search.
    if (!openPlainFile(file) || !mending.useReference(source, path)) {
        m_mendingLines.append(QObject::tr("The movie %1 cannot be read.").arg(path));
        return false;
    }
    return true;
}

QString refuseReference(const QString& path) {
    QFile file(path);
    FileSource source(file);
    if (!openPlainFile(file)) {
        return QObject::tr("The movie %1 cannot be read.").arg(path);
    }
    return readReference(source)
               ? QString()
               : QObject::tr("%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.")
                     .arg(path);
}

}  // namespace vantor
