#include "formats/IsoTracks.h"

#include <algorithm>

#include "formats/Among.h"

namespace vantor {

namespace {

constexpr std::uint64_t kIsoTracksMostRuns = 1 << 16;  // of chunks that hold equally many samples

void readDescription(ByteView& view, const IsoBox& box, IsoTrack& track) {
    constexpr std::uint64_t kVisualHead = 78;
    const auto entry = readIsoBox(view, box.body + 8);
    // Where several kinds of samples are mixed the first says nothing of the others.
    if (!entry || entry->end > box.end || view.be32(box.body + 4) != 1U)
        return;
    track.codingName = entry->name;
    track.coding =
        entry->text() == "mp4a" ? codingOfMpeg4Sound(view, entry->body, entry->end) : codingOf(entry->text());
    track.lengthBytes = lengthBytesIn(view, entry->body + kVisualHead, entry->end);
}

void readTable(ByteView& view, const IsoBox& box, IsoTrack& track) {
    const auto name = box.text();
    const auto counted = [&](std::uint64_t countAt, unsigned bits) {
        const std::uint64_t count = view.be32(countAt).value_or(0);
        const auto at = countAt + 4;
        return IsoTable{at, std::min(count, (box.end - std::min(at, box.end)) * 8 / bits), bits};
    };
    if (name == "stsd") {
        track.description = box;
        readDescription(view, box, track);
    } else if (name == "stsz") {
        track.sampleBytes = view.be32(box.body + 4).value_or(0);
        track.sizes = counted(box.body + 8, 32);
    } else if (name == "stz2") {
        const auto bits = view.u8(box.body + 7).value_or(0);
        if (bits == 4 || bits == 8 || bits == 16)
            track.sizes = counted(box.body + 8, bits);
    } else if (name == "stsc")
        track.runs = counted(box.body + 4, 96);
    else if (name == "stts")
        track.durations = counted(box.body + 4, 64);
    else if (name == "stco")
        track.chunks = counted(box.body + 4, 32);
    else if (name == "co64")
        track.chunks = counted(box.body + 4, 64);
}

// The data references of a track: the first of their flags means "in this file".
bool pointsElsewhere(ByteView& view, const IsoBox& references) {
    const auto entry = readIsoBox(view, references.body + 8);
    return entry && (view.be32(entry->body).value_or(1) & 1) == 0;
}

void readMediaPart(ByteView& view, const IsoBox& part, IsoTrack& track) {
    const auto name = part.text();
    if (name == "hdlr") {
        track.handlerBox = part;
        for (std::size_t i = 0; i < track.handler.size(); ++i)
            track.handler[i] = static_cast<char>(view.u8(part.body + 8 + i).value_or(0));
    } else if (name == "mdhd") {
        const bool wide = view.u8(part.body) == std::uint8_t{1};
        track.timescale = view.be32(part.body + (wide ? 20 : 12)).value_or(0);
    } else if (name == "minf") {
        forIsoBoxes(view, part.body, part.end, [&](const IsoBox& inner) {
            static constexpr std::array<std::string_view, 4> kMediaHeads = {"vmhd", "smhd", "gmhd", "nmhd"};
            if (isAmong(kMediaHeads, inner.text()))
                track.mediaHead = inner;
            if (inner.text() == "dinf")
                forIsoBoxes(view, inner.body, inner.end, [&](const IsoBox& references) {
                    track.elsewhere =
                        track.elsewhere || (references.text() == "dref" && pointsElsewhere(view, references));
                });
            if (inner.text() == "stbl")
                forIsoBoxes(view, inner.body, inner.end,
                            [&](const IsoBox& table) { readTable(view, table, track); });
        });
    }
}

}  // namespace

std::optional<std::uint64_t> IsoTable::entry(ByteView& view, std::uint64_t index) const {
    if (index >= count)
        return std::nullopt;
    if (bits >= 8)
        return view.number(at + index * (bits / 8), bits / 8, Endian::Big);
    const auto pair = view.u8(at + index / 2);
    return pair ? std::optional<std::uint64_t>(index % 2 == 0 ? *pair >> 4 : *pair & 15) : std::nullopt;
}

IsoTrack readIsoTrack(ByteView& view, const IsoBox& box) {
    IsoTrack track;
    forIsoBoxes(view, box.body, box.end, [&](const IsoBox& child) {
        if (child.text() == "tkhd")
            track.head = child;
        if (child.text() == "mdia")
            forIsoBoxes(view, child.body, child.end,
                        [&](const IsoBox& part) { readMediaPart(view, part, track); });
    });
    return track;
}

std::uint64_t plainSoundFrameBytes(ByteView& view, const IsoTrack& track) {
    static constexpr std::array<std::string_view, 14> kPlain = {"sowt", "twos", "lpcm", "ipcm", "fpcm",
                                                                "in24", "in32", "fl32", "fl64", "raw ",
                                                                "NONE", "ulaw", "alaw", "araw"};
    const std::string_view name(track.codingName.data(), track.codingName.size());
    if (!track.isSound() || !isAmong(kPlain, name))
        return 0;
    if (track.sampleBytes > 1)
        return track.sampleBytes;
    // The first entry: its head, six bytes reserved, a reference, then version, revision and vendor.
    Cursor in(view, track.description.body + 8 + 16);
    const std::uint64_t version = in.u16();
    in.skip(6);
    const std::uint64_t channels = in.u16();
    const std::uint64_t bits = in.u16();
    in.skip(8);
    if (version == 1) {
        in.skip(8);
        return in.ok() ? std::uint64_t{in.u32()} : 0;
    }
    return in.ok() ? channels * ((bits + 7) / 8) : 0;
}

std::vector<IsoSample> samplesOf(ByteView& view, const IsoTrack& track, std::size_t most) {
    std::vector<IsoSample> samples;
    const std::uint64_t plain = plainSoundFrameBytes(view, track);
    std::uint64_t sample = 0;
    std::uint64_t chunk = 0;
    const auto runs = std::min(track.runs.count, kIsoTracksMostRuns);
    for (std::uint64_t run = 0; run < runs; ++run) {
        Cursor in(view, track.runs.at + run * 12);
        const std::uint64_t first = in.u32();
        const std::uint64_t inChunk = in.u32();
        in.skip(4);
        const std::uint64_t next = run + 1 < runs ? std::uint64_t{in.u32()} : track.chunks.count + 1;
        if (!in.ok() || first != chunk + 1 || next < first || inChunk == 0)
            return samples;
        for (; chunk + 1 < next; ++chunk) {
            auto at = track.chunks.entry(view, chunk);
            if (!at)
                return samples;
            for (std::uint64_t i = 0; i < (plain != 0 ? 1 : inChunk); ++i, ++sample) {
                const auto bytes = plain != 0               ? std::optional(mulClamped(inChunk, plain))
                                   : track.sampleBytes != 0 ? std::optional(track.sampleBytes)
                                                            : track.sizes.entry(view, sample);
                if (!bytes || samples.size() >= most)
                    return samples;
                samples.push_back({*at, *bytes});
                *at = addClamped(*at, *bytes);
            }
        }
    }
    return samples;
}

}  // namespace vantor
