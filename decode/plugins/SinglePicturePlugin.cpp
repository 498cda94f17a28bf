// Pictures of the plainer kinds that the movie libraries decode as well: one packet in, one frame out.
#include <QImageIOHandler>
#include <QImageIOPlugin>
#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "decode/helper/HandlerNames.h"
#include "decode/helper/LibavPointers.h"
#include "decode/plugins/PluginBytes.h"

extern "C" {
#include <libavutil/log.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace vantor::decode {

namespace {

// Format name of ours, the decoder's name in the library, and the bytes that it does not want to see: those
// that the library tells the format by.
struct Kind {
    const char* format;
    const char* decoder;
    qsizetype markBytes = 0;
};
constexpr std::array kKinds{
    Kind{kPcxFormat, "pcx"},       Kind{kDdsFormat, "dds"},           Kind{kDpxFormat, "dpx"},
    Kind{kOpenExrFormat, "exr"},   Kind{kQoiFormat, "qoi"},           Kind{kSgiFormat, "sgi"},
    Kind{kPamFormat, "pam"},       Kind{kSunRasterFormat, "sunrast"}, Kind{kTargaFormat, "targa"},
    Kind{kFitsFormat, "fits", 80},
};

using Scaler = std::unique_ptr<SwsContext, decltype(&sws_freeContext)>;

const Kind* kindOf(const QByteArray& format) {
    const auto found = std::ranges::find_if(kKinds, [&](const Kind& kind) { return format == kind.format; });
    return found == kKinds.end() ? nullptr : &*found;
}

Codec openCodec(const char* name) {
    const AVCodec* decoder = avcodec_find_decoder_by_name(name);
    Codec codec(decoder ? avcodec_alloc_context3(decoder) : nullptr);
    if (!codec) {
        return nullptr;
    }
    codec->thread_count = 1;
    codec->max_pixels = static_cast<std::int64_t>(kMostPicturePixels);
    // Light as it falls is much too dark on a screen.
    AVDictionary* options = nullptr;
    av_dict_set(&options, "apply_trc", "iec61966_2_1", 0);
    const int opened = avcodec_open2(codec.get(), decoder, &options);
    av_dict_free(&options);
    return opened < 0 ? nullptr : std::move(codec);
}

// The decoders read a little beyond the end and want zeros there.
Packet packetOf(QByteArrayView bytes) {
    Packet packet(av_packet_alloc());
    if (!packet || av_new_packet(packet.get(), static_cast<int>(bytes.size())) < 0) {
        return nullptr;
    }
    std::memcpy(packet->data, bytes.data(), static_cast<std::size_t>(bytes.size()));
    return packet;
}

QImage imageOf(const AVFrame& frame) {
    if (frame.width <= 0 || frame.height <= 0 ||
        !isReasonableSize(static_cast<std::uint64_t>(frame.width),
                          static_cast<std::uint64_t>(frame.height))) {
        return {};
    }
    const auto form = static_cast<AVPixelFormat>(frame.format);
    const AVPixFmtDescriptor* facts = av_pix_fmt_desc_get(form);
    const bool alpha = facts && (facts->flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
    QImage image(frame.width, frame.height, alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const Scaler scaler(
        sws_getContext(frame.width, frame.height, form, frame.width, frame.height,
                       alpha ? AV_PIX_FMT_BGRA : AV_PIX_FMT_BGR0, SWS_POINT, nullptr, nullptr, nullptr),
        &sws_freeContext);
    const RawFrame out(av_frame_alloc());
    if (image.isNull() || !scaler || !out) {
        return {};
    }
    // The scaler may write beyond a row's end, so it gets memory of its own kind.
    out->format = alpha ? AV_PIX_FMT_BGRA : AV_PIX_FMT_BGR0;
    out->width = frame.width;
    out->height = frame.height;
    if (av_frame_get_buffer(out.get(), 0) < 0 ||
        sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, out->data, out->linesize) <= 0) {
        return {};
    }
    for (int y = 0; y < frame.height; ++y) {
        std::memcpy(image.scanLine(y), out->data[0] + std::ptrdiff_t{y} * out->linesize[0],
                    static_cast<std::size_t>(frame.width) * 4);
    }
    return image;
}

}  // namespace

class SinglePictureHandler : public WholePictureHandler {
  protected:
    QImage decode(const QByteArray& bytes) override {
        const Kind* kind = kindOf(format());
        const Codec codec = kind ? openCodec(kind->decoder) : nullptr;
        const Packet packet =
            codec ? packetOf(QByteArrayView(bytes).sliced(std::min(bytes.size(), kind->markBytes))) : nullptr;
        const RawFrame frame(av_frame_alloc());
        if (!packet || avcodec_send_packet(codec.get(), packet.get()) < 0) {
            return {};
        }
        avcodec_send_packet(codec.get(), nullptr);
        return avcodec_receive_frame(codec.get(), frame.get()) < 0 ? QImage() : imageOf(*frame);
    }
};

class SinglePicturePlugin : public QImageIOPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "single.json")

  public:
    SinglePicturePlugin() { av_log_set_level(AV_LOG_QUIET); }

    Capabilities capabilities(QIODevice*, const QByteArray& format) const override {
        return kindOf(format) ? Capabilities(CanRead) : Capabilities();
    }
    QImageIOHandler* create(QIODevice* device, const QByteArray& format) const override {
        auto* handler = new SinglePictureHandler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

}  // namespace vantor::decode

#include "SinglePicturePlugin.moc"
