// The tags that stand before and behind sound streams of any kind.
#pragma once

#include <cstdint>

#include "formats/ByteView.h"

namespace vantor {

// Position behind an ID3v2 tag at `at` (and zero padding behind it); `at` when there is none. Source:
// ID3v2.4.
std::uint64_t skipLeadingTag(ByteView& view, std::uint64_t at);

// Whether an ID3v1 tag whose texts are texts stands at `at`: a proof where nothing else says that one begins.
bool isOldTag(ByteView& view, std::uint64_t at);

// Position behind the APEv2, Lyrics3, ID3v2 (with footer) and ID3v1 tags that follow each other from `at`;
// `at` when there are none. Sources: ID3v1 with its enhanced tag, ID3v2.4, APEv2, Lyrics3v2.
std::uint64_t skipTrailingTags(ByteView& view, std::uint64_t at);

}  // namespace vantor
