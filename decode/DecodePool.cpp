// Lending helpers out, judging how each came back, and keeping their number.
#include "decode/DecodePool.h"

#include <signal.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <cstring>

#include "decode/RegularFile.h"
#include "decode/SharedPixels.h"
#include "decode/ThumbnailCodec.h"

namespace vantor {

using decode::Answer;
using decode::AnswerStatus;
using decode::AskOutcome;
using decode::HelperProcess;
using decode::Request;
using std::chrono::milliseconds;

namespace {

// A helper's own limit on processor time is far above this, so that no picture pays for those before it.
constexpr milliseconds kProcessorTimeOfAHelper = std::chrono::minutes{10};
constexpr std::uint64_t kPicturesOfAHelper = 5000;

constexpr milliseconds kFirstRetry{20};
constexpr milliseconds kLastRetry{30'000};
// One that was ended while it started says nothing of the next; so many in a row do. Where helpers did start
// before, what ends them now may pass: pictures wait somewhat longer before they go without.
constexpr int kHopelessStarts = 3;
constexpr int kHopelessStartsAfterGoodOnes = 7;

// Signals that a decoder does not raise on itself.
bool isFromOutside(int signal) {
    return signal == SIGKILL || signal == SIGTERM || signal == SIGINT || signal == SIGHUP ||
           signal == SIGQUIT;
}

Request pictureRequest(QSize bound, const QString& extension) {
    Request request;
    request.maxWidth = static_cast<std::uint32_t>(std::max(bound.width(), 1));
    request.maxHeight = static_cast<std::uint32_t>(std::max(bound.height(), 1));
    const QByteArray hint = extension.toLower().toLatin1().left(sizeof request.hint - 1);
    std::memcpy(request.hint, hint.constData(), static_cast<std::size_t>(hint.size()));
    return request;
}

Request previewRequest(QSize bound, const QString& extension) {
    Request request = pictureRequest(bound, extension);
    request.flags = decode::kReducedWillDo;
    return request;
}

int coresOr(int wanted) {
    return wanted > 0 ? wanted : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

}  // namespace

QString extensionHint(const QString& path) {
    return QFileInfo(path).suffix().toLower();
}

QString DecodePool::helperPath(const QString& name) {
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"/../libexec/vantor-recovery/", "/../libexec/", "/"}) {
        const QString candidate = program + QLatin1String(folder) + name;
        if (QFileInfo(candidate).isExecutable()) {
            return candidate;
        }
    }
    return name;
}

DecodePool::DecodePool(DecodePoolOptions options)
    : m_options([&] {
          if (options.helper.isEmpty()) {
              options.helper = helperPath(QStringLiteral("vantor-decode"));
          }
          return options;
      }()),
      m_wanted(coresOr(options.helpers)),
      m_keeper([this] { keepHelpers(); }) {}

DecodePool::~DecodePool() {
    close();
    {
        std::unique_lock lock(m_mutex);
        m_helperWanted.wait(lock, [&] { return m_callers == 0; });
    }
    m_keeper.join();
}

void DecodePool::close() {
    const std::scoped_lock lock(m_mutex);
    m_closing = true;
    m_leaving.raise();
    m_helperFree.notify_all();
    m_helperWanted.notify_all();
}

QByteArray DecodePool::thumbnail(const QByteArray& encoded, const QString& extension) {
    if (encoded.isEmpty()) {
        return {};
    }
    const Request request = pictureRequest(QSize(kThumbnailSide, kThumbnailSide), extension);
    const DecodedPicture decoded = decode([&](HelperProcess& helper, Answer& answer) {
        return helper.ask(request, encoded, m_options.thumbnailDeadline, answer);
    });
    return encodeThumbnail(decoded.image);
}

DecodedPicture DecodePool::picture(const QByteArray& encoded, QSize bound, const QString& extension) {
    if (encoded.isEmpty() || bound.isEmpty()) {
        return {};
    }
    const Request request = previewRequest(bound, extension);
    return decode([&](HelperProcess& helper, Answer& answer) {
        return helper.ask(request, encoded, m_options.pictureDeadline, answer);
    });
}

DecodedPicture DecodePool::picture(const QString& path, QSize bound) {
    const decode::RegularFile file(path);
    if (bound.isEmpty() || !file.isOpen()) {
        return {};
    }
    const Request request = previewRequest(bound, extensionHint(path));
    return decode([&](HelperProcess& helper, Answer& answer) {
        return helper.askFile(request, file.descriptor(), m_options.pictureDeadline, answer);
    });
}

DecodePoolCounts DecodePool::counts() const {
    const std::scoped_lock lock(m_mutex);
    return m_counts;
}

DecodeObstacle DecodePool::obstacle() const {
    const std::scoped_lock lock(m_mutex);
    return m_obstacle;
}

std::vector<pid_t> DecodePool::helperPids() const {
    const std::scoped_lock lock(m_mutex);
    return m_live;
}

// A helper that was dead already has not seen the picture: the next one is asked, and there may be as many of
// them as the pool holds. One that somebody else ended meanwhile says nothing against the picture either:
// another one tries, once.
DecodedPicture DecodePool::decode(const Ask& ask) {
    DecodedPicture picture;
    int dead = 0;
    bool again = false;
    bool mayTryAnother = true;
    enter();
    do {
        bool killedFromOutside = false;
        const AskOutcome outcome = askOnce(ask, picture, killedFromOutside);
        const bool wasKilled = outcome == AskOutcome::Died && killedFromOutside;
        again = (outcome == AskOutcome::NotTaken && dead++ <= m_wanted) || (wasKilled && mayTryAnother);
        mayTryAnother = mayTryAnother && !wasKilled;
    } while (again);
    leave();
    return picture;
}

// Callers count also while they wait for a helper: the pool may not go away under them.
void DecodePool::enter() {
    const std::scoped_lock lock(m_mutex);
    ++m_callers;
}

void DecodePool::leave() {
    const std::scoped_lock lock(m_mutex);
    --m_callers;
    m_helperWanted.notify_all();
}

AskOutcome DecodePool::askOnce(const Ask& ask, DecodedPicture& picture, bool& killedFromOutside) {
    std::unique_ptr<HelperProcess> helper = acquire();
    if (!helper) {
        return AskOutcome::NotPossible;
    }
    Answer answer;
    const AskOutcome outcome = ask(*helper, answer);
    if (outcome == AskOutcome::Answered && answer.status == AnswerStatus::Ok) {
        picture.image = decode::copyOfPixels(*helper, answer);
        picture.fullSize = decode::fullSizeOf(answer);
        picture.partial = (answer.flags & decode::kPartial) != 0;
    }
    if (outcome == AskOutcome::Answered || outcome == AskOutcome::NotPossible) {
        giveBack(std::move(helper));
    } else {
        bury(std::move(helper), outcome, killedFromOutside);
    }
    if (outcome == AskOutcome::Answered) {
        const std::scoped_lock lock(m_mutex);
        ++(picture.image.isNull() ? m_counts.refused : m_counts.pictures);
    }
    return outcome;
}

// Null when there is no helper to wait for.
std::unique_ptr<HelperProcess> DecodePool::acquire() {
    std::unique_lock lock(m_mutex);
    m_helperFree.wait(lock, [&] {
        const bool hopeless = m_obstacle != DecodeObstacle::None && m_live.empty();
        return m_closing || !m_idle.empty() || hopeless;
    });
    if (m_closing || m_idle.empty()) {
        return nullptr;
    }
    std::unique_ptr<HelperProcess> helper = std::move(m_idle.back());
    m_idle.pop_back();
    return helper;
}

void DecodePool::giveBack(std::unique_ptr<HelperProcess> helper) {
    if (isWornOut(*helper)) {
        retire(*helper);
        const std::scoped_lock lock(m_mutex);
        ++m_counts.recycled;
        m_helperWanted.notify_all();
        return;
    }
    const std::scoped_lock lock(m_mutex);
    m_idle.push_back(std::move(helper));
    m_helperFree.notify_one();
}

void DecodePool::bury(std::unique_ptr<HelperProcess> helper, AskOutcome outcome, bool& killedFromOutside) {
    const decode::HelperEnd end = retire(*helper);
    const std::scoped_lock lock(m_mutex);
    if (outcome == AskOutcome::Late) {
        ++m_counts.late;
    } else if (outcome == AskOutcome::BadAnswer) {
        ++m_counts.badAnswers;
    } else {
        killedFromOutside = end.bySignal && isFromOutside(end.code);
        ++(killedFromOutside ? m_counts.killed : end.bySignal ? m_counts.crashed : m_counts.exited);
    }
    m_helperWanted.notify_all();
}

// Forgets the process before it is reaped: its number may be another's from then on.
decode::HelperEnd DecodePool::retire(HelperProcess& helper) {
    {
        const std::scoped_lock lock(m_mutex);
        std::erase(m_live, helper.pid());
        if (m_live.empty()) {
            m_helperFree.notify_all();  // in case none can be started
        }
    }
    return helper.finish();
}

bool DecodePool::isWornOut(const HelperProcess& helper) const {
    return helper.answered() >= kPicturesOfAHelper || helper.processorTime() > kProcessorTimeOfAHelper ||
           helper.residentBytes().value_or(0) > m_options.residentLimitBytes;
}

// Starts helpers on one thread that lives as long as the pool, because the system ends a helper with the
// thread that started it.
void DecodePool::keepHelpers() {
    milliseconds retry = kFirstRetry;
    int failuresInARow = 0;
    std::unique_lock lock(m_mutex);
    while (!m_closing) {
        if (std::cmp_greater_equal(m_live.size(), m_wanted)) {
            m_helperWanted.wait(lock);
            continue;
        }
        lock.unlock();
        decode::StartFailure failure{};
        std::unique_ptr<HelperProcess> helper =
            HelperProcess::start(m_options.helper, m_options.startDeadline, m_leaving.descriptor(), &failure);
        lock.lock();
        if (helper) {
            retry = kFirstRetry;
            failuresInARow = 0;
            m_obstacle = DecodeObstacle::None;
            ++m_counts.started;
            m_live.push_back(helper->pid());
            m_idle.push_back(std::move(helper));
            m_helperFree.notify_one();
            continue;
        }
        ++m_counts.failedStarts;
        // A start may fail by chance; a system has cages or has none.
        if (failure == decode::StartFailure::NotCaged) {
            m_obstacle = DecodeObstacle::NoCage;
        } else if (++failuresInARow >=
                   (m_counts.started == 0 ? kHopelessStarts : kHopelessStartsAfterGoodOnes)) {
            m_obstacle = DecodeObstacle::NoHelper;
        }
        m_helperFree.notify_all();
        m_helperWanted.wait_for(lock, retry, [&] { return m_closing; });
        retry = std::min(retry * 2, kLastRetry);
    }
    // Callers under way hand their helpers back before this thread may go.
    m_helperWanted.wait(lock, [&] { return m_callers == 0; });
    m_idle.clear();
    m_live.clear();
}

}  // namespace vantor
