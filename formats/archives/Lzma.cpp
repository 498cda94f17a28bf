// LZMA files without a wrapping: unpacked up to the end mark, or to the length told.
// Source: "The .lzma File Format" of XZ Utils, in the public domain.
#include <lzma.h>

#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kLzmaHead = 13;
// What the encoder's own levels need at most, and a little more.
constexpr std::uint64_t kLzmaMostMemory = 80 * 1024 * 1024;
// As with deflate: output that any file may have, and beyond it for each byte of input.
constexpr std::uint64_t kLzmaFreeOutput = 256 * 1024 * 1024;
constexpr std::uint64_t kLzmaFairRatio = 64;

class LzmaDecoder {
  public:
    LzmaDecoder() { m_ready = ::lzma_alone_decoder(&m_stream, kLzmaMostMemory) == LZMA_OK; }
    LzmaDecoder(const LzmaDecoder&) = delete;
    LzmaDecoder& operator=(const LzmaDecoder&) = delete;
    ~LzmaDecoder() { ::lzma_end(&m_stream); }

    bool ready() const { return m_ready; }
    std::uint64_t used() const { return m_stream.total_in; }
    bool isBomb() const { return m_stream.total_out > kLzmaFreeOutput + kLzmaFairRatio * m_stream.total_in; }

    // Takes of `input` what it can; what it unpacks is thrown away.
    lzma_ret step(std::span<const std::uint8_t> input) {
        m_stream.next_in = input.data();
        m_stream.avail_in = input.size();
        m_stream.next_out = m_output.data();
        m_stream.avail_out = m_output.size();
        return ::lzma_code(&m_stream, LZMA_RUN);
    }

  private:
    lzma_stream m_stream = LZMA_STREAM_INIT;
    bool m_ready = false;
    std::array<std::uint8_t, 64 * 1024> m_output;
};

Extent walkLzma(ByteView& view) {
    // The first byte of what is packed is always zero; what unpacks to nothing is nobody's file.
    if (view.u8(kLzmaHead) != 0 || view.le64(5) == 0)
        return unknownExtent();
    LzmaDecoder decoder;
    while (decoder.ready() && !decoder.isBomb()) {
        const auto input = view.window(decoder.used());
        if (input.empty())
            return decoder.used() > kLzmaHead ? cutOffAt(view, view.size()) : unknownExtent();
        switch (decoder.step(input)) {
            case LZMA_OK:
                break;
            case LZMA_STREAM_END:
                return completeAt(view, decoder.used());
            case LZMA_DATA_ERROR:
                return damagedAt(view, decoder.used());
            default:
                return unknownExtent();  // no such head, or it asks for more memory than any file needs
        }
    }
    return unknownExtent();
}

}  // namespace

extern constexpr Format kLzma = {
    .name = "LZMA",
    .group = Group::Archives,
    .walk = walkLzma,
    .extensions = " LZMA ",
    .strongMagic = false,
    .large = true,
    .checksContent = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
