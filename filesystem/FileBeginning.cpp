// Sources: the formats' own public descriptions.
#include "filesystem/FileBeginning.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace vantor {

namespace {

using namespace std::string_view_literals;

struct Beginning {
    QStringView endings;  // with a dot before and behind each
    std::size_t at = 0;
    std::string_view bytes;
};

constexpr std::array kBeginnings{
    Beginning{u".jpg.jpeg.thm.mpo.", 0, "\xFF\xD8\xFF"sv},
    Beginning{u".mp4.mov.m4v.m4a.3gp.heic.heif.avif.cr3.lrv.", 4, "ftyp"sv},
    Beginning{u".mp4.mov.m4v.m4a.3gp.heic.heif.avif.cr3.lrv.", 4, "mdat"sv},
    Beginning{u".mp4.mov.m4v.m4a.3gp.heic.heif.avif.cr3.lrv.", 4, "moov"sv},
    Beginning{u".mov.mp4.", 4, "wide"sv},
    Beginning{u".mov.mp4.", 4, "free"sv},
    Beginning{u".mov.mp4.", 4, "skip"sv},
    Beginning{u".mov.", 4, "pnot"sv},
    Beginning{u".tif.tiff.nef.nrw.dng.arw.cr2.pef.srw.kdc.gpr.", 0, "II*\0"sv},
    Beginning{u".tif.tiff.nef.nrw.dng.arw.cr2.pef.srw.kdc.gpr.", 0, "MM\0*"sv},
    Beginning{u".tif.tiff.", 0, "II+\0"sv},
    Beginning{u".tif.tiff.", 0, "MM\0+"sv},
    Beginning{u".avi.wav.webp.", 0, "RIFF"sv},
    Beginning{u".wav.", 0, "RF64"sv},
    Beginning{u".png.", 0, "\x89PNG"sv},
    Beginning{u".gif.", 0, "GIF8"sv},
    Beginning{u".mts.m2ts.", 4, "G"sv},
    Beginning{u".pdf.", 0, "%PDF"sv},
    Beginning{u".zip.docx.xlsx.pptx.odt.", 0, "PK"sv},
    Beginning{u".docx.xlsx.pptx.", 0, "\xD0\xCF\x11\xE0"sv},  // encrypted
};

QString endingOf(const QString& name) {
    return u'.' + name.mid(name.lastIndexOf(u'.') + 1).toLower() + u'.';
}

}  // namespace

bool knowsBeginningOf(const QString& name) {
    const QString ending = endingOf(name);
    return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                       [&](const Beginning& one) { return one.endings.contains(ending); });
}

std::optional<bool> beginsLike(const QString& name, std::span<const std::uint8_t, 512> sector) {
    const QString ending = endingOf(name);
    std::optional<bool> answer;
    for (const Beginning& one : kBeginnings) {
        if (!one.endings.contains(ending)) {
            continue;
        }
        answer = answer.value_or(false) ||
                 std::memcmp(sector.data() + one.at, one.bytes.data(), one.bytes.size()) == 0;
    }
    return answer;
}

}  // namespace vantor
