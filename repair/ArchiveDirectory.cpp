#include "repair/ArchiveDirectory.h"

#include <algorithm>
#include <array>

namespace vantor {

namespace {

constexpr std::uint32_t kMemberSign = 0x04034B50;
constexpr std::uint32_t kDirectorySign = 0x02014B50;
constexpr std::uint32_t kEndSign = 0x06054B50;
constexpr std::uint64_t kMemberHeadBytes = 30;
constexpr std::size_t kMostMembers = 65534;
constexpr std::uint32_t kMostDirectoryBytes = 64U << 20;
constexpr std::uint32_t kToldElsewhere = 0xFFFFFFFF;
constexpr std::uint16_t kSizesFollow = 8;

}  // namespace

std::optional<ArchiveEnd> archiveEndAt(ByteView& view, std::uint64_t at) {
    Cursor in(view, at, Endian::Little);
    const std::uint32_t sign = in.u32();
    const std::uint32_t disks = in.u32();
    const std::uint16_t here = in.u16();
    const std::uint16_t members = in.u16();
    const std::uint32_t bytes = in.u32();
    const std::uint32_t directory = in.u32();
    const std::uint16_t comment = in.u16();
    if (!in.ok() || sign != kEndSign || disks != 0 || here != members || members == 0 ||
        members > kMostMembers || bytes > kMostDirectoryBytes || directory == kToldElsewhere ||
        directory == 0) {
        return std::nullopt;
    }
    const std::uint64_t place = std::uint64_t{directory} + bytes;
    return ArchiveEnd{directory, place, place + ArchiveEnd::kBytes + comment, members};
}

std::optional<std::vector<ArchiveMember>> archiveMembers(ByteView& view, const ArchiveEnd& end) {
    std::vector<ArchiveMember> members;
    std::uint64_t at = end.directory;
    for (std::size_t i = 0; i < end.members; ++i) {
        Cursor in(view, at, Endian::Little);
        ArchiveMember member;
        const std::uint32_t sign = in.u32();
        in.skip(4);
        member.flags = in.u16();
        member.method = in.u16();
        in.skip(4);
        member.sum = in.u32();
        member.packed = in.u32();
        member.unpacked = in.u32();
        const std::uint16_t name = in.u16();
        const std::uint16_t extra = in.u16();
        const std::uint16_t comment = in.u16();
        member.aside = std::uint64_t{extra} + comment;
        in.skip(8);
        member.at = in.u32();
        const std::uint64_t next = in.at() + name + extra + comment;
        if (!in.ok() || sign != kDirectorySign || next > end.at || member.packed == kToldElsewhere ||
            member.unpacked == kToldElsewhere || member.at >= end.directory) {
            return std::nullopt;
        }
        for (std::uint16_t letter = 0; letter < name; ++letter) {
            member.name += static_cast<char>(in.u8());
        }
        members.push_back(std::move(member));
        at = next;
    }
    std::sort(members.begin(), members.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
    for (std::size_t i = 0; i < members.size(); ++i) {
        ArchiveMember& member = members[i];
        member.end = i + 1 < members.size() ? members[i + 1].at : end.directory;
        if (member.end - member.at < kMemberHeadBytes + member.name.size() + member.packed) {
            return std::nullopt;
        }
    }
    return at == end.at && members.front().at == 0 ? std::optional(std::move(members)) : std::nullopt;
}

bool beginsMember(const ArchiveMember& member, std::span<const std::uint8_t> bytes) {
    std::array<std::uint8_t, kMemberHeadBytes> head{};
    std::array<bool, kMemberHeadBytes> known{};
    const auto put = [&](std::size_t at, std::uint64_t value, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            head[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
            known[at + i] = true;
        }
    };
    put(0, kMemberSign, 4);
    put(6, member.flags, 2);
    put(8, member.method, 2);
    if ((member.flags & kSizesFollow) == 0) {
        put(14, member.sum, 4);
        put(18, member.packed, 4);
        put(22, member.unpacked, 4);
    }
    put(26, member.name.size(), 2);
    for (std::size_t i = 0; i < std::min<std::size_t>(bytes.size(), kMemberHeadBytes); ++i) {
        if (known[i] && bytes[i] != head[i]) {
            return false;
        }
    }
    const auto name = bytes.subspan(std::min<std::size_t>(bytes.size(), kMemberHeadBytes));
    const auto there = static_cast<std::ptrdiff_t>(std::min(name.size(), member.name.size()));
    return std::equal(
        name.begin(), name.begin() + there, member.name.begin(),
        [](std::uint8_t byte, char letter) { return byte == static_cast<std::uint8_t>(letter); });
}

std::optional<std::uint64_t> memberContent(ByteView& view, const ArchiveMember& member) {
    std::array<std::uint8_t, kMemberHeadBytes> head{};
    if (!view.copy(member.at, head) || !beginsMember(member, head)) {
        return std::nullopt;
    }
    const std::uint64_t content = member.at + kMemberHeadBytes + member.name.size() +
                                  (std::uint64_t{head[28]} | std::uint64_t{head[29]} << 8);
    return content <= member.end && member.packed <= member.end - content ? std::optional(content)
                                                                          : std::nullopt;
}

}  // namespace vantor
