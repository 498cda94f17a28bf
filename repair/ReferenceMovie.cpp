// Sources: ISO/IEC 14496-12; 14496-14, 5.6, and 14496-1, 7.2.6 (the configuration of coded sound).
#include "repair/ReferenceMovie.h"

#include <algorithm>
#include <map>

#include "formats/IsoTracks.h"
#include "repair/CodedPicture.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostBoxBytes = 256 * 1024;
constexpr std::size_t kMostSamplesSeen = 20'000;  // that are looked at: minutes
constexpr int kMostTopBoxes = 64;
constexpr std::size_t kPicturesLearntFrom = 8;

QByteArray bytesOf(ByteView& view, const IsoBox& box) {
    if (box.end <= box.at || box.end - box.at > kMostBoxBytes) {
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(box.end - box.at), '\0');
    const bool all = view.copy(
        box.at, {reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
    return all ? bytes : QByteArray();
}

std::span<const std::uint8_t> asSpan(QByteArrayView bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())};
}

// The body of the box of that name somewhere within the description of a track.
QByteArrayView boxWithin(QByteArrayView description, QByteArrayView name) {
    const qsizetype at = description.indexOf(name, 20);
    if (at < 4) {
        return {};
    }
    qsizetype bytes = 0;
    for (qsizetype i = at - 4; i < at; ++i) {
        bytes = bytes << 8 | static_cast<std::uint8_t>(description[i]);
    }
    const bool fits = bytes >= 8 && bytes <= description.size() - (at - 4);
    return fits ? description.sliced(at + 4, bytes - 8) : QByteArrayView();
}

std::optional<PictureSyntax> syntaxOf(const IsoTrack& track, QByteArrayView description) {
    switch (track.coding) {
        case Coding::Avc:
            return avcSyntax(asSpan(boxWithin(description, "avcC")));
        case Coding::Hevc:
            return hevcSyntax(asSpan(boxWithin(description, "hvcC")));
        case Coding::Jpeg:
        case Coding::ProRes: {
            PictureSyntax syntax;
            syntax.coding = track.coding;
            return syntax;
        }
        default:
            return std::nullopt;
    }
}

// The decoder's own part of an elementary stream descriptor.
QByteArray esConfiguration(QByteArrayView body) {
    constexpr int kMostTags = 16;
    qsizetype at = 4;
    for (int tags = 0; tags < kMostTags && at < body.size(); ++tags) {
        const auto tag = static_cast<std::uint8_t>(body[at++]);
        qsizetype bytes = 0;
        for (int group = 0; group < 4 && at < body.size(); ++group) {
            const auto byte = static_cast<std::uint8_t>(body[at++]);
            bytes = bytes << 7 | (byte & 0x7F);
            if ((byte & 0x80) == 0) {
                break;
            }
        }
        if (tag == 3) {
            at += 3;
        } else if (tag == 4) {
            at += 13;
        } else if (tag == 5) {
            return body.sliced(std::min(at, body.size()))
                .first(std::clamp<qsizetype>(bytes, 0, std::max<qsizetype>(0, body.size() - at)))
                .toByteArray();
        } else {
            at += bytes;
        }
    }
    return {};
}

QByteArray soundConfigurationOf(const ReferenceTrack& track) {
    const std::string_view name(track.codingName.data(), track.codingName.size());
    if (name == "mp4a") {
        return esConfiguration(boxWithin(track.description, "esds"));
    }
    if (name == "alac") {
        // The entry's own name comes first.
        const qsizetype entry = track.description.indexOf("alac");
        const qsizetype box = entry < 0 ? -1
                                        : track.description.indexOf(QByteArray("\0\0\0\x24"
                                                                               "alac",
                                                                               8),
                                                                    entry + 4);
        return box < 0 ? QByteArray() : track.description.mid(box, 36);
    }
    return {};
}

// Of most samples, or the mean where no duration prevails.
std::uint32_t usualDuration(ByteView& view, const IsoTrack& track) {
    constexpr std::uint64_t kMostEntries = 1 << 16;
    std::map<std::uint32_t, std::uint64_t> counts;
    std::uint64_t samples = 0;
    std::uint64_t units = 0;
    for (std::uint64_t i = 0; i < std::min(track.durations.count, kMostEntries); ++i) {
        const std::uint64_t entry = track.durations.entry(view, i).value_or(0);
        const std::uint64_t count = entry >> 32;
        const auto duration = static_cast<std::uint32_t>(entry);
        counts[duration] += count;
        samples += count;
        units = addClamped(units, count * duration);
    }
    if (samples == 0) {
        return 0;
    }
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most->second >= samples - samples / 8
               ? most->first
               : static_cast<std::uint32_t>(std::min<std::uint64_t>(units / samples, UINT32_MAX));
}

ReferenceTrack trackOf(ByteView& view, const IsoTrack& track) {
    constexpr qsizetype kShapeBytes = 44;
    ReferenceTrack taken;
    taken.codingName = track.codingName;
    taken.timescale = track.timescale;
    taken.duration = usualDuration(view, track);
    taken.description = bytesOf(view, track.description);
    taken.handler = bytesOf(view, track.handlerBox);
    taken.mediaHead = bytesOf(view, track.mediaHead);
    taken.shape = bytesOf(view, track.head).right(kShapeBytes);
    if (taken.shape.size() != kShapeBytes) {
        taken.shape.clear();
    }
    return taken;
}

bool isUsable(const ReferenceTrack& track) {
    return track.timescale != 0 && track.duration != 0 && !track.description.isEmpty() &&
           !track.handler.isEmpty() && !track.shape.isEmpty();
}

// The first bytes of all units that the pictures consist of.
void learnHeads(ByteView& view, const std::vector<IsoSample>& pictures, PictureSyntax& syntax) {
    constexpr int kMostUnitsAtHand = 64;
    if (syntax.coding != Coding::Avc && syntax.coding != Coding::Hevc) {
        return;
    }
    for (const IsoSample& sample : pictures) {
        std::uint64_t at = sample.at;
        const std::uint64_t end = addClamped(sample.at, sample.bytes);
        for (int units = 0; units < kMostUnitsAtHand && at < end; ++units) {
            const auto length = view.number(at, syntax.lengthBytes, Endian::Big);
            const auto head = view.u8(at + syntax.lengthBytes);
            if (!length || !head || *length == 0 || *length > end - at) {
                break;
            }
            syntax.heads.set(*head);
            at += syntax.lengthBytes + *length;
        }
    }
}

// Whether pictures are found as the index says, or nothing would be found without one; tells the usual count
// of slices.
bool isUnderstood(ByteView& view, const std::vector<IsoSample>& pictures, ReferenceMovie& movie) {
    std::map<unsigned, int> slices;
    std::size_t right = 0;
    const std::size_t tried = std::min(pictures.size(), kPicturesLearntFrom);
    for (std::size_t i = 0; i < tried; ++i) {
        const auto picture = pictureAt(view, movie.syntax, pictures[i].at, view.size());
        if (picture && picture->end <= addClamped(pictures[i].at, pictures[i].bytes)) {
            ++right;
            ++slices[picture->slices];
        }
    }
    if (right == 0 || right + 1 < tried) {
        return false;
    }
    movie.slices = std::max_element(slices.begin(), slices.end(), [](const auto& a, const auto& b) {
                       return a.second < b.second;
                   })->first;
    return true;
}

// `from`: where the first sample of any kind stands.
std::uint64_t widestGapOf(std::vector<IsoSample> pictures, std::uint64_t from) {
    std::sort(pictures.begin(), pictures.end(),
              [](const IsoSample& a, const IsoSample& b) { return a.at < b.at; });
    std::uint64_t widest = 0;
    std::uint64_t end = from;
    for (const IsoSample& picture : pictures) {
        widest = std::max(widest, picture.at > end ? picture.at - end : 0);
        end = addClamped(picture.at, picture.bytes);
    }
    return widest;
}

void learnSound(ByteView& view, const std::vector<IsoSample>& packets, ReferenceMovie& movie) {
    for (const IsoSample& packet : packets) {
        movie.soundHeads.set(view.u8(packet.at).value_or(0));
        movie.mostSoundBytes = std::max(movie.mostSoundBytes, packet.bytes);
    }
}

std::optional<IsoBox> findIndex(ByteView& view) {
    std::uint64_t at = 0;
    for (int i = 0; i < kMostTopBoxes; ++i) {
        const auto box = readIsoBox(view, at);
        if (!box || box->toEnd || box->end > view.size()) {
            return std::nullopt;
        }
        if (box->text() == "moov") {
            return box;
        }
        at = box->end;
    }
    return std::nullopt;
}

}  // namespace

QByteArray typeBoxOf(ByteSource& movie) {
    ByteView view(movie);
    const auto box = readIsoBox(view, 0);
    return box && !box->toEnd && box->text() == "ftyp" ? bytesOf(view, *box) : QByteArray();
}

std::optional<ReferenceMovie> readReference(ByteSource& source) {
    ByteView view(source);
    const auto index = findIndex(view);
    if (!index) {
        return std::nullopt;
    }
    ReferenceMovie movie;
    std::optional<IsoTrack> pictures;
    std::optional<IsoTrack> sound;
    std::uint64_t firstSample = view.size();
    forIsoBoxes(view, index->body, index->end, [&](const IsoBox& box) {
        if (box.text() != "trak") {
            return;
        }
        const IsoTrack track = readIsoTrack(view, box);
        auto& place = track.isVideo() ? pictures : sound;
        if ((track.isVideo() || track.isSound()) && !place && !track.elsewhere) {
            place = track;
        } else if (track.chunks.count != 0 && !track.elsewhere) {
            movie.more = true;
        }
        if (const auto first = track.chunks.entry(view, 0)) {
            firstSample = std::min(firstSample, *first);
        }
    });
    if (!pictures) {
        return std::nullopt;
    }
    movie.typeBox = typeBoxOf(source);
    movie.video = trackOf(view, *pictures);
    const auto syntax = syntaxOf(*pictures, movie.video.description);
    const auto samples = samplesOf(view, *pictures, kMostSamplesSeen);
    if (!syntax || !isUsable(movie.video) || samples.empty()) {
        return std::nullopt;
    }
    movie.syntax = *syntax;
    learnHeads(view, samples, movie.syntax);
    if (!isUnderstood(view, samples, movie)) {
        return std::nullopt;
    }
    movie.widestGap = widestGapOf(samples, firstSample);
    if (sound) {
        const ReferenceTrack track = trackOf(view, *sound);
        movie.plainSoundBytes = plainSoundFrameBytes(view, *sound);
        movie.soundConfiguration = soundConfigurationOf(track);
        if (isUsable(track) && (movie.plainSoundBytes != 0 || !movie.soundConfiguration.isEmpty())) {
            movie.sound = track;
            learnSound(view, samplesOf(view, *sound, kMostSamplesSeen), movie);
        }
    }
    return movie;
}

}  // namespace vantor
