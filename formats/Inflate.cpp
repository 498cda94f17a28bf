// The check of a deflate stream by zlib, with bounds on how much may come out of it.
#include "formats/Inflate.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <span>

namespace vantor {

namespace {

constexpr int kRawDeflate = -MAX_WBITS;
constexpr std::size_t kOutputBytes = 64 * 1024;
constexpr std::size_t kMostInput = ByteView::kWindowBytes;

// Output that all streams of a file together may have, and beyond it for each byte of the file up to there:
// real files stay under both, compressed bombs do not burn minutes.
constexpr std::uint64_t kFreeOutput = 256 * 1024 * 1024;
constexpr std::uint64_t kFairRatio = 64;

class Inflater {
  public:
    Inflater() { m_ready = ::inflateInit2(&m_stream, kRawDeflate) == Z_OK; }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() {
        if (m_ready) {
            ::inflateEnd(&m_stream);
        }
    }

    InflateResult run(ByteView& view, std::uint64_t at, std::uint64_t mostOutput);

  private:
    // Feeds the input and takes what comes out; how much of the input was used is added to m_result.end.
    int step(std::span<const std::uint8_t> input);

    z_stream m_stream{};
    bool m_ready = false;
    InflateResult m_result;
    std::array<std::uint8_t, kOutputBytes> m_output;
};

int Inflater::step(std::span<const std::uint8_t> input) {
    const auto offered = static_cast<uInt>(std::min(input.size(), kMostInput));
    m_stream.next_in = input.data();
    m_stream.avail_in = offered;
    m_stream.next_out = m_output.data();
    m_stream.avail_out = static_cast<uInt>(m_output.size());
    const int status = ::inflate(&m_stream, Z_NO_FLUSH);
    const auto produced = static_cast<uInt>(m_output.size()) - m_stream.avail_out;
    m_result.end += offered - m_stream.avail_in;
    m_result.produced += produced;
    m_result.crc = static_cast<std::uint32_t>(::crc32(m_result.crc, m_output.data(), produced));
    m_result.adler = static_cast<std::uint32_t>(::adler32(m_result.adler, m_output.data(), produced));
    return status;
}

InflateResult Inflater::run(ByteView& view, std::uint64_t at, std::uint64_t mostOutput) {
    m_result.end = at;
    while (m_ready) {
        const auto input = view.window(m_result.end);
        const int status = step(input);
        if (status == Z_STREAM_END) {
            m_result.outcome = InflateOutcome::Done;
            break;
        }
        const auto fair = addClamped(kFreeOutput, mulClamped(kFairRatio, m_result.end));
        if (m_result.produced > mostOutput || view.unpacked() + m_result.produced > fair) {
            m_result.outcome = InflateOutcome::TooMuch;
            break;
        }
        // No progress is no error while the output was full; without input it is the end of what there is.
        if (status == Z_BUF_ERROR || (status == Z_OK && input.empty() && m_stream.avail_out != 0)) {
            m_result.outcome = InflateOutcome::Cut;
            break;
        }
        if (status != Z_OK) {
            break;
        }
    }
    view.noteUnpacked(m_result.produced);
    return m_result;
}

}  // namespace

InflateResult inflate(ByteView& view, std::uint64_t at, std::uint64_t mostOutput) {
    return Inflater().run(view, at, mostOutput);
}

InflateResult inflateZlib(ByteView& view, std::uint64_t at, std::uint64_t mostOutput) {
    const auto header = view.be16(at);
    InflateResult result;
    result.end = at;
    if (!header) {
        result.outcome = InflateOutcome::Cut;
        return result;
    }
    if (*header % 31 != 0 || (*header >> 8 & 15) != 8 || (*header & 0x20) != 0)
        return result;
    result = inflate(view, at + 2, mostOutput);
    if (result.outcome != InflateOutcome::Done)
        return result;
    const auto told = view.be32(result.end);
    if (!told) {
        result.outcome = InflateOutcome::Cut;
        return result;
    }
    if (*told != result.adler)
        result.outcome = InflateOutcome::Broken;
    else
        result.end += 4;
    return result;
}

}  // namespace vantor
