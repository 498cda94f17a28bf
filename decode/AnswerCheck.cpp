// One line a field.
#include "decode/AnswerCheck.h"

#include <algorithm>

namespace vantor::decode {

namespace {

// Sound and counts come as one row.
bool isOneRow(RequestKind kind) {
    return kind == RequestKind::OpenSound || kind == RequestKind::NextSound ||
           kind == RequestKind::SplitSound || kind == RequestKind::TryMovie;
}

}  // namespace

std::optional<Answer> believed(const Request& request, const Answer& answer) {
    if (answer.magic != kMessageMagic || answer.serial != request.serial) {
        return std::nullopt;
    }
    Answer clean;
    clean.status = answer.status;
    clean.serial = answer.serial;
    if (answer.status == AnswerStatus::NotDecodable || answer.status == AnswerStatus::EndOfMovie) {
        return clean;  // and nothing else is said then
    }
    const std::uint32_t mostHeight = isOneRow(request.kind) ? 1 : request.maxHeight;
    if (answer.status != AnswerStatus::Ok || answer.width == 0 || answer.width > request.maxWidth ||
        answer.height == 0 || answer.height > mostHeight) {
        return std::nullopt;
    }
    clean.width = answer.width;
    clean.height = answer.height;
    clean.fullWidth = std::min(answer.fullWidth, kMostFullSide);
    clean.fullHeight = std::min(answer.fullHeight, kMostFullSide);
    clean.flags = answer.flags & (kPartial | kHasAlpha | kHasSound);
    clean.timeMs = std::clamp(answer.timeMs, -kMostMs, kMostMs);
    clean.durationMs = std::clamp<std::int64_t>(answer.durationMs, 0, kMostMs);
    return clean;
}

std::optional<Answer> believedReady(const Answer& answer) {
    if (answer.magic != kMessageMagic || answer.status != AnswerStatus::Ready || answer.serial != 0) {
        return std::nullopt;
    }
    Answer clean;
    clean.status = answer.status;
    clean.flags = answer.flags & kCaged;
    return clean;
}

}  // namespace vantor::decode
