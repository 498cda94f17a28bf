// A packet tells its length nowhere; it is the shortest stretch that the decoder can decode.
#include "decode/movie/PacketSplit.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "decode/DecodeProtocol.h"
#include "decode/helper/LibavPointers.h"

namespace vantor::decode {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kMostPacketBytes = 64 * 1024;
constexpr std::size_t kMostPackets = 8192;

AVCodecID codecOf(std::string_view name) {
    return name == "mp4a" ? AV_CODEC_ID_AAC : name == "alac" ? AV_CODEC_ID_ALAC : AV_CODEC_ID_NONE;
}

class Splitter {
  public:
    bool open(AVCodecID codec, Bytes configuration);
    // 0 where no packet begins.
    std::size_t firstPacket(Bytes sound);

  private:
    bool decodes(Bytes packet);

    Codec m_codec;
    Packet m_packet{av_packet_alloc()};
    RawFrame m_frame{av_frame_alloc()};
    std::size_t m_usual = 512;  // bytes
};

bool Splitter::open(AVCodecID codec, Bytes configuration) {
    const AVCodec* const decoder = avcodec_find_decoder(codec);
    m_codec.reset(decoder == nullptr ? nullptr : avcodec_alloc_context3(decoder));
    if (!m_codec || !m_packet || !m_frame) {
        return false;
    }
    m_codec->extradata =
        static_cast<std::uint8_t*>(av_mallocz(configuration.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    if (m_codec->extradata == nullptr) {
        return false;
    }
    std::memcpy(m_codec->extradata, configuration.data(), configuration.size());
    m_codec->extradata_size = static_cast<int>(configuration.size());
    m_codec->thread_count = 1;
    m_codec->err_recognition = AV_EF_EXPLODE | AV_EF_BITSTREAM | AV_EF_BUFFER;
    return avcodec_open2(m_codec.get(), decoder, nullptr) >= 0;
}

bool Splitter::decodes(Bytes packet) {
    avcodec_flush_buffers(m_codec.get());
    if (packet.empty() || av_new_packet(m_packet.get(), static_cast<int>(packet.size())) < 0) {
        return false;
    }
    std::memcpy(m_packet->data, packet.data(), packet.size());
    const bool done = avcodec_send_packet(m_codec.get(), m_packet.get()) >= 0 &&
                      avcodec_receive_frame(m_codec.get(), m_frame.get()) >= 0;
    av_packet_unref(m_packet.get());
    return done;
}

std::size_t Splitter::firstPacket(Bytes sound) {
    const std::size_t most = std::min(sound.size(), kMostPacketBytes);
    std::size_t enough = std::min(most, 2 * m_usual);
    if (!decodes(sound.first(enough))) {
        enough = most;
        if (!decodes(sound.first(enough))) {
            return 0;
        }
    }
    std::size_t few = 0;
    while (enough - few > 1) {
        const std::size_t middle = few + (enough - few) / 2;
        (decodes(sound.first(middle)) ? enough : few) = middle;
    }
    m_usual = enough;
    return enough;
}

}  // namespace

std::vector<std::uint32_t> packetLengths(Bytes input) {
    SoundToSplit head;
    std::vector<std::uint32_t> lengths;
    if (input.size() < sizeof head) {
        return lengths;
    }
    std::memcpy(&head, input.data(), sizeof head);
    input = input.subspan(sizeof head);
    constexpr std::size_t kMostConfiguration = 4096;
    if (head.configurationBytes > std::min(input.size(), kMostConfiguration)) {
        return lengths;
    }
    Splitter splitter;
    if (!splitter.open(codecOf({head.coding, sizeof head.coding}), input.first(head.configurationBytes))) {
        return lengths;
    }
    Bytes sound = input.subspan(head.configurationBytes);
    while (!sound.empty() && lengths.size() < kMostPackets) {
        const std::size_t bytes = splitter.firstPacket(sound);
        if (bytes == 0) {
            break;
        }
        lengths.push_back(static_cast<std::uint32_t>(bytes));
        sound = sound.subspan(bytes);
    }
    return lengths;
}

}  // namespace vantor::decode
