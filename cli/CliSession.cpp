// Publishing, saving and checksumming without a window.
#include "cli/CliSession.h"

#include <QHash>
#include <QJsonArray>
#include <QObject>
#include <algorithm>

#include "catalogue/TypePresets.h"
#include "results/PreviewCopy.h"
#include "saving/SavedContents.h"
#include "saving/Sha256.h"
#include "saving/ToldItem.h"

namespace vantor {

namespace {

QString outcomeText(PassOutcome outcome) {
    switch (outcome) {
        case PassOutcome::Completed:
            return QStringLiteral("completed");
        case PassOutcome::Stopped:
            return QStringLiteral("stopped");
        case PassOutcome::OpenError:
            return QStringLiteral("open-error");
        case PassOutcome::ReadError:
        case PassOutcome::NotRun:
            break;
    }
    return QStringLiteral("read-error");
}

}  // namespace

RangeControls controlsFor(const CliOptions& options, std::uint64_t mediumSectors) {
    RangeControls controls;
    controls.diskIdentifier = options.medium;
    controls.sectors = QString::number(mediumSectors);
    if (options.range) {
        controls.entireDisk = 0;
        controls.sectorRange = 1;
        controls.startText = options.range->first;
        controls.endText = options.range->second;
    }
    return controls;
}

CliView::CliView(const CliOptions& options, std::uint64_t mediumSectors)
    : m_range(controlsFor(options, mediumSectors)),
      m_thorough(options.thorough),
      m_destination(options.saveFolder) {}

CliSession::CliSession(const CliOptions& options, std::uint64_t mediumSectors)
    : CliView(options, mediumSectors), ScanSession(static_cast<CliView&>(*this)), m_options(options) {
    Recovery_MODE = options.mode;
}

CliSession::~CliSession() = default;

void CliSession::chooseAllTypes() {
    buildFileTypeList();
    cutCataloguesToTickedTypes();
}

QStringList CliSession::chooseTypes(const QStringList& types) {
    buildFileTypeList();
    setAllFileTypes(false);
    QStringList unknown;
    for (const QString& type : types) {
        const auto tick = [&](Qt::CaseSensitivity sensitivity) {
            bool found = false;
            for (FileTypeRow& row : nsCheckedListDataObject) {
                const QString extension = row[QStringLiteral("Extension")].toString();
                if (type.startsWith(u'@') ? isInPreset(type.mid(1), extension)
                                          : extension.compare(type, sensitivity) == 0) {
                    row[QStringLiteral("State")] = true;
                    found = true;
                }
            }
            return found;
        };
        if (!tick(Qt::CaseSensitive) && !tick(Qt::CaseInsensitive)) {
            unknown.append(type);
        }
    }
    cutCataloguesToTickedTypes();
    return unknown;
}

void CliSession::run() {
    if (!m_options.saveFolder.isEmpty()) {
        m_queue = std::make_unique<SaveQueue>(
            m_options.saveFolder, m_options.savePolicy, [this] { return openMedium(); },
            [this](SaveTask& task, const SaveOutcome& outcome) {
                noteOutcome(task, outcome);
                giveBackPhotoBytes(std::move(task.firstBytes));
            },
            m_liesOnMedium);
        m_savedInto = m_queue->saver().destination();
        m_contents = m_queue->saver().contents();
    }
    if (m_options.mode == kPhotoMode) {
        Photo_Rec_Thread();
    } else {
        Raw_File_Rec_Thread();
    }
    finishSaving();
}

void CliSession::noteOutcome(const SaveTask& task, const SaveOutcome& outcome) {
    m_tally.add(task.name, outcome);
    // What is saved before the card was read to its end may get its name from it yet.
    m_outcomes.resize(std::max(m_outcomes.size(), task.place + 1));
    m_outcomes[task.place] = outcome;
}

void CliSession::finishSaving() {
    if (!m_queue) {
        return;
    }
    m_queue->finish();
    nameWhatTheCardTellsNow();
    for (std::size_t i = 0; !m_outcomes.empty(); ++i) {
        const PublishedItem item = isReported() ? published(i) : PublishedItem();
        report({item.name, item.type, item.firstSector, item.endSector, std::move(m_outcomes.front())},
               isReported());
        m_outcomes.pop_front();
    }
    saveToldFiles();
    m_queue.reset();
}

// Keeps what is asked for behind all, and what is still to be looked at.
void CliSession::report(ReportedItem item, bool wanted) {
    if (wanted) {
        m_reported.push_back(std::move(item));
    } else if (SavedContents::isDue(item.outcome)) {
        m_unreported.push_back(std::move(item.outcome));
    }
}

void CliSession::checkContents() {
    std::vector<SaveOutcome*> due;
    for (ReportedItem& item : m_reported) {
        if (SavedContents::isDue(item.outcome)) {
            due.push_back(&item.outcome);
        }
    }
    for (SaveOutcome& outcome : m_unreported) {
        due.push_back(&outcome);
    }
    m_checking.of = due.size();
    for (SaveOutcome* const outcome : due) {
        if (m_stop && m_stop()) {
            break;  // it is said how many were not looked at
        }
        m_contents->look(*outcome, m_stop);
        m_tally.noteChecked(*outcome);
        ++m_checking.looked;
    }
}

// To be asked before a piece of work that is then left undone.
bool CliSession::isStopped() {
    const bool stopped = m_stop && m_stop();
    m_leftUndone = m_leftUndone || stopped;
    return stopped;
}

bool CliSession::destinationKeepsAll() {
    if (!m_savedInto || m_savedInto->keeps(m_tally, m_reported)) {
        return true;
    }
    m_told = 0;
    m_mendingLines.clear();
    return false;
}

void CliSession::saveToldFiles() {
    SectorReader* const medium = m_options.savePolicy.asPublished ? nullptr : m_queue->medium();
    if (medium == nullptr) {
        return;
    }
    for (const auto& file : toldFiles(&m_toldBeyondRoom)) {
        if (isStopped()) {
            break;
        }
        const FoundItem item = toldItem(file, card(), *medium);
        SaveOutcome outcome = m_queue->saver().save(item);
        if (outcome.leftOut == LeftOut::Unsound) {
            continue;
        }
        m_tally.add(item.name, outcome);
        m_told += outcome.saved ? 1 : 0;
        const SectorRun& first = item.source.carved.runs.front();
        report({item.name, item.type, first.first, first.end, std::move(outcome)}, m_options.report);
    }
    m_queue->saver().flush();
}

// The folders of a card that was formatted are known only when all of it was read.
void CliSession::nameWhatTheCardTellsNow() {
    const auto known = card();
    if (!known) {
        return;
    }
    QHash<QString, QString> moved;  // from, to
    for (std::size_t i = 0; i < m_outcomes.size(); ++i) {
        const auto listed = m_outcomes[i].saved ? itemAt(i) : nullptr;
        SaveOutcome& outcome = m_outcomes[i];
        if (!listed) {
            continue;
        }
        if (isStopped()) {
            break;
        }
        const QString before = outcome.path;
        FoundItem item{listed->type(), listed->imageTitle(), {listed->carved(), listed->heldBytes(), [this] {
                                                                  return m_queue->medium();
                                                              }}};
        SectorReader* const medium = m_queue->medium();
        item.source.mediumSectors = medium != nullptr ? medium->mediumSectors() : 0;
        item.source.hints.card = known;
        const bool named = outcome.original != nullptr;
        m_queue->saver().saveAsOnCard(item, outcome);
        m_tally.named += !named && outcome.original ? 1 : 0;
        if (outcome.path != before && !outcome.duplicate) {
            moved.insert(before, outcome.path);
        }
    }
    for (SaveOutcome& outcome : m_outcomes) {
        outcome.path = moved.value(outcome.path, outcome.path);
    }
    m_queue->saver().flush();
}

// Called for every item that is published, just before it is.
void CliSession::save(const QString& name, const QByteArray& firstBytes) {
    if (m_queue) {
        m_queue->add({handOver().type, name, handOver().carved, firstBytes, {card()}});
    }
}

// Called for every item behind its entry in the list of found ones.
void CliSession::publish(const QByteArray& sha256) {
    if (m_options.listJson && m_options.mode == kPhotoMode) {
        std::array<char, 32> sum{};
        std::copy_n(sha256.data(), std::min<std::size_t>(sum.size(), static_cast<std::size_t>(sha256.size())),
                    sum.data());
        m_sums.push_back(sum);
    }
    m_publishedCount = itemCount();
    if (handOver().pass == kGeneralPass) {
        m_firstThorough = m_publishedCount;
    }
}

void CliSession::addImageWithData(const QByteArray& data, const QString& imageName,
                                  const QString& image_UID) {
    if (data.isEmpty()) {
        return;
    }
    const bool wanted = m_options.listJson && handOver().sha256.isEmpty();
    const QByteArray sha256 = wanted ? Sha256::of(data) : handOver().sha256;
    save(imageName, data);
    ScanSession::addImageWithData(data, imageName, image_UID);
    publish(sha256);
}

void CliSession::addImageWithData_2(const QByteArray& data, const QString& imageName,
                                    const QString& image_UID, std::uint64_t File_Start_Sec,
                                    std::uint64_t File_End_Sec) {
    const std::size_t before = itemCount();
    ScanSession::addImageWithData_2(data, imageName, image_UID, File_Start_Sec, File_End_Sec);
    if (itemCount() != before) {
        save(itemAt(before)->imageTitle(), {});
        publish({});
    }
}

PublishedItem CliSession::published(std::size_t index) const {
    const auto item = itemAt(index);
    if (!item) {
        return {};
    }
    const QStringView pass = index < m_firstThorough ? kGeneralPass : kThoroughPass;
    return {pass.toString(),
            item->type(),
            item->imageTitle(),
            item->imageUID(),
            item->publishedSectors().first,
            item->publishedSectors().end,
            item->carved().readFailed};
}

// Empty where it could not be read once more. Once more from a medium as it is when just opened: one that
// refused nothing is that again when it is sought in, so that a list of a million items does not open it as
// often.
QByteArray CliSession::checksumOf(const PublishedItem& item, std::unique_ptr<SectorReader>& medium) const {
    const std::atomic<int> neverStop{0};
    Sha256 hash;
    if (!medium || !medium->seek(item.firstSector)) {
        medium = openMedium();
    }
    const bool opened = medium != nullptr;
    const bool read =
        opened && copyPreviewSectors(
                      *medium, item.firstSector, item.endSector, neverStop, [&](const std::uint8_t* sector) {
                          hash.add(QByteArrayView(reinterpret_cast<const char*>(sector), kSectorBytes));
                          return true;
                      });
    if (!read) {
        medium.reset();
    }
    // Bytes that were repeated while they were searched repeat here; what fails only now is not the item.
    return read || (opened && item.readFailed) ? hash.result() : QByteArray();
}

bool CliSession::forEachJsonLine(const std::function<void(const QJsonObject&)>& take) const {
    const auto number = [](std::uint64_t value) { return QJsonValue(static_cast<qint64>(value)); };
    std::unique_ptr<SectorReader> medium;  // while nothing was refused
    bool all = true;
    for (std::size_t i = 0; i < m_publishedCount; ++i) {
        const PublishedItem item = published(i);
        const QByteArray sha256 = m_options.mode == kPhotoMode
                                      ? QByteArray(m_sums[i].data(), static_cast<qsizetype>(m_sums[i].size()))
                                      : checksumOf(item, medium);
        all = all && !sha256.isEmpty();
        take({{QStringLiteral("pass"), item.pass},
              {QStringLiteral("name"), item.name},
              {QStringLiteral("uid"), item.uid},
              {QStringLiteral("first_sector"), number(item.firstSector)},
              {QStringLiteral("end_sector"), number(item.endSector)},
              {QStringLiteral("bytes"), number(item.bytes())},
              {QStringLiteral("sha256"),
               sha256.isEmpty() ? QJsonValue() : QString::fromLatin1(sha256.toHex())}});
    }
    take(endLine());
    return all;
}

QJsonObject CliSession::endLine() const {
    QJsonArray rows;
    for (const ResultRow& row : resultRows()) {
        rows.append(QJsonObject{{QStringLiteral("type"), row.value(QStringLiteral("FileTypes"))},
                                {QStringLiteral("count"), static_cast<qint64>(countOf(row))}});
    }
    return {{QStringLiteral("end"), outcomeText(lastOutcome())},
            {QStringLiteral("alerts"), QJsonArray::fromStringList(alerts())},
            {QStringLiteral("rows"), rows}};
}

}  // namespace vantor
