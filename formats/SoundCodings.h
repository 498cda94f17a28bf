// Whether the bytes of one sample are sound as its coding begins it. Sources: ISO/IEC 14496-3, 4.4 (AAC); the
// public description of Apple Lossless; ISO/IEC 11172-3.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// One raw_data_block: elements of one byte of filling or data, then one of sound whose reserved bit is zero.
bool isAacFrame(ByteView& view, std::uint64_t at, std::uint64_t bytes);
// The element of one or two channels that a frame begins with, and its twelve zero bits.
bool isAlacFrame(ByteView& view, std::uint64_t at);
// A frame of MPEG-1 or -2 sound, or one of the tags that stand behind the sound of MP3 files.
bool isMpegAudioFrame(ByteView& view, std::uint64_t at);

}  // namespace vantor
