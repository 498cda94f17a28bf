// The program's end: answers the helper's questions with sectors until it has told the whole table.
#include "decode/CardHelper.h"

#include <cstring>

#include "decode/CardExchange.h"
#include "decode/DecodePool.h"
#include "decode/HelperProcess.h"
#include "decode/SoonAfterStop.h"
#include "filesystem/ReaderSource.h"

namespace vantor {

using namespace decode;

namespace {

constexpr std::uint64_t kMostTableBlocks = 8192;  // 8 GiB: more than kMostFiles take

// The block of an answer, out of the memory that the helper can still write to.
std::vector<std::uint8_t> blockOf(const HelperProcess& process, const Answer& answer) {
    const std::size_t bytes = std::size_t{answer.width} * answer.height * kBytesPerPixel;
    std::vector<std::uint8_t> block(bytes);
    std::memcpy(block.data(), process.pixels(), bytes);
    return block;
}

// Whether all could be read, and the sectors.
std::vector<std::uint8_t> sectorsFor(const CardQuestion& question, ReaderSource& source) {
    std::vector<std::uint8_t> reply(1 + std::size_t{question.sectors} * kSectorBytes);
    reply[0] = source.readAt(question.first, std::span(reply).subspan(1)) ? 1 : 0;
    return reply;
}

}  // namespace

std::optional<CardTable> readCardInHelper(SectorReader& medium, std::uint64_t sectors,
                                          const CardTraces& traces, const std::vector<FoundStart>& found,
                                          CardHelperOptions options) {
    if (options.helper.isEmpty()) {
        options.helper = DecodePool::helperPath(QStringLiteral("vantor-read-card"));
    }
    const SoonAfterStop end(options.stop, options.afterStop);
    const auto process =
        HelperProcess::start(options.helper, options.startDeadline, end.signal().descriptor());
    if (!process) {
        return std::nullopt;
    }
    ReaderSource source(medium, sectors);
    TableReader table(sectors);
    std::vector<std::uint8_t> input = bytesOf(CardTask{sectors, traces, found});
    Request request;
    request.kind = RequestKind::ReadCard;
    request.maxWidth = kBlockWidth;
    request.maxHeight = kBlockHeight;
    std::uint64_t sectorsLeft = mostAskedOf(sectors);
    std::uint64_t blocksLeft = kMostTableBlocks;
    while (!table.isWhole()) {
        Answer answer;
        const QByteArrayView bytes(reinterpret_cast<const char*>(input.data()),
                                   static_cast<qsizetype>(input.size()));
        if (process->ask(request, bytes, options.stepDeadline, answer) != AskOutcome::Answered ||
            answer.status != AnswerStatus::Ok) {
            return std::nullopt;
        }
        request.kind = RequestKind::MoreOfCard;
        const std::vector<std::uint8_t> block = blockOf(*process, answer);
        input.assign(1, 0);
        if (const auto question = questionOf(block, sectors)) {
            if (question->sectors > sectorsLeft) {
                return std::nullopt;
            }
            sectorsLeft -= question->sectors;
            input = sectorsFor(*question, source);
        } else if (blocksLeft-- == 0 || !table.take(block)) {
            return std::nullopt;
        }
    }
    return table.table();
}

}  // namespace vantor
