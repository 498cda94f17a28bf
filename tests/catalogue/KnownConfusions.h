// The real files that the first sector cannot tell from another type, and why.
#pragma once

#include <QString>
#include <algorithm>
#include <iterator>

namespace vantor {

// What a file of the corpus is found under instead of its own type; "" means that nothing is found at its
// beginning.
struct KnownConfusion {
    const char* type;
    const char* foundAs;
    const char* why;
};

inline constexpr KnownConfusion kKnownConfusions[] = {
    {"AC3", "MP3", "a stream cut for the web begins with an ID3 tag, as MP3 does; its sound comes after it"},
    {"ASF", "WMV", "one container: only the streams listed at changing places tell a WMV from an ASF"},
    {"DB", "SQLITE", "a database of SQLite is the same file under every ending"},
    {"DMG", "", "a compressed image has its mark in its last 512 bytes"},
    {"FPX", "DOC", "a compound document: its first sector says nothing of the program that wrote it"},
    {"HEIF", "HEIC", "a general brand that lists the HEVC one: phones write the same bytes as HEIC"},
    {"JPX", "JP2", "written for readers of JP2, it bears their brand"},
    {"JXL", "", "a naked stream has a mark of two bytes"},
    {"M4B", "MP4", "written with the brand of any movie; that it is a book stands in its tags"},
    {"MKA", "MKV", "one container: that no track is a picture stands at a changing place"},
    {"MP3", "", "these begin with foreign bytes"},
    {"MPG", "M2V", "a bare video stream that is called MPG"},
    {"MPO", "JPG", "begins as the JPEG it is; the mark of the second picture has no fixed place"},
    {"MSG", "DOC", "a compound document: its first sector says nothing of the program that wrote it"},
    {"MTS", "TS", "packets without the camera's time codes are those of any transport stream"},
    {"OGG", "OPUS", "an Opus stream under the general ending"},
    {"TGZ", "GZ", "an archive behind GZip begins as any other file behind it"},
    {"THM", "JPG", "the small JPEG that a camera puts beside a movie or raw picture"},
    {"VSD", "DOC", "a compound document: its first sector says nothing of the program that wrote it"},
    {"WMA", "WMV", "one container, and the list of videos has no sound"},
};

// The same of the sample card's files.
inline constexpr KnownConfusion kSampleCardConfusions[] = {
    {"CSV", "", "lines of values without words that name their program"},
    {"TXT", "", "a text without a mark of its encoding"},
};

// The confusion of files of `type` that are found as `foundAs`; null when none is known.
inline const KnownConfusion* confusionOf(const QString& type, const QString& foundAs) {
    const auto among = [&](const auto& list) -> const KnownConfusion* {
        const auto* known = std::find_if(std::begin(list), std::end(list), [&](const KnownConfusion& c) {
            return type == QLatin1String(c.type) && foundAs == QLatin1String(c.foundAs);
        });
        return known == std::end(list) ? nullptr : known;
    };
    const KnownConfusion* known = among(kKnownConfusions);
    return known != nullptr ? known : among(kSampleCardConfusions);
}

}  // namespace vantor
