#include "repair/IndexWriter.h"

#include <algorithm>
#include <limits>

#include "repair/BoxWriter.h"

namespace vantor {

namespace {

constexpr std::uint32_t kMovieTimescale = 1000;    // units a second
constexpr std::uint32_t kNoLanguage = 0x55C40000;  // "und", then no quality
// No turning, in 16.16 and 2.30 fixed point.
constexpr std::uint32_t kUpright[] = {0x10000, 0, 0, 0, 0x10000, 0, 0, 0, 0x40000000};

std::uint64_t inMovieUnits(std::uint64_t duration, std::uint32_t timescale) {
    const std::uint64_t whole = duration / timescale;
    return whole * kMovieTimescale + duration % timescale * kMovieTimescale / timescale;
}

// How many samples later than stored the picture that is shown first in comparison is shown.
std::uint32_t delayOf(const IndexedTrack& track) {
    std::int64_t delay = 0;
    for (std::size_t i = 0; i < track.shown.size(); ++i) {
        delay = std::max(delay, static_cast<std::int64_t>(i) - static_cast<std::int64_t>(track.shown[i]));
    }
    return static_cast<std::uint32_t>(delay);
}

bool isReordered(const IndexedTrack& track) {
    for (std::size_t i = 0; i < track.shown.size(); ++i) {
        if (track.shown[i] != i) {
            return true;
        }
    }
    return false;
}

void writeMovieHead(BoxWriter& out, std::uint64_t duration, std::uint32_t nextTrack) {
    const auto box = out.box("mvhd");
    out.u32(1 << 24);  // version 1: long times
    out.u64(0).u64(0).u32(kMovieTimescale).u64(duration);
    out.u32(0x10000).u16(0x100).u16(0).u64(0);
    for (const std::uint32_t value : kUpright) {
        out.u32(value);
    }
    for (int i = 0; i < 6; ++i) {
        out.u32(0);
    }
    out.u32(nextTrack);
}

void writeTrackHead(BoxWriter& out, const IndexedTrack& track, std::uint32_t number) {
    constexpr std::uint32_t kEnabledInMovie = 3;
    const auto box = out.box("tkhd");
    out.u32(1 << 24 | kEnabledInMovie);
    out.u64(0).u64(0).u32(number).u32(0);
    out.u64(inMovieUnits(track.duration(), track.described->timescale));
    out.u64(0).u16(0).u16(track.video ? 0 : 1).u16(track.video ? 0 : 0x100).u16(0);
    out.bytes(track.described->shape);
}

// Begins the track with the picture that is shown first, however late that is by the table.
void writeEdit(BoxWriter& out, const IndexedTrack& track) {
    const std::uint64_t delay = std::uint64_t{delayOf(track)} * track.described->duration;
    if (delay == 0) {
        return;
    }
    const auto edits = out.box("edts");
    const auto list = out.box("elst");
    out.u32(1 << 24).u32(1);
    out.u64(inMovieUnits(track.duration(), track.described->timescale)).u64(delay).u32(0x10000);
}

void writeChunks(BoxWriter& out, const IndexedTrack& track) {
    {
        const auto box = out.box("stsc");
        out.u32(0);
        auto count = out.counter();
        std::uint64_t last = 0;
        for (std::size_t i = 0; i < track.chunks.size(); ++i) {
            if (track.chunks[i].samples != last) {
                last = track.chunks[i].samples;
                out.u32(static_cast<std::uint32_t>(i + 1)).u32(static_cast<std::uint32_t>(last)).u32(1);
                out.count(count);
            }
        }
    }
    const bool far =
        !track.chunks.empty() && track.chunks.back().at > std::numeric_limits<std::uint32_t>::max();
    const auto box = out.box(far ? "co64" : "stco");
    out.u32(0).u32(static_cast<std::uint32_t>(track.chunks.size()));
    for (const IndexedChunk& chunk : track.chunks) {
        if (far) {
            out.u64(chunk.at);
        } else {
            out.u32(static_cast<std::uint32_t>(chunk.at));
        }
    }
}

void writeOrder(BoxWriter& out, const IndexedTrack& track) {
    if (!isReordered(track)) {
        return;
    }
    const std::uint32_t delay = delayOf(track);
    const auto box = out.box("ctts");
    out.u32(0);
    auto count = out.counter();
    std::uint32_t run = 0;
    for (std::size_t i = 0; i < track.shown.size(); ++i) {
        const auto offset = [&](std::size_t sample) {
            return (track.shown[sample] + delay - static_cast<std::uint32_t>(sample)) *
                   track.described->duration;
        };
        ++run;
        if (i + 1 == track.shown.size() || offset(i + 1) != offset(i)) {
            out.u32(run).u32(offset(i));
            out.count(count);
            run = 0;
        }
    }
}

void writeTables(BoxWriter& out, const IndexedTrack& track) {
    const auto tables = out.box("stbl");
    out.bytes(track.described->description);
    const auto samples = static_cast<std::uint32_t>(track.samples());
    {
        const auto box = out.box("stts");
        out.u32(0).u32(1).u32(samples).u32(track.described->duration);
    }
    writeOrder(out, track);
    if (!track.sync.empty() && track.sync.size() < samples) {
        const auto box = out.box("stss");
        out.u32(0).u32(static_cast<std::uint32_t>(track.sync.size()));
        for (const std::uint32_t number : track.sync) {
            out.u32(number);
        }
    }
    {
        const auto box = out.box("stsz");
        out.u32(0).u32(track.sizes.empty() ? track.sampleBytes : 0).u32(samples);
        for (const std::uint32_t size : track.sizes) {
            out.u32(size);
        }
    }
    writeChunks(out, track);
}

void writeTrack(BoxWriter& out, const IndexedTrack& track, std::uint32_t number) {
    const auto box = out.box("trak");
    writeTrackHead(out, track, number);
    writeEdit(out, track);
    const auto media = out.box("mdia");
    {
        const auto head = out.box("mdhd");
        out.u32(1 << 24);
        out.u64(0).u64(0).u32(track.described->timescale).u64(track.duration()).u32(kNoLanguage);
    }
    out.bytes(track.described->handler);
    const auto information = out.box("minf");
    if (!track.described->mediaHead.isEmpty()) {
        out.bytes(track.described->mediaHead);
    }
    {
        const auto place = out.box("dinf");
        const auto references = out.box("dref");
        out.u32(0).u32(1);
        const auto here = out.box("url ");
        out.u32(1);
    }
    writeTables(out, track);
}

}  // namespace

std::uint64_t IndexedTrack::samples() const {
    if (!sizes.empty()) {
        return sizes.size();
    }
    std::uint64_t sum = 0;
    for (const IndexedChunk& chunk : chunks) {
        sum += chunk.samples;
    }
    return sum;
}

QByteArray writeIndex(const std::vector<IndexedTrack>& tracks) {
    std::uint64_t duration = 0;
    std::uint32_t next = 1;
    for (const IndexedTrack& track : tracks) {
        duration = std::max(duration, inMovieUnits(track.duration(), track.described->timescale));
        next += track.samples() != 0 ? 1 : 0;
    }
    if (next == 1) {
        return {};
    }
    BoxWriter out;
    {
        const auto movie = out.box("moov");
        writeMovieHead(out, duration, next);
        std::uint32_t number = 0;
        for (const IndexedTrack& track : tracks) {
            if (track.samples() != 0) {
                writeTrack(out, track, ++number);
            }
        }
    }
    return out.taken();
}

}  // namespace vantor
