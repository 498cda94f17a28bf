// What was saved before all of the card was read gets the name and the bytes that the card tells of it.
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "results/TrueLength.h"
#include "saving/ItemSaverState.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

bool areOneFile(const QString& a, const QString& b) {
    struct stat first {
    }, second{};
    return ::lstat(QFile::encodeName(a).constData(), &first) == 0 &&
           ::lstat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

}  // namespace

void ItemSaver::saveAsOnCard(const FoundItem& item, SaveOutcome& outcome) const {
    const auto& card = item.source.hints.card;
    if (!outcome.saved || outcome.original || m_policy.asPublished || !card ||
        item.source.carved.runs.empty() || !card->tellsOf(firstSectorOf(item))) {
        return;
    }
    const TrueLength length{outcome.bytes,
                            {outcome.verdict, outcome.bytes, outcome.exactLength, {}, outcome.checked}};
    const CardIndex::Match match = card->match(firstSectorOf(item), item.type, &length);
    const bool asSaved = match.fit == CardFit::Yes && match.file->state != FileState::Live &&
                         dataBytesOf(*match.file) == outcome.bytes && outcome.checked;
    if (asSaved && !outcome.duplicate && moveAsOnCard(item, *match.file, outcome)) {
        return;
    }
    SaveOutcome again = save(item);
    if (!again.saved || again.path == outcome.path || (!again.original && again.pieces == 1)) {
        return;
    }
    if (!outcome.duplicate) {
        // A second name of what was saved here takes the place of the first; what was there before stays
        // alone.
        if (again.duplicate && areOneFile(again.path, outcome.path)) {
            again.duplicate = false;
            const auto folder = folderOf(again.path);
            if (folder && again.original && again.original->modified) {
                setModificationTime(*folder, again.path.section(u'/', -1), *again.original->modified);
            }
        }
        remove(outcome.path);
    }
    outcome = std::move(again);
}

// By a second name in place of the first; false where the file system knows none.
bool ItemSaver::moveAsOnCard(const FoundItem& item, const CardFile& file, SaveOutcome& outcome) const {
    SaveOutcome unused;
    const auto destination = m_destination->openToWrite(unused.error);
    SavedName name = savedNameOf(item.type, item.name, m_policy, outcome.taken, &file);
    const auto folder = destination ? folderFor(item, *destination, name, unused) : std::nullopt;
    if (!folder) {
        return false;
    }
    QString path = folder->path() + u'/' + name.file;
    if (path != outcome.path) {
        if (QFileInfo::exists(path)) {
            return false;  // perhaps the same bytes
        }
        const auto linked = linkAs(outcome.path, *folder, name.file);
        if (!linked) {
            return false;
        }
        path = *linked;
        remove(outcome.path);
    }
    if (file.modified) {
        setModificationTime(*folder, path.section(u'/', -1), *file.modified);
    }
    outcome.path = path;
    outcome.original = {item.source.hints.card, &file};
    return true;
}

// Of a file that was saved here; no link is followed on the way to it.
std::optional<SavingFolder> ItemSaver::folderOf(const QString& path) const {
    const auto destination = m_destination->open();
    const QString folder = path.section(u'/', 0, -2);
    return destination && folder.startsWith(m_destination->path())
               ? destination->below(folder.mid(m_destination->path().size()))
               : std::nullopt;
}

void ItemSaver::remove(const QString& path) const {
    if (const auto from = folderOf(path)) {
        ::unlinkat(from->descriptor(), QFile::encodeName(path.section(u'/', -1)).constData(), 0);
    }
}

}  // namespace vantor
