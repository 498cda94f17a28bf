#include "repair/ReferenceShelf.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "repair/MovieProof.h"

namespace vantor {

namespace {

// Enough for several groups of pictures, little enough for dozens of trials.
constexpr std::size_t kPicturesTried = 40;

// Unexplained, for each picture.
constexpr std::uint64_t kNoticeableBytes = 16;

// How badly a reference fits, in hundredths.
int misfit(const RepairedMovie& repaired, unsigned slices, unsigned slicesFound, bool hasSound) {
    const double bytes = static_cast<double>(repaired.data.to - repaired.data.from);
    double sum = 100 * static_cast<double>(repaired.unexplainedBytes) / std::max(1.0, bytes);
    if (hasSound && repaired.pictureSeconds > 0) {
        const double apart = std::abs(repaired.soundSeconds - repaired.pictureSeconds);
        // Sound comes in stretches of its own length.
        sum += 100 * std::max(0.0, apart - 0.1) / repaired.pictureSeconds;
    }
    // Sound is little beside the pictures: a reference that knows of none leaves little unexplained.
    sum += repaired.unexplainedBytes > kNoticeableBytes * repaired.pictures ? 20 : 0;
    sum += slices == slicesFound ? 0 : 20;
    return static_cast<int>(std::min(sum, 1e6));
}

}  // namespace

void ReferenceShelf::add(Kept kept) {
    if (m_kept.size() < kMostKept) {
        m_kept.push_back(std::move(kept));
    }
}

const ReferenceShelf::Kept* ReferenceShelf::choose(ByteSource& movie, const DataPlace& data,
                                                   std::uint64_t firstSector, SoundSplitter& splitter,
                                                   const std::atomic<int>* stop) const {
    const QByteArray typeBox = typeBoxOf(movie);
    std::vector<const Kept*> order;
    for (const Kept& kept : m_kept) {
        order.push_back(&kept);
    }
    const auto closeness = [&](const Kept* kept) {
        const std::uint64_t apart =
            std::max(kept->firstSector, firstSector) - std::min(kept->firstSector, firstSector);
        return std::tuple(kept->movie.typeBox != typeBox, apart);
    };
    std::sort(order.begin(), order.end(),
              [&](const Kept* a, const Kept* b) { return closeness(a) < closeness(b); });
    WalkLimits limits;
    limits.pictures = kPicturesTried;
    limits.stop = stop;
    const Kept* best = nullptr;
    int least = 0;
    for (const Kept* kept : order) {
        const auto tried = repairMovie(movie, data, kept->movie, splitter, limits);
        if (!tried) {
            continue;
        }
        const int fit = misfit(*tried, kept->movie.slices, tried->slices, kept->movie.sound.has_value());
        if ((best == nullptr || fit < least) && playsWithoutErrors(movie, *tried, m_options)) {
            best = kept;
            least = fit;
        }
        if (best != nullptr && least == 0) {
            break;
        }
    }
    return best;
}

}  // namespace vantor
