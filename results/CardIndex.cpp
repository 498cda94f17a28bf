// Sorted lists of where files begin and of what they claim.
#include "results/CardIndex.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "formats/Registry.h"
#include "media/SectorReader.h"
#include "results/ResultRow.h"

namespace vantor {

namespace {

// A file in more pieces is nobody's photo; a table of nonsense could otherwise ask for millions.
constexpr std::size_t kMostRuns = 4096;
// Of the files that begin at one sector so many are looked at.
constexpr std::size_t kMostAtOnePlace = 16;

std::uint64_t sectorsFor(std::uint64_t bytes) {
    return bytes / kSectorBytes + (bytes % kSectorBytes != 0 ? 1 : 0);
}

std::uint64_t clustersFor(std::uint64_t bytes, const CardFile& file) {
    const std::uint64_t cluster = std::max<std::uint64_t>(file.clusterSectors, 1);
    return (sectorsFor(bytes) + cluster - 1) / cluster;
}

// The first so many sectors of the runs; nothing when there are fewer.
std::optional<std::vector<SectorRun>> cutTo(std::vector<SectorRun> runs, std::uint64_t sectors) {
    std::size_t kept = 0;
    for (; kept < runs.size() && sectors > 0; ++kept) {
        SectorRun& run = runs[kept];
        run.end = std::min(run.end, run.first + sectors);
        sectors -= run.end - run.first;
    }
    if (sectors > 0) {
        return std::nullopt;
    }
    runs.resize(kept);
    return runs;
}

// Of two that both fit the one to believe: what is there before what was deleted before what lost its folder,
// then the surer place, then the later.
auto rankOf(const CardFile& file) {
    return std::tuple(static_cast<int>(file.state), static_cast<int>(file.runsKnownBy),
                      -std::max(file.modified.value_or(0), file.created.value_or(0)));
}

}  // namespace

std::uint64_t dataBytesOf(const CardFile& file) {
    return file.validBytes != 0 ? std::min(file.bytes, file.validBytes) : file.bytes;
}

std::vector<SectorRun> runsOfData(const CardFile& file) {
    if (!file.holes.empty()) {
        return file.runs;
    }
    std::vector<SectorRun> runs;
    std::uint64_t left = sectorsFor(dataBytesOf(file));
    for (const SectorRun& run : file.runs) {
        const std::uint64_t count = std::min(left, run.end - run.first);
        if (count > 0) {
            runs.push_back({run.first, run.first + count});
        }
        left -= count;
    }
    return runs;
}

QString originalPath(const CardFile& file) {
    return file.folder.isEmpty() ? file.name : file.folder + u'/' + file.name;
}

bool isNamedLike(const QString& name, const QString& type) {
    const QString extension = pathExtension(name).toUpper();
    const QString upper = type.toUpper();
    const Format* const format = formatFor(extension.toStdString());
    return !extension.isEmpty() &&
           (extension == upper || (format != nullptr && format == formatFor(upper.toStdString())));
}

CardIndex::CardIndex(CardTable table) : m_table(std::move(table)) {
    for (const CardFile& file : m_table.files) {
        if (file.runs.empty() || dataBytesOf(file) == 0) {
            continue;
        }
        const std::vector<SectorRun> runs = runsOfData(file);
        if (file.state == FileState::Live) {
            m_live.insert(m_live.end(), runs.begin(), runs.end());
        }
        // One that its own record holds takes no place, and nothing begins where it does.
        if (!file.contents.isEmpty()) {
            continue;
        }
        // What is found where it begins is not all of one with holes, nor as it was where it is packed.
        if (file.holes.empty()) {
            m_starts.push_back({file.runs.front().first, 0, &file});
        }
        for (const SectorRun& run : runs) {
            m_claims.push_back({run.first, run.end, &file});
        }
    }
    joinRuns(m_live);
    const auto byFirst = [](const Claim& a, const Claim& b) { return a.first < b.first; };
    std::stable_sort(m_starts.begin(), m_starts.end(), byFirst);
    std::stable_sort(m_claims.begin(), m_claims.end(), byFirst);
    std::uint64_t reach = 0;
    for (const Claim& claim : m_claims) {
        reach = std::max(reach, claim.end);
        m_reach.push_back(reach);
    }
}

bool CardIndex::isLiveAt(std::uint64_t sector) const {
    const auto after = std::upper_bound(m_live.begin(), m_live.end(), sector,
                                        [](std::uint64_t s, const SectorRun& run) { return s < run.end; });
    return after != m_live.end() && after->first <= sector;
}

bool CardIndex::isInTables(std::uint64_t sector) const {
    return std::any_of(
        m_table.fileSystems.begin(), m_table.fileSystems.end(), [sector](const CardFileSystem& system) {
            return system.isCurrent && system.tables.first <= sector && sector < system.tables.end;
        });
}

std::span<const CardIndex::Claim> CardIndex::startingAt(std::uint64_t sector) const {
    const auto begin = std::lower_bound(m_starts.begin(), m_starts.end(), sector,
                                        [](const Claim& start, std::uint64_t s) { return start.first < s; });
    auto end = begin;
    while (end != m_starts.end() && end->first == sector &&
           end - begin < static_cast<std::ptrdiff_t>(kMostAtOnePlace)) {
        ++end;
    }
    return {begin, end};
}

bool CardIndex::isWrittenOver(const CardFile& file) const {
    if (file.state == FileState::Live) {
        return false;
    }
    // Where one piece is only guessed, what lies in its way may always have been there.
    const bool guessed = file.runsKnownBy == RunsKnownBy::Guess || file.runsKnownBy == RunsKnownBy::StartOnly;
    return std::any_of(file.runs.begin(), file.runs.end(), [&](const SectorRun& run) {
        const std::uint64_t end = guessed ? run.first + 1 : run.end;
        return m_table.freeRunFrom(run.first, end) != SectorRun{run.first, end};
    });
}

namespace {

// Whether the claim is that of a file which had gone when this one was written: it began within it.
bool hadGone(const CardFile& other, SectorRun claim, const CardFile& file) {
    const bool bothCreated = other.created && file.created;
    const auto& before = bothCreated ? other.created : other.modified;
    const auto& then = bothCreated ? file.created : file.modified;
    const std::uint64_t first = file.runs.front().first;
    return other.state != FileState::Live && before && then && *before < *then && claim.first <= first &&
           first < claim.end;
}

}  // namespace

bool CardIndex::isDisputed(const CardFile& file) const {
    for (const SectorRun& run : runsOfData(file)) {
        auto claim = std::lower_bound(m_claims.begin(), m_claims.end(), run.end,
                                      [](const Claim& c, std::uint64_t s) { return c.first < s; });
        while (claim != m_claims.begin()) {
            --claim;
            if (m_reach[static_cast<std::size_t>(claim - m_claims.begin())] <= run.first) {
                break;
            }
            if (claim->file != &file && claim->end > run.first &&
                !hadGone(*claim->file, {claim->first, claim->end}, file)) {
                return true;
            }
        }
    }
    return false;
}

bool CardIndex::isInOneFreePiece(const CardFile& file) const {
    if (file.runsKnownBy < RunsKnownBy::Guess) {
        return file.runs.size() == 1;
    }
    const SectorRun whole{file.runs.front().first, file.runs.front().first + sectorsFor(dataBytesOf(file))};
    return file.runsKnownBy == RunsKnownBy::Guess && m_table.freeRunFrom(whole.first, whole.end) == whole &&
           !isDisputed(file);
}

CardFit CardIndex::fitOf(const CardFile& file, const QString& type, const TrueLength* length) const {
    if (file.name.isEmpty()) {
        return CardFit::No;
    }
    if (file.state == FileState::Live) {
        return CardFit::Yes;
    }
    if (isWrittenOver(file)) {
        return CardFit::No;
    }
    const bool named = isNamedLike(file.name, type);
    if (length == nullptr) {
        return named ? CardFit::Maybe : CardFit::No;
    }
    const std::uint64_t bytes = dataBytesOf(file);
    switch (length->extent.verdict) {
        case Verdict::Complete:
            if (length->bytes == bytes) {
                return CardFit::Yes;
            }
            if (named && !length->extent.exactEnd &&
                clustersFor(bytes, file) == clustersFor(length->bytes, file)) {
                return CardFit::Yes;
            }
            // Writers pad a file by some bytes that its format does not know of.
            if (named && length->bytes < bytes && sectorsFor(bytes) == sectorsFor(length->bytes) &&
                !isDisputed(file)) {
                return CardFit::Yes;
            }
            // A stream runs on into the one that lies behind it.
            return named && bytes < length->bytes && isFrameStream(type) && isInOneFreePiece(file)
                       ? CardFit::Yes
                       : CardFit::No;
        case Verdict::Unknown:
            return named && isInOneFreePiece(file) ? CardFit::Yes : CardFit::No;
        case Verdict::CutOff:
        case Verdict::Damaged:
            break;
    }
    return named ? CardFit::Maybe : CardFit::No;
}

CardIndex::Match CardIndex::match(std::uint64_t sector, const QString& type, const TrueLength* length) const {
    Match best;
    bool alike = true;
    for (const Claim& start : startingAt(sector)) {
        const CardFit fit = fitOf(*start.file, type, length);
        if (fit == CardFit::No || fit < best.fit) {
            continue;
        }
        if (best.file == nullptr || fit > best.fit) {
            best = {start.file, fit};
            alike = true;
            continue;
        }
        const bool bothThere = best.file->state == FileState::Live && start.file->state == FileState::Live;
        const bool oneThere = best.file->state == FileState::Live || start.file->state == FileState::Live;
        alike = alike && !bothThere && (oneThere || dataBytesOf(*best.file) == dataBytesOf(*start.file));
        if (rankOf(*start.file) < rankOf(*best.file)) {
            best.file = start.file;
        }
    }
    return alike ? best : Match{};
}

// Walks upwards through what is neither in use nor, where that is asked for, claimed by another file that
// begins behind the one whose clusters are sought.
class CardIndex::FreeWalk {
  public:
    FreeWalk(const CardIndex& index, const CardFile& file, std::uint64_t end, bool skipClaims)
        : m_index(index), m_begin(file.runs.front().first), m_end(end) {
        m_claim = skipClaims ? std::upper_bound(index.m_claims.begin(), index.m_claims.end(), m_begin,
                                                [](std::uint64_t s, const Claim& c) { return s < c.first; })
                             : index.m_claims.end();
        m_at = m_begin;
    }

    // The next stretch; empty at the end.
    SectorRun next() {
        for (;;) {
            const SectorRun run = m_index.m_table.freeRunFrom(m_at, m_end);
            passClaimsUpTo(run.first);
            if (run.first == run.end || m_claimedUpTo <= run.first) {
                const std::uint64_t claimed = nextClaim();
                m_at = std::min(run.end, claimed);
                return {run.first, m_at};
            }
            m_at = m_claimedUpTo;
        }
    }

  private:
    bool isOthers(const Claim& claim) const { return claim.file->runs.front().first > m_begin; }
    static std::uint64_t endOfClusters(const Claim& claim) {
        const std::uint64_t cluster = std::max(claim.file->clusterSectors, 1U);
        return claim.first + (claim.end - claim.first + cluster - 1) / cluster * cluster;
    }
    void passClaimsUpTo(std::uint64_t sector) {
        for (; m_claim != m_index.m_claims.end() && m_claim->first <= sector; ++m_claim) {
            if (isOthers(*m_claim)) {
                m_claimedUpTo = std::max(m_claimedUpTo, endOfClusters(*m_claim));
            }
        }
    }
    std::uint64_t nextClaim() {
        while (m_claim != m_index.m_claims.end() && !isOthers(*m_claim)) {
            ++m_claim;
        }
        return m_claim == m_index.m_claims.end() ? m_end : m_claim->first;
    }

    const CardIndex& m_index;
    const std::uint64_t m_begin, m_end;
    std::vector<Claim>::const_iterator m_claim;
    std::uint64_t m_at = 0;
    std::uint64_t m_claimedUpTo = 0;
};

// The clusters from the file's first on that are free; fewer than it needs where there are no more.
std::vector<SectorRun> CardIndex::freeRuns(const CardFile& file, std::uint64_t end, bool skipClaims) const {
    const std::uint64_t needed = clustersFor(dataBytesOf(file), file) * std::max(file.clusterSectors, 1U);
    std::vector<SectorRun> runs;
    std::uint64_t sectors = 0;
    FreeWalk walk(*this, file, end, skipClaims);
    while (sectors < needed && runs.size() < kMostRuns) {
        SectorRun run = walk.next();
        if (run.first == run.end) {
            break;
        }
        run.end = std::min(run.end, run.first + (needed - sectors));
        sectors += run.end - run.first;
        if (!runs.empty() && runs.back().end == run.first) {
            runs.back().end = run.end;
        } else {
            runs.push_back(run);
        }
    }
    return runs;
}

std::vector<CardIndex::Candidate> CardIndex::candidates(std::uint64_t sector, std::uint64_t end) const {
    std::vector<Candidate> list;
    const auto add = [&](const CardFile& file, const std::vector<SectorRun>& runs, AssemblyProof proof) {
        const std::uint64_t bytes = dataBytesOf(file);
        if (auto cut = cutTo(runs, sectorsFor(bytes));
            cut && std::none_of(list.begin(), list.end(), [&](const Candidate& other) {
                return other.file == &file && other.assembly.runs == *cut;
            })) {
            list.push_back({&file, {std::move(*cut), bytes, proof, true}});
        }
    };
    std::vector<const CardFile*> files;
    for (const Claim& start : startingAt(sector)) {
        if (!start.file->name.isEmpty() && !isWrittenOver(*start.file)) {
            files.push_back(start.file);
        }
    }
    std::stable_sort(files.begin(), files.end(),
                     [](const CardFile* a, const CardFile* b) { return rankOf(*a) < rankOf(*b); });
    for (const CardFile* const file : files) {
        const bool live = file->state == FileState::Live;
        if (live || file->runsKnownBy < RunsKnownBy::Guess) {
            add(*file, file->runs, live ? AssemblyProof::Proved : AssemblyProof::Likely);
            continue;
        }
        for (const bool skipClaims : {false, true}) {
            add(*file, freeRuns(*file, end, skipClaims), AssemblyProof::Likely);
        }
    }
    return list;
}

}  // namespace vantor
