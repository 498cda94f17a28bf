// JPEG XR pictures.
#include <algorithm>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

extern "C" {
#include <JXRGlue.h>
}
// The library's names for things that have names.
#undef min
#undef max

namespace vantor::decode {

namespace {

// Releases an object of the library as the library wants it.
template <typename Object>
struct Released {
    ~Released() {
        if (object) {
            object->Release(&object);
        }
    }
    Object* operator->() const { return object; }
    Object* object = nullptr;
};

struct Stream {
    explicit Stream(QByteArray& bytes) {
        CreateWS_Memory(&stream, bytes.data(), static_cast<std::size_t>(bytes.size()));
    }
    ~Stream() {
        if (stream) {
            stream->Close(&stream);
        }
    }
    WMPStream* stream = nullptr;
};

// Every form of pixels comes as bytes of blue, green and red, those with light as it falls included.
QImage decodeJpegXr(QByteArray bytes) {
    const Stream stream(bytes);
    Released<PKImageDecode> decoder;
    Released<PKCodecFactory> factory;
    Released<PKFormatConverter> converter;
    if (!stream.stream || PKImageDecode_Create_WMP(&decoder.object) < 0 ||
        decoder->Initialize(decoder.object, stream.stream) < 0) {
        return {};
    }
    I32 width = 0, height = 0;
    if (decoder->GetSize(decoder.object, &width, &height) < 0 || width <= 0 || height <= 0 ||
        !isReasonableSize(static_cast<std::uint64_t>(width), static_cast<std::uint64_t>(height))) {
        return {};
    }
    // The alpha plane is left out: the picture is what is asked for.
    decoder->WMP.wmiSCP.uAlphaMode = 0;
    char anyName[] = ".bmp";
    if (PKCreateCodecFactory(&factory.object, WMP_SDK_VERSION) < 0 ||
        factory->CreateFormatConverter(&converter.object) < 0 ||
        converter->Initialize(converter.object, decoder.object, anyName, GUID_PKPixelFormat24bppBGR) < 0) {
        return {};
    }
    // Rows are converted in place, so there must be room for the widest that are decoded.
    constexpr int kMostBytesPerPixel = 16;
    const auto stride = static_cast<std::size_t>(width) * kMostBytesPerPixel;
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull()) {
        return {};
    }
    // Blocks of rows: the library decodes 16 at a time.
    constexpr int kRows = 16;
    QByteArray rows(static_cast<qsizetype>(stride * kRows), '\0');
    for (int y = 0; y < height; y += kRows) {
        const int count = std::min(kRows, height - y);
        const PKRect place{0, y, width, count};
        if (converter->Copy(converter.object, &place, reinterpret_cast<U8*>(rows.data()),
                            static_cast<U32>(stride)) < 0) {
            return {};
        }
        for (int row = 0; row < count; ++row) {
            const auto* from = reinterpret_cast<const std::uint8_t*>(rows.constData()) +
                               static_cast<std::size_t>(row) * stride;
            auto* to = reinterpret_cast<QRgb*>(image.scanLine(y + row));
            for (int x = 0; x < width; ++x, from += 3) {
                to[x] = qRgb(from[2], from[1], from[0]);
            }
        }
    }
    return image;
}

}  // namespace

class JpegXrHandler : public WholePictureHandler {
  public:
    static constexpr const char* kFormat = kJpegXrFormat;

  protected:
    QImage decode(const QByteArray& bytes) override { return decodeJpegXr(bytes); }
};

class JpegXrPlugin : public HandlerPlugin<JpegXrHandler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "jxr.json")
};

}  // namespace vantor::decode

#include "JpegXrPlugin.moc"
