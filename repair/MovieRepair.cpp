#include "repair/MovieRepair.h"

#include <algorithm>

#include "formats/IsoBox.h"
#include "repair/BoxWriter.h"
#include "repair/IndexWriter.h"
#include "repair/PictureTrack.h"
#include "repair/PlayedThrough.h"

namespace vantor {

namespace {

constexpr int kMostOuterBoxes = 64;
constexpr double kNoLimitSeconds = 1e9;
constexpr std::uint64_t kMostSoundAtOnce = std::uint64_t{8} << 20;

double secondsOf(const IndexedTrack& track) {
    return static_cast<double>(track.duration()) / track.described->timescale;
}

// The sound in the gaps between the pictures.
class SoundTrack {
  public:
    explicit SoundTrack(const ReferenceMovie& reference)
        : m_builder(m_track), m_plain(reference.plainSoundBytes) {
        m_track.described = &*reference.sound;
        m_track.sampleBytes = static_cast<std::uint32_t>(m_plain);
    }

    // Bytes taken. `mostSeconds`: longer the sound does not get by this gap.
    std::uint64_t add(const MovieGap& gap, double mostSeconds) {
        std::uint64_t room = roomFor(mostSeconds);
        if (m_plain != 0) {
            const std::uint64_t frames = std::min((gap.place.to - gap.place.from) / m_plain, room);
            if (frames != 0) {
                m_builder.add(gap.place.from, frames * m_plain, frames);
                m_end = gap.place.from + frames * m_plain;
            }
            return frames * m_plain;
        }
        std::uint64_t taken = 0;
        for (const IsoSample& packet : gap.packets) {
            if (room-- == 0) {
                break;
            }
            m_builder.add(packet.at, packet.bytes, 1);
            m_track.sizes.push_back(static_cast<std::uint32_t>(packet.bytes));
            m_end = packet.at + packet.bytes;
            taken += packet.bytes;
        }
        return taken;
    }

    // Behind the last byte taken.
    std::uint64_t end() const { return m_end; }
    IndexedTrack& track() { return m_track; }

  private:
    std::uint64_t roomFor(double mostSeconds) const {
        const double units = mostSeconds * m_track.described->timescale / m_track.described->duration;
        const double left = units - static_cast<double>(m_track.samples());
        return left <= 0 ? 0 : static_cast<std::uint64_t>(left);
    }

    IndexedTrack m_track;
    TrackBuilder m_builder;
    const std::uint64_t m_plain;
    std::uint64_t m_end = 0;
};

// Nothing where the sound is plain, or there is none.
SplitSound splitterOf(ByteSource& movie, const ReferenceMovie& reference, SoundSplitter& splitter) {
    if (!reference.sound || reference.plainSoundBytes != 0) {
        return {};
    }
    return [&movie, &reference, &splitter](const DataPlace& place) {
        QByteArray sound(static_cast<qsizetype>(std::min(place.to - place.from, kMostSoundAtOnce)),
                         Qt::Uninitialized);
        const std::size_t arrived = movie.read(place.from, {reinterpret_cast<std::uint8_t*>(sound.data()),
                                                            static_cast<std::size_t>(sound.size())});
        sound.truncate(static_cast<qsizetype>(arrived));
        return splitter.split(reference.sound->codingName, reference.soundConfiguration, sound);
    };
}

QByteArray headOf(ByteSource& movie, const ReferenceMovie& reference, std::uint64_t dataBytes) {
    const QByteArray own = typeBoxOf(movie);
    BoxWriter out;
    out.bytes(own.isEmpty() ? reference.typeBox : own);
    // Long movies need the long form of the size.
    out.u32(1).bytes("mdat").u64(dataBytes + 16);
    return out.taken();
}

}  // namespace

std::optional<DataPlace> dataWithoutIndex(ByteSource& movie) {
    ByteView view(movie);
    std::uint64_t at = 0;
    std::optional<DataPlace> data;
    for (int i = 0; i < kMostOuterBoxes; ++i) {
        const auto box = readIsoBox(view, at);
        if (!box || (i == 0 && box->text() != "ftyp" && box->text() != "mdat" && box->text() != "wide")) {
            break;
        }
        if (box->text() == "moov" || box->text() == "moof" || box->text() == "meta") {
            return std::nullopt;
        }
        if (box->text() == "mdat" && !data) {
            // Some cameras fill the size in at the end, or take the largest that could be.
            const bool open = box->toEnd || box->end > view.size() || box->end - box->body <= 8;
            data = {box->body, open ? view.size() : box->end};
            if (open) {
                break;
            }
        }
        if (box->toEnd || box->end >= view.size()) {
            break;
        }
        at = box->end;
    }
    return data;
}

std::optional<DataPlace> dataBehindIndex(ByteSource& movie) {
    ByteView view(movie);
    std::uint64_t at = 0;
    bool indexed = false;
    for (int i = 0; i < kMostOuterBoxes; ++i) {
        const auto box = readIsoBox(view, at);
        if (!box || box->text() == "moof" || (i == 0 && box->text() != "ftyp")) {
            break;
        }
        if (box->text() == "mdat") {
            return indexed && !box->toEnd && box->end > box->body
                       ? std::optional(DataPlace{box->body, std::min(box->end, view.size())})
                       : std::nullopt;
        }
        indexed = indexed || box->text() == "moov";
        if (box->toEnd || box->end >= view.size()) {
            break;
        }
        at = box->end;
    }
    return std::nullopt;
}

std::optional<RepairedMovie> repairMovie(ByteSource& movie, DataPlace data, const ReferenceMovie& reference,
                                         SoundSplitter& splitter, const WalkLimits& limits,
                                         const PartPlays& plays) {
    ByteView view(movie);
    MovieWalk walk = walkMovie(view, reference, data, splitterOf(movie, reference, splitter), limits);
    if (walk.pictures.empty()) {
        return std::nullopt;
    }
    if (plays) {
        PlayedThrough(headOf(movie, reference, 0), reference, plays).shorten(walk, limits.stop);
    }
    const std::uint64_t lastPictureEnd = walk.pictures.back().end;
    std::vector<IndexedTrack> tracks{pictureTrack(walk.pictures, reference)};
    RepairedMovie repaired;
    repaired.data = {data.from, lastPictureEnd};
    repaired.pictures = walk.pictures.size();
    repaired.slices = walk.pictures.front().slices;
    repaired.pictureSeconds = secondsOf(tracks.front());
    std::optional<SoundTrack> sound;
    if (reference.sound) {
        sound.emplace(reference);
    }
    for (const MovieGap& gap : walk.gaps) {
        // Sound and pictures are written together: behind the last picture there is no more sound than to its
        // end.
        const bool tail = gap.place.from >= lastPictureEnd;
        const std::uint64_t taken =
            sound ? sound->add(gap, tail ? repaired.pictureSeconds : kNoLimitSeconds) : 0;
        if (!tail) {
            repaired.unexplainedBytes += gap.place.to - gap.place.from - taken;
        }
    }
    if (sound) {
        repaired.data.to = std::max(repaired.data.to, sound->end());
        repaired.soundSeconds = secondsOf(sound->track());
        tracks.push_back(std::move(sound->track()));
    }
    repaired.head = headOf(movie, reference, repaired.data.to - repaired.data.from);
    for (IndexedTrack& track : tracks) {
        for (IndexedChunk& chunk : track.chunks) {
            chunk.at += static_cast<std::uint64_t>(repaired.head.size()) - repaired.data.from;
        }
    }
    repaired.index = writeIndex(tracks);
    return repaired;
}

}  // namespace vantor
