// Movies in the containers that cameras and phones write.
#pragma once

#include <QByteArray>
#include <vector>

#include "samples/Canvas.h"
#include "samples/H264Encoder.h"
#include "samples/Sound.h"

namespace vantor::samples {

// A movie of JPEG pictures.
struct JpegMovie {
    int width = 0;
    int height = 0;
    int framesPerSecond = 10;
    std::vector<QByteArray> frames;
};

QByteArray aviFile(const JpegMovie& movie, const Sound& sound);  // Motion JPEG and PCM, with an index
QByteArray movFile(const JpegMovie& movie, const Sound& sound);  // QuickTime, "jpeg" and "sowt", index first

enum class Mp4Brand { Mp4, M4v, ThreeGp, ThreeG2, F4v };
// ISO/IEC 14496-12 and -15; the index last, as cameras leave it, but first in an M4V.
QByteArray mp4File(const H264Video& video, int framesPerSecond, Mp4Brand brand);

QByteArray h264File(const H264Video& video);                      // ITU-T H.264 annex B, the bare stream
QByteArray y4mFile(const std::vector<Picture>& frames);           // YUV4MPEG2, 4:4:4
QByteArray mkvFile(const H264Video& video, int framesPerSecond);  // Matroska, V_MPEG4/ISO/AVC
QByteArray flvFile(const H264Video& video, int framesPerSecond);  // Flash video, AVC packets

enum class PacketSize { Plain188, Timed192 };
// An MPEG-2 transport stream; with 192-byte packets as camcorders write it (MTS).
QByteArray transportStreamFile(const H264Video& video, int framesPerSecond, PacketSize size);

}  // namespace vantor::samples
