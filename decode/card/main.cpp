// vantor-read-card: reads a card's file systems in the program's place; started like vantor-decode, and given
// no descriptor of the medium: it asks for sectors.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <vector>

#include "decode/CardExchange.h"
#include "decode/helper/Cage.h"
#include "decode/helper/CagedStart.h"
#include "decode/helper/Channel.h"
#include "filesystem/CachedSource.h"
#include "filesystem/CardReader.h"

namespace vantor::decode {
namespace {

// One request after the other, each answered with a block.
class Conversation {
  public:
    explicit Conversation(Channel& channel) : m_channel(channel) {}

    bool begin() { return receive(RequestKind::ReadCard); }
    std::span<const std::uint8_t> input() const {
        return {reinterpret_cast<const std::uint8_t*>(m_job.encoded.data()), m_job.encoded.size()};
    }

    // Says a block and waits for what is said to it; ends the process when the other end is gone.
    void say(const std::vector<std::uint8_t>& block) {
        Answer answer;
        answer.status = AnswerStatus::Ok;
        answer.serial = m_job.request.serial;
        answer.width = kBlockWidth;
        answer.height = static_cast<std::uint32_t>((block.size() + kBlockWidth * 4 - 1) / (kBlockWidth * 4));
        if (block.size() > m_job.pixels.size() || answer.height > m_job.request.maxHeight) {
            _exit(EXIT_FAILURE);
        }
        std::memcpy(m_job.pixels.data(), block.data(), block.size());
        if (!m_channel.answer(answer) || !receive(RequestKind::MoreOfCard)) {
            _exit(EXIT_SUCCESS);
        }
    }

  private:
    bool receive(RequestKind kind) {
        m_job = {};
        return m_channel.receive(m_job) == Channel::Received::Job && m_job.request.kind == kind;
    }

    Channel& m_channel;
    Job m_job;
};

// What many partitions share, or say so, would be asked for as often. Whoever asks too much gets no table at
// all; what can no longer be asked for counts as unreadable, and what was read until then is told.
class AskedSource final : public SectorSource {
  public:
    AskedSource(Conversation& conversation, std::uint64_t sectors)
        : m_conversation(conversation), m_sectors(sectors), m_left(mostAskedOf(sectors)) {}

    std::uint64_t sectors() const override { return m_sectors; }
    // Not more than one question's worth.
    bool readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        if (into.size() / 512 > m_left) {
            std::fill(into.begin(), into.end(), std::uint8_t{0});
            return false;
        }
        m_left -= into.size() / 512;
        m_conversation.say(bytesOf(CardQuestion{sector, static_cast<std::uint32_t>(into.size() / 512)}));
        const std::span<const std::uint8_t> reply = m_conversation.input();
        if (reply.size() != into.size() + 1) {
            _exit(EXIT_FAILURE);
        }
        std::memcpy(into.data(), reply.data() + 1, into.size());
        return reply[0] == 1;
    }

  private:
    Conversation& m_conversation;
    const std::uint64_t m_sectors;
    std::uint64_t m_left;  // sectors that may still be asked for
};

bool readOne(Channel& channel) {
    Conversation conversation(channel);
    if (!conversation.begin()) {
        return false;
    }
    const std::optional<CardTask> task = taskOf(conversation.input());
    if (!task) {
        return false;
    }
    AskedSource asked(conversation, task->sectors);
    CachedSource source(asked);
    static_assert(CachedSource::kPieceSectors <= kMostSectorsAsked);
    CardTable table = readCard(source, task->traces, task->found);
    table.files.resize(std::min(table.files.size(), kMostFiles));  // the last are the least sure
    TableWriter writer(table);
    for (;;) {
        const std::vector<std::uint8_t> block = writer.next();
        if (block.empty()) {
            return true;
        }
        conversation.say(block);
    }
}

}  // namespace
}  // namespace vantor::decode

int main(int argc, char** argv) {
    using namespace vantor::decode;
    if (argc != 2) {
        std::fputs("vantor-read-card is started by the program itself.\n", stderr);
        return EXIT_FAILURE;
    }
    silenceErrors();
    Channel channel(kHelperSocket);
    enterCageOrEnd(channel, argv[1]);
    bool done = false;
    try {
        done = readOne(channel);
    } catch (const std::exception&) {
        // Out of memory within the limit.
    }
    // Past every clean-up that a damaged heap could trip over.
    _exit(done ? EXIT_SUCCESS : EXIT_FAILURE);
}
