// Finds out the soundness of found items beside whatever else goes on, those in view first.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_map>
#include <vector>

#include "decode/ContentTrials.h"
#include "results/Soundness.h"

namespace vantor {

class MyImageObject;

// Reads the medium on a thread and through a reader of its own, one item at a time, and only what was asked
// for. While others work on the medium it takes a fifth of the time for what is in view, leaves alone items
// in which a read failed, and does nothing else. When the medium goes it stops until it begins anew. The
// medium is closed when nothing is asked for any more.
//
// A movie of which the frames were followed is known at once, and decoded on another thread when nothing else
// is left to be examined.
//
// Items by their place in the list. Any thread may call anything.
class SoundnessBoard {
  public:
    // Both are called on the board's thread. Null: the medium cannot be opened; no such item.
    using Open = std::function<std::unique_ptr<SectorReader>()>;
    using ItemAt = std::function<std::shared_ptr<const MyImageObject>(std::size_t)>;
    // What else is known of where an item lies.
    using HintsOf = std::function<ItemHints(const MyImageObject&)>;
    // Whether the medium refused a sector to anybody. Any thread; does not block.
    using Failing = std::function<bool()>;

    // Without a decoder of its own, by the movie helper as far as time allows.
    explicit SoundnessBoard(ItemAt itemAt, HintsOf hintsOf = {}, ContentDecoder decodes = {});
    SoundnessBoard(const SoundnessBoard&) = delete;
    SoundnessBoard& operator=(const SoundnessBoard&) = delete;
    ~SoundnessBoard();

    // Forgets everything: the list begins anew, on the medium that `open` opens. Without it nothing is
    // examined. Once it is failing nothing is read to be decoded.
    void begin(Open open, Failing failing = {});
    // The same list, of which more is known now: all is found out anew.
    void beginAgain();
    // The items in view, in place of those of the last call.
    void want(std::vector<std::size_t> inView);
    // Behind those in view, the first `count` items of the list.
    void wantAll(std::size_t count);
    void setMediumBusy(bool busy);
    // While somebody waits for the medium: the look under way is given up and nothing is read.
    void rest(bool resting);
    // What another found out.
    void note(std::size_t index, const Soundness& soundness);

    std::optional<Soundness> find(std::size_t index) const;
    std::size_t known() const;
    // Grows whenever something new is known.
    std::uint64_t changes() const { return m_changes; }
    // Items of which something was found out since the last call, some of them twice perhaps.
    std::vector<std::size_t> takeNews();
    bool mediumIsGone() const;
    // Somebody else could open the medium, or it was put back in.
    void tryAgain();

    // Ends the thread; hasEnded() is false as long as a medium that hangs holds it.
    void requestEnd();
    bool hasEnded() const { return !m_running; }

  private:
    struct Turn;

    // What the board's thread does next.
    struct Work {
        std::size_t index = 0;
        bool decoding = false;  // of what was followed
    };

    void startThread();
    bool isWished() const { return m_open && (!m_inView.empty() || m_all > 0); }
    void run();
    std::optional<Work> next();
    std::optional<Work> nextToDecode();
    bool isToBeDecoded(std::size_t index) const;
    bool isInView(std::size_t index) const;
    FileDescriptor contentOf(const MyImageObject& item, Turn& turn, std::uint64_t bytes,
                             const Failing& failing);
    void prepareDecoding(std::size_t index, Turn& turn, std::unique_lock<std::mutex>& lock);
    void decodeBeside(std::size_t index, std::uint64_t bytes, FileDescriptor content);
    void noteWhole(std::size_t index, std::uint64_t bytes);
    bool isKnown(std::size_t index) const { return m_known.contains(index); }
    void store(std::size_t index, Soundness soundness);
    std::optional<Soundness> look(const MyImageObject& item, Turn& turn);

    const ItemAt m_itemAt;
    const HintsOf m_hintsOf;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    Open m_open;
    Failing m_failing;
    std::uint64_t m_generation = 0;
    std::unordered_map<std::size_t, Soundness> m_known;      // of few of very many, mostly
    std::unordered_map<std::size_t, Soundness> m_earlier;    // before more was known of the list
    std::vector<std::size_t> m_followed;                     // perhaps to be decoded
    std::unordered_map<std::size_t, std::uint64_t> m_tried;  // bytes of those that were, or cannot be
    std::vector<std::size_t> m_news;
    std::vector<std::size_t> m_inView;
    std::size_t m_all = 0, m_cursor = 0;
    bool m_busy = false;
    bool m_resting = false;
    bool m_gone = false;
    bool m_ending = false;

    ReadWatch m_watch;
    std::atomic<std::uint64_t> m_changes{0};
    std::atomic<bool> m_running{false};
    std::thread m_thread;  // started with the first wish

    const ContentDecoder m_decodes;
    ContentTrials m_trials{ContentTrials::kInPassing};  // the decoding thread's while there is one
    std::uint64_t m_trialsOf = 0;                       // generation
    bool m_decoding = false;
    std::thread m_decoder;  // of one movie
};

}  // namespace vantor
