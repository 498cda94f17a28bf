// Opening a movie's sound and asking for its pieces.
#include "decode/SoundReader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "decode/DecodePool.h"
#include "decode/RegularFile.h"

namespace vantor {

using decode::Answer;
using decode::AnswerStatus;
using decode::AskOutcome;
using decode::HelperProcess;
using decode::Request;
using decode::RequestKind;

namespace {

constexpr std::uint32_t kPieceFrames = kSoundFramesPerSecond / 10;
static_assert(kPieceFrames <= decode::kMaxAnswerSide);
static_assert(decode::kBytesPerSoundFrame == kSoundChannels * sizeof(std::int16_t));

}  // namespace

SoundReader::SoundReader(std::unique_ptr<HelperProcess> helper, MovieReaderOptions options)
    : m_helper(std::move(helper)), m_options(std::move(options)) {}

std::unique_ptr<SoundReader> SoundReader::open(const QString& path, MovieReaderOptions options) {
    if (options.helper.isEmpty()) {
        options.helper = DecodePool::helperPath(QStringLiteral("vantor-decode-movie"));
    }
    const decode::RegularFile file(path);
    if (!file.isOpen()) {
        return nullptr;
    }
    auto helper = HelperProcess::start(options.helper, options.startDeadline, options.cancelDescriptor());
    if (!helper) {
        return nullptr;
    }
    std::unique_ptr<SoundReader> reader(new SoundReader(std::move(helper), std::move(options)));
    Answer answer;
    reader->m_first =
        reader->ask(RequestKind::OpenSound, file.descriptor(), -1, reader->m_options.openDeadline, answer);
    if (!reader->m_first) {
        return nullptr;
    }
    reader->m_durationMs = std::max<std::int64_t>(0, answer.durationMs);
    return reader;
}

std::optional<SoundPiece> SoundReader::next() {
    if (m_first) {
        return std::exchange(m_first, std::nullopt);
    }
    Answer answer;
    return ask(RequestKind::NextSound, -1, -1, m_options.frameDeadline, answer);
}

std::optional<SoundPiece> SoundReader::seek(std::int64_t timeMs) {
    m_first.reset();
    Answer answer;
    return ask(RequestKind::NextSound, -1, std::max<std::int64_t>(0, timeMs), m_options.frameDeadline,
               answer);
}

std::optional<SoundPiece> SoundReader::ask(RequestKind kind, int file, std::int64_t timeMs,
                                           std::chrono::milliseconds deadline, Answer& answer) {
    if (!m_helper) {
        return std::nullopt;
    }
    Request request;
    request.kind = kind;
    request.timeMs = timeMs;
    request.maxWidth = kPieceFrames;
    request.maxHeight = 1;
    const AskOutcome outcome = m_helper->askFile(request, file, deadline, answer);
    if (outcome != AskOutcome::Answered) {
        m_helper.reset();
        return std::nullopt;
    }
    if (answer.status != AnswerStatus::Ok) {
        return std::nullopt;
    }
    SoundPiece piece;
    piece.samples.resize(std::size_t{answer.width} * kSoundChannels);
    std::memcpy(piece.samples.data(), m_helper->pixels(), piece.samples.size() * sizeof(std::int16_t));
    piece.timeMs = answer.timeMs;
    return piece;
}

}  // namespace vantor
