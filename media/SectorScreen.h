// The seam by which a search tells a reader which sectors it has to look at.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vantor {

// The bits that a screen sets.
inline constexpr std::uint8_t kLookNow = 1;    // for the search that runs
inline constexpr std::uint8_t kLookLater = 2;  // for the one behind it
inline constexpr std::uint8_t kAllLooks = 0xFF;

// A pure function of a sector's bytes. Readers that fetch on threads of their own ask it there, while the
// bytes are still in that processor's cache; it may be asked from several threads at once.
class SectorScreen {
  public:
    SectorScreen() = default;
    SectorScreen(const SectorScreen&) = delete;
    SectorScreen& operator=(const SectorScreen&) = delete;
    virtual ~SectorScreen() = default;

    // Sets looks[i] to the bits of those for whom sector i of the `count` sectors at `bytes` is worth a look.
    virtual void screen(const std::uint8_t* bytes, std::size_t count, std::uint8_t* looks) const = 0;
};

}  // namespace vantor
