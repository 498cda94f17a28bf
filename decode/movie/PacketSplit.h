// Coded sound without an index, taken apart into its packets. Runs in the movie helper only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantor::decode {

// `input` is a SoundToSplit and what follows it. The lengths of the packets from the first byte of the sound
// on, up to the first place where none begins; empty for codings not known.
std::vector<std::uint32_t> packetLengths(std::span<const std::byte> input);

}  // namespace vantor::decode
