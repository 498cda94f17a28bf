// vantor-decode-movie: decodes carved movies in the program's place; started like vantor-decode, one for each
// movie.
#include <time.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "decode/helper/Cage.h"
#include "decode/helper/Channel.h"
#include "decode/helper/PixelCopy.h"
#include "decode/movie/MovieFile.h"

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
        const QSize bound(static_cast<int>(job.request.maxWidth), static_cast<int>(job.request.maxHeight));
        if (job.request.kind == RequestKind::OpenMovie) {
            const int own = job.file < 0 ? -1 : dup(job.file);
            m_movie.reset();
            m_movie = own < 0 ? nullptr : MovieFile::open(own);
        }
        if (!m_movie || job.request.kind == RequestKind::Picture) {
            return {};
        }
        const auto frame = job.request.kind == RequestKind::NextFrame && job.request.timeMs >= 0
                               ? m_movie->at(job.request.timeMs, bound)
                               : m_movie->next(bound);
        Answer answer;
        if (!frame || !copyPixels(frame->image, bound, job.pixels, answer)) {
            answer.status = job.request.kind == RequestKind::NextFrame ? AnswerStatus::EndOfMovie
                                                                       : AnswerStatus::NotDecodable;
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

    std::unique_ptr<MovieFile> m_movie;
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
    tzset();
    CageOptions options;
    options.parent = static_cast<pid_t>(std::strtol(argv[1], nullptr, 10));
    bool parentGone = false;
    const bool caged = enterCage(options, parentGone);
    Channel channel(kHelperSocket);
    if (parentGone || !channel.sayReady(caged)) {
        _exit(EXIT_SUCCESS);
    }
    MovieJobDecoder decoder;
    // Past every clean-up that a damaged heap could trip over.
    _exit(channel.serve(decoder) ? EXIT_SUCCESS : EXIT_FAILURE);
}
