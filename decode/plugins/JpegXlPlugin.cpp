// JPEG XL pictures; the library turns them upright itself and shows what it has of one that is cut short.
#include <jxl/decode.h>

#include <memory>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

using Decoder = std::unique_ptr<JxlDecoder, decltype(&JxlDecoderDestroy)>;

constexpr JxlPixelFormat kPixelFormat{4, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};

// An image of the size that the header names; null when that is no size to decode.
QImage sheetFor(const JxlDecoder* decoder) {
    JxlBasicInfo info{};
    if (JxlDecoderGetBasicInfo(decoder, &info) != JXL_DEC_SUCCESS ||
        !isReasonableSize(info.xsize, info.ysize)) {
        return {};
    }
    QImage sheet(static_cast<int>(info.xsize), static_cast<int>(info.ysize), QImage::Format_RGBA8888);
    sheet.fill(0);
    return sheet;
}

bool giveSheet(JxlDecoder* decoder, QImage& sheet) {
    std::size_t needed = 0;
    const auto size = static_cast<std::size_t>(sheet.sizeInBytes());
    return JxlDecoderImageOutBufferSize(decoder, &kPixelFormat, &needed) == JXL_DEC_SUCCESS &&
           needed <= size &&
           JxlDecoderSetImageOutBuffer(decoder, &kPixelFormat, sheet.bits(), size) == JXL_DEC_SUCCESS;
}

QImage decodeJpegXl(const QByteArray& bytes) {
    const Decoder decoder(JxlDecoderCreate(nullptr), &JxlDecoderDestroy);
    if (JxlDecoderSubscribeEvents(decoder.get(), JXL_DEC_BASIC_INFO | JXL_DEC_FULL_IMAGE) !=
        JXL_DEC_SUCCESS) {
        return {};
    }
    JxlDecoderSetInput(decoder.get(), reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                       static_cast<std::size_t>(bytes.size()));
    JxlDecoderCloseInput(decoder.get());
    QImage sheet;
    bool drawing = false;
    for (;;) {
        switch (JxlDecoderProcessInput(decoder.get())) {
            case JXL_DEC_BASIC_INFO:
                sheet = sheetFor(decoder.get());
                if (sheet.isNull()) {
                    return {};
                }
                break;
            case JXL_DEC_NEED_IMAGE_OUT_BUFFER:
                drawing = !sheet.isNull() && giveSheet(decoder.get(), sheet);
                if (!drawing) {
                    return {};
                }
                break;
            case JXL_DEC_FULL_IMAGE:
            case JXL_DEC_SUCCESS:
                return sheet;
            default:
                return drawing && JxlDecoderFlushImage(decoder.get()) == JXL_DEC_SUCCESS ? sheet : QImage();
        }
    }
}

}  // namespace

class JpegXlHandler : public WholePictureHandler {
  public:
    static constexpr const char* kFormat = kJpegXlFormat;

  protected:
    QImage decode(const QByteArray& bytes) override { return decodeJpegXl(bytes); }
};

class JpegXlPlugin : public HandlerPlugin<JpegXlHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "jxl.json")
};

}  // namespace vantor::decode

#include "JpegXlPlugin.moc"
