// Photoshop documents: the flattened picture at their end, after Adobe's published file format specification.
#include <QDataStream>
#include <algorithm>
#include <array>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

enum class Mode : std::uint16_t { Grey = 1, Indexed = 2, Rgb = 3, Cmyk = 4 };
enum class Compression : std::uint16_t { None = 0, PackBits = 1 };

constexpr qsizetype kHeaderBytes = 26;
constexpr qsizetype kPaletteEntries = 256;

struct Document {
    const QByteArray& bytes;
    bool large = false;  // the variant with longer lengths
    quint16 channels = 0;
    quint32 height = 0;
    quint32 width = 0;
    quint16 depth = 0;  // bits of a sample, 8 or 16
    Mode mode = Mode::Rgb;
    QByteArrayView palette{};  // three planes, shorter where the bytes end within
    Compression compression = Compression::None;
    qsizetype dataAt = 0;  // behind the compression word

    // Channels that make up the colour; the ones behind are masks.
    int colours() const { return mode == Mode::Cmyk ? 4 : mode == Mode::Rgb ? 3 : 1; }
};

// Takes the header off the stream; false when it is none that we read.
bool readHeader(QDataStream& in, Document& document) {
    QByteArray mark(4, '\0');
    quint16 version = 0, mode = 0;
    in.readRawData(mark.data(), 4);
    in >> version;
    in.skipRawData(6);
    in >> document.channels >> document.height >> document.width >> document.depth >> mode;
    if (in.status() != QDataStream::Ok || mark != "8BPS" || (version != 1 && version != 2)) {
        return false;
    }
    document.large = version == 2;
    document.mode = static_cast<Mode>(mode);
    const bool knownMode = mode >= 1 && mode <= 4;
    return knownMode && (document.depth == 8 || document.depth == 16) &&
           document.channels >= document.colours() && isReasonableSize(document.width, document.height);
}

// Steps over colour data, resources and layers.
bool findPicture(QDataStream& in, Document& document) {
    const auto size = static_cast<quint64>(document.bytes.size());
    document.palette =
        QByteArrayView(document.bytes).sliced(std::min(document.bytes.size(), kHeaderBytes + 4));
    for (const bool longLength : {false, false, document.large}) {
        quint32 high = 0, low = 0;
        if (longLength) {
            in >> high;
        }
        in >> low;
        const quint64 length = quint64{high} << 32 | low;
        const auto at = static_cast<quint64>(in.device()->pos());
        if (in.status() != QDataStream::Ok || length > size - at ||
            !in.device()->seek(static_cast<qint64>(at + length))) {
            return false;
        }
    }
    quint16 compression = 0;
    in >> compression;
    if (in.status() != QDataStream::Ok || compression > 1) {
        return false;
    }
    document.compression = static_cast<Compression>(compression);
    document.dataAt = in.device()->pos();
    return true;
}

// Unpacks one row. Missing bytes leave the rest of the row as it was.
void unpackRow(QByteArrayView packed, QByteArray& row) {
    qsizetype to = 0;
    for (qsizetype from = 0; from < packed.size() && to < row.size();) {
        const auto control = static_cast<std::int8_t>(packed[from++]);
        if (control >= 0) {
            const qsizetype count = std::min({qsizetype{control} + 1, packed.size() - from, row.size() - to});
            std::copy_n(packed.data() + from, count, row.data() + to);
            from += qsizetype{control} + 1;
            to += count;
        } else if (control != -128 && from < packed.size()) {
            const qsizetype count = std::min(qsizetype{1} - control, row.size() - to);
            std::fill_n(row.data() + to, count, packed[from++]);
            to += count;
        }
    }
}

// Gives out the rows of all channels one after the other.
class Rows {
  public:
    explicit Rows(const Document& document)
        : m_document(document),
          m_lengths(document.bytes),
          m_left(QByteArrayView(document.bytes).sliced(document.dataAt)),
          m_row(qsizetype{document.width} * (document.depth / 8), '\0') {
        if (packed()) {
            m_lengths.device()->seek(document.dataAt);
            dropFirst(qsizetype{document.channels} * document.height * (document.large ? 4 : 2));
        }
    }

    // The high byte of a sample comes first, so a picture of 16 bits is shown by it. Null at the end of the
    // bytes.
    const char* next() {
        const qsizetype length = packed() ? nextLength() : m_row.size();
        if (m_left.isEmpty()) {
            return nullptr;
        }
        const QByteArrayView piece = m_left.first(std::min(length, m_left.size()));
        dropFirst(length);
        if (packed()) {
            unpackRow(piece, m_row);
        } else {
            std::copy(piece.begin(), piece.end(), m_row.data());
        }
        return m_row.constData();
    }

  private:
    bool packed() const { return m_document.compression == Compression::PackBits; }

    // Of the packed row that follows; 0 where the table of them is cut short.
    qsizetype nextLength() {
        quint32 length = 0;
        quint16 shortLength = 0;
        if (m_document.large) {
            m_lengths >> length;
        } else {
            m_lengths >> shortLength;
            length = shortLength;
        }
        return length;
    }
    void dropFirst(qsizetype count) { m_left = m_left.sliced(std::min(count, m_left.size())); }

    const Document& m_document;
    QDataStream m_lengths;  // at the next packed row's
    QByteArrayView m_left;  // rows not yet given out
    QByteArray m_row;
};

// Inks are stored as light: 255 is none.
QRgb fromInks(QRgb inks) {
    const int black = qAlpha(inks);
    return qRgb(qRed(inks) * black / 255, qGreen(inks) * black / 255, qBlue(inks) * black / 255);
}

QRgb fromPalette(QByteArrayView palette, int index) {
    const auto part = [&](qsizetype plane) {
        const qsizetype at = plane * kPaletteEntries + index;
        return at < palette.size() ? static_cast<std::uint8_t>(palette[at]) : 0;
    };
    return qRgb(part(0), part(1), part(2));
}

QRgb displayed(const Document& document, QRgb channels) {
    switch (document.mode) {
        case Mode::Grey:
            return qRgb(qRed(channels), qRed(channels), qRed(channels));
        case Mode::Indexed:
            return fromPalette(document.palette, qRed(channels));
        case Mode::Rgb:
            return qRgb(qRed(channels), qGreen(channels), qBlue(channels));
        case Mode::Cmyk:
            return fromInks(channels);
    }
    return 0;
}

QImage decodePhotoshop(const QByteArray& bytes) {
    Document document{bytes};
    QDataStream in(bytes);
    if (!readHeader(in, document) || !findPicture(in, document)) {
        return {};
    }
    // The channels are gathered in the bytes of the pixels: red, green, blue, and alpha for the fourth.
    QImage image(static_cast<int>(document.width), static_cast<int>(document.height), QImage::Format_ARGB32);
    image.fill(0);
    constexpr std::array kShifts{16, 8, 0, 24};
    Rows rows(document);
    const int step = document.depth / 8;
    bool any = false;
    for (int channel = 0; channel < document.colours(); ++channel) {
        for (int y = 0; y < image.height(); ++y) {
            const char* samples = rows.next();
            if (!samples) {
                break;
            }
            any = true;
            auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (std::uint32_t x = 0; x < document.width; ++x) {
                pixels[x] |= static_cast<QRgb>(static_cast<std::uint8_t>(samples[x * step]))
                             << kShifts[channel];
            }
        }
    }
    if (!any) {
        return {};
    }
    for (int y = 0; y < image.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(pixels, pixels + document.width, pixels,
                       [&](QRgb channels) { return displayed(document, channels); });
    }
    image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

}  // namespace

class PhotoshopHandler : public WholePictureHandler {
  public:
    static constexpr const char* kFormat = kPhotoshopFormat;

  protected:
    QImage decode(const QByteArray& bytes) override { return decodePhotoshop(bytes); }
};

class PhotoshopPlugin : public HandlerPlugin<PhotoshopHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "psd.json")
};

}  // namespace vantor::decode

#include "PhotoshopPlugin.moc"
