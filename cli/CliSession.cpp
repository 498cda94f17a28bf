// Publishing, saving and checksumming without a window.
#include "cli/CliSession.h"

#include <QJsonArray>

#include "cli/MovieMending.h"
#include "results/PreviewCopy.h"
#include "saving/Sha256.h"

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

}  // namespace

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
                if (row[QStringLiteral("Extension")].toString().compare(type, sensitivity) == 0) {
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
                m_outcomes.push_back(outcome);
                giveBackPhotoBytes(std::move(task.firstBytes));
            },
            m_liesOnMedium);
    }
    if (m_options.mode == kPhotoMode) {
        Photo_Rec_Thread();
    } else {
        Raw_File_Rec_Thread();
    }
    finishSaving();
}

void CliSession::finishSaving() {
    if (!m_queue) {
        return;
    }
    m_queue.reset();
    for (std::size_t i = 0; i < m_outcomes.size(); ++i) {
        const PublishedItem& item = m_published[i];
        m_tally.add(item.name, m_outcomes[i]);
        m_reported.push_back(
            {item.name, item.type, item.firstSector, item.endSector, std::move(m_outcomes[i])});
    }
    m_outcomes.clear();
}

// Called for every item that is published, just before it is.
void CliSession::save(const PublishedItem& item, const QByteArray& firstBytes) {
    if (m_queue) {
        m_queue->add({item.type, item.name, handOver().carved, firstBytes});
    }
}

void CliSession::publish(PublishedItem item) {
    m_published.push_back(std::move(item));
    m_publishedCount = m_published.size();
}

void CliSession::addImageWithData(const QByteArray& data, const QString& imageName,
                                  const QString& image_UID) {
    if (!data.isEmpty()) {
        const HandOver& carve = handOver();
        PublishedItem item{carve.pass,        carve.type,
                           imageName,         image_UID,
                           carve.firstSector, carve.firstSector + carve.bytes / kSectorBytes,
                           carve.bytes,       carve.carved.readFailed,
                           carve.sha256,      carve.carved};
        if (m_options.listJson && item.sha256.isEmpty()) {
            item.sha256 = Sha256::of(data);
        }
        save(item, data);
        publish(std::move(item));
    }
    ScanSession::addImageWithData(data, imageName, image_UID);
}

void CliSession::addImageWithData_2(const QByteArray& data, const QString& imageName,
                                    const QString& image_UID, std::uint64_t File_Start_Sec,
                                    std::uint64_t File_End_Sec) {
    const std::size_t before = itemCount();
    ScanSession::addImageWithData_2(data, imageName, image_UID, File_Start_Sec, File_End_Sec);
    if (itemCount() == before) {
        return;
    }
    PublishedItem item{handOver().pass,
                       handOver().type,
                       itemAt(before)->imageTitle(),
                       image_UID,
                       File_Start_Sec,
                       File_End_Sec,
                       (File_End_Sec - File_Start_Sec) * kSectorBytes,
                       handOver().carved.readFailed,
                       {},
                       handOver().carved};
    save(item, {});
    publish(std::move(item));
}

void CliSession::mendMovies() {
    const auto medium = openMedium();
    if (!medium || stop_now != 0) {
        return;
    }
    MovieMending mending(*medium, stop_now);
    if (!m_options.reference.isEmpty()) {
        const QString complaint = mending.useReference(m_options.reference);
        if (!complaint.isEmpty()) {
            m_mendingFailed = true;
            m_mendingLines.append(complaint);
            return;
        }
    }
    std::vector<MendableItem> items;
    for (std::size_t i = 0; i < m_published.size(); ++i) {
        const SaveOutcome& outcome = m_reported[i].outcome;
        items.push_back({m_published[i].type, m_published[i].name, m_published[i].carved,
                         outcome.verdict == Verdict::Complete, outcome.bytes});
    }
    if (m_options.complete) {
        mending.complete(items, m_options.saveFolder);
    }
    if (m_options.repairMovies) {
        mending.repair(items, m_options.saveFolder);
    }
    m_mendingLines = mending.lines();
    m_mendingFailed = mending.failed();
}

bool CliSession::checksumRawItems() {
    if (m_options.mode == kPhotoMode) {
        return true;
    }
    bool all = true;
    const std::atomic<int> neverStop{0};
    for (PublishedItem& item : m_published) {
        Sha256 hash;
        const auto medium = openMedium();
        const bool read =
            medium &&
            copyPreviewSectors(
                *medium, item.firstSector, item.endSector, neverStop, [&](const std::uint8_t* sector) {
                    hash.add(QByteArrayView(reinterpret_cast<const char*>(sector), kSectorBytes));
                    return true;
                });
        // Bytes that were repeated while they were searched repeat here; what fails only now is not the item.
        if (read || (medium && item.readFailed)) {
            item.sha256 = hash.result();
        } else {
            all = false;
        }
    }
    return all;
}

std::vector<QJsonObject> CliSession::jsonLines() const {
    const auto number = [](std::uint64_t value) { return QJsonValue(static_cast<qint64>(value)); };
    std::vector<QJsonObject> lines;
    for (const PublishedItem& item : m_published) {
        lines.push_back({{QStringLiteral("pass"), item.pass},
                         {QStringLiteral("name"), item.name},
                         {QStringLiteral("uid"), item.uid},
                         {QStringLiteral("first_sector"), number(item.firstSector)},
                         {QStringLiteral("end_sector"), number(item.endSector)},
                         {QStringLiteral("bytes"), number(item.bytes)},
                         {QStringLiteral("sha256"),
                          item.sha256.isEmpty() ? QJsonValue() : QString::fromLatin1(item.sha256.toHex())}});
    }
    QJsonArray rows;
    for (const ResultRow& row : resultRows()) {
        rows.append(QJsonObject{{QStringLiteral("type"), row.value(QStringLiteral("FileTypes"))},
                                {QStringLiteral("count"), static_cast<qint64>(countOf(row))}});
    }
    lines.push_back({{QStringLiteral("end"), outcomeText(lastOutcome())},
                     {QStringLiteral("alerts"), QJsonArray::fromStringList(alerts())},
                     {QStringLiteral("rows"), rows}});
    return lines;
}

}  // namespace vantor
