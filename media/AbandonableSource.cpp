// The thread beside the reader, and the wait that can be given up.
#include "media/AbandonableSource.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>
#include <utility>

#include "media/SectorReader.h"

namespace vantor {

namespace {

constexpr auto kCallerPollTime = std::chrono::milliseconds(50);
constexpr std::size_t kPage = 4096;

}  // namespace

struct AbandonableSource::Shared {
    enum class Stage { Working, Idle, Ended };
    struct FreeMemory {
        void operator()(std::uint8_t* p) const { std::free(p); }
    };

    // False when the wait was given up.
    bool waitUntilIdle(std::unique_lock<std::mutex>& lock, const StopRequest& stop);
    void post(std::uint64_t atSector, std::size_t count);
    void serve(std::unique_ptr<BlockSource> source);

    std::mutex mutex;
    std::condition_variable threadWakes, callerWakes;
    Stage stage = Stage::Working;
    bool quit = false;
    bool sourceUsable = true;
    std::uint64_t sectors = 0;  // this and the next are set before the first Idle
    std::uint64_t blockSectors = 1;

    // The request, and what became of it once the stage is Idle. The buffer is the thread's while Working,
    // the caller's otherwise.
    std::uint64_t sector = 0;
    std::size_t bytes = 0;  // 0: none yet
    std::int64_t result = -1;
    std::unique_ptr<std::uint8_t[], FreeMemory> buffer{
        static_cast<std::uint8_t*>(std::aligned_alloc(kPage, kMostBytes))};
};

bool AbandonableSource::Shared::waitUntilIdle(std::unique_lock<std::mutex>& lock, const StopRequest& stop) {
    using Clock = std::chrono::steady_clock;
    Clock::time_point giveUp = Clock::time_point::max();
    while (stage == Stage::Working) {
        callerWakes.wait_for(lock, kCallerPollTime);
        if (stage != Stage::Working) {
            break;
        }
        // The user's answer is asked for without the lock, which the thread needs to finish.
        lock.unlock();
        const bool stopping = stop && stop();
        lock.lock();
        if (stopping && giveUp == Clock::time_point::max()) {
            giveUp = Clock::now() + std::chrono::milliseconds(kGraceMs);
        }
        if (stage == Stage::Working && Clock::now() >= giveUp) {
            quit = true;
            sourceUsable = false;
            return false;
        }
    }
    return true;
}

void AbandonableSource::Shared::post(std::uint64_t atSector, std::size_t count) {
    sector = atSector;
    bytes = count;
    stage = Stage::Working;
    threadWakes.notify_one();
}

// The thread's life after opening.
void AbandonableSource::Shared::serve(std::unique_ptr<BlockSource> source) {
    std::unique_lock lock(mutex);
    sectors = source->sectors();
    blockSectors = source->blockSectors();
    for (;;) {
        stage = Stage::Idle;
        callerWakes.notify_one();
        threadWakes.wait(lock, [this] { return quit || stage == Stage::Working; });
        if (quit) {
            return;
        }
        lock.unlock();
        const std::int64_t got = source->readAt(sector, {buffer.get(), bytes});
        const bool usableNow = source->usable();
        lock.lock();
        result = got;
        sourceUsable = sourceUsable && usableNow;
    }
}

std::unique_ptr<AbandonableSource> AbandonableSource::start(Open open, StopRequest stop) {
    auto shared = std::make_shared<Shared>();
    if (!shared->buffer) {
        return nullptr;
    }
    std::thread([shared, open = std::move(open)]() mutable {
        std::unique_ptr<BlockSource> source = open();
        // This thread may outlast the program's own end; what opening took is let go while somebody waits.
        open = nullptr;
        if (source) {
            shared->serve(std::move(source));
            return;
        }
        const std::lock_guard lock(shared->mutex);
        shared->stage = Shared::Stage::Ended;
        shared->callerWakes.notify_one();
    }).detach();
    std::unique_lock lock(shared->mutex);
    if (!shared->waitUntilIdle(lock, stop) || shared->stage == Shared::Stage::Ended) {
        return nullptr;
    }
    lock.unlock();
    return std::unique_ptr<AbandonableSource>(new AbandonableSource(std::move(shared), std::move(stop)));
}

AbandonableSource::AbandonableSource(std::shared_ptr<Shared> shared, StopRequest stop)
    : m_shared(std::move(shared)), m_stop(std::move(stop)) {}

AbandonableSource::~AbandonableSource() {
    const std::lock_guard lock(m_shared->mutex);
    m_shared->quit = true;
    m_shared->threadWakes.notify_one();
}

std::int64_t AbandonableSource::readAt(std::uint64_t sector, std::span<std::uint8_t> into) {
    Shared& shared = *m_shared;
    const std::size_t count = std::min(into.size(), kMostBytes);
    std::unique_lock lock(shared.mutex);
    if (!shared.sourceUsable && shared.stage == Shared::Stage::Working) {
        return -1;  // left behind
    }
    if (!shared.waitUntilIdle(lock, m_stop)) {
        return -1;
    }
    if (shared.bytes != count || shared.sector != sector) {
        if (!shared.sourceUsable) {
            return -1;
        }
        shared.post(sector, count);
        if (!shared.waitUntilIdle(lock, m_stop)) {
            return -1;
        }
    }
    shared.bytes = 0;
    const std::int64_t got = shared.result;
    if (got <= 0) {
        return -1;
    }
    std::memcpy(into.data(), shared.buffer.get(), static_cast<std::size_t>(got));
    const bool inSequence = m_expected == sector;
    const bool wholeWindow = count > kSectorBytes && static_cast<std::size_t>(got) == count;
    m_expected = sector + count / kSectorBytes;
    if (inSequence && wholeWindow && shared.sourceUsable) {
        shared.post(m_expected, count);
    }
    return got;
}

std::uint64_t AbandonableSource::sectors() const {
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->sectors;
}

std::uint64_t AbandonableSource::blockSectors() const {
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->blockSectors;
}

bool AbandonableSource::usable() {
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->sourceUsable;
}

}  // namespace vantor
