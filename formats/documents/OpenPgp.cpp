// Keys, signatures and encrypted files of OpenPGP as they are, without letters (PGP): packets one after the
// other. Source: RFC 4880, section 4 (packet syntax) and section 5 (packet types).
#include "formats/Format.h"

namespace vantor {

namespace {

struct PgpPacket {
    enum class State { Whole, None, Cut, Endless };

    State state = State::None;
    unsigned kind = 0;
    std::uint64_t end = 0;
};

enum PgpKind : unsigned {
    kSessionKey = 1,
    kSignature = 2,
    kPassphrase = 3,
    kOnePass = 4,
    kSecretKey = 5,
    kPublicKey = 6,
    kSecretSubkey = 7,
    kCompressed = 8,
    kEncrypted = 9,
    kLiteral = 11,
    kTrust = 12,
    kUser = 13,
    kPublicSubkey = 14,
    kAttribute = 17,
    kProtected = 18,
};

// Whether a packet's first bytes are those of its kind: the version of most, the text of a user's name.
bool isPgpBody(ByteView& view, unsigned kind, std::uint64_t at, std::uint64_t bytes) {
    const auto first = view.u8(at).value_or(0);
    switch (kind) {
        case kSessionKey:
            return first == 3;
        case kSignature:
            return first == 3 || first == 4;
        case kPassphrase:
            return first == 4;
        case kOnePass:
            return first == 3;
        case kSecretKey:
        case kPublicKey:
        case kSecretSubkey:
        case kPublicSubkey:
            return first >= 2 && first <= 4 && bytes < 65536;
        case kCompressed:
            return first >= 1 && first <= 3;
        case kEncrypted:
            return bytes > 16;
        case kLiteral:
            return first == 'b' || first == 't' || first == 'u';
        case kTrust:
            return bytes <= 64;
        case kUser:
            return first >= ' ' && bytes < 4096;
        case kAttribute:
            return bytes > 16;
        case kProtected:
            return first == 1;
        default:
            return false;
    }
}

PgpPacket pgpPacket(ByteView& view, std::uint64_t at) {
    const auto head = view.u8(at);
    if (!head || (*head & 0x80) == 0)
        return {};
    PgpPacket packet;
    const bool recent = (*head & 0x40) != 0;
    packet.kind = recent ? *head & 0x3FU : *head >> 2 & 0x0FU;
    ++at;
    if (!recent) {
        const unsigned digits = 1U << (*head & 3U);
        if (digits == 8) {
            packet.state = isPgpBody(view, packet.kind, at, view.size()) ? PgpPacket::State::Endless
                                                                         : PgpPacket::State::None;
            return packet;
        }
        const auto bytes = view.number(at, digits, Endian::Big);
        if (!bytes || !isPgpBody(view, packet.kind, at + digits, *bytes))
            return packet;
        packet.end = at + digits + *bytes;
    } else {
        for (bool first = true;; first = false) {
            const auto length = view.u8(at);
            if (!length)
                return packet;
            std::uint64_t bytes = *length;
            std::uint64_t digits = 1;
            const bool part = *length >= 224 && *length < 255;
            if (part) {
                bytes = 1ULL << (*length & 0x1FU);
            } else if (*length == 255) {
                bytes = view.be32(at + 1).value_or(0);
                digits = 5;
            } else if (*length >= 192) {
                bytes = ((*length - 192ULL) << 8) + view.u8(at + 1).value_or(0) + 192;
                digits = 2;
            }
            if (first && !isPgpBody(view, packet.kind, at + digits, bytes))
                return packet;
            at = addClamped(at, digits + bytes);
            if (!part)
                break;
            if (at >= view.size()) {
                packet.state = PgpPacket::State::Cut;
                return packet;
            }
        }
        packet.end = at;
    }
    packet.state = packet.end > view.size() ? PgpPacket::State::Cut : PgpPacket::State::Whole;
    return packet;
}

// Whether a packet may stand behind another: what belongs to keys among keys, data behind what opens it.
bool mayFollow(unsigned kind, unsigned before) {
    const bool keys = before == kPublicKey || before == kSecretKey || before == kUser || before == kTrust ||
                      before == kAttribute || before == kPublicSubkey || before == kSecretSubkey;
    switch (kind) {
        case kSignature:
            return keys || before == kSignature || before == kLiteral || before == kCompressed;
        case kUser:
        case kTrust:
        case kAttribute:
        case kPublicSubkey:
        case kSecretSubkey:
            return keys || before == kSignature;
        case kPublicKey:
        case kSecretKey:
            return before == kSignature || before == kTrust || before == kUser || keys;
        case kSessionKey:
        case kPassphrase:
            return before == kSessionKey || before == kPassphrase;
        case kEncrypted:
        case kProtected:
            return before == kSessionKey || before == kPassphrase;
        case kOnePass:
            return before == kOnePass;
        case kLiteral:
        case kCompressed:
            return before == kOnePass || before == kSignature;
        default:
            return false;
    }
}

Extent walkOpenPgp(ByteView& view) {
    std::uint64_t at = 0;
    for (unsigned before = 0;;) {
        const auto packet = pgpPacket(view, at);
        if (packet.state == PgpPacket::State::None || (at != 0 && !mayFollow(packet.kind, before)))
            return at == 0 ? unknownExtent() : inexact(completeAt(view, at));
        if (packet.state == PgpPacket::State::Endless)
            return unknownExtent();
        if (packet.state == PgpPacket::State::Cut)
            return cutOffAt(view, view.size());
        before = packet.kind;
        at = packet.end;
    }
}

}  // namespace

extern constexpr Format kOpenPgp = {
    .name = "OpenPGP",
    .group = Group::Documents,
    .walk = walkOpenPgp,
    .extensions = " PGP GPG SIG ",
    .strongMagic = false,
    .mayNotTellEnd = true,
};

}  // namespace vantor
