// Marks at the beginning of the bytes, and the order in which handlers try what bears them.
#include "decode/helper/PictureKind.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "decode/helper/HandlerNames.h"
#include "decode/helper/SensorData.h"

namespace vantor::decode {

namespace {

struct Mark {
    qsizetype at;
    QByteArrayView text;
    const char* handler;
};

const std::array kMarks{
    Mark{0, "\xff\xd8\xff", "jpeg"},
    Mark{0, "\x89PNG\r\n\x1a\n", "png"},
    Mark{0, "\x8aMNG\r\n\x1a\n", "mng"},
    Mark{0, "GIF8", "gif"},
    Mark{8, "WEBP", "webp"},
    Mark{0, "BM", "bmp"},
    Mark{0, "icns", "icns"},
    Mark{0, QByteArrayView("\0\0\1\0", 4), "ico"},
    Mark{0, QByteArrayView("\0\0\2\0", 4), "cur"},
    Mark{0, "8BPS", kPhotoshopFormat},
    Mark{0, QByteArrayView("\xff\x0a", 2), kJpegXlFormat},
    Mark{0, QByteArrayView("\0\0\0\x0cJXL \r\n\x87\n", 12), kJpegXlFormat},
    Mark{0, QByteArrayView("\0\0\0\x0cjP  \r\n\x87\n", 12), kJpeg2000Format},
    Mark{0, "\xff\x4f\xff\x51", kJpeg2000Format},
    Mark{0, QByteArrayView("\x0a\x00\x01", 3), kPcxFormat},
    Mark{0, "\x0a\x02\x01", kPcxFormat},
    Mark{0, "\x0a\x03\x01", kPcxFormat},
    Mark{0, "\x0a\x04\x01", kPcxFormat},
    Mark{0, "\x0a\x05\x01", kPcxFormat},
    Mark{0, "DDS ", kDdsFormat},
    Mark{0, "SDPX", kDpxFormat},
    Mark{0, "XPDS", kDpxFormat},
    Mark{0, "\x76\x2f\x31\x01", kOpenExrFormat},
    Mark{0, "qoif", kQoiFormat},
    Mark{0, "\x01\xda", kSgiFormat},
    Mark{0, "\x59\xa6\x6a\x95", kSunRasterFormat},
    Mark{0, "P7\n", kPamFormat},
    Mark{0, "PF\n", kFloatMapFormat},
    Mark{0, "Pf\n", kFloatMapFormat},
    Mark{0, "#?RADIANCE\n", kRadianceFormat},
    Mark{0, "#?RGBE\n", kRadianceFormat},
    Mark{0, "SIMPLE  =", kFitsFormat},
    Mark{0, "II\xbc\x01", kJpegXrFormat},
    // Camera raw files that are no TIFF, or only nearly one.
    Mark{0, "FUJIFILMCCD-RAW", kRawFormat},
    Mark{6, "HEAPCCDR", kRawFormat},
    Mark{0, "IIRO", kRawFormat},
    Mark{0, "IIRS", kRawFormat},
    Mark{0, "MMOR", kRawFormat},
    Mark{0, QByteArrayView("IIU\0", 4), kRawFormat},
    Mark{0, "FOVb", kRawFormat},
    Mark{0, QByteArrayView("\0MRM", 4), kRawFormat},
    Mark{0, "ARECOYK", kRawFormat},
};

// Brands of ISO base media files, at byte 8.
const std::array kBrands{
    Mark{8, "crx ", kRawFormat},  Mark{8, "heic", kHeifFormat}, Mark{8, "heix", kHeifFormat},
    Mark{8, "heim", kHeifFormat}, Mark{8, "heis", kHeifFormat}, Mark{8, "hevc", kHeifFormat},
    Mark{8, "hevx", kHeifFormat}, Mark{8, "mif1", kHeifFormat}, Mark{8, "msf1", kHeifFormat},
    Mark{8, "avif", kHeifFormat}, Mark{8, "avis", kHeifFormat}, Mark{8, "miaf", kHeifFormat},
};

// Formats whose first bytes say next to nothing; tried only on an item of that type.
struct Markless {
    QByteArrayView extension;
    const char* handler;
};
const std::array kMarkless{
    Markless{"tga", kTargaFormat}, Markless{"wbmp", "wbmp"}, Markless{"pbm", "pbm"}, Markless{"pgm", "pgm"},
    Markless{"ppm", "ppm"},        Markless{"pnm", "ppm"},   Markless{"xbm", "xbm"}, Markless{"xpm", "xpm"},
};

bool hasText(QByteArrayView bytes, qsizetype at, QByteArrayView text) {
    return bytes.size() - at >= text.size() && bytes.sliced(at, text.size()) == text;
}

// Markup whose first element is the drawing's.
bool isDrawing(QByteArrayView bytes) {
    constexpr qsizetype kMostProlog = 4096;
    const QByteArrayView beginning = bytes.first(std::min(bytes.size(), kMostProlog));
    const QByteArrayView trimmed = beginning.trimmed();
    return (trimmed.startsWith('<') || trimmed.startsWith("\xef\xbb\xbf<")) && beginning.contains("<svg");
}

bool isTiff(QByteArrayView bytes) {
    return hasText(bytes, 0, QByteArrayView("II*\0", 4)) || hasText(bytes, 0, QByteArrayView("MM\0*", 4)) ||
           hasText(bytes, 0, QByteArrayView("II+\0", 4)) || hasText(bytes, 0, QByteArrayView("MM\0+", 4));
}

}  // namespace

QList<QByteArray> handlersFor(QByteArrayView bytes, QByteArrayView extension) {
    if (isTiff(bytes)) {
        // A raw file's other directories hold reduced pictures, which are not what is asked for.
        return isTiffBasedRaw(bytes) ? QList<QByteArray>{kRawFormat} : QList<QByteArray>{"tiff", kRawFormat};
    }
    const auto stands = [&](const Mark& mark) { return hasText(bytes, mark.at, mark.text); };
    if (hasText(bytes, 4, "ftyp")) {
        const auto brand = std::ranges::find_if(kBrands, stands);
        return brand == kBrands.end() ? QList<QByteArray>{} : QList<QByteArray>{brand->handler};
    }
    QList<QByteArray> handlers;
    const auto mark = std::ranges::find_if(kMarks, stands);
    if (mark != kMarks.end()) {
        handlers.append(mark->handler);
    } else if (isDrawing(bytes)) {
        handlers.append(kDrawingFormat);
    }
    // Some begin like a cursor or an icon does.
    const auto markless = std::ranges::find(kMarkless, extension, &Markless::extension);
    if (markless != kMarkless.end()) {
        handlers.append(markless->handler);
    }
    return handlers;
}

QList<QByteArray> allHandlers() {
    QList<QByteArray> names{"tiff", kDrawingFormat};
    for (const Mark& mark : kMarks) {
        names.append(mark.handler);
    }
    names.append(kHeifFormat);
    for (const Markless& kind : kMarkless) {
        names.append(kind.handler);
    }
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

}  // namespace vantor::decode
