// Where an item's own structure and the card's directory agree, the directory's word is taken; where they do
// not, the structure's.
#include "results/ItemBytes.h"

#include <algorithm>
#include <utility>

#include "results/Mend.h"

namespace vantor {

namespace {

bool isComplete(const TrueLength& length) {
    return length.extent.verdict == Verdict::Complete;
}

// Whether the structure, followed through the pieces, shows that they belong together.
bool proves(const TrueLength& length, const Assembly& pieces, bool placesAreKnown) {
    if (length.extent.verdict == Verdict::Unknown) {
        return placesAreKnown;
    }
    if (!isComplete(length)) {
        return false;
    }
    const bool sameEnd = length.bytes == pieces.bytes;
    return placesAreKnown ? sameEnd || !length.extent.exactEnd : sameEnd && length.extent.checked;
}

std::unique_ptr<LaidOutReader> laidOutReaderOf(const ItemSource& source) {
    const auto& told = source.hints.told;
    SectorReader* const medium = told && !told->holes.empty() && source.medium ? source.medium() : nullptr;
    return medium != nullptr ? std::make_unique<LaidOutReader>(*told, *medium) : nullptr;
}

ItemSource sourceOf(const ItemSource& source, const Assembly& assembly, LaidOutReader* laidOut) {
    if (laidOut != nullptr) {
        const std::uint64_t sectors = laidOut->mediumSectors();
        ItemSource whole{{{{0, sectors}}, false}, {}, [laidOut] { return laidOut; }, sectors};
        whole.asPublished = true;
        return whole;
    }
    // Of a told file the bytes at hand are its own.
    const QByteArrayView atHand = source.hints.told ? source.firstBytes : QByteArrayView();
    ItemSource pieces{{assembly.runs, source.carved.readFailed}, atHand, source.medium, source.mediumSectors};
    pieces.asPublished = true;
    return pieces;
}

}  // namespace

Verdict verdictOf(const ItemTruth& truth) {
    const Verdict verdict = truth.length.extent.verdict;
    return truth.lengthIsTold && verdict == Verdict::Unknown ? Verdict::Complete : verdict;
}

ItemBytes::Pieces::Pieces(const ItemSource& from, const Assembly& assembly, std::vector<std::uint8_t>& kept)
    : laidOut(laidOutReaderOf(from)), source(sourceOf(from, assembly, laidOut.get())), bytes(source, kept) {}

ItemBytes::ItemBytes(const ItemSource& source, std::vector<std::uint8_t>& kept)
    : m_source(source), m_carved(source, kept) {}

ItemBytes::ItemBytes(const ItemSource& source, std::vector<std::uint8_t>& kept, const ItemTruth& truth)
    : ItemBytes(source, kept) {
    m_truth = truth;
    if (truth.assembly) {
        m_pieces = std::make_unique<Pieces>(m_source, *truth.assembly, m_keptOfPieces);
    }
}

const ItemTruth& ItemBytes::measure(const QString& type, bool mayGoBeyond) {
    m_truth.length = {m_carved.carvedBytes(), {}};
    if (m_source.asPublished) {
        return m_truth;
    }
    if (m_source.hints.told) {
        measureTold(type);
        return m_truth;
    }
    return measureFrom(type, trueLengthOf(type, m_carved, mayGoBeyond));
}

const ItemTruth& ItemBytes::measureFrom(const QString& type, const TrueLength& carved) {
    m_truth.length = carved;
    if (!m_source.carved.runs.empty() && !takeMend(type)) {
        askCard(type);
    }
    return m_truth;
}

// What was put together after the search, when the card's word on the pieces had been heard already. The card
// may still tell the name.
bool ItemBytes::takeMend(const QString& type) {
    const auto& mend = m_source.hints.mend;
    if (!mend || mend->assembly.runs.empty()) {
        return false;
    }
    auto pieces = std::make_unique<Pieces>(m_source, mend->assembly, m_keptOfPieces);
    m_truth.length = {mend->assembly.bytes, trueLengthOf(type, pieces->bytes, false).extent};
    m_truth.assembly = mend->assembly;
    m_pieces = std::move(pieces);
    if (const auto& card = m_source.hints.card) {
        const CardIndex::Match match = card->match(m_source.carved.runs.front().first, type, &m_truth.length);
        const bool fits = match.fit != CardFit::No && dataBytesOf(*match.file) == m_truth.length.bytes;
        if (fits && (match.fit == CardFit::Yes || !card->isDisputed(*match.file))) {
            take(match.file);
        }
    }
    return true;
}

// Its bytes are as the directory says. Where their place is only guessed, a structure that has another end
// makes them another's.
void ItemBytes::measureTold(const QString& type) {
    const CardFile& file = *m_source.hints.told;
    const Assembly pieces{m_source.carved.runs, dataBytesOf(file), AssemblyProof::Likely, true};
    const bool certain = file.state == FileState::Live || file.runsKnownBy < RunsKnownBy::Guess;
    if (tryPieces(type, pieces, true, certain)) {
        m_truth.file = m_source.hints.told;
    }
}

// Whether it was carved through sectors of files that are there.
bool ItemBytes::runsIntoOthers(const CardTable& card) const {
    const auto isFree = [&card](const SectorRun& run) { return card.freeRunFrom(run.first, run.end) == run; };
    std::uint64_t left = m_truth.length.bytes / kSectorBytes + (m_truth.length.bytes % kSectorBytes != 0);
    std::uint64_t end = 0;
    for (const SectorRun& run : m_source.carved.runs) {
        const std::uint64_t count = std::min(left, run.end - run.first);
        if (count > 0 && !isFree({run.first, run.first + count})) {
            return true;
        }
        left -= count;
        end = run.end;
    }
    return left > 0 && !isFree({end, end + left});
}

bool ItemBytes::tryPieces(const QString& type, const Assembly& assembly, bool placesAreKnown, bool believed) {
    auto pieces = std::make_unique<Pieces>(m_source, assembly, m_keptOfPieces);
    const TrueLength length = trueLengthOf(type, pieces->bytes, false);
    const bool proved = proves(length, assembly, placesAreKnown);
    if (!proved && !believed) {
        return false;
    }
    m_pieces = std::move(pieces);
    m_truth.length = {assembly.bytes, length.extent};
    m_truth.lengthIsTold = !isComplete(length) || length.bytes != assembly.bytes;
    m_truth.assembly = assembly;
    m_truth.assembly->proof = AssemblyProof::Proved;
    return true;
}

// Whether the carved view holds the same sectors.
bool ItemBytes::lieAsCarved(const Assembly& assembly) const {
    return assembly.runs.size() == 1 && assembly.runs.front().first == m_source.carved.runs.front().first &&
           std::is_sorted(m_source.carved.runs.begin(), m_source.carved.runs.end(),
                          [](const SectorRun& a, const SectorRun& b) { return a.first < b.first; }) &&
           assembly.bytes <= m_carved.size();
}

void ItemBytes::askCard(const QString& type) {
    const auto& card = m_source.hints.card;
    if (!card) {
        return;
    }
    const std::uint64_t first = m_source.carved.runs.front().first;
    // A length in its head makes it complete wherever it lies.
    const bool crosses = isComplete(m_truth.length) && !m_truth.length.extent.checked &&
                         !card->isLiveAt(first) && runsIntoOthers(card->table());
    const auto candidates = card->candidates(first, m_source.mediumSectors);
    for (const auto& candidate : candidates) {
        const bool live = candidate.file->state == FileState::Live;
        const bool known = live || candidate.file->runsKnownBy < RunsKnownBy::Guess;
        if (lieAsCarved(candidate.assembly)) {
            if (live) {
                break;
            }
            continue;
        }
        // What is whole where it was carved is not looked for elsewhere.
        const bool settled =
            !crosses && isComplete(m_truth.length) && (m_truth.length.extent.checked || !known);
        // Round what is there it goes on in the next free clusters, where only these can be its.
        const bool isOnlyWay =
            crosses && candidates.size() == 1 && candidate.assembly.bytes == m_truth.length.bytes;
        if ((live || !settled) && tryPieces(type, candidate.assembly, known || isOnlyWay, live)) {
            if (!known && !m_truth.length.extent.checked) {
                m_truth.assembly->proof = AssemblyProof::Likely;
            }
            take(candidate.file);
            return;
        }
    }
    if (crosses && !candidates.empty()) {
        m_truth.length.extent.verdict = Verdict::Damaged;
    }
    const CardIndex::Match match = card->match(first, type, &m_truth.length);
    if (match.fit == CardFit::Maybe) {
        // Cut off or damaged. The name is its own where nobody else lays claim to the place, and so is the
        // length where the directory tells one piece, or where a stream is followed no further.
        if (!card->isDisputed(*match.file)) {
            take(match.file);
            if (card->isInOneFreePiece(*match.file)) {
                takeLength(dataBytesOf(*match.file));
            }
        }
        return;
    }
    if (match.fit != CardFit::Yes) {
        return;
    }
    if (takeLength(dataBytesOf(*match.file))) {
        take(match.file);
    }
}

// False when the carved view ends before.
bool ItemBytes::takeLength(std::uint64_t bytes) {
    if (bytes > m_carved.size()) {
        return false;
    }
    m_truth.lengthIsTold = m_truth.lengthIsTold || bytes != m_truth.length.bytes;
    m_truth.length.bytes = bytes;
    return true;
}

void ItemBytes::take(const CardFile* file) {
    m_truth.file = {m_source.hints.card, file};
}

}  // namespace vantor
