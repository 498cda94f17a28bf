// An AVI movie whose index was never written, made playable: its chunks tell themselves where they end.
#pragma once

#include <cstdint>
#include <optional>

#include "repair/MovieRepair.h"

namespace vantor {

// Chunks of one movie; the index that is written counts in 32 bits.
constexpr std::size_t kMostAviChunks = 4'000'000;
constexpr std::uint64_t kMostAviBytes = 0xFFFF0000;

// Whether the bytes are an AVI movie behind whose data no index stands, or one of its first gigabyte alone.
bool isAviWithoutIndex(ByteSource& movie);

// Nothing where the bytes are no AVI movie, where its index stands, or no whole picture does. Takes the
// chunks up to the first that is not of the movie, and of these the last one only when its end shows.
// Sources: Microsoft, AVI RIFF file reference; OpenDML 1.02.
std::optional<RepairedMovie> repairAvi(ByteSource& movie, const WalkLimits& limits = {});

}  // namespace vantor
