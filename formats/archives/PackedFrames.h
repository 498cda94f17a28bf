// Packed files made of frames or members that follow each other.
#pragma once

#include <cstdint>
#include <optional>

#include "formats/ByteView.h"

namespace vantor {

// Where one frame ends, or how it fails to.
struct PackedFrame {
    enum class State { Whole, Cut, Broken } state = State::Whole;
    std::uint64_t end = 0;
};

PackedFrame cutFrame(const ByteView& view);

// LZ4 and Zstandard share frames that a reader is to skip. Nothing when none begins at `at`.
std::optional<PackedFrame> skippableFrame(ByteView& view, std::uint64_t at);

// Walks frames for as long as `frameAt` finds one.
Extent walkPackedFrames(ByteView& view, std::optional<PackedFrame> (*frameAt)(ByteView&, std::uint64_t));

}  // namespace vantor
