// Photoshop documents: the flattened picture at their end, after Adobe's published file format specification.
#include <algorithm>
#include <array>
#include <optional>

#include "decode/helper/ByteView.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

enum class Mode : std::uint16_t { Grey = 1, Indexed = 2, Rgb = 3, Cmyk = 4 };
enum class Compression : std::uint16_t { None = 0, PackBits = 1 };

constexpr std::uint64_t kHeaderBytes = 26;
constexpr std::uint64_t kPaletteEntries = 256;

struct Document {
    QByteArrayView bytes;
    bool large = false;  // the variant with longer lengths
    std::uint32_t channels = 0;
    std::uint32_t height = 0;
    std::uint32_t width = 0;
    std::uint32_t depth = 0;  // bits of a sample, 8 or 16
    Mode mode = Mode::Rgb;
    std::uint64_t paletteAt = 0;
    Compression compression = Compression::None;
    std::uint64_t dataAt = 0;  // behind the compression word

    std::optional<std::uint64_t> number(std::uint64_t at, int width_) const {
        return readUnsigned(bytes, at, width_, ByteOrder::Big);
    }
    // Channels that make up the colour; the ones behind are masks.
    std::uint32_t colours() const { return mode == Mode::Cmyk ? 4 : mode == Mode::Rgb ? 3 : 1; }
};

bool readHeader(Document& document) {
    const auto version = document.number(4, 2), channels = document.number(12, 2),
               height = document.number(14, 4), width = document.number(18, 4),
               depth = document.number(22, 2), mode = document.number(24, 2);
    if (!hasText(document.bytes, 0, "8BPS") || !mode || (version != 1 && version != 2)) {
        return false;
    }
    document.large = version == 2;
    document.channels = static_cast<std::uint32_t>(*channels);
    document.height = static_cast<std::uint32_t>(*height);
    document.width = static_cast<std::uint32_t>(*width);
    document.depth = static_cast<std::uint32_t>(*depth);
    document.mode = static_cast<Mode>(*mode);
    const bool knownMode = *mode >= 1 && *mode <= 4;
    return knownMode && (document.depth == 8 || document.depth == 16) &&
           document.channels >= document.colours() && isReasonableSize(document.width, document.height);
}

// Steps over colour data, resources and layers.
bool findPicture(Document& document) {
    std::uint64_t at = kHeaderBytes;
    document.paletteAt = at + 4;
    const std::array lengthBytes{4, 4, document.large ? 8 : 4};
    for (const int width : lengthBytes) {
        const auto length = document.number(at, width);
        if (!length || *length > static_cast<std::uint64_t>(document.bytes.size())) {
            return false;
        }
        at += static_cast<std::uint64_t>(width) + *length;
    }
    const auto compression = document.number(at, 2);
    if (!compression || *compression > 1) {
        return false;
    }
    document.compression = static_cast<Compression>(*compression);
    document.dataAt = at + 2;
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
        : m_document(document), m_row(qsizetype{document.width} * (document.depth / 8), '\0') {
        const std::uint64_t rows = std::uint64_t{document.channels} * document.height;
        m_at = document.dataAt + (packed() ? rows * lengthBytes() : 0);
    }

    // The high byte of a sample comes first, so a picture of 16 bits is shown by it. Null at the end of the
    // bytes.
    const char* next() {
        const auto size = static_cast<std::uint64_t>(m_document.bytes.size());
        std::uint64_t length = static_cast<std::uint64_t>(m_row.size());
        if (packed()) {
            const auto stored = m_document.number(m_document.dataAt + m_index * lengthBytes(), lengthBytes());
            length = stored.value_or(0);
        }
        ++m_index;
        if (m_at >= size) {
            return nullptr;
        }
        const auto piece = m_document.bytes.sliced(static_cast<qsizetype>(m_at),
                                                   static_cast<qsizetype>(std::min(length, size - m_at)));
        m_at += length;
        if (packed()) {
            unpackRow(piece, m_row);
        } else {
            std::copy(piece.begin(), piece.end(), m_row.data());
        }
        return m_row.constData();
    }

  private:
    bool packed() const { return m_document.compression == Compression::PackBits; }
    int lengthBytes() const { return m_document.large ? 4 : 2; }

    const Document& m_document;
    QByteArray m_row;
    std::uint64_t m_at = 0;
    std::uint64_t m_index = 0;
};

// Inks are stored as light: 255 is none.
QRgb fromInks(QRgb inks) {
    const int black = qAlpha(inks);
    return qRgb(qRed(inks) * black / 255, qGreen(inks) * black / 255, qBlue(inks) * black / 255);
}

QRgb fromPalette(const Document& document, int index) {
    const auto part = [&](std::uint64_t plane) {
        const std::uint64_t at =
            document.paletteAt + plane * kPaletteEntries + static_cast<std::uint64_t>(index);
        return static_cast<int>(document.number(at, 1).value_or(0));
    };
    return qRgb(part(0), part(1), part(2));
}

QRgb displayed(const Document& document, QRgb channels) {
    switch (document.mode) {
        case Mode::Grey:
            return qRgb(qRed(channels), qRed(channels), qRed(channels));
        case Mode::Indexed:
            return fromPalette(document, qRed(channels));
        case Mode::Rgb:
            return qRgb(qRed(channels), qGreen(channels), qBlue(channels));
        case Mode::Cmyk:
            return fromInks(channels);
    }
    return 0;
}

QImage decodePhotoshop(const QByteArray& bytes) {
    Document document{bytes};
    if (!readHeader(document) || !findPicture(document)) {
        return {};
    }
    // The channels are gathered in the bytes of the pixels: red, green, blue, and alpha for the fourth.
    QImage image(static_cast<int>(document.width), static_cast<int>(document.height), QImage::Format_ARGB32);
    image.fill(0);
    constexpr std::array kShifts{16, 8, 0, 24};
    Rows rows(document);
    const std::uint32_t step = document.depth / 8;
    bool any = false;
    for (std::uint32_t channel = 0; channel < document.colours(); ++channel) {
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
    static constexpr char kFormat[] = "vantor-psd";

  protected:
    QImage decode(const QByteArray& bytes) override { return decodePhotoshop(bytes); }
};

class PhotoshopPlugin : public HandlerPlugin<PhotoshopHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "psd.json")
};

}  // namespace vantor::decode

#include "PhotoshopPlugin.moc"
