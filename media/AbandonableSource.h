// Reads on a thread of its own, so that whoever waits for a device that hangs can walk away.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

#include "media/BlockSource.h"

namespace vantor {

// Asked some 20 times a second while a medium keeps its reader waiting; true ends the wait. Called on the
// waiting thread.
using StopRequest = std::function<bool()>;

// A read that hangs in the kernel can be ended by nothing, so it runs on a thread that may be left behind:
// the thread owns the medium and ends, closing it, when the read returns. Whoever waits gives a read that was
// under way when the user stopped kGraceMs to finish; then the read fails and the source is no longer usable.
//
// The thread also reads the next window while the last one is searched, once windows are asked for in
// sequence. That pays for the change of threads: a medium is read at its own speed, and no request is made
// that the reader would not make next.
class AbandonableSource : public BlockSource {
  public:
    // A reader asks for at most so many bytes at once.
    static constexpr std::size_t kMostBytes = std::size_t{512} * 512;
    static constexpr int kGraceMs = 1000;

    // Runs on the new thread; may hang; null when the medium cannot be opened.
    using Open = std::function<std::unique_ptr<BlockSource>()>;

    // Null when `open` gives nothing or the wait for it was ended.
    static std::unique_ptr<AbandonableSource> start(Open open, StopRequest stop);
    ~AbandonableSource() override;

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override;
    bool usable() override;
    std::uint64_t sectors() const override;
    std::uint64_t blockSectors() const override;

  private:
    struct Shared;

    AbandonableSource(std::shared_ptr<Shared> shared, StopRequest stop);

    std::shared_ptr<Shared> m_shared;
    StopRequest m_stop;
    std::uint64_t m_expected = ~std::uint64_t{0};  // where the next window of a sequence begins
};

}  // namespace vantor
