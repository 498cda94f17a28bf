// What the program and a decode helper say to each other: one fixed-size message each way over a
// sequenced-packet socket; bytes and pixels travel through shared memory whose descriptors ride with the
// request.
#pragma once

#include <cstdint>
#include <type_traits>

namespace vantor::decode {

// Both ends come from one build; the number only guards against a stray program behind the socket.
constexpr std::uint32_t kMessageMagic = 0x56444331;

// A helper finds its socket here; 0 to 2 are /dev/null.
constexpr int kHelperSocket = 3;

// Encoded bytes of one picture; what lies behind is not looked at.
constexpr std::uint64_t kMaxInputBytes = std::uint64_t{512} * 1024 * 1024;
// Longest side of an answer, so that a bound can neither overflow nor ask for an absurd buffer.
constexpr std::uint32_t kMaxAnswerSide = 8192;
constexpr std::uint32_t kBytesPerPixel = 4;

// Sound travels as pixels do, a sample frame in a pixel's place: two signed 16-bit samples in the machine's
// byte order, left first. An answer's width is the count of sample frames, its height 1.
constexpr std::uint32_t kBytesPerSoundFrame = kBytesPerPixel;
constexpr int kSoundFramesPerSecond = 48000;

// Times and lengths beyond a year, forwards or backwards, are damage.
constexpr std::int64_t kMostMs = std::int64_t{366} * 24 * 3600 * 1000;

enum class RequestKind : std::uint32_t {
    Picture = 1,    // decode the input, scaled into the bound, upright
    OpenMovie = 2,  // open the file, decode its first frame
    NextFrame = 3,  // the frame after the last, or the first one at or after timeMs when that is not negative
    OpenSound = 4,  // open the file, decode the first piece of its sound
    NextSound = 5,  // what follows the last piece, or the piece around timeMs when that is not negative
    OpenCover = 6,  // as OpenMovie; a sound file's cover does as well
    SplitSound = 7,     // the input is a SoundToSplit and what it tells; gives the lengths of its packets
    TryMovie = 8,       // open the file, decode it for timeMs at most; gives a MovieTrialCounts
    ReadCard = 9,       // read the file systems of the card that the input tells of (CardExchange.h)
    MoreOfCard = 10,    // the input is what the last answer asked for
    AddSegment = 11,    // the file is the next segment of an evidence image
    OpenEvidence = 12,  // of the segments added; gives EvidenceFacts
    ReadEvidence = 13,  // the input is an EvidenceQuestion; gives its sectors, as many as there are up to a
                        // damaged one, a row of kSectorWidth pixels each
};

// What the input of SplitSound begins with; the decoder's configuration and the sound follow. The answer's
// pixels are the lengths in bytes of as many packets as follow each other from the first byte on, 32 bits
// each, and its width is their count.
struct SoundToSplit {
    char coding[4] = {};  // name of the sample entry
    std::uint32_t configurationBytes = 0;
};

// The answer's pixels for TryMovie; its width is the count of these numbers.
struct MovieTrialCounts {
    std::uint32_t pictures = 0;
    std::uint32_t soundFrames = 0;
    std::uint32_t errors = 0;
    std::uint32_t whole = 0;  // 1: all was decoded, by decoders that notice what is not theirs
};
constexpr std::uint32_t kMovieTrialWords = sizeof(MovieTrialCounts) / kBytesPerPixel;

// The answer's pixels for OpenEvidence; its width is the count of these numbers.
struct EvidenceFacts {
    std::uint64_t sectors = 0;      // whole ones of 512 bytes
    std::uint64_t unitSectors = 0;  // that are damaged together
};
constexpr std::uint32_t kEvidenceFactsWords = sizeof(EvidenceFacts) / kBytesPerPixel;
struct EvidenceQuestion {
    std::uint64_t first = 0;
    std::uint64_t sectors = 0;  // 1 to kMostEvidenceSectors
};
constexpr std::uint32_t kSectorWidth = 512 / kBytesPerPixel;
constexpr std::uint32_t kMostEvidenceSectors = 512;

// Which descriptors ride with a request, in this order.
enum RequestDescriptors : std::uint32_t {
    kNewInput = 1,   // shared memory of encoded bytes, kept for the requests that follow
    kNewOutput = 2,  // shared memory for pixels, kept likewise
    kInputFile = 4,  // a file opened for reading, for this request and the frames of its movie
};
constexpr int kMaxDescriptors = 3;

enum RequestFlags : std::uint32_t {
    kReducedWillDo = 1,  // (pictures) a smaller one that the file brings along, where the full one is no use
    kOnlyWhole = 2,      // (TryMovie) ends as soon as it is known that not all of it decodes and is judged
};

struct Request {
    std::uint32_t magic = kMessageMagic;
    RequestKind kind = RequestKind::Picture;
    std::uint64_t serial = 0;
    std::uint64_t inputBytes = 0;  // of the shared memory; not used with a file
    std::uint32_t maxWidth = 0;    // pixels, 1 to kMaxAnswerSide
    std::uint32_t maxHeight = 0;
    std::uint32_t descriptors = 0;  // RequestDescriptors
    std::uint32_t flags = 0;        // RequestFlags
    std::int64_t timeMs = -1;
    char hint[16] = {};  // the item's extension in lower case, NUL-terminated; may be empty
};

enum class AnswerStatus : std::uint32_t {
    Ready = 1,  // the helper's first message, serial 0
    Ok = 2,
    NotDecodable = 3,
    EndOfMovie = 4,  // or of its sound
    BadRequest = 5,
};

enum AnswerFlags : std::uint32_t {
    kPartial = 1,   // the bytes ended or broke before the picture did
    kHasAlpha = 2,  // pixels are premultiplied ARGB, else RGB with an unused byte
    kCaged = 4,     // (Ready only) the system-call filter is in force
    kHasSound = 8,  // (movies) there is a sound stream as well
};

// The pixels lie at the start of the output memory, width * kBytesPerPixel bytes a row.
struct Answer {
    std::uint32_t magic = kMessageMagic;
    AnswerStatus status = AnswerStatus::NotDecodable;
    std::uint64_t serial = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t fullWidth = 0;  // of the whole picture, upright; 0 when not known
    std::uint32_t fullHeight = 0;
    std::uint32_t flags = 0;  // AnswerFlags
    std::uint32_t reserved = 0;
    std::int64_t timeMs = 0;      // of the frame, or of the first sample
    std::int64_t durationMs = 0;  // of the movie; 0 when not known
};

static_assert(std::is_trivially_copyable_v<Request> && std::is_trivially_copyable_v<Answer>);
static_assert(std::is_trivially_copyable_v<EvidenceFacts> && std::is_trivially_copyable_v<EvidenceQuestion>);

}  // namespace vantor::decode
