// Sources: ISO/IEC 14496-10 and -15, 23008-2, 14496-2; ITU-T T.81; SMPTE RDD 36.
#include "repair/MovieSamples.h"

#include <algorithm>

#include "formats/PartOfView.h"
#include "formats/Registry.h"
#include "repair/CodedPicture.h"

namespace vantor {

namespace {

constexpr std::size_t kMostSamples = 4'000'000;

constexpr std::uint64_t kBoxHead = 8;  // name and length

std::uint64_t numberAt(std::span<const std::uint8_t> bytes, std::size_t at, unsigned count) {
    std::uint64_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
        value = value << 8 | bytes[at + i];
    }
    return value;
}

bool isUnitHead(Coding coding, std::uint8_t head) {
    return (head & 0x80) == 0 &&
           (coding == Coding::Hevc ? (head & 1) == 0 : (head & 31) != 0 && (head & 31) <= 21);
}

// Units follow each other to the sample's last byte.
Likeness unitsBeginAs(const PromisedSample& sample, std::span<const std::uint8_t> bytes) {
    std::uint64_t at = 0;
    unsigned units = 0;
    while (at + sample.lengthBytes < bytes.size() && at < sample.bytes) {
        const std::uint64_t length = numberAt(bytes, static_cast<std::size_t>(at), sample.lengthBytes);
        const std::uint64_t body = at + sample.lengthBytes;
        if (length < 2 || body > sample.bytes || length > sample.bytes - body ||
            !isUnitHead(sample.coding, bytes[static_cast<std::size_t>(body)])) {
            return Likeness::Contradicted;
        }
        at = body + length;
        ++units;
    }
    // A picture of several units shows its end seldom, but each tells a length that fits.
    return at == sample.bytes || units > 1 ? Likeness::Certain
           : units == 1                    ? Likeness::Likely
                                           : Likeness::Possible;
}

// Nothing where they overlap, or are less than half of the data.
std::optional<std::vector<PromisedSample>> inOrder(std::vector<PromisedSample> samples, std::uint64_t sum,
                                                   const DataPlace& data) {
    std::sort(samples.begin(), samples.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
    const auto overlap = [](const PromisedSample& a, const PromisedSample& b) {
        return a.at + a.bytes > b.at;
    };
    if (sum > data.to - data.from || sum < (data.to - data.from) / 2 ||
        std::adjacent_find(samples.begin(), samples.end(), overlap) != samples.end()) {
        return std::nullopt;
    }
    return samples;
}

bool isHeadOf(const PromisedSample& sample, std::span<const std::uint8_t> bytes) {
    std::uint64_t length = 0;
    for (std::size_t i = kBoxHead; i-- > 4;) {
        length = length << 8 | bytes[i];
    }
    return std::equal(sample.chunk.begin(), sample.chunk.end(), bytes.begin()) &&
           length == sample.bytes - kBoxHead;
}

// A chunk of a JPEG picture ends with it, apart from what it is filled up with.
bool isWholeChunk(ByteView& view, const PromisedSample& sample) {
    std::array<std::uint8_t, kBoxHead> head{};
    if (!view.copy(sample.at, head) || !isHeadOf(sample, head)) {
        return false;
    }
    if (!view.matches(sample.at + kBoxHead, "\xFF\xD8\xFF")) {
        return true;
    }
    PictureSyntax syntax;
    syntax.coding = Coding::Jpeg;
    return pictureAt(view, syntax, sample.at + kBoxHead, sample.at + sample.bytes).has_value();
}

}  // namespace

std::optional<std::vector<PromisedSample>> promisedSamples(ByteSource& file, const IsoBox& index,
                                                           const DataPlace& data) {
    ByteView view(file);
    std::vector<PromisedSample> samples;
    std::uint64_t sum = 0;
    bool inside = true;
    std::uint64_t last = index.body;
    forIsoBoxes(view, index.body, index.end, [&](const IsoBox& box) {
        last = box.end;
        const IsoTrack track = box.text() == "trak" ? readIsoTrack(view, box) : IsoTrack();
        if (track.elsewhere || samples.size() >= kMostSamples) {
            return;
        }
        for (const IsoSample& sample : samplesOf(view, track, kMostSamples - samples.size())) {
            inside = inside && sample.at >= data.from && sample.at <= data.to &&
                     sample.bytes <= data.to - sample.at;
            samples.push_back({sample.at, sample.bytes, track.isVideo() ? track.coding : Coding::Unknown,
                               track.lengthBytes});
            sum = addClamped(sum, sample.bytes);
        }
    });
    if (!inside || last != index.end) {
        return std::nullopt;
    }
    return inOrder(std::move(samples), sum, data);
}

std::optional<std::vector<PromisedSample>> promisedChunks(ByteSource& file, const DataPlace& index,
                                                          const DataPlace& data) {
    constexpr std::uint64_t kEntryBytes = 16;
    constexpr std::uint64_t kNameBytes = 4;
    ByteView view(file);
    std::vector<PromisedSample> samples;
    std::uint64_t sum = 0;
    const std::uint64_t count = (index.to - index.from) / kEntryBytes;
    // Places are counted from the list's name, or from the file's first byte.
    const bool absolute = view.le32(index.from + 8).value_or(0) >= data.from;
    const std::uint64_t base = absolute ? 0 : data.from - kNameBytes;
    for (std::uint64_t i = 0; i < count && i < kMostSamples; ++i) {
        Cursor in(view, index.from + i * kEntryBytes, Endian::Little);
        PromisedSample sample;
        for (char& letter : sample.chunk) {
            letter = static_cast<char>(in.u8());
        }
        in.u32();
        sample.at = base + in.u32();
        sample.bytes = kBoxHead + in.u32();
        if (!in.ok() || sample.at < data.from || sample.at > data.to || sample.bytes > data.to - sample.at) {
            return std::nullopt;
        }
        if (std::string_view(sample.chunk.data(), kNameBytes) == "rec ") {
            continue;  // a list of others
        }
        if (!std::all_of(sample.chunk.begin(), sample.chunk.end(),
                         [](char c) { return c > ' ' && c <= '~'; })) {
            return std::nullopt;
        }
        sum = addClamped(sum, sample.bytes + sample.bytes % 2);
        samples.push_back(sample);
    }
    return inOrder(std::move(samples), std::min(sum, data.to - data.from), data);
}

Likeness beginsAs(const PromisedSample& sample, std::span<const std::uint8_t> bytes) {
    constexpr std::size_t kLeast = 8;
    bytes = bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), sample.bytes)));
    if (bytes.size() < kLeast) {
        return Likeness::Possible;
    }
    if (sample.isChunk()) {
        return isHeadOf(sample, bytes) ? Likeness::Certain : Likeness::Contradicted;
    }
    const auto whether = [](bool begins) { return begins ? Likeness::Certain : Likeness::Contradicted; };
    switch (sample.coding) {
        case Coding::Avc:
        case Coding::Hevc:
            return unitsBeginAs(sample, bytes);
        case Coding::Jpeg:
            return whether(numberAt(bytes, 0, 3) == 0xFFD8FF);
        case Coding::ProRes:
            return whether(numberAt(bytes, 0, 4) == sample.bytes && numberAt(bytes, 4, 4) == 0x69637066);
        case Coding::Mpeg4:
            return whether(numberAt(bytes, 0, 3) == 1 && bytes[3] >= 0xB0 && bytes[3] <= 0xB6);
        default:
            return Likeness::Possible;
    }
}

std::optional<bool> isEvenPicture(ByteView& view, const PromisedSample& sample) {
    static const Format* const jpeg = formatFor("JPG");
    PartOfView picture(view, sample.at + (sample.isChunk() ? kBoxHead : 0), sample.at + sample.bytes);
    ByteView own(picture);
    if (!own.matches(0, "\xFF\xD8\xFF")) {
        return std::nullopt;
    }
    const Extent extent = jpeg->walk(own);
    const bool even = extent.verdict == Verdict::Complete;
    return even && !extent.checked ? std::nullopt : std::optional(even);
}

bool isWholeSample(ByteView& view, const PromisedSample& sample) {
    if (sample.isChunk()) {
        return isWholeChunk(view, sample);
    }
    if (sample.coding == Coding::Avc || sample.coding == Coding::Hevc) {
        return isWholeUnitChain(view, sample.coding, sample.lengthBytes, sample.at, sample.at + sample.bytes);
    }
    if (sample.coding == Coding::Jpeg || sample.coding == Coding::ProRes) {
        PictureSyntax syntax;
        syntax.coding = sample.coding;
        return pictureAt(view, syntax, sample.at, sample.at + sample.bytes).has_value();
    }
    return lookAtSample(view, sample.coding, sample.lengthBytes, sample.at, sample.bytes).has_value();
}

}  // namespace vantor
