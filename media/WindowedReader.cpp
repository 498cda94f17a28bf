// The window logic: big reads on good ground, single sectors around a failure.
#include "media/WindowedReader.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include "media/AlignUp.h"

namespace vantor {

namespace {

// Unbuffered descriptors ask for aligned memory; a page satisfies all of them.
constexpr std::size_t kPageBytes = 4096;

}  // namespace

WindowedReader::WindowedReader(std::unique_ptr<BlockSource> source, Fetching fetching,
                               std::size_t windowSectors)
    : m_source(std::move(source)),
      m_windowSectors(windowSectors),
      m_storage(new std::uint8_t[2 * windowSectors * kSectorBytes + kPageBytes]),
      m_front(alignUp(m_storage.get(), kPageBytes)),
      m_back(m_front + windowSectors * kSectorBytes) {
    // On a single processor two threads would only take turns.
    if (fetching == Fetching::Ahead && std::thread::hardware_concurrency() > 1) {
        m_ahead = std::make_unique<ReadAhead>(*m_source, windowSectors * kSectorBytes);
    }
}

WindowedReader::~WindowedReader() = default;

bool WindowedReader::fetch() {
    if (m_gone) {
        return false;
    }
    if (fetchQuiet() || fetchKept() || fetchHeld()) {
        return true;
    }
    if (position() >= m_singleFrom && position() < m_singleUntil) {
        return fetchSingle();
    }
    m_attemptedFrom = m_attemptedUntil = 0;
    const bool isReadAhead = m_ahead && m_ahead->goOnTo(position());
    if (!isReadAhead) {
        stopReadingAhead();  // first, since what was refused to it counts
    }
    const std::size_t wanted = sectorsToFetch();
    return wanted == 0 ? fetchSingle() : fetchWindow(wanted, isReadAhead);
}

bool WindowedReader::fetchQuiet() {
    if (!m_recall || m_bytesWanted) {
        return false;
    }
    const std::uint64_t end = m_recall->quietUntil(position());
    if (end <= position()) {
        return false;
    }
    m_quiet.fill(0);
    m_quietBrought = false;
    m_quietEnd = end;
    handOverQuiet(m_quiet.data(), end - position());
    return true;
}

bool WindowedReader::fetchKept() {
    const std::uint8_t* const kept = m_recall && !m_bytesWanted ? m_recall->bytesOf(position()) : nullptr;
    if (kept == nullptr) {
        return false;
    }
    std::copy_n(kept, kSectorBytes, m_kept.begin());
    handOver(m_kept.data(), 1, screened(m_kept.data(), 1));
    return true;
}

// For a reader that went back a little, or on by less than was fetched.
bool WindowedReader::fetchHeld() {
    const auto holds = [this](const Held& held) {
        return held.run.first <= position() && position() < held.run.end;
    };
    if (m_recall || m_screen || (!holds(m_held) && !holds(m_heldBefore))) {
        return false;
    }
    if (!holds(m_held)) {
        std::swap(m_held, m_heldBefore);
        if (m_held.bytes == m_back) {
            std::swap(m_front, m_back);
        }
    }
    const std::uint64_t passed = position() - m_held.run.first;
    handOver(m_held.bytes + passed * kSectorBytes, m_held.run.end - position());
    return true;
}

void WindowedReader::hold(const std::uint8_t* bytes, std::size_t sectors, const std::uint8_t* looks) {
    m_heldBefore = std::exchange(m_held, {{position(), position() + sectors}, bytes});
    handOver(bytes, sectors, looks);
}

// The window that is not current, to be read into.
std::uint8_t* WindowedReader::spare() {
    if (m_heldBefore.bytes == m_back) {
        m_heldBefore = {};
    }
    return m_back;
}

// Up to the first sector that is known to be refused, at one attempt or two, and to the first whose bytes are
// not wanted.
std::size_t WindowedReader::sectorsToFetch() const {
    const std::uint64_t forAll =
        m_refusedForAll ? m_refusedForAll->firstFrom(position()) : std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t end =
        std::min({m_refused.firstFrom(position()), forAll, firstAttemptFrom(position())});
    const auto most = static_cast<std::size_t>(std::min<std::uint64_t>(m_windowSectors, end - position()));
    if (!m_recall || m_bytesWanted) {
        return most;
    }
    std::size_t wanted = std::min<std::size_t>(most, 1);
    while (wanted < most && m_recall->quietUntil(position() + wanted) == position() + wanted) {
        ++wanted;
    }
    return wanted;
}

void WindowedReader::wantBytes(bool wanted) {
    m_bytesWanted = wanted;
    if (wanted && current() == m_quiet.data() && sectorsLeft() != 0) {
        m_quietEnd = position();
        dropSectorsLeft();
    }
}

// The sector that was read last, wherever a seek went since.
void WindowedReader::bringCurrent() {
    if (current() != m_quiet.data() || std::exchange(m_quietBrought, true)) {
        return;
    }
    const std::uint64_t sector = (sectorsLeft() != 0 ? position() : m_quietEnd) - 1;
    stopReadingAhead();
    if (!noteWhetherGone() && !m_refused.contains(sector) && !isRefusedForAll(sector) && readSingle(sector)) {
        std::copy_n(m_back, kSectorBytes, m_quiet.begin());
    }
}

bool WindowedReader::fetchWindow(std::size_t wanted, bool isReadAhead) {
    ReadAhead::Window window;
    if (isReadAhead) {
        if (m_held.run.end != m_ahead->nextTaken()) {
            m_held = {};  // what lies further back makes room
        }
        window = m_ahead->takeFrom(position());
        const std::uint64_t whole = m_ahead->nextTaken() - position();
        wanted = std::min(wanted, static_cast<std::size_t>(whole));
        if (window.length != static_cast<std::int64_t>(whole * kSectorBytes)) {
            stopReadingAhead();
        }
    } else {
        window.bytes = spare();
        window.length = m_source->readAt(position(), {m_back, wanted * kSectorBytes});
    }
    const auto sectors = window.length < 0 ? 0 : static_cast<std::size_t>(window.length) / kSectorBytes;
    if (sectors < wanted) {
        // A short window says where it was refused, one that is refused whole does not.
        m_attemptedFrom = position() + sectors;
        m_attemptedUntil = sectors == 0 ? position() + wanted : m_attemptedFrom + 1;
        goSingle(position() + sectors);
    }
    if (sectors == 0) {
        return fetchSingle();
    }
    if (window.bytes == m_back) {
        std::swap(m_front, m_back);
    }
    // One window alone is read by many a copy; the second in a row is the sign of a scan. Refusals end the
    // reading ahead, which knows nothing of them.
    const bool sequential = std::exchange(m_windowEnd, position() + sectors) == position();
    std::erase_if(m_attemptedAhead, [this](const SectorRun& run) { return run.end <= position(); });
    const bool nothingRefused =
        m_refused.runs() == 0 && m_attemptedAhead.empty() && (!m_refusedForAll || m_refusedForAll->isEmpty());
    if (m_ahead && sequential && sectors == m_windowSectors && nothingRefused &&
        !m_ahead->isAt(m_windowEnd)) {
        stopReadingAhead();
        if (m_held.bytes != m_back) {
            m_held = {};  // of an earlier reading ahead, whose place is read into now
        }
        m_ahead->start(m_windowEnd, m_screen);
    }
    hold(window.bytes, sectors, window.looks != nullptr ? window.looks : screened(window.bytes, sectors));
    return true;
}

const std::uint8_t* WindowedReader::screened(const std::uint8_t* bytes, std::size_t sectors) {
    if (!m_screen) {
        return nullptr;
    }
    m_looks.resize(m_windowSectors);
    m_screen->screen(bytes, sectors, m_looks.data());
    return m_looks.data();
}

bool WindowedReader::fetchSingle() {
    stopReadingAhead();
    if (noteWhetherGone() || !readSingleOrRefuse(position())) {
        return false;
    }
    std::swap(m_front, m_back);
    hold(m_front, 1, screened(m_front, 1));
    return true;
}

// Reads into the window behind, in two attempts.
bool WindowedReader::readSingleOrRefuse(std::uint64_t sector) {
    if (m_refused.contains(sector)) {
        return false;
    }
    std::optional<RefusedSectors::Turn> turn;
    if (m_refusedForAll) {
        turn.emplace(*m_refusedForAll, sector - sector % m_source->blockSectors());
    }
    if (isRefusedForAll(sector)) {
        noteRefused(sector, sector + 1);
        return false;
    }
    if (readSingle(sector)) {
        return true;
    }
    const bool secondAttempt = takeAttempt(sector);
    if (!secondAttempt && !noteWhetherGone() && readSingle(sector)) {
        return true;
    }
    refuseRestOfBlock(sector);
    return false;
}

// Whether the sector stands in a window that was refused before; only one refusal of it is the second
// attempt.
bool WindowedReader::takeAttempt(std::uint64_t sector) {
    const bool attempted = sector >= m_attemptedFrom && sector < m_attemptedUntil;
    m_attemptedFrom = m_attemptedUntil = 0;
    const auto ahead =
        std::find_if(m_attemptedAhead.begin(), m_attemptedAhead.end(),
                     [&](const SectorRun& run) { return run.first <= sector && sector < run.end; });
    if (ahead == m_attemptedAhead.end()) {
        return attempted;
    }
    m_attemptedAhead.erase(ahead);
    return true;
}

// The sector itself where it was attempted; the largest number there is when nothing follows.
std::uint64_t WindowedReader::firstAttemptFrom(std::uint64_t sector) const {
    std::uint64_t first = std::numeric_limits<std::uint64_t>::max();
    for (const SectorRun& run : m_attemptedAhead) {
        if (sector < run.end) {
            first = std::min(first, std::max(sector, run.first));
        }
    }
    return first;
}

void WindowedReader::refuseRestOfBlock(std::uint64_t sector) {
    const std::uint64_t block = m_source->blockSectors();
    const std::uint64_t end = sector - sector % block + block;
    noteRefused(sector, end);
    // What a medium that is gone refuses says nothing of its sectors.
    for (std::uint64_t s = sector; s < end && m_refusedForAll && !noteWhetherGone(); ++s) {
        m_refusedForAll->add(s);
    }
    goSingle(end - 1);
}

void WindowedReader::noteRefused(std::uint64_t first, std::uint64_t end) {
    for (std::uint64_t s = first; s < end; ++s) {
        m_refused.add(s);
        ++m_refusals;
    }
}

void WindowedReader::setScreen(std::shared_ptr<const SectorScreen> screen) {
    stopReadingAhead();
    m_held = m_heldBefore = {};
    m_screen = std::move(screen);
}

void WindowedReader::stopReadingAhead() {
    if (m_ahead) {
        const std::vector<SectorRun> attempted = m_ahead->pause();
        m_attemptedAhead.insert(m_attemptedAhead.end(), attempted.begin(), attempted.end());
    }
}

bool WindowedReader::readSingle(std::uint64_t sector) {
    return m_source->readAt(sector, {spare(), kSectorBytes}) == static_cast<std::int64_t>(kSectorBytes);
}

// Of two stretches far from each other the later counts: what was refused in the former is known by now.
void WindowedReader::goSingle(std::uint64_t from) {
    if (from < m_singleFrom || from > m_singleUntil) {
        m_singleFrom = m_singleUntil = from;
    }
    m_singleUntil = std::max(m_singleUntil, from + m_windowSectors);
}

// Millions of reads and seeks may follow; none of them needs to go further than the flag.
bool WindowedReader::noteWhetherGone() {
    m_gone = m_gone || !m_source->usable();
    return m_gone;
}

// Only of the stretch that the reader stands in: elsewhere it is a user's question, not a step of a scan.
bool WindowedReader::isInDeadStretch(std::uint64_t sector) const {
    const std::uint64_t first = m_refused.firstOfRunUpTo(sector);
    if (position() < first || position() > sector) {
        return false;
    }
    const std::uint64_t refused = sector - first + (m_refused.contains(sector) ? 1 : 0);
    return refused >= (m_refusals < kMostRefusals ? kDeadStretch : 1);
}

// What is read ahead may serve there too.
bool WindowedReader::moveTo(std::uint64_t sector) {
    if (noteWhetherGone()) {
        return false;
    }
    if (!isInDeadStretch(sector)) {
        return true;
    }
    stopReadingAhead();
    return readSingleOrRefuse(sector);
}

}  // namespace vantor
