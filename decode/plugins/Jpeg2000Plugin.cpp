// JPEG 2000 pictures, as JP2 files and as bare codestreams.
#include <openjpeg.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "decode/helper/HandlerNames.h"
#include "decode/plugins/PluginBytes.h"

namespace vantor::decode {

namespace {

using Codec = std::unique_ptr<opj_codec_t, decltype(&opj_destroy_codec)>;
using Stream = std::unique_ptr<opj_stream_t, decltype(&opj_stream_destroy)>;
using Picture = std::unique_ptr<opj_image_t, decltype(&opj_image_destroy)>;

struct Source {
    const QByteArray& bytes;
    qsizetype at = 0;
};

constexpr OPJ_SIZE_T kNoMore = static_cast<OPJ_SIZE_T>(-1);

OPJ_SIZE_T readSome(void* target, OPJ_SIZE_T wanted, void* user) {
    auto& source = *static_cast<Source*>(user);
    const auto left = static_cast<OPJ_SIZE_T>(source.bytes.size() - source.at);
    const OPJ_SIZE_T taken = std::min(wanted, left);
    if (taken == 0) {
        return kNoMore;
    }
    std::memcpy(target, source.bytes.constData() + source.at, taken);
    source.at += static_cast<qsizetype>(taken);
    return taken;
}

OPJ_BOOL seekTo(OPJ_OFF_T position, void* user) {
    auto& source = *static_cast<Source*>(user);
    if (position < 0 || position > source.bytes.size()) {
        return OPJ_FALSE;
    }
    source.at = static_cast<qsizetype>(position);
    return OPJ_TRUE;
}

OPJ_OFF_T skipSome(OPJ_OFF_T count, void* user) {
    auto& source = *static_cast<Source*>(user);
    const OPJ_OFF_T left = source.bytes.size() - source.at;
    if (count > left || count < -static_cast<OPJ_OFF_T>(source.at)) {
        return -1;
    }
    source.at += static_cast<qsizetype>(count);
    return count;
}

Stream streamOver(Source& source) {
    Stream stream(opj_stream_default_create(OPJ_TRUE), &opj_stream_destroy);
    opj_stream_set_user_data(stream.get(), &source, nullptr);
    opj_stream_set_user_data_length(stream.get(), static_cast<OPJ_UINT64>(source.bytes.size()));
    opj_stream_set_read_function(stream.get(), readSome);
    opj_stream_set_skip_function(stream.get(), skipSome);
    opj_stream_set_seek_function(stream.get(), seekTo);
    return stream;
}

// A component's sample at a place of the whole picture, as eight bits.
int sampleAt(const opj_image_comp_t& component, OPJ_UINT32 x, OPJ_UINT32 y) {
    const OPJ_UINT32 column = std::min(x / std::max(component.dx, 1U), component.w - 1);
    const OPJ_UINT32 row = std::min(y / std::max(component.dy, 1U), component.h - 1);
    std::int64_t value = component.data[std::size_t{row} * component.w + column];
    if (component.sgnd) {
        value += std::int64_t{1} << (component.prec - 1);
    }
    value = component.prec > 8 ? value >> (component.prec - 8)
                               : value * 255 / ((std::int64_t{1} << component.prec) - 1);
    return static_cast<int>(std::clamp<std::int64_t>(value, 0, 255));
}

// ITU-R BT.601, full range.
QRgb fromLuma(int luma, int blueDifference, int redDifference) {
    const double cb = blueDifference - 128, cr = redDifference - 128;
    const auto whole = [](double value) { return std::clamp(static_cast<int>(value + 0.5), 0, 255); };
    return qRgb(whole(luma + 1.402 * cr), whole(luma - 0.344136 * cb - 0.714136 * cr),
                whole(luma + 1.772 * cb));
}

bool isUsable(const opj_image_comp_t& component) {
    return component.data && component.w > 0 && component.h > 0 && component.prec >= 1 &&
           component.prec <= 31;
}

QImage pixelsOf(const opj_image_t& picture) {
    const OPJ_UINT32 colours = picture.numcomps >= 3 ? 3 : 1;
    if (picture.numcomps == 0 || !std::all_of(picture.comps, picture.comps + colours, isUsable)) {
        return {};
    }
    QImage image(static_cast<int>(picture.x1 - picture.x0), static_cast<int>(picture.y1 - picture.y0),
                 QImage::Format_RGB32);
    const bool luma = picture.color_space == OPJ_CLRSPC_SYCC;
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            std::array<int, 3> value{};
            for (OPJ_UINT32 c = 0; c < 3; ++c) {
                value[c] = sampleAt(picture.comps[std::min(c, colours - 1)], static_cast<OPJ_UINT32>(x),
                                    static_cast<OPJ_UINT32>(y));
            }
            row[x] = luma && colours == 3 ? fromLuma(value[0], value[1], value[2])
                                          : qRgb(value[0], value[1], value[2]);
        }
    }
    return image;
}

QImage decodeJpeg2000(const QByteArray& bytes) {
    const bool bare = bytes.startsWith("\xff\x4f\xff\x51");
    const Codec codec(opj_create_decompress(bare ? OPJ_CODEC_J2K : OPJ_CODEC_JP2), &opj_destroy_codec);
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    // What is there of a picture cut short is better than nothing.
    if (!codec || !opj_setup_decoder(codec.get(), &parameters) ||
        !opj_decoder_set_strict_mode(codec.get(), OPJ_FALSE)) {
        return {};
    }
    Source source{bytes};
    const Stream stream = streamOver(source);
    opj_image_t* header = nullptr;
    if (!opj_read_header(stream.get(), codec.get(), &header)) {
        return {};
    }
    const Picture picture(header, &opj_image_destroy);
    if (header->x1 <= header->x0 || header->y1 <= header->y0 ||
        !isReasonableSize(header->x1 - header->x0, header->y1 - header->y0) ||
        !opj_decode(codec.get(), stream.get(), header)) {
        return {};
    }
    return pixelsOf(*header);
}

}  // namespace

class Jpeg2000Handler : public WholePictureHandler {
  public:
    static constexpr const char* kFormat = kJpeg2000Format;

  protected:
    QImage decode(const QByteArray& bytes) override { return decodeJpeg2000(bytes); }
};

class Jpeg2000Plugin : public HandlerPlugin<Jpeg2000Handler> {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "jp2.json")
};

}  // namespace vantor::decode

#include "Jpeg2000Plugin.moc"
