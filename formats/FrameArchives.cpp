// Packed files made of frames or members that follow each other: LZ4, Zstandard, lzip, lzop.
// Sources: LZ4 Frame Format 1.6; RFC 8878 (Zstandard); draft-diaz-lzip (lzip); lzop(1) and public notes on
// its header.
#include <algorithm>

#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMostFrames = 1 << 24;

// Where one frame ends, or how it fails to.
struct Frame {
    enum class State { Whole, Cut, Broken } state = State::Whole;
    std::uint64_t end = 0;
};

Frame cutFrame(const ByteView& view) {
    return {Frame::State::Cut, view.size()};
}

// Both formats share frames that a reader is to skip.
std::optional<Frame> skippableFrame(ByteView& view, std::uint64_t at) {
    if ((view.le32(at).value_or(0) & 0xFFFFFFF0) != 0x184D2A50)
        return std::nullopt;
    const auto bytes = view.le32(at + 4);
    return bytes ? Frame{Frame::State::Whole, at + 8 + *bytes} : cutFrame(view);
}

// Nothing when no frame begins at `at`.
std::optional<Frame> lz4Frame(ByteView& view, std::uint64_t at) {
    if (!view.matches(at, "\x04\x22\x4D\x18"))
        return skippableFrame(view, at);
    const auto flags = view.u8(at + 4), block = view.u8(at + 5);
    if (!flags || !block)
        return cutFrame(view);
    const unsigned sizeCode = *block >> 4;
    if (*flags >> 6 != 1 || (*flags & 2) != 0 || (*block & 0x8F) != 0 || sizeCode < 4)
        return std::nullopt;
    const std::uint64_t mostBlock = std::uint64_t{1} << (8 + 2 * sizeCode);  // 64 KiB to 4 MiB
    const std::uint64_t checksum = (*flags & 0x10) != 0 ? 4 : 0;
    at += 7 + ((*flags & 8) != 0 ? 8 : 0) + ((*flags & 1) != 0 ? 4 : 0);
    for (;;) {
        const auto told = view.le32(at);
        if (!told)
            return cutFrame(view);
        const std::uint64_t bytes = *told & 0x7FFFFFFF;
        if (bytes > mostBlock)
            return Frame{Frame::State::Broken, at};
        at += 4;
        if (*told == 0)
            return Frame{Frame::State::Whole, at + ((*flags & 4) != 0 ? 4U : 0U)};
        at += bytes + checksum;
    }
}

std::optional<Frame> zstandardFrame(ByteView& view, std::uint64_t at) {
    constexpr std::uint32_t kMostBlock = 128 * 1024;
    constexpr int kMostEmpty = 8;  // in a row: zeros look like blocks of nothing
    if (!view.matches(at, "\x28\xB5\x2F\xFD"))
        return skippableFrame(view, at);
    const auto flags = view.u8(at + 4);
    if (!flags)
        return cutFrame(view);
    if ((*flags & 8) != 0)
        return std::nullopt;
    const bool single = (*flags & 0x20) != 0;
    static constexpr std::uint64_t kIdBytes[] = {0, 1, 2, 4}, kSizeBytes[] = {0, 2, 4, 8};
    const std::uint64_t sizeBytes = single && *flags >> 6 == 0 ? 1 : kSizeBytes[*flags >> 6];
    at += 5 + (single ? 0 : 1) + kIdBytes[*flags & 3] + sizeBytes;
    int empty = 0;
    for (bool last = false; !last;) {
        const auto head = view.number(at, 3, Endian::Little);
        if (!head)
            return cutFrame(view);
        const auto kind = *head >> 1 & 3, bytes = *head >> 3;
        empty = bytes == 0 ? empty + 1 : 0;
        if (kind == 3 || bytes > kMostBlock || empty > kMostEmpty)
            return Frame{Frame::State::Broken, at};
        last = (*head & 1) != 0;
        at += 3 + (kind == 1 ? 1 : bytes);  // one byte stands for a run
    }
    return Frame{Frame::State::Whole, at + ((*flags & 4) != 0 ? 4U : 0U)};
}

Extent walkFrames(ByteView& view, std::optional<Frame> (*frameAt)(ByteView&, std::uint64_t)) {
    std::uint64_t at = 0;
    for (std::uint32_t frames = 0; frames < kMostFrames; ++frames) {
        const auto frame = frameAt(view, at);
        if (!frame)
            return frames == 0 ? unknownExtent() : completeAt(view, at);
        if (frame->state == Frame::State::Broken)
            return damagedAt(view, frame->end);
        if (frame->state == Frame::State::Cut || frame->end > view.size())
            return cutOffAt(view, view.size());
        at = frame->end;
    }
    return damagedAt(view, at);
}

}  // namespace

Extent walkLz4(ByteView& view) {
    return walkFrames(view, lz4Frame);
}

Extent walkZstandard(ByteView& view) {
    return walkFrames(view, zstandardFrame);
}

// A member ends with its own length, so the end is the first place where that is true.
Extent walkLzip(ByteView& view) {
    constexpr std::uint64_t kLeastMember = 26, kMostSearch = 256 * 1024 * 1024;
    const auto startsAt = [&](std::uint64_t at) {
        return view.matches(at, "LZIP\1") && (view.u8(at + 5).value_or(0) & 0x1F) >= 12;
    };
    if (!startsAt(0))
        return unknownExtent();
    std::uint64_t start = 0;
    for (std::uint64_t at = kLeastMember - 8; at - start < kMostSearch;) {
        const auto bytes = view.window(at, 8);
        if (bytes.size() < 8)
            return cutOffAt(view, view.size());
        std::size_t i = 0;
        std::uint64_t number = 0;
        for (; i + 8 <= bytes.size(); ++i, ++at) {
            number = 0;
            for (std::size_t digit = 8; digit-- > 0;)
                number = number << 8 | bytes[i + digit];
            if (number == at + 8 - start)
                break;
        }
        if (number != at + 8 - start || i + 8 > bytes.size())
            continue;
        start = at + 8;
        if (!startsAt(start))
            return completeAt(view, start);
        at = start + kLeastMember - 8;
    }
    return damagedAt(view, start);
}

namespace {

std::optional<Frame> lzopMember(ByteView& view, std::uint64_t at) {
    constexpr std::string_view kMagic("\x89LZO\0\r\n\x1A\n", 9);
    constexpr std::uint32_t kMostBlock = 64 * 1024 * 1024;
    if (!view.matches(at, kMagic))
        return std::nullopt;
    Cursor in(view, at + kMagic.size());
    const bool recent = in.u16() >= 0x0940;
    in.skip(recent ? 6 : 3);  // library, what reads it, method and level
    const auto flags = in.u32();
    in.skip((flags & 0x800 ? 4U : 0U) + (recent ? 12U : 8U));  // filter, mode, time
    const auto name = in.u8();
    in.skip(std::uint64_t{name} + 4);
    if ((flags & 0x40) != 0) {
        const auto extra = in.u32();
        in.skip(std::uint64_t{extra} + 4);
    }
    const std::uint64_t plainSums = ((flags & 1) != 0 ? 4U : 0U) + ((flags & 0x100) != 0 ? 4U : 0U);
    const std::uint64_t packedSums = ((flags & 2) != 0 ? 4U : 0U) + ((flags & 0x200) != 0 ? 4U : 0U);
    while (in.ok()) {
        const auto start = in.at();
        const auto plain = in.u32();
        if (in.ok() && plain == 0)
            return Frame{Frame::State::Whole, in.at()};
        const auto packed = in.u32();
        if (in.ok() && (packed == 0 || packed > plain || plain > kMostBlock))
            return Frame{Frame::State::Broken, start};
        in.skip(plainSums + (packed < plain ? packedSums : 0) + packed);
    }
    return cutFrame(view);
}

}  // namespace

Extent walkLzop(ByteView& view) {
    return walkFrames(view, lzopMember);
}

}  // namespace vantor
