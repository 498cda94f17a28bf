// Small movies in fragments made for the tests of putting pieces together.
#pragma once

#include "tests/repair/Movies.h"

namespace vantor::test {

inline constexpr int kPicturesAFragment = 10;

// Ten pictures a fragment, and a list of fragments behind the last where it is wanted.
inline QByteArray makeFragmented(unsigned seed, int pictures, bool withList, qsizetype firstBytes = 0) {
    const ReferenceTrack shape = videoTrack();
    IndexedTrack track;
    track.described = &shape;
    track.video = true;
    track.chunks.push_back({0, 1});  // a track without any is not written
    track.sizes.push_back(1);
    BoxWriter index;
    index.bytes(writeIndex({track}));
    {
        const auto extends = index.box("mvex");
        const auto defaults = index.box("trex");
        index.u32(0).u32(1).u32(1).u32(0).u32(0).u32(0);
    }
    QByteArray moov = index.taken();
    qToBigEndian(static_cast<quint32>(moov.size()), moov.data());
    BoxWriter out;
    {
        const auto type = out.box("ftyp");
        out.bytes("isom").u32(512).bytes("isomavc1");
    }
    out.bytes(moov);
    std::mt19937 random(seed);
    auto specs = picturesOfManySizes(pictures, seed);
    if (firstBytes != 0) {
        specs.front().bytes = static_cast<int>(firstBytes);
    }
    for (int first = 0, number = 1; first < pictures; first += kPicturesAFragment, ++number) {
        QByteArray data;
        std::vector<std::uint32_t> sizes;
        for (int i = first; i < std::min(pictures, first + kPicturesAFragment); ++i) {
            const QByteArray picture = pictureBytes(specs[static_cast<std::size_t>(i)], random);
            sizes.push_back(static_cast<std::uint32_t>(picture.size()));
            data += picture;
        }
        const auto headBytes = static_cast<std::uint32_t>(8 + 16 + 8 + 16 + 20 + 4 * sizes.size());
        {
            const auto fragment = out.box("moof");
            {
                const auto head = out.box("mfhd");
                out.u32(0).u32(static_cast<std::uint32_t>(number));
            }
            const auto part = out.box("traf");
            {
                const auto head = out.box("tfhd");
                out.u32(0x020000).u32(1);
            }
            const auto run = out.box("trun");
            out.u32(0x201).u32(static_cast<std::uint32_t>(sizes.size())).u32(headBytes + 8);
            for (const std::uint32_t bytes : sizes) {
                out.u32(bytes);
            }
        }
        const auto body = out.box("mdat");
        out.bytes(data);
    }
    if (withList) {
        const auto list = out.box("mfra");
        {
            const auto table = out.box("tfra");
            out.u32(0).u32(1).u32(0).u32(0);
        }
        const auto end = out.box("mfro");
        out.u32(0).u32(8 + 24 + 16);
    }
    return out.taken();
}

}  // namespace vantor::test
