// vantor-read-evidence: takes an evidence image apart in the program's place; started like vantor-decode, and
// given the image's segments, which are open already.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <memory>
#include <vector>

#include "decode/evidence/EvidenceReader.h"
#include "decode/helper/Cage.h"
#include "decode/helper/CagedStart.h"
#include "decode/helper/Channel.h"

namespace vantor::decode {
namespace {

class EvidenceServer final : public JobDecoder {
  public:
    Answer decode(const Job& job) override {
        switch (job.request.kind) {
            case RequestKind::AddSegment:
                return addSegment(job);
            case RequestKind::OpenEvidence:
                return open(job);
            case RequestKind::ReadEvidence:
                return read(job);
            default:
                return {};
        }
    }

  private:
    static Answer rows(std::uint32_t width, std::uint32_t height) {
        Answer answer;
        answer.status = AnswerStatus::Ok;
        answer.width = width;
        answer.height = height;
        return answer;
    }

    Answer addSegment(const Job& job) {
        // The channel closes the one it was sent.
        const int kept = job.file >= 0 && !m_reader ? dup(job.file) : -1;
        if (kept < 0) {
            return {};
        }
        m_segments.push_back(kept);
        return rows(1, 1);
    }

    Answer open(const Job& job) {
        m_reader = EvidenceReader::open(m_segments);
        if (!m_reader || job.request.maxWidth < kEvidenceFactsWords) {
            return {};
        }
        std::memcpy(job.pixels.data(), &m_reader->facts(), sizeof(EvidenceFacts));
        return rows(kEvidenceFactsWords, 1);
    }

    Answer read(const Job& job) {
        EvidenceQuestion question;
        if (!m_reader || job.encoded.size() != sizeof question || job.request.maxWidth < kSectorWidth) {
            return {};
        }
        std::memcpy(&question, job.encoded.data(), sizeof question);
        const std::uint64_t most = std::min<std::uint64_t>(question.sectors, job.request.maxHeight);
        const std::size_t got =
            m_reader->read(question.first, {reinterpret_cast<std::uint8_t*>(job.pixels.data()),
                                            static_cast<std::size_t>(most) * kSectorWidth * kBytesPerPixel});
        return got == 0 ? Answer() : rows(kSectorWidth, static_cast<std::uint32_t>(got));
    }

    std::vector<int> m_segments;
    std::unique_ptr<EvidenceReader> m_reader;
};

}  // namespace
}  // namespace vantor::decode

int main(int argc, char** argv) {
    using namespace vantor::decode;
    if (argc != 2) {
        std::fputs("vantor-read-evidence is started by the program itself.\n", stderr);
        return EXIT_FAILURE;
    }
    silenceErrors();
    Channel channel(kHelperSocket);
    CageOptions options;
    // Each segment is open twice: libewf opens what we keep.
    options.openFiles += 2 * EvidenceReader::kMostSegments;
    enterCageOrEnd(channel, argv[1], options);
    bool served = false;
    try {
        EvidenceServer server;
        served = channel.serve(server);
    } catch (const std::exception&) {
        // Out of memory within the limit.
    }
    // Past every clean-up that a damaged heap could trip over.
    _exit(served ? EXIT_SUCCESS : EXIT_FAILURE);
}
