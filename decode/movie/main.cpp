// vantor-decode-movie: decodes carved movies in the program's place; started like vantor-decode, one for a
// movie's pictures and one for its sound.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <vector>

#include "decode/helper/Cage.h"
#include "decode/helper/CagedStart.h"
#include "decode/helper/Channel.h"
#include "decode/helper/PixelCopy.h"
#include "decode/movie/MovieFile.h"
#include "decode/movie/MovieTrial.h"
#include "decode/movie/PacketSplit.h"
#include "decode/movie/SoundFile.h"

extern "C" {
#include <libavutil/log.h>
}

namespace vantor::decode {
namespace {

class MovieJobDecoder : public JobDecoder {
  public:
    Answer decode(const Job& job) override {
        try {
            return attempt(job);
        } catch (const std::exception&) {
            return {};
        }
    }

  private:
    Answer attempt(const Job& job) {
        switch (job.request.kind) {
            case RequestKind::OpenMovie:
                m_movie.reset();
                m_movie = job.file < 0 ? nullptr : MovieFile::open(dup(job.file));
                return nextFrame(job, AnswerStatus::NotDecodable);
            case RequestKind::OpenCover:
                m_movie.reset();
                m_movie = job.file < 0 ? nullptr : MovieFile::open(dup(job.file), Pictures::CoverToo);
                return nextFrame(job, AnswerStatus::NotDecodable);
            case RequestKind::NextFrame:
                return nextFrame(job, AnswerStatus::EndOfMovie);
            case RequestKind::OpenSound:
                m_sound.reset();
                m_sound = job.file < 0 ? nullptr : SoundFile::open(dup(job.file));
                return nextSound(job, AnswerStatus::NotDecodable);
            case RequestKind::NextSound:
                return nextSound(job, AnswerStatus::EndOfMovie);
            case RequestKind::SplitSound:
                return numbers(job, packetLengths(job.encoded));
            case RequestKind::TryMovie:
                return numbers(job, job.file < 0
                                        ? std::vector<std::uint32_t>()
                                        : tryMovie(dup(job.file),
                                                   std::clamp<std::int64_t>(job.request.timeMs, 0, kMostMs),
                                                   (job.request.flags & kOnlyWhole) != 0));
            case RequestKind::Picture:
            case RequestKind::ReadCard:
            case RequestKind::MoreOfCard:
            case RequestKind::AddSegment:
            case RequestKind::OpenEvidence:
            case RequestKind::ReadEvidence:
                break;
        }
        return {};
    }

    Answer nextFrame(const Job& job, AnswerStatus otherwise) {
        Answer answer;
        answer.status = otherwise;
        if (!m_movie) {
            return answer;
        }
        const QSize bound(static_cast<int>(job.request.maxWidth), static_cast<int>(job.request.maxHeight));
        const auto frame =
            job.request.timeMs >= 0 ? m_movie->at(job.request.timeMs, bound) : m_movie->next(bound);
        if (!frame || !copyPixels(frame->image, bound, job.pixels, answer)) {
            return answer;
        }
        const MovieInfo info = m_movie->info();
        answer.timeMs = frame->timeMs;
        answer.durationMs = info.durationMs;
        answer.fullWidth = static_cast<std::uint32_t>(info.size.width());
        answer.fullHeight = static_cast<std::uint32_t>(info.size.height());
        answer.flags |= info.hasSound ? kHasSound : 0U;
        return answer;
    }

    Answer nextSound(const Job& job, AnswerStatus otherwise) {
        Answer answer;
        answer.status = otherwise;
        if (!m_sound) {
            return answer;
        }
        const std::size_t bytes = std::size_t{job.request.maxWidth} * kBytesPerSoundFrame;
        const auto room = job.pixels.first(std::min(bytes, job.pixels.size()));
        const auto piece =
            job.request.timeMs >= 0 ? m_sound->at(job.request.timeMs, room) : m_sound->next(room);
        if (!piece) {
            return answer;
        }
        answer.status = AnswerStatus::Ok;
        answer.width = static_cast<std::uint32_t>(piece->frames);
        answer.height = 1;
        answer.timeMs = piece->timeMs;
        answer.durationMs = m_sound->durationMs();
        answer.flags |= kHasSound;
        return answer;
    }

    static Answer numbers(const Job& job, const std::vector<std::uint32_t>& values) {
        Answer answer;
        const std::size_t count = std::min(
            {values.size(), std::size_t{job.request.maxWidth}, job.pixels.size() / sizeof values[0]});
        if (count == 0) {
            return answer;
        }
        std::memcpy(job.pixels.data(), values.data(), count * sizeof values[0]);
        answer.status = AnswerStatus::Ok;
        answer.width = static_cast<std::uint32_t>(count);
        answer.height = 1;
        return answer;
    }

    std::unique_ptr<MovieFile> m_movie;
    std::unique_ptr<SoundFile> m_sound;
};

}  // namespace
}  // namespace vantor::decode

int main(int argc, char** argv) {
    using namespace vantor::decode;
    if (argc != 2) {
        std::fputs("vantor-decode-movie is started by the program itself.\n", stderr);
        return EXIT_FAILURE;
    }
    silenceErrors();
    av_log_set_level(AV_LOG_QUIET);
    Channel channel(kHelperSocket);
    enterCageOrEnd(channel, argv[1]);
    MovieJobDecoder decoder;
    // Past every clean-up that a damaged heap could trip over.
    _exit(channel.serve(decoder) ? EXIT_SUCCESS : EXIT_FAILURE);
}
