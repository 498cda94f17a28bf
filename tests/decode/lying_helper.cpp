// A helper as a taken-over one could be: it says that it is ready and answers every request with the lie that
// it is called by. As "random-SEED" it lies about whatever field comes to its mind, with the numbers that
// arithmetic breaks on.
#include <sys/socket.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <random>
#include <string_view>

#include "decode/DecodeProtocol.h"

using namespace vantor::decode;

namespace {

class Liar {
  public:
    explicit Liar(unsigned seed) : m_random(seed) {}

    // A third of the answers is right but for the numbers in it, lest nothing be believed.
    Answer about(const Request& request) {
        Answer answer;
        answer.status = AnswerStatus::Ok;
        answer.serial = request.serial;
        answer.width = upTo(request.maxWidth);
        const bool sound = request.kind == RequestKind::OpenSound || request.kind == RequestKind::NextSound;
        answer.height = sound ? 1 : upTo(request.maxHeight);
        answer.fullWidth = any<std::uint32_t>();
        answer.fullHeight = any<std::uint32_t>();
        answer.flags = any<std::uint32_t>();
        answer.reserved = any<std::uint32_t>();
        answer.timeMs = any<std::int64_t>();
        answer.durationMs = any<std::int64_t>();
        switch (upTo(9)) {
            case 1:
                answer.magic = any<std::uint32_t>();
                break;
            case 2:
                answer.status = static_cast<AnswerStatus>(upTo(8));
                break;
            case 3:
                answer.serial = any<std::uint64_t>();
                break;
            case 4:
                answer.width = any<std::uint32_t>();
                break;
            case 5:
                answer.height = any<std::uint32_t>();
                break;
            case 6:
                answer.width = request.maxWidth + upTo(2) - 1;
                answer.height = request.maxHeight + upTo(2) - 1;
                break;
            default:
                break;
        }
        return answer;
    }

  private:
    // 1 to the number.
    std::uint32_t upTo(std::uint32_t most) { return 1 + static_cast<std::uint32_t>(m_random() % most); }

    template <typename Number>
    Number any() {
        using Limits = std::numeric_limits<Number>;
        const std::array edges{Limits::min(),
                               Limits::max(),
                               static_cast<Number>(Limits::min() + 1),
                               static_cast<Number>(Limits::max() - 1),
                               static_cast<Number>(-1),
                               static_cast<Number>(0),
                               static_cast<Number>(1),
                               static_cast<Number>(std::int64_t{1} << 31),
                               static_cast<Number>(Limits::max() / 48),
                               static_cast<Number>(Limits::min() / 48000)};
        const std::uint32_t which = upTo(edges.size() + 3) - 1;
        return which < edges.size() ? edges[which] : static_cast<Number>(m_random() % 100'000);
    }

    std::mt19937_64 m_random;
};

Answer told(std::string_view lie, const Request& request) {
    Answer answer;
    answer.status = lie == "status" ? static_cast<AnswerStatus>(77) : AnswerStatus::Ok;
    answer.serial = request.serial + (lie == "serial");
    answer.magic += lie == "magic";
    answer.width = lie == "width" ? request.maxWidth + 1 : lie == "nowidth" ? 0 : 1;
    answer.height = lie == "height" ? request.maxHeight + 1 : lie == "noheight" ? 0 : 1;
    return answer;
}

}  // namespace

int main(int argc, char** argv) {
    std::string_view lie = argc > 0 ? argv[0] : "";
    lie.remove_prefix(lie.rfind('/') + 1);
    constexpr std::string_view kRandom = "random-";
    const bool random = lie.substr(0, kRandom.size()) == kRandom;
    unsigned seed = 0;
    if (random) {
        std::from_chars(lie.data() + kRandom.size(), lie.data() + lie.size(), seed);
    }
    Liar liar(seed);
    Answer answer;
    answer.status = AnswerStatus::Ready;
    answer.flags = lie == "uncaged" ? 0U : static_cast<std::uint32_t>(kCaged);
    send(kHelperSocket, &answer, sizeof answer, 0);
    for (Request request; recv(kHelperSocket, &request, sizeof request, 0) > 0;) {
        if (lie == "silent") {
            continue;
        }
        answer = random ? liar.about(request) : told(lie, request);
        send(kHelperSocket, &answer, lie == "length" ? sizeof answer - 1 : sizeof answer, 0);
    }
}
