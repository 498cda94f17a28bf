// The pictures in the cells of a list: what found items look like, made of those in view.
#pragma once

#include <QCache>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "window/preview/FilePreviewer.h"
#include "window/preview/OrderThread.h"
#include "window/preview/ViewLoader.h"
#include "window/widgets/CellPicture.h"

namespace vantor {

// Lives on the interface thread. One thread of its own brings an item's true bytes into a private file and
// has it looked at, one item at a time, and only of what is in view. While others read the medium it rests
// four times as long as it worked. Pictures are kept encoded, those looked at last, as far as they fit the
// bound; the medium stays open only as long as something is wanted of it.
class CellPictures : public QObject {
    Q_OBJECT

  public:
    // Of kept pictures.
    static constexpr int kMostBytes = 48 << 20;

    // How an item's bytes are read, asked on the interface thread; nothing: it needs no picture. Items by
    // their place in the list.
    using OrderOf = std::function<std::optional<ViewOrder>(std::size_t)>;

    CellPictures(FileLooker look, OrderOf orderOf);
    // Waits for the medium; see hasEnded().
    ~CellPictures() override;

    // The list begins anew.
    void begin();
    // Something was made of items: forgets the pictures that show them as they were before.
    void mendsChanged();
    // The items in view, in place of those of the last call; `side`: pixels of a picture's longer side.
    void want(std::vector<std::size_t> inView, int side, bool mediumBusy);
    // While somebody waits for the medium: the look under way is given up.
    void rest(bool resting);
    // The medium may be there again.
    void tryAgain() { m_mediumIsGone = false; }

    // Null: not known yet.
    const CellPicture* find(std::size_t index) const {
        const Made* const made = m_made.object(index);
        return made != nullptr ? &made->picture : nullptr;
    }

    // Ends the thread; hasEnded() is false as long as a medium that hangs holds it.
    void requestEnd();
    bool hasEnded() const { return m_thread.hasEnded(); }

  signals:
    // Another picture is there.
    void changed();

  private:
    struct Work {
        std::size_t index = 0;
        ViewOrder order;
        std::shared_ptr<WholePreview> whole;
        std::uint64_t ticket = 0;
    };
    struct Made {
        CellPicture picture;
        std::shared_ptr<const Mend> mend;  // that it shows; null: the item as it was found
    };
    enum class Outcome { Looked, GivenUp, MediumIsGone };
    class KeptMedium;

    void goOn();
    bool shows(std::size_t index, const std::shared_ptr<const Mend>& mend) const;
    void giveUp();
    void give(Work work);
    void take(const Work& work, Outcome outcome, const CellPicture& picture,
              std::chrono::milliseconds worked);
    void run();
    Outcome makeOne(const Work& work, KeptMedium& medium, CellPicture& picture) const;

    const FileLooker m_look;
    const OrderOf m_orderOf;

    // Interface thread.
    QCache<std::size_t, Made> m_made;
    std::vector<std::size_t> m_wanted;
    int m_side = 0;
    bool m_mediumBusy = false;
    bool m_resting = false;
    bool m_mediumIsGone = false;
    std::uint64_t m_ticket = 0;           // of the list
    std::optional<std::size_t> m_atWork;  // on this item
    std::shared_ptr<WholePreview> m_whole;
    QTimer m_pause;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<Work> m_next;
    bool m_nothingWanted = true;
    bool m_ending = false;
    OrderThread m_thread;  // started with the first picture that is wanted
};

}  // namespace vantor
