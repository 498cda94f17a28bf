// Opening a movie's sound and asking for its pieces.
#include "decode/SoundReader.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vantor {

using decode::Answer;
using decode::MovieHelper;
using decode::RequestKind;

namespace {

constexpr int kPieceFrames = decode::kSoundFramesPerSecond / 10;
static_assert(kPieceFrames <= decode::kMaxAnswerSide);
static_assert(decode::kBytesPerSoundFrame == kSoundChannels * sizeof(std::int16_t));

}  // namespace

SoundReader::SoundReader(std::unique_ptr<MovieHelper> helper, const Answer& answer)
    : m_helper(std::move(helper)),
      m_durationMs(std::max<std::int64_t>(0, answer.durationMs)),
      m_first(pieceOf(answer)) {}

std::unique_ptr<SoundReader> SoundReader::open(const QString& path, MovieReaderOptions options) {
    Answer answer;
    auto helper =
        MovieHelper::open(RequestKind::OpenSound, path, {kPieceFrames, 1}, std::move(options), answer);
    return helper ? std::unique_ptr<SoundReader>(new SoundReader(std::move(helper), answer)) : nullptr;
}

std::optional<SoundPiece> SoundReader::next() {
    return m_first ? std::exchange(m_first, std::nullopt) : pieceAt(-1);
}

std::optional<SoundPiece> SoundReader::seek(std::int64_t timeMs) {
    m_first.reset();
    return pieceAt(std::max<std::int64_t>(0, timeMs));
}

std::optional<SoundPiece> SoundReader::pieceAt(std::int64_t timeMs) {
    Answer answer;
    return m_helper->ask(RequestKind::NextSound, timeMs, answer) ? std::optional(pieceOf(answer))
                                                                 : std::nullopt;
}

SoundPiece SoundReader::pieceOf(const Answer& answer) const {
    SoundPiece piece;
    piece.samples.resize(std::size_t{answer.width} * kSoundChannels);
    std::memcpy(piece.samples.data(), m_helper->process().pixels(),
                piece.samples.size() * sizeof(std::int16_t));
    piece.timeMs = answer.timeMs;
    return piece;
}

}  // namespace vantor
