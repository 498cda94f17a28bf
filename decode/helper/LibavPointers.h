// Objects of the movie libraries that free themselves.
#pragma once

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace vantor::decode {

// Calls a function that takes the pointer's address, as theirs do.
template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const {
        release(&object);
    }
};

using Codec = std::unique_ptr<AVCodecContext, Release<avcodec_free_context>>;
using Packet = std::unique_ptr<AVPacket, Release<av_packet_free>>;
using RawFrame = std::unique_ptr<AVFrame, Release<av_frame_free>>;

}  // namespace vantor::decode
