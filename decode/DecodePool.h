// The one road by which carved bytes become a picture: a pool of helper processes that may crash in our
// place.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "decode/CancelSignal.h"
#include "decode/HelperProcess.h"

namespace vantor {

// Longer side of a thumbnail, in pixels.
constexpr int kThumbnailSide = 100;

struct DecodePoolOptions {
    QString helper;   // path of the helper executable; empty = beside the program
    int helpers = 0;  // processes; 0 = one a core
    std::chrono::milliseconds thumbnailDeadline{5000};
    std::chrono::milliseconds pictureDeadline{15000};
    std::chrono::milliseconds startDeadline{10000};
    // A helper that holds more memory after a picture is replaced before the next.
    std::uint64_t residentLimitBytes = std::uint64_t{256} << 20;
};

struct DecodedPicture {
    QImage image;          // upright; null when nothing could be shown
    QSize fullSize;        // of the whole picture, upright; empty when not known
    bool partial = false;  // the bytes ended or broke before the picture did
};

// Why no picture can be decoded at all.
enum class DecodeObstacle {
    None,
    NoHelper,  // none can be started
    NoCage,    // the system gives helpers no cage, and nothing is decoded outside one
};

// What happened so far.
struct DecodePoolCounts {
    std::uint64_t started = 0;
    std::uint64_t failedStarts = 0;
    std::uint64_t pictures = 0;  // decoded
    std::uint64_t refused = 0;   // bytes that are no picture
    std::uint64_t crashed = 0;   // helpers that died by a signal of their own making
    std::uint64_t exited = 0;    // helpers that left by themselves with a status other than 0
    std::uint64_t killed = 0;    // helpers ended by somebody else
    std::uint64_t late = 0;
    std::uint64_t badAnswers = 0;
    std::uint64_t recycled = 0;  // replaced in good health, for their memory or age
};

// Thread-safe; every call blocks its caller until a helper is free and has answered, failed or run into the
// deadline. Never decodes in this process: where no helper can be started, every call gives "no picture" at
// once, while the pool goes on trying to start one now and then.
class DecodePool {
  public:
    explicit DecodePool(DecodePoolOptions options = {});
    DecodePool(const DecodePool&) = delete;
    DecodePool& operator=(const DecodePool&) = delete;
    // Closes, waits for the calls under way to return, and ends all helpers.
    ~DecodePool();

    // A thumbnail: the full picture (never a small one that the file brings along), upright, longer side at
    // most kThumbnailSide pixels and never enlarged, as JPEG encoded by this process; empty when the bytes
    // cannot be decoded. `extension` (may be empty) helps with the few formats that carry no mark of their
    // own.
    QByteArray thumbnail(const QByteArray& encoded, const QString& extension = {});

    // The picture within the bound, upright, never enlarged; where the full one cannot be decoded, a small
    // one that the file brings along, and the full size is then not known.
    DecodedPicture picture(const QByteArray& encoded, QSize bound, const QString& extension = {});
    DecodedPicture picture(const QString& path, QSize bound);

    // For leaving in a hurry: calls under way return at once, later ones give no picture.
    void close();

    int helpers() const { return m_wanted; }
    DecodePoolCounts counts() const;
    // As far as it is known by now: helpers are started in the background.
    DecodeObstacle obstacle() const;
    // The processes that stand ready or work at the moment.
    std::vector<pid_t> helperPids() const;

    // Where an installed program or a build keeps the helper of this name.
    static QString helperPath(const QString& name);

  private:
    using Ask = std::function<decode::AskOutcome(decode::HelperProcess&, decode::Answer&)>;

    DecodedPicture decode(const Ask& ask);
    decode::AskOutcome askOnce(const Ask& ask, DecodedPicture& picture, bool& killedFromOutside);
    std::unique_ptr<decode::HelperProcess> acquire();
    void enter();
    void leave();
    void giveBack(std::unique_ptr<decode::HelperProcess> helper);
    void bury(std::unique_ptr<decode::HelperProcess> helper, decode::AskOutcome outcome,
              bool& killedFromOutside);
    decode::HelperEnd retire(decode::HelperProcess& helper);
    bool isWornOut(const decode::HelperProcess& helper) const;
    void keepHelpers();

    const DecodePoolOptions m_options;
    const int m_wanted;

    mutable std::mutex m_mutex;
    std::condition_variable m_helperFree;    // for callers
    std::condition_variable m_helperWanted;  // for the keeper, and for the destructor
    std::vector<std::unique_ptr<decode::HelperProcess>> m_idle;
    std::vector<pid_t> m_live;  // idle and busy ones, none of them reaped yet
    int m_callers = 0;
    DecodeObstacle m_obstacle = DecodeObstacle::None;
    bool m_closing = false;
    DecodePoolCounts m_counts;
    const CancelSignal m_leaving;  // raised with m_closing

    std::thread m_keeper;  // last: it uses everything above
};

// The extension of a path as a request carries it: lower case, without the point.
QString extensionHint(const QString& path);

}  // namespace vantor
