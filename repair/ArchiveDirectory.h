// What the directory at an archive's end tells of its members.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/ByteView.h"

namespace vantor {

struct ArchiveMember {
    std::uint64_t at = 0;   // of its own head, in the file
    std::uint64_t end = 0;  // where the next one begins, or the directory
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint32_t sum = 0;
    std::uint64_t packed = 0;
    std::uint64_t unpacked = 0;
    std::string name;

    // Bytes of its record in the directory that nothing bears out.
    std::uint64_t aside = 0;

    bool isStored() const { return method == 0 && packed == unpacked; }
    bool isPacked() const { return method == 8; }
    // Whether its content tells by its sum that it is whole.
    bool isProvable() const { return (flags & 1) == 0 && (isStored() || isPacked()); }
};

// The record behind the directory, as it stands in a file.
struct ArchiveEnd {
    static constexpr std::uint64_t kBytes = 22;

    std::uint64_t directory = 0;  // where it begins
    std::uint64_t at = 0;         // of the record itself
    std::uint64_t bytes = 0;      // of the file
    std::size_t members = 0;
};

// Source: PKWARE APPNOTE 6.3.10, 4.3.7 to 4.3.16. Archives beyond 4 GiB are left out, and directories far
// longer than what they may tell of.
std::optional<ArchiveEnd> archiveEndAt(ByteView& view, std::uint64_t at);

// The members in the order of the file, the first of which begins it; nothing unless the directory is whole
// and they follow each other.
std::optional<std::vector<ArchiveMember>> archiveMembers(ByteView& view, const ArchiveEnd& end);

// Whether the member's own head begins with these bytes, as many as there are.
bool beginsMember(const ArchiveMember& member, std::span<const std::uint8_t> bytes);

// Where its content stands: behind its head. Nothing where that is not whole or the content does not fit.
std::optional<std::uint64_t> memberContent(ByteView& view, const ArchiveMember& member);

}  // namespace vantor
