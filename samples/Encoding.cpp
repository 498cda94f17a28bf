// One way through libavformat for all: open the encoders, write the header, the packets, the trailer.
#include "samples/Encoding.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QTemporaryDir>
#include <cstring>
#include <memory>
#include <stdexcept>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

namespace vantor::samples {

namespace {

int checked(int result, const char* what) {
    if (result < 0)
        throw std::runtime_error(std::string("cannot encode: ") + what);
    return result;
}

// libav's frees take the address of the pointer.
template <auto kFree>
struct Freed {
    template <typename T>
    void operator()(T* pointer) const {
        kFree(&pointer);
    }
};
using Encoder = std::unique_ptr<AVCodecContext, Freed<avcodec_free_context>>;
using Frame = std::unique_ptr<AVFrame, Freed<av_frame_free>>;
using Packet = std::unique_ptr<AVPacket, Freed<av_packet_free>>;

class Options {
  public:
    explicit Options(const char* text) { checked(av_dict_parse_string(&m_options, text, "=", ":", 0), text); }
    ~Options() { av_dict_free(&m_options); }
    Q_DISABLE_COPY_MOVE(Options)
    AVDictionary** all() { return &m_options; }

  private:
    AVDictionary* m_options = nullptr;
};

Encoder encoderNamed(const char* name, const AVFormatContext& file) {
    const AVCodec* codec = avcodec_find_encoder_by_name(name);
    if (codec == nullptr)
        throw std::runtime_error(std::string("no encoder: ") + name);
    Encoder encoder(avcodec_alloc_context3(codec));
    encoder->thread_count = 1;  // the same bytes each time
    encoder->flags |= AV_CODEC_FLAG_BITEXACT;
    if ((file.oformat->flags & AVFMT_GLOBALHEADER) != 0)
        encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    return encoder;
}

AVStream* openStream(AVFormatContext& file, AVCodecContext& encoder, const char* text) {
    Options options(text);
    checked(avcodec_open2(&encoder, nullptr, options.all()), encoder.codec->name);
    AVStream* stream = avformat_new_stream(&file, nullptr);
    checked(avcodec_parameters_from_context(stream->codecpar, &encoder), "parameters");
    stream->time_base = encoder.time_base;
    stream->avg_frame_rate = encoder.framerate;
    return stream;
}

// Sends a frame, or null for the end, and writes what comes out.
void encode(AVFormatContext& file, AVCodecContext& encoder, const AVStream& stream, AVFrame* frame) {
    checked(avcodec_send_frame(&encoder, frame), encoder.codec->name);
    const Packet packet(av_packet_alloc());
    while (avcodec_receive_packet(&encoder, packet.get()) >= 0) {
        packet->stream_index = stream.index;
        if (packet->duration == 0)
            packet->duration = 1;
        av_packet_rescale_ts(packet.get(), encoder.time_base, stream.time_base);
        checked(av_interleaved_write_frame(&file, packet.get()), "writing");
    }
}

// The picture in the encoder's pixels. Palettes are Qt's, since libav's scaler only knows a coarse one.
Frame videoFrame(const QImage& picture, const AVCodecContext& encoder, qint64 time) {
    Frame frame(av_frame_alloc());
    frame->width = encoder.width;
    frame->height = encoder.height;
    frame->format = encoder.pix_fmt;
    frame->pts = time;
    checked(av_frame_get_buffer(frame.get(), 0), "frame");
    if (encoder.pix_fmt == AV_PIX_FMT_PAL8) {
        const QImage indexed = picture.convertToFormat(QImage::Format_Indexed8);
        for (int y = 0; y < frame->height; ++y)
            std::memcpy(frame->data[0] + y * frame->linesize[0], indexed.constScanLine(y),
                        size_t(frame->width));
        std::memset(frame->data[1], 0, AVPALETTE_SIZE);
        std::memcpy(frame->data[1], indexed.colorTable().constData(), size_t(indexed.colorCount()) * 4);
        return frame;
    }
    const QImage source = picture.convertToFormat(QImage::Format_RGB888);
    const std::unique_ptr<SwsContext, decltype(&sws_freeContext)> scaler(
        sws_getContext(source.width(), source.height(), AV_PIX_FMT_RGB24, frame->width, frame->height,
                       encoder.pix_fmt, SWS_BICUBIC | SWS_ACCURATE_RND | SWS_BITEXACT, nullptr, nullptr,
                       nullptr),
        sws_freeContext);
    const uint8_t* const from[] = {source.constBits()};
    const int step[] = {int(source.bytesPerLine())};
    checked(sws_scale(scaler.get(), from, step, 0, source.height(), frame->data, frame->linesize), "scaling");
    return frame;
}

// The samples [first, first + count) in the encoder's form.
Frame soundFrame(const Sound& sound, size_t first, size_t count, const AVCodecContext& encoder,
                 SwrContext& swr) {
    Frame frame(av_frame_alloc());
    frame->nb_samples = int(count);
    frame->format = encoder.sample_fmt;
    frame->sample_rate = encoder.sample_rate;
    frame->pts = qint64(first);
    checked(av_channel_layout_copy(&frame->ch_layout, &encoder.ch_layout), "channels");
    checked(av_frame_get_buffer(frame.get(), 0), "samples");
    const auto* from = reinterpret_cast<const uint8_t*>(sound.samples.data() + first);
    checked(swr_convert(&swr, frame->data, int(count), &from, int(count)), "samples");
    return frame;
}

void encodeSound(AVFormatContext& file, AVCodecContext& encoder, const AVStream& stream, const Sound& sound) {
    SwrContext* swr = nullptr;
    checked(swr_alloc_set_opts2(&swr, &encoder.ch_layout, encoder.sample_fmt, sound.rate, &encoder.ch_layout,
                                AV_SAMPLE_FMT_S16, sound.rate, 0, nullptr),
            "samples");
    const std::unique_ptr<SwrContext, Freed<swr_free>> owner(swr);
    checked(swr_init(swr), "samples");
    const size_t step = encoder.frame_size > 0 ? size_t(encoder.frame_size) : 1024;
    for (size_t at = 0; at < sound.samples.size(); at += step)
        encode(file, encoder, stream,
               soundFrame(sound, at, std::min(step, sound.samples.size() - at), encoder, *swr).get());
    encode(file, encoder, stream, nullptr);
}

}  // namespace

QByteArray encoded(const Recipe& recipe, const std::vector<QImage>& frames, const Sound& sound) {
    av_log_set_level(AV_LOG_FATAL);
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("file")).toLocal8Bit();
    AVFormatContext* context = nullptr;
    checked(avformat_alloc_output_context2(&context, nullptr, recipe.container, path.constData()),
            recipe.container);
    const std::unique_ptr<AVFormatContext, decltype(&avformat_free_context)> file(context,
                                                                                  avformat_free_context);
    file->flags |= AVFMT_FLAG_BITEXACT;
    av_dict_set(&file->metadata, "creation_time", "2024-06-01T10:00:00Z", 0);
    if (frames.empty())
        av_dict_set(&file->metadata, "title", "Tune", 0);
    Encoder video;
    const AVStream* videoStream = nullptr;
    if (recipe.videoCodec != nullptr) {
        video = encoderNamed(recipe.videoCodec, *file);
        video->width = frames.front().width();
        video->height = frames.front().height();
        video->pix_fmt = av_get_pix_fmt(recipe.pixels);
        video->time_base = {1, recipe.framesPerSecond};
        video->framerate = {recipe.framesPerSecond, 1};
        videoStream = openStream(*file, *video, recipe.videoOptions);
    }
    Encoder audio;
    const AVStream* audioStream = nullptr;
    if (recipe.soundCodec != nullptr) {
        audio = encoderNamed(recipe.soundCodec, *file);
        audio->sample_fmt = audio->codec->sample_fmts[0];
        audio->sample_rate = sound.rate;
        audio->time_base = {1, sound.rate};
        audio->ch_layout = AV_CHANNEL_LAYOUT_MONO;
        audioStream = openStream(*file, *audio, "");
    }
    checked(avio_open(&file->pb, path.constData(), AVIO_FLAG_WRITE), "opening");
    Options options(recipe.containerOptions);
    checked(avformat_write_header(file.get(), options.all()), recipe.container);
    for (size_t i = 0; video != nullptr && i < frames.size(); ++i)
        encode(*file, *video, *videoStream, videoFrame(frames[i], *video, qint64(i)).get());
    if (video != nullptr)
        encode(*file, *video, *videoStream, nullptr);
    if (audio != nullptr)
        encodeSound(*file, *audio, *audioStream, sound);
    checked(av_write_trailer(file.get()), recipe.container);
    checked(avio_closep(&file->pb), "closing");
    QFile written(QString::fromLocal8Bit(path));
    return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
}

QByteArray encodedPicture(const char* codec, const char* pixels, const QImage& picture, const char* options) {
    return encoded({"image2pipe", codec, pixels, nullptr, "", options}, {picture});
}

QByteArray writtenByQt(const char* format, const QImage& picture, int quality, bool isProgressive) {
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(isProgressive);
    if (!writer.write(picture))
        throw std::runtime_error(format + (": " + writer.errorString()).toStdString());
    return buffer.data();
}

}  // namespace vantor::samples
