// From a found item to a whole file in its type's folder: how long, whether at all, under which name,
// written.
#include "saving/ItemSaver.h"

#include <sys/stat.h>

#include <QObject>
#include <algorithm>
#include <array>
#include <cerrno>
#include <set>
#include <utility>
#include <vector>

#include "results/TrueLength.h"
#include "saving/FilesWithin.h"
#include "saving/FreeSpace.h"
#include "saving/LengthClaims.h"
#include "saving/SavedFiles.h"
#include "saving/SavingFolder.h"
#include "saving/Sha256.h"
#include "saving/WholeFile.h"

namespace vantor {

namespace {

constexpr std::size_t kChunkBytes = 1024 * 1024;

QByteArrayView asView(std::span<const std::uint8_t> bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

QString cancelledText() {
    return QObject::tr("Cancelled");
}

bool isUnwanted(const FoundItem& item) {
    return item.unwanted != nullptr && *item.unwanted;
}

// Of as many of a file's first bytes as can be read; they stay in memory for the writing.
QByteArray sumOfHead(MediumBytes& bytes, std::uint64_t length) {
    std::vector<std::uint8_t> head(static_cast<std::size_t>(std::min(length, Likeness::kHeadBytes)));
    const std::size_t arrived = bytes.read(0, head);
    return Sha256::of(asView(std::span(head).first(arrived)));
}

std::uint64_t firstSectorOf(const FoundItem& item) {
    return item.source.carved.runs.empty() ? 0 : item.source.carved.runs.front().first;
}

std::uint64_t firstByteOf(const FoundItem& item) {
    return firstSectorOf(item) * kSectorBytes;
}

// As the directory has it, else as the file tells itself.
std::optional<std::int64_t> timeOf(const SaveOutcome& outcome) {
    if (outcome.original && outcome.original->modified) {
        return outcome.original->modified;
    }
    return outcome.taken ? secondsOf(*outcome.taken) : std::nullopt;
}

}  // namespace

struct ItemSaver::State {
    std::vector<std::uint8_t> kept;
    std::array<std::vector<std::uint8_t>, 2> chunks;
    BackgroundSha256 sum;
    SavedFiles saved;
    FilesWithin within;                  // those of the choice at hand
    FilesWithin waiting;                 // that will perhaps be
    std::optional<LengthClaims> claims;  // of the choice at hand
    std::optional<dev_t> device;         // that the destination was on first
    std::set<QString> folders;           // below it, that were written into
    QStringList madeFolders;             // that were not there before this saver; the outer ones first
};

// What is being written, and where to.
struct ItemSaver::Writing {
    const FoundItem& item;
    SavingFolder folder;
    QString name;
    bool byPath = false;  // the card tells its place
    // On the medium; the bytes of an item in pieces are not those that follow its first sector.
    std::uint64_t place = 0;
    Likeness likeness;  // empty where duplicates do not matter

    SoughtFile sought(bool allRead = true) const {
        return {item.type, folder.path() + u'/' + name, place, allRead, byPath};
    }
};

ItemSaver::ItemSaver(const QString& destination, const SavePolicy& policy, LiesOnMedium liesOnMedium)
    : m_destination(destination),
      m_policy(policy),
      m_liesOnMedium(std::move(liesOnMedium)),
      m_state(std::make_unique<State>()) {}

ItemSaver::~ItemSaver() = default;

SaveOutcome ItemSaver::saveRuns(const QString& type, const QString& name, const CarvedRun& carved,
                                SectorReader& medium) const {
    return save({type, name, {carved, {}, [&medium] { return &medium; }, medium.mediumSectors()}});
}

SaveOutcome ItemSaver::save(const FoundItem& item) const {
    SaveOutcome outcome;
    // Not held open in between: the user may want to unmount it.
    const auto destination = openDestination(outcome);
    if (!destination) {
        return outcome;
    }
    if (isStillThere(item)) {
        outcome.leftOut = LeftOut::StillThere;
        return outcome;
    }
    ItemSource source = item.source;
    source.asPublished = m_policy.asPublished;
    source.readInVain = &claimsOn(source.mediumSectors).readInVain();
    ItemBytes bytes(source, m_state->kept);
    const bool chosen = decideLength(item, bytes, outcome);
    if (isUnwanted(item)) {
        outcome.later = false;
        outcome.error = cancelledText();
    } else if (chosen) {
        saveBytes(item, *destination, bytes, outcome);
        noteWhole(item, outcome);
    }
    return outcome;
}

void ItemSaver::beginRound() const {
    m_state->claims.reset();
    m_state->within.clear();
    m_state->waiting.clear();
}

void ItemSaver::beginSecondRound() const {
    if (m_state->claims) {
        m_state->claims->beginSecondRound();
    }
}

LengthClaims& ItemSaver::claimsOn(std::uint64_t mediumSectors) const {
    if (!m_state->claims) {
        m_state->claims.emplace(mediumSectors);
    }
    return *m_state->claims;
}

// A destination that was pulled out leaves a folder of its name on another disk.
std::optional<SavingFolder> ItemSaver::openDestination(SaveOutcome& outcome) const {
    auto folder = SavingFolder::open(m_destination);
    const auto device = folder ? folder->device() : std::nullopt;
    if (!device || m_state->device.value_or(*device) != *device) {
        outcome.error = QObject::tr("The folder %1 is no longer there").arg(m_destination);
        return std::nullopt;
    }
    if (m_liesOnMedium && m_liesOnMedium(m_destination)) {
        outcome.error = QObject::tr("The folder %1 lies on the medium that is searched").arg(m_destination);
        return std::nullopt;
    }
    m_state->device = device;
    return folder;
}

void ItemSaver::flush() const {
    const auto destination = SavingFolder::open(m_destination);
    for (const QString& folder : std::exchange(m_state->folders, {})) {
        if (const auto below = destination ? destination->below(folder) : std::nullopt) {
            below->flush();
        }
    }
    if (!destination || destination->device() != m_state->device) {
        return;
    }
    // Where every item failed, or went where the card had it, there is nothing for them to hold.
    QStringList& made = m_state->madeFolders;
    for (qsizetype i = made.size() - 1; i >= 0; --i) {
        if (destination->removeIfEmpty(made[i])) {
            made.removeAt(i);
        }
    }
}

bool ItemSaver::isStillThere(const FoundItem& item) const {
    return m_policy.lostOnly && item.source.hints.card && !item.source.carved.runs.empty() &&
           item.source.hints.card->isLiveAt(firstSectorOf(item));
}

TrueLength ItemSaver::lengthOf(const FoundItem& item, MediumBytes& bytes, SaveOutcome& outcome) const {
    LengthClaims& claims = claimsOn(item.source.mediumSectors);
    TrueLength length = trueLengthOf(item.type, bytes, claims.mayGoBeyond(item.type, firstSectorOf(item)));
    const auto answer = claims.ask(item.type, bytes, length, item.mayWait);
    outcome.later = answer == LengthClaims::Answer::Later;
    if (answer == LengthClaims::Answer::Refused) {
        length.bytes = bytes.carvedBytes();
        length.extent.checked = false;
        if (length.extent.verdict == Verdict::Complete) {
            length.extent.verdict = Verdict::Unknown;
        }
    }
    return length;
}

// False when nothing of the item is written now.
bool ItemSaver::decideLength(const FoundItem& item, ItemBytes& found, SaveOutcome& outcome) const {
    const ItemTruth& truth = item.source.hints.told || m_policy.asPublished
                                 ? found.measure(item.type, false)
                                 : found.measureFrom(item.type, lengthOf(item, found.bytes(), outcome));
    const TrueLength& length = truth.length;
    MediumBytes& bytes = found.bytes();
    bytes.endMeasuring();
    const Facts& facts = length.extent.facts;
    outcome.bytes = length.bytes;
    outcome.verdict = verdictOf(truth);
    outcome.checked = length.extent.checked;
    outcome.exactLength =
        truth.lengthIsTold || (length.extent.verdict == Verdict::Complete && length.extent.exactEnd);
    outcome.taken = facts.taken;
    outcome.pieces = truth.assembly ? truth.assembly->runs.size() : 1;
    outcome.original = truth.file;
    outcome.width = facts.width;
    outcome.height = facts.height;
    bytes.expect(length.bytes);
    if (outcome.later) {
        if (outcome.verdict == Verdict::Complete) {
            m_state->waiting.note(item.type, item.name, firstByteOf(item), outcome.bytes, outcome.checked);
        }
        return false;
    }
    const std::uint32_t longerSide = std::max(facts.width, facts.height);
    if (bytes.isUnreadable(0) || bytes.mediumIsGone()) {
        // What could not be looked at is not judged.
    } else if (length.bytes < m_policy.minBytes || (longerSide != 0 && longerSide < m_policy.minPixels)) {
        outcome.leftOut = LeftOut::TooSmall;
    } else if (item.source.hints.told && !truth.file) {
        outcome.leftOut = LeftOut::Unsound;
    } else if (m_policy.skipUnsound && isCertainlyUnsound(item.type, length.extent)) {
        outcome.leftOut = LeftOut::Unsound;
    } else if (isPart(item, outcome)) {
        outcome.leftOut = LeftOut::Part;
    }
    return outcome.leftOut == LeftOut::No && !outcome.later;
}

// What the card's directory knows, and what lies in pieces, is a file of its own. What may be a part of a
// file that has to wait waits as well.
bool ItemSaver::isPart(const FoundItem& item, SaveOutcome& outcome) const {
    if (m_policy.parts || m_policy.asPublished || outcome.original || outcome.pieces > 1) {
        return false;
    }
    const std::uint64_t first = firstByteOf(item);
    if (const auto holder = m_state->within.holderOf(item.type, first, outcome.bytes)) {
        outcome.partOf = *holder;
        return true;
    }
    const auto holder = m_state->waiting.holderOf(item.type, first, outcome.bytes);
    if (item.mayWait && holder) {
        outcome.partOf = *holder;
        outcome.later = true;
    }
    return false;
}

void ItemSaver::noteWhole(const FoundItem& item, const SaveOutcome& outcome) const {
    if (outcome.saved && outcome.verdict == Verdict::Complete && outcome.pieces <= 1 &&
        outcome.sectorsUnreadable == 0 && !item.source.carved.readFailed) {
        m_state->within.note(item.type, item.name, firstByteOf(item), outcome.bytes, outcome.checked);
    }
}

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
        const bool leadsAway = errno == ELOOP || errno == ENOTDIR || errno == EXDEV;
        outcome.error = (leadsAway ? QObject::tr("The folder %1/%2 leads elsewhere")
                                   : QObject::tr("The folder %1/%2 cannot be created"))
                            .arg(m_destination, name.folder);
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
            m_state->saved.lookInto(m_destination + u'/' + safePathComponent(item.type), item.type);
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

std::optional<Soundness> soundnessOf(const SaveOutcome& outcome) {
    const bool known =
        outcome.saved || (outcome.leftOut != LeftOut::No && outcome.leftOut != LeftOut::StillThere);
    if (!known) {
        return std::nullopt;
    }
    return Soundness{outcome.verdict,
                     outcome.sectorsUnreadable != 0,
                     outcome.leftOut == LeftOut::Unsound,
                     outcome.bytes,
                     outcome.width,
                     outcome.height,
                     outcome.taken,
                     outcome.checked,
                     outcome.original,
                     outcome.pieces};
}

}  // namespace vantor
