// From a found item to a whole file in its type's folder: how long, and whether at all.
#include "saving/ItemSaver.h"

#include <QObject>
#include <algorithm>
#include <utility>

#include "results/TrueLength.h"
#include "saving/ItemSaverState.h"
#include "saving/SavedContents.h"

namespace vantor {

namespace {

std::uint64_t firstByteOf(const FoundItem& item) {
    return firstSectorOf(item) * kSectorBytes;
}

}  // namespace

ItemSaver::ItemSaver(const QString& destination, const SavePolicy& policy,
                     Destination::LiesOnMedium liesOnMedium)
    : m_destination(std::make_shared<Destination>(destination, std::move(liesOnMedium))),
      m_contents(std::make_shared<SavedContents>()),
      m_policy(policy),
      m_state(std::make_unique<State>()) {}

ItemSaver::~ItemSaver() = default;

SaveOutcome ItemSaver::saveRuns(const QString& type, const QString& name, const CarvedRun& carved,
                                SectorReader& medium) const {
    return save({type, name, {carved, {}, [&medium] { return &medium; }, medium.mediumSectors()}});
}

SaveOutcome ItemSaver::save(const FoundItem& item) const {
    SaveOutcome outcome;
    const auto destination = m_destination->openToWrite(outcome.error);
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

void ItemSaver::flush() const {
    const auto destination = m_destination->open();
    for (const QString& folder : std::exchange(m_state->folders, {})) {
        if (const auto below = destination ? destination->below(folder) : std::nullopt) {
            below->flush();
        }
    }
    if (!destination) {
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

// How long the file is that the directory alone tells of in the place where the item begins.
std::optional<std::uint64_t> ItemSaver::toldLengthOf(const FoundItem& item) {
    const auto& card = item.source.hints.card;
    if (!card || item.source.carved.runs.empty()) {
        return std::nullopt;
    }
    const CardFile* const file = card->match(firstSectorOf(item), item.type).file;
    return file != nullptr && card->isInOneFreePiece(*file) ? std::optional(dataBytesOf(*file))
                                                            : std::nullopt;
}

TrueLength ItemSaver::lengthOf(const FoundItem& item, MediumBytes& bytes, SaveOutcome& outcome) const {
    LengthClaims& claims = claimsOn(item.source.mediumSectors);
    bool mayGoBeyond = claims.mayGoBeyond(item.type, firstSectorOf(item));
    // A stream runs on into the next one. That is no part of it where it is a file of its own.
    if (const auto told = mayGoBeyond ? std::nullopt : toldLengthOf(item)) {
        bytes.limitTo(*told);
        mayGoBeyond = true;
    }
    TrueLength length = trueLengthOf(item.type, bytes, mayGoBeyond);
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
    // What was put together was proved then.
    outcome.framesOnly = length.extent.framesOnly && !(item.source.hints.mend && truth.assembly);
    outcome.exactLength =
        truth.lengthIsTold || (length.extent.verdict == Verdict::Complete && length.extent.exactEnd);
    outcome.taken = facts.taken;
    if (truth.assembly) {
        outcome.pieces = truth.assembly->runs.size();
        outcome.runs = truth.assembly->runs;
    }
    outcome.original = truth.file;
    outcome.durationMs = playingTimeOf(item.type, facts);
    outcome.width = facts.width;
    outcome.height = facts.height;
    bytes.expect(length.bytes);
    if (outcome.later && isPart(item, outcome)) {
        outcome.later = false;
        outcome.leftOut = LeftOut::Part;
    }
    if (outcome.later) {
        if (outcome.verdict == Verdict::Complete) {
            m_state->waiting.note(item.type, item.name, firstByteOf(item), outcome.bytes, outcome.checked);
        }
        noteOnCard(item, outcome, m_state->waiting);
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
    } else if (isOfTables(item, outcome)) {
        outcome.leftOut = LeftOut::Unsound;
    } else if (isPart(item, outcome)) {
        outcome.leftOut = LeftOut::Part;
    }
    return outcome.leftOut == LeftOut::No && !outcome.later;
}

// Whether it is made of the numbers of a table that is there; what is whole is left of what was there before.
bool ItemSaver::isOfTables(const FoundItem& item, const SaveOutcome& outcome) const {
    const auto& card = item.source.hints.card;
    return !m_policy.asPublished && outcome.verdict != Verdict::Complete && outcome.pieces <= 1 && card &&
           card->isInTables(firstSectorOf(item));
}

// What the card's directory knows, and what lies in pieces, is a file of its own. What may be a part of a
// file that has to wait waits as well.
bool ItemSaver::isPart(const FoundItem& item, SaveOutcome& outcome) const {
    if (m_policy.parts || m_policy.asPublished || outcome.original || outcome.pieces > 1) {
        return false;
    }
    const std::uint64_t first = firstByteOf(item);
    const bool isWhole = outcome.verdict == Verdict::Complete;
    if (const auto holder = m_state->within.holderOf(item.type, first, outcome.bytes, isWhole)) {
        outcome.partOf = *holder;
        return true;
    }
    const auto holder = m_state->waiting.holderOf(item.type, first, outcome.bytes, isWhole);
    if (item.mayWait && holder) {
        outcome.partOf = *holder;
        outcome.later = true;
    }
    return false;
}

void ItemSaver::noteWhole(const FoundItem& item, const SaveOutcome& outcome) const {
    if (!outcome.saved || outcome.sectorsUnreadable != 0 || item.source.carved.readFailed) {
        return;
    }
    noteOnCard(item, outcome, m_state->within);
    if (outcome.verdict == Verdict::Complete && outcome.pieces <= 1) {
        m_state->within.note(item.type, item.name, firstByteOf(item), outcome.bytes, outcome.checked);
    }
}

// A file that the card tells of and that is there, or whose own bytes say the same.
void ItemSaver::noteOnCard(const FoundItem& item, const SaveOutcome& outcome, FilesWithin& files) {
    const bool isSure = outcome.original &&
                        (outcome.original->state == FileState::Live || outcome.verdict == Verdict::Complete);
    if (!isSure || item.source.carved.runs.empty()) {
        return;
    }
    const std::uint64_t first = firstSectorOf(item);
    const std::vector<SectorRun> onePiece{{first, first + (outcome.bytes + kSectorBytes - 1) / kSectorBytes}};
    files.noteOnCard(item.type, item.name, outcome.runs.empty() ? onePiece : outcome.runs,
                     outcome.original->clusterSectors);
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
                     outcome.contentChecked(),
                     outcome.original,
                     outcome.pieces,
                     {},
                     outcome.checked,
                     outcome.durationMs};
}

}  // namespace vantor
