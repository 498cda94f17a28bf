// Camera raw files from the sensor data at half size.
#include <libraw/libraw.h>

#include <QTransform>
#include <algorithm>
#include <memory>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

// A cut-off file is read once more with so many zero bytes behind it, which the decoders take for a dark
// rest.
constexpr qsizetype kMostPadding = qsizetype{64} * 1024 * 1024;

using MadeImage = std::unique_ptr<libraw_processed_image_t, decltype(&LibRaw::dcraw_clear_mem)>;

QImage developed(LibRaw& raw) {
    if (raw.dcraw_process() != LIBRAW_SUCCESS) {
        return {};
    }
    const MadeImage made(raw.dcraw_make_mem_image(), &LibRaw::dcraw_clear_mem);
    if (!made || made->type != LIBRAW_IMAGE_BITMAP || made->bits != 8 ||
        (made->colors != 3 && made->colors != 1)) {
        return {};
    }
    const auto format = made->colors == 3 ? QImage::Format_RGB888 : QImage::Format_Grayscale8;
    return QImage(made->data, made->width, made->height, qsizetype{made->width} * made->colors, format)
        .copy();
}

QImage decodeRaw(const QByteArray& bytes) {
    // Some hundred kilobytes: not for the stack.
    const auto raw = std::make_unique<LibRaw>();
    libraw_output_params_t& output = raw->imgdata.params;
    output.half_size = 1;
    output.use_camera_wb = 1;
    output.output_bps = 8;
    if (raw->open_buffer(const_cast<char*>(bytes.constData()), static_cast<std::size_t>(bytes.size())) !=
            LIBRAW_SUCCESS ||
        raw->unpack() != LIBRAW_SUCCESS) {
        return {};
    }
    return developed(*raw);
}

}  // namespace

class RawHandler : public WholePictureHandler {
  public:
    static constexpr const char* kFormat = kRawFormat;

  protected:
    QImage decode(const QByteArray& bytes) override {
        const QImage whole = decodeRaw(bytes);
        if (!whole.isNull()) {
            return whole;
        }
        QByteArray padded = bytes;
        padded.append(std::min(bytes.size(), kMostPadding), '\0');
        return decodeRaw(padded);
    }
};

class RawPlugin : public HandlerPlugin<RawHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "raw.json")
};

}  // namespace vantor::decode

#include "RawPlugin.moc"
