// HEIC, HEIF and AVIF pictures; the library turns them upright itself.
#include <libheif/heif.h>

#include <QSize>
#include <QVariant>
#include <cstddef>
#include <memory>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;
using Options = std::unique_ptr<heif_decoding_options, decltype(&heif_decoding_options_free)>;

// A larger one is made smaller on its way out of the library's memory: two of that size do not fit the
// helper's.
constexpr std::int64_t kMostWholePixels = 64'000'000;

// Each pixel the mean of a square of `shrink` a side.
QImage reduced(const QImage& image, int shrink) {
    const int channels = image.depth() / 8;
    QImage small(image.width() / shrink, image.height() / shrink, image.format());
    for (int y = 0; y < small.height(); ++y) {
        auto* target = small.scanLine(y);
        for (int x = 0; x < small.width() * channels; ++x) {
            int sum = 0;
            for (int row = 0; row < shrink; ++row) {
                const auto* from = image.constScanLine(y * shrink + row) +
                                   std::ptrdiff_t{x / channels} * shrink * channels + x % channels;
                for (int column = 0; column < shrink; ++column) {
                    sum += from[column * channels];
                }
            }
            target[x] = static_cast<uchar>(sum / (shrink * shrink));
        }
    }
    return small;
}

QImage pixelsOf(const heif_image* decoded, bool alpha) {
    const int width = heif_image_get_width(decoded, heif_channel_interleaved);
    const int height = heif_image_get_height(decoded, heif_channel_interleaved);
    int stride = 0;
    const std::uint8_t* plane = heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    if (!plane || width <= 0 || height <= 0) {
        return {};
    }
    const auto format = alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    const QImage whole(plane, width, height, stride, format);
    int shrink = 1;
    while (std::int64_t{width / shrink} * (height / shrink) > kMostWholePixels) {
        ++shrink;
    }
    return shrink == 1 ? whole.copy() : reduced(whole, shrink);
}

// The primary picture, once the bytes are taken for one.
class Primary {
  public:
    explicit Primary(const QByteArray& bytes) : m_context(heif_context_alloc(), &heif_context_free) {
        const auto size = static_cast<std::size_t>(bytes.size());
        heif_image_handle* primary = nullptr;
        if (heif_context_read_from_memory_without_copy(m_context.get(), bytes.constData(), size, nullptr)
                    .code == heif_error_Ok &&
            heif_context_get_primary_image_handle(m_context.get(), &primary).code == heif_error_Ok) {
            m_handle.reset(primary);
        }
    }

    const heif_image_handle* handle() const { return m_handle.get(); }
    // Upright; empty where it is none that is decoded.
    QSize size() const {
        const int width = m_handle ? heif_image_handle_get_width(m_handle.get()) : 0;
        const int height = m_handle ? heif_image_handle_get_height(m_handle.get()) : 0;
        const bool fits =
            width > 0 && height > 0 &&
            isReasonableSize(static_cast<std::uint64_t>(width), static_cast<std::uint64_t>(height));
        return fits ? QSize(width, height) : QSize();
    }

  private:
    Context m_context;
    Handle m_handle{nullptr, &heif_image_handle_release};
};

QImage decodeHeif(const QByteArray& bytes) {
    const Primary primary(bytes);
    if (primary.size().isEmpty()) {
        return {};
    }
    const bool alpha = heif_image_handle_has_alpha_channel(primary.handle());
    const Options options(heif_decoding_options_alloc(), &heif_decoding_options_free);
    options->convert_hdr_to_8bit = 1;
    heif_image* decoded = nullptr;
    if (heif_decode_image(primary.handle(), &decoded, heif_colorspace_RGB,
                          alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get())
            .code != heif_error_Ok) {
        return {};
    }
    const Image image(decoded, &heif_image_release);
    return pixelsOf(decoded, alpha);
}

}  // namespace

class HeifHandler : public WholePictureHandler {
  public:
    static constexpr const char* kFormat = kHeifFormat;

    bool supportsOption(ImageOption option) const override { return option == Size; }
    QVariant option(ImageOption option) const override {
        return option == Size ? QVariant(Primary(bytesOf(device())).size()) : QVariant();
    }

  protected:
    QImage decode(const QByteArray& bytes) override { return decodeHeif(bytes); }
};

class HeifPlugin : public HandlerPlugin<HeifHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "heif.json")
};

}  // namespace vantor::decode

#include "HeifPlugin.moc"
