// One file, of the user alone.
#include "window/keeping/SearchMemory.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QUuid>
#include <algorithm>

#include "media/SectorReader.h"
#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"

namespace vantor {

namespace {

QString foundWords(int mode, std::uint64_t found) {
    const QString number = numberForPeople(found);
    switch (mode) {
        case kPhotoMode:
            return found == 1 ? QObject::tr("1 photo found")
                              : QObject::tr("%1 photos found", nullptr, pluralOf(found)).arg(number);
        case kVideoMode:
            return found == 1 ? QObject::tr("1 video found")
                              : QObject::tr("%1 videos found", nullptr, pluralOf(found)).arg(number);
        default:
            return found == 1 ? QObject::tr("1 file found")
                              : QObject::tr("%1 files found", nullptr, pluralOf(found)).arg(number);
    }
}

}  // namespace

QString SearchMemory::path() const {
    return m_folder + QStringLiteral("/last-search");
}

QString SearchMemory::thumbnailPath() const {
    return m_folder + QStringLiteral("/last-search.thumbnails");
}

const SearchRecord* SearchMemory::last() {
    if (!m_last) {
        m_last = hasFolder() ? readSearchRecord(path()) : std::nullopt;
    }
    return *m_last ? &**m_last : nullptr;
}

void SearchMemory::forgetLast() {
    QFile::remove(path());
    QFile::remove(thumbnailPath());
    letGo();
}

std::shared_ptr<SearchKeeper> SearchMemory::begin(SearchRecord record, bool remember,
                                                  std::function<std::uint64_t()> found) {
    m_remembers = remember && hasFolder();
    if (m_remembers && QDir().mkpath(m_folder)) {
        // What a card holds is nobody else's business.
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    if (record.notes.id.isEmpty()) {
        record.notes.id = QUuid::createUuid().toRfc4122();
    }
    {
        const std::lock_guard lock(m_mutex);
        // The one before lets go of its file first.
        m_thumbnails.reset();
        if (m_remembers) {
            m_thumbnails = std::make_shared<KeptThumbnails>(thumbnailPath(), record.notes.id);
        }
        m_notes = record.notes;
        m_notes.ended = false;
        m_found = std::move(found);
    }
    m_keeper = std::make_shared<SearchKeeper>(m_remembers ? path() : QString(), std::move(record));
    m_keeper->setNotes([this] { return notes(); });
    return m_keeper;
}

SearchNotes SearchMemory::notes() const {
    const std::lock_guard lock(m_mutex);
    SearchNotes notes = m_notes;
    // A search that goes on finds anew what it had found.
    notes.found = std::max(notes.found, m_found());
    return notes;
}

void SearchMemory::setEnded(bool ended) {
    const std::lock_guard lock(m_mutex);
    m_notes.ended = ended;
}

void SearchMemory::setMarks(std::vector<std::uint64_t> saved, std::vector<std::uint64_t> ticked,
                            std::vector<std::uint64_t> selected) {
    const std::lock_guard lock(m_mutex);
    m_notes.saved = std::move(saved);
    m_notes.ticked = std::move(ticked);
    m_notes.selected = std::move(selected);
}

std::shared_ptr<KeptThumbnails> SearchMemory::thumbnails() const {
    const std::lock_guard lock(m_mutex);
    return m_thumbnails;
}

QString stateFolder() {
    const QString asked = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    const QString states =
        QDir::isAbsolutePath(asked) ? asked : QDir::homePath() + QStringLiteral("/.local/state");
    return states + QStringLiteral("/vantor-recovery");
}

SectorRange rangeOfSearch(const SearchRecord& record) {
    RangeControls controls;
    controls.sectors = QString::number(record.sectors);
    controls.entireDisk = record.wishes.entire ? 1 : 0;
    controls.sectorRange = record.wishes.entire ? 0 : 1;
    controls.startText = record.wishes.start;
    controls.endText = record.wishes.end;
    return rangeFromControls(controls);
}

bool isReadToItsEnd(const SearchRecord& record) {
    return record.reached >= rangeOfSearch(record).end;
}

QString wordsForSearch(const SearchRecord& record) {
    const SectorRange range = rangeOfSearch(record);
    const std::uint64_t until = std::max(range.start, std::min(record.reached, range.end));
    const double share = range.end > range.start ? static_cast<double>(until - range.start) /
                                                       static_cast<double>(range.end - range.start)
                                                 : 1;
    return QObject::tr("“%1”, %2: %3 % read, %4.")
        .arg(record.notes.name, sizeForPeople(record.sectors * kSectorBytes),
             QString::number(static_cast<int>(share * 100)),
             foundWords(record.wishes.mode, record.notes.found));
}

}  // namespace vantor
