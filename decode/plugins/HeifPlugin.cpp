// HEIC, HEIF and AVIF pictures; the library turns them upright itself.
#include <libheif/heif.h>

#include <memory>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;
using Options = std::unique_ptr<heif_decoding_options, decltype(&heif_decoding_options_free)>;

QImage pixelsOf(const heif_image* decoded, bool alpha) {
    const int width = heif_image_get_width(decoded, heif_channel_interleaved);
    const int height = heif_image_get_height(decoded, heif_channel_interleaved);
    int stride = 0;
    const std::uint8_t* plane = heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    if (!plane || width <= 0 || height <= 0) {
        return {};
    }
    const auto format = alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    return QImage(plane, width, height, stride, format).copy();
}

QImage decodeHeif(const QByteArray& bytes) {
    const Context context(heif_context_alloc(), &heif_context_free);
    const auto size = static_cast<std::size_t>(bytes.size());
    if (heif_context_read_from_memory_without_copy(context.get(), bytes.constData(), size, nullptr).code !=
        heif_error_Ok) {
        return {};
    }
    heif_image_handle* primary = nullptr;
    if (heif_context_get_primary_image_handle(context.get(), &primary).code != heif_error_Ok) {
        return {};
    }
    const Handle handle(primary, &heif_image_handle_release);
    const int width = heif_image_handle_get_width(primary);
    const int height = heif_image_handle_get_height(primary);
    if (width <= 0 || height <= 0 ||
        !isReasonableSize(static_cast<std::uint64_t>(width), static_cast<std::uint64_t>(height))) {
        return {};
    }
    const bool alpha = heif_image_handle_has_alpha_channel(primary);
    const Options options(heif_decoding_options_alloc(), &heif_decoding_options_free);
    options->convert_hdr_to_8bit = 1;
    heif_image* decoded = nullptr;
    if (heif_decode_image(primary, &decoded, heif_colorspace_RGB,
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

  protected:
    QImage decode(const QByteArray& bytes) override { return decodeHeif(bytes); }
};

class HeifPlugin : public HandlerPlugin<HeifHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "heif.json")
};

}  // namespace vantor::decode

#include "HeifPlugin.moc"
