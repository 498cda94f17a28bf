// Scaled decoding where the format allows it, orientation, and what is left of a picture that is cut short.
#include "decode/helper/PictureDecoder.h"

#include <sys/mman.h>

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QTransform>
#include <algorithm>
#include <exception>

#include "decode/helper/CrowdedJpeg.h"
#include "decode/helper/PictureKind.h"
#include "decode/helper/PictureLimits.h"
#include "decode/helper/PictureWithin.h"
#include "decode/helper/PixelCopy.h"
#include "decode/helper/ReducedPicture.h"

namespace vantor::decode {

namespace {

// Of the pixels of one picture; the reader's own default is 128.
constexpr int kAllocationLimitMegabytes = (kMostPicturePixels * kBytesPerPixel >> 20) + 1;

QSize scaledInto(QSize full, QSize bound) {
    if (full.width() <= bound.width() && full.height() <= bound.height()) {
        return full;
    }
    return full.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

bool turnsSides(QImageIOHandler::Transformations transformation) {
    return transformation.testFlag(QImageIOHandler::TransformationRotate90);
}

// What the reader does for a picture it is content with.
QImage turnedUpright(const QImage& image, QImageIOHandler::Transformations transformation) {
    const QImage mirrored = image.mirrored(transformation.testFlag(QImageIOHandler::TransformationMirror),
                                           transformation.testFlag(QImageIOHandler::TransformationFlip));
    return turnsSides(transformation) ? mirrored.transformed(QTransform().rotate(90)) : mirrored;
}

// Black or transparent all over: nothing was decoded before the reader gave up.
bool isBlank(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < plain.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
        const auto shows = [](QRgb pixel) { return qAlpha(pixel) != 0 && (pixel & RGB_MASK) != 0; };
        if (std::any_of(row, row + plain.width(), shows)) {
            return false;
        }
    }
    return true;
}

// A drawing without what lies behind its end, which its reader would take for an error, and without its
// words: they would be drawn with fonts, which are files and out of the helper's reach.
QByteArray wordlessDrawing(QByteArrayView bytes) {
    constexpr QByteArrayView kEndTag = "</svg>";
    const qsizetype end = bytes.lastIndexOf(kEndTag);
    QByteArray drawing = bytes.first(end < 0 ? bytes.size() : end + kEndTag.size()).toByteArray();
    // Elements of an unknown name are passed over.
    return drawing.replace("<text", "<void").replace("</text", "</void");
}

QByteArray prepared(QByteArrayView bytes, const QByteArray& handler) {
    if (handler == kDrawingFormat) {
        return wordlessDrawing(bytes);
    }
    return handler == "jpeg" ? withoutCrowd(bytes) : QByteArray::fromRawData(bytes.data(), bytes.size());
}

struct Attempt {
    Attempt(QByteArrayView bytes, const QByteArray& handler) : data(prepared(bytes, handler)) {
        buffer.setData(data);
        buffer.open(QIODevice::ReadOnly);
        reader.setDevice(&buffer);
        reader.setAutoDetectImageFormat(false);
        reader.setFormat(handler);
        reader.setAutoTransform(true);
    }

    QByteArray data;
    QBuffer buffer;
    QImageReader reader;
};

// Handlers leave the unread parts of a broken picture as the memory happened to be, some without a word, so
// they are given a clean sheet of the size and format they are about to ask for. Null where they do not tell.
QImage cleanSheetFor(const QImageReader& reader) {
    QImage sheet;
    const QImage::Format format = reader.imageFormat();
    if (format != QImage::Format_Invalid && QImageIOHandler::allocateImage(reader.size(), format, &sheet)) {
        sheet.fill(0);
    }
    return sheet;
}

// What a reader that gives up leaves of a picture, in full size: those that scale while they read leave
// nothing that could be relied on. Null when it shows nothing.
QImage remainsOf(QByteArrayView bytes, const QByteArray& handler) {
    Attempt attempt(bytes, handler);
    QImage image = cleanSheetFor(attempt.reader);
    const QSize size = image.size();
    attempt.reader.read(&image);
    // Its handler puts red and blue in their places when all is read.
    if (handler == "tiff" && image.depth() == 32) {
        image = std::move(image).rgbSwapped();
    }
    if (image.isNull() || image.size() != size || isBlank(image)) {
        return {};
    }
    return turnedUpright(image, attempt.reader.transformation());
}

QImage inDisplayForm(QImage image, QSize bound) {
    const QSize wanted = scaledInto(image.size(), bound);
    if (wanted != image.size()) {
        image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    const bool alpha = image.hasAlphaChannel();
    const QColorSpace own = image.colorSpace();
    if (own.isValid() && own != QColorSpace(QColorSpace::SRgb)) {
        image.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    }
    return std::move(image).convertToFormat(alpha ? QImage::Format_ARGB32_Premultiplied
                                                  : QImage::Format_RGB32);
}

std::optional<PictureResult> decodeBy(const QByteArray& handler, QByteArrayView bytes, QSize bound) {
    Attempt attempt(bytes, handler);
    QImageReader& reader = attempt.reader;
    const QSize stored = reader.size();  // before it is turned upright, as is the scaled size
    const bool turned = turnsSides(reader.transformation());
    PictureResult result;
    if (stored.isValid() && !stored.isEmpty()) {
        const QSize wanted = scaledInto(stored, turned ? bound.transposed() : bound);
        if (wanted != stored) {
            reader.setScaledSize(wanted);
        }
        result.fullSize = turned ? stored.transposed() : stored;
    }
    QImage image = reader.supportsOption(QImageIOHandler::ScaledSize) ? QImage() : cleanSheetFor(reader);
    if (!reader.read(&image)) {
        result.partial = true;
        image = remainsOf(bytes, handler);
    }
    if (image.isNull()) {
        return std::nullopt;
    }
    if (result.fullSize.isEmpty()) {
        result.fullSize = image.size();
    }
    result.image = inDisplayForm(std::move(image), bound);
    return result.image.isNull() ? std::nullopt : std::optional(result);
}

}  // namespace

std::optional<PictureResult> decodePicture(QByteArrayView bytes, QByteArrayView extension, QSize bound) {
    const QByteArray picture = pictureWithin(bytes);
    for (const QByteArray& handler : handlersFor(picture, extension)) {
        if (auto result = decodeBy(handler, picture, bound)) {
            return result;
        }
    }
    return std::nullopt;
}

std::optional<PictureResult> decodeReduced(QByteArrayView bytes, QSize bound) {
    for (const auto& [picture, handler, turn] : reducedPicturesIn(bytes)) {
        const bool saysItself =
            Attempt(picture, handler).reader.transformation() != QImageIOHandler::TransformationNone;
        const auto toTurn = saysItself ? QImageIOHandler::TransformationNone : turn;
        if (auto result = decodeBy(handler, picture, turnsSides(toTurn) ? bound.transposed() : bound)) {
            result->image = turnedUpright(result->image, toTurn);
            result->fullSize = {};
            return result;
        }
    }
    return std::nullopt;
}

void preparePictureDecoders() {
    QImageReader::setAllocationLimit(kAllocationLimitMegabytes);
    for (const QByteArray& handler : allHandlers()) {
        Attempt(QByteArrayView("\0", 1), handler).reader.canRead();
    }
}

Answer PictureJobDecoder::decode(const Job& job) {
    Answer answer;
    Mapping file;
    QByteArrayView bytes(reinterpret_cast<const char*>(job.encoded.data()),
                         static_cast<qsizetype>(job.encoded.size()));
    if (job.file >= 0 && file.map(job.file, PROT_READ, MAP_PRIVATE, kMaxInputBytes)) {
        bytes =
            QByteArrayView(reinterpret_cast<const char*>(file.data()), static_cast<qsizetype>(file.size()));
    }
    const QSize bound(static_cast<int>(job.request.maxWidth), static_cast<int>(job.request.maxHeight));
    std::optional<PictureResult> result;
    try {
        result = decodePicture(bytes, job.request.hint, bound);
        if (!result && (job.request.flags & kReducedWillDo) != 0) {
            result = decodeReduced(bytes, bound);
        }
    } catch (const std::exception&) {
        // Out of memory within the limit, mostly: no picture.
    }
    if (!result || !copyPixels(result->image, bound, job.pixels, answer)) {
        return answer;
    }
    const QSize fullSize = result->fullSize.isValid() ? result->fullSize : QSize(0, 0);
    answer.fullWidth = static_cast<std::uint32_t>(fullSize.width());
    answer.fullHeight = static_cast<std::uint32_t>(fullSize.height());
    answer.flags |= result->partial ? kPartial : 0U;
    return answer;
}

}  // namespace vantor::decode
