// Whether there is anything on a card that a search could find.
#pragma once

#include <cstdint>
#include <vector>

#include "filesystem/CardTable.h"
#include "filesystem/SectorSource.h"

namespace vantor {

// Spread over the card, so many sectors are looked at.
inline constexpr std::uint64_t kLooksForErasure = 256;
// Sectors of a medium below which nothing is said of it.
inline constexpr std::uint64_t kSmallestErased = 16 * kLooksForErasure;
// Bytes of a file that people put there; cameras and desktops leave smaller ones on a card by themselves.
inline constexpr std::uint64_t kSmallestUsed = 10'000;

// Which sector is looked at as the one of this number on a card of so many; each number below
// kLooksForErasure has another.
std::uint64_t lookForErasure(std::uint64_t number, std::uint64_t sectors);

// The places among them that hold anything but one byte, 00 or FF, over and over, or that cannot be read.
// Ends early where there are so many that the card is not erased.
std::vector<std::uint64_t> writtenPlaces(SectorSource& card);

// Whether the card reads as erased, given what of those places its own file systems hold: some cameras and
// programs erase all of a card when they format it. Never for a card that has hardly more sectors than are
// looked at, nor where its directories tell of a file that is gone, nor of one that is there and that people
// made: a new card with its first photos on it reads the same as one that was erased before.
bool isErased(const SectorSource& card, const std::vector<std::uint64_t>& written, const CardTable& table);

}  // namespace vantor
