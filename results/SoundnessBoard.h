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

#include "results/Soundness.h"

namespace vantor {

class MyImageObject;

// Reads the medium on a thread and through a reader of its own, one item at a time, and only what was asked
// for. While others work on the medium it takes a fifth of the time for what is in view, leaves alone items
// in which a read failed, and does nothing else. When the medium goes it stops until it begins anew. The
// medium is closed when nothing is asked for any more.
//
// Items by their place in the list. Any thread may call anything.
class SoundnessBoard {
  public:
    // Both are called on the board's thread. Null: the medium cannot be opened; no such item.
    using Open = std::function<std::unique_ptr<SectorReader>()>;
    using ItemAt = std::function<std::shared_ptr<const MyImageObject>(std::size_t)>;
    // What else is known of where an item lies.
    using HintsOf = std::function<ItemHints(const MyImageObject&)>;

    explicit SoundnessBoard(ItemAt itemAt, HintsOf hintsOf = {});
    SoundnessBoard(const SoundnessBoard&) = delete;
    SoundnessBoard& operator=(const SoundnessBoard&) = delete;
    ~SoundnessBoard();

    // Forgets everything: the list begins anew, on the medium that `open` opens. Without it nothing is
    // examined.
    void begin(Open open);
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

    void startThread();
    bool isWished() const { return m_open && (!m_inView.empty() || m_all > 0); }
    void run();
    std::optional<std::size_t> next();
    bool isKnown(std::size_t index) const { return m_known.contains(index); }
    void store(std::size_t index, const Soundness& soundness);
    std::optional<Soundness> look(const MyImageObject& item, Turn& turn);

    const ItemAt m_itemAt;
    const HintsOf m_hintsOf;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    Open m_open;
    std::uint64_t m_generation = 0;
    std::unordered_map<std::size_t, Soundness> m_known;  // of few of very many, mostly
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
};

}  // namespace vantor
