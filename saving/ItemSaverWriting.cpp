// What is decided to be saved, written: under which name, unless its bytes are saved already.
#include <QDateTime>
#include <QFileInfo>
#include <QObject>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "saving/FreeSpace.h"
#include "saving/ItemSaverState.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

constexpr std::size_t kChunkBytes = 1024 * 1024;

QByteArrayView asView(std::span<const std::uint8_t> bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

// Of as many of a file's first bytes as can be read; they stay in memory for the writing.
QByteArray sumOfHead(MediumBytes& bytes, std::uint64_t length) {
    std::vector<std::uint8_t> head(static_cast<std::size_t>(std::min(length, Likeness::kHeadBytes)));
    const std::size_t arrived = bytes.read(0, head);
    return Sha256::of(asView(std::span(head).first(arrived)));
}

// As the directory has it, else as the file tells itself.
std::optional<std::int64_t> timeOf(const SaveOutcome& outcome) {
    if (outcome.original && outcome.original->modified) {
        return outcome.original->modified;
    }
    return outcome.taken ? secondsOf(*outcome.taken) : std::nullopt;
}

}  // namespace

// The folder of the name, made where it is absent. Where something else bears the name of a folder of the
// card's the item goes to its type's.
std::optional<SavingFolder> ItemSaver::folderFor(const FoundItem& item, const SavingFolder& destination,
                                                 SavedName& name, SaveOutcome& outcome) const {
    QStringList& made = m_state->madeFolders;
    auto folder = destination.below(name.folder, &made);
    if (!folder && name.asOnCard) {
        name.folder = safePathComponent(item.type);
        name.asOnCard = false;
        folder = destination.below(name.folder, &made);
    }
    if (!folder) {
        outcome.error = whyNoFolder(m_destination->path() + u'/' + name.folder, errno);
        return std::nullopt;
    }
    if (m_state->folders.insert(name.folder).second) {
        removeLeftovers(*folder);
    }
    return folder;
}

void ItemSaver::saveBytes(const FoundItem& item, const SavingFolder& destination, ItemBytes& found,
                          SaveOutcome& outcome) const {
    const CardFile* const original = found.truth().file.get();
    MediumBytes& bytes = found.bytes();
    SavedName name = savedNameOf(item.type, item.name, m_policy, outcome.taken, original);
    const auto folder = folderFor(item, destination, name, outcome);
    if (!folder) {
        return;
    }
    const std::uint64_t place = outcome.pieces > 1 ? ~firstSectorOf(item) : firstSectorOf(item);
    Writing writing{item, *folder, name.file, name.asOnCard, place, {}};
    if (m_policy.skipDuplicates) {
        if (name.asOnCard) {
            m_state->saved.lookIntoCardFolder(folder->path());
        } else {
            m_state->saved.lookInto(m_destination->path() + u'/' + safePathComponent(item.type), item.type);
        }
        writing.likeness = {outcome.bytes, sumOfHead(bytes, outcome.bytes)};
        if (settleBeforeWriting(writing, bytes, outcome)) {
            return;
        }
    }
    if (writeFile(writing, bytes, outcome)) {
        writing.likeness.bytes = outcome.bytes;
        m_state->saved.add(writing.likeness,
                           {outcome.path, item.type, outcome.sha256, place, outcome.sectorsUnreadable == 0});
    }
}

// True when the bytes are known to be saved already, without reading more of the medium than was read.
bool ItemSaver::settleBeforeWriting(const Writing& writing, MediumBytes& bytes, SaveOutcome& outcome) const {
    SavedFiles& saved = m_state->saved;
    const FoundItem& item = writing.item;
    // Types that share a header share the item.
    if (!item.source.carved.readFailed) {
        const SavedFile* const same = saved.fromPlace(outcome.bytes, writing.sought());
        if (same != nullptr) {
            const SavedFile* const there = saved.servingCopyOf(*same, writing.likeness, writing.sought());
            return settleAs(there != nullptr ? *there : *same, writing, outcome);
        }
    }
    const auto atHand = bytes.keptFrom(0);
    if (atHand.size() < outcome.bytes || bytes.nothingReadable(outcome.bytes) ||
        !saved.hasLike(writing.likeness)) {
        return false;
    }
    outcome.sha256 = Sha256::of(asView(atHand.first(static_cast<std::size_t>(outcome.bytes))));
    const bool allRead = bytes.sectorsUnreadable(outcome.bytes) == 0;
    const SavedFile* const same =
        saved.withChecksum(writing.likeness, outcome.sha256, writing.sought(allRead));
    return same != nullptr && settleAs(*same, writing, outcome);
}

// False when the bytes have to be written again all the same.
bool ItemSaver::settleAs(const SavedFile& earlier, const Writing& writing, SaveOutcome& outcome) const {
    const bool serves = writing.sought().isServedBy(earlier);
    // A second name has the first one's time, which is not that of the card's other copy.
    const bool isOtherCopy = !serves && earlier.firstSector != writing.place && outcome.original;
    if (isOtherCopy && outcome.original->modified &&
        *outcome.original->modified != QFileInfo(earlier.path).lastModified().toSecsSinceEpoch()) {
        return false;
    }
    const auto path = serves ? earlier.path : linkAs(earlier.path, writing.folder, writing.name);
    if (!path) {
        return false;
    }
    outcome.path = *path;
    outcome.sha256 = earlier.sha256;
    outcome.saved = outcome.duplicate = true;
    if (!serves) {
        m_state->saved.add(writing.likeness,
                           {*path, writing.item.type, earlier.sha256, writing.place, earlier.allRead});
    }
    return true;
}

// True when a new file was written; false with an error, or when it turned out to be a duplicate.
bool ItemSaver::writeFile(const Writing& writing, MediumBytes& bytes, SaveOutcome& outcome) const {
    if (const auto refusal = refuseForSpace(writing.folder.path(), outcome.bytes)) {
        outcome.error = *refusal;
        return false;
    }
    WholeFile file(writing.folder);
    const bool likeAnother = m_policy.skipDuplicates && m_state->saved.hasLike(writing.likeness);
    const bool summing = outcome.sha256.isEmpty() && (m_policy.checksums || likeAnother);
    const std::uint64_t done = copyBytes(writing.item, outcome.bytes, bytes, file, summing);
    if (summing) {
        outcome.sha256 = m_state->sum.result();
    }
    if (isUnwanted(writing.item)) {
        outcome.error = cancelledText();
        return false;
    }
    if (file.isGood() && !readEnough(bytes, done, outcome)) {
        return false;
    }
    if (file.isGood() && done < outcome.bytes) {
        outcome.bytes = done;
        outcome.verdict = Verdict::CutOff;
    } else if (outcome.sectorsUnreadable != 0 && outcome.verdict == Verdict::Complete) {
        outcome.verdict = Verdict::Damaged;
    }
    outcome.checked = outcome.checked && outcome.verdict == Verdict::Complete;
    if (likeAnother && summing && file.isGood()) {
        const Likeness asWritten{outcome.bytes, writing.likeness.head};
        const SavedFile* const same = m_state->saved.withChecksum(
            asWritten, outcome.sha256, writing.sought(outcome.sectorsUnreadable == 0));
        if (same != nullptr && settleAs(*same, writing, outcome)) {
            return false;
        }
    }
    if (const auto seconds = timeOf(outcome)) {
        file.setModificationTime(*seconds);
    }
    const auto path = file.commit(writing.name);
    if (!path) {
        outcome.error = file.error();
        return false;
    }
    outcome.saved = true;
    outcome.path = *path;
    return true;
}

// False when there is nothing that is worth a file.
bool ItemSaver::readEnough(const MediumBytes& bytes, std::uint64_t done, SaveOutcome& outcome) {
    outcome.sectorsUnreadable = bytes.sectorsUnreadable(done);
    outcome.mediumGone = bytes.mediumIsGone() && (done < outcome.bytes || outcome.sectorsUnreadable != 0);
    if (outcome.bytes != 0 && (done == 0 || bytes.nothingReadable(done))) {
        outcome.error = outcome.mediumGone ? QObject::tr("The medium cannot be read any more")
                                           : QObject::tr("None of its sectors could be read");
        return false;
    }
    return true;
}

// Bytes written; fewer than asked where the medium or the file failed.
std::uint64_t ItemSaver::copyBytes(const FoundItem& item, std::uint64_t length, MediumBytes& bytes,
                                   WholeFile& file, bool summing) const {
    std::uint64_t done = 0;
    for (std::size_t turn = 0; done < length && file.isGood() && !isUnwanted(item); ++turn) {
        auto stretch = bytes.keptFrom(done);
        if (stretch.empty()) {
            // The checksum may still be busy with the other chunk.
            auto& chunk = m_state->chunks[turn % 2];
            chunk.resize(kChunkBytes);
            stretch = std::span(chunk).first(bytes.readPast(done, chunk));
        }
        const std::uint64_t count = std::min<std::uint64_t>(stretch.size(), length - done);
        if (count == 0) {
            break;
        }
        stretch = stretch.first(static_cast<std::size_t>(count));
        if (summing) {
            m_state->sum.add(asView(stretch));
        }
        file.write(asView(stretch));
        done += count;
    }
    return done;
}

}  // namespace vantor
