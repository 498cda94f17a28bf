// The real files whose end cannot be told to the byte, each with its reason.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantor::test {

enum class Expect {
    Unknown,      // no walker, or the format hides its end
    CutOff,       // not whole themselves, `bytes` short of it (0: of more than may follow here)
    Short,        // the format's end stands `bytes` before the file's
    ZeroPadding,  // zeros behind it count as its own
};
struct Exception {
    std::string_view path;  // part of it
    Expect expect;
    std::int64_t bytes;
    std::string_view reason;
};
inline constexpr std::array kExceptions = {
    Exception{"test-documents-enc.rar", Expect::Unknown, 0, "block headers are encrypted"},
    Exception{"palette_and_groups.jxl", Expect::Unknown, 0,
              "bare JPEG XL stream: only a decoder finds the end"},
    Exception{"jxl__xyb.jxl", Expect::Unknown, 0, "bare JPEG XL stream: only a decoder finds the end"},
    Exception{"01r_00.pcx", Expect::Unknown, 0, "its header contradicts itself (8 bits, rows for 1 bit)"},
    Exception{"kB-garbage-prefix.mp3", Expect::Unknown, 0, "begins with bytes that are no MP3"},
    Exception{"sony-zv-e10.arw", Expect::CutOff, 0, "cut to 100000 bytes"},
    Exception{"cr3/file-type__fixture__fixture.cr3", Expect::CutOff, 0, "cut to 131072 bytes"},
    Exception{"canon-r6.cr3", Expect::CutOff, 0, "the head of a larger file"},
    Exception{"sony-a7-xavc.MP4", Expect::CutOff, 0,
              "its media data was taken out, the rest comes back as it is"},
    Exception{"fixture-mpa.mp2", Expect::CutOff, 439, "cut to 16384 bytes inside a frame"},
    Exception{"mp2/file-type__fixture__fixture.mp2", Expect::CutOff, 334,
              "cut to 16384 bytes inside a frame"},
    Exception{"__ts__sample.ac3", Expect::CutOff, 543, "cut inside a frame"},
    Exception{"IllegalArgumentException.HeifReader", Expect::CutOff, 0, "a broken file of a test suite"},
    Exception{"testMSG_chinese.msg", Expect::Short, 1, "one byte beyond the last sector"},
    Exception{"Olympus__C-3000__P1010006.WAV", Expect::Short, 4,
              "four bytes that its header does not count, taken where the sector ends empty"},
    Exception{"Olympus__C-3000__P1010007.WAV", Expect::Short, 4,
              "four bytes that its header does not count, taken where the sector ends empty"},
    Exception{"9bit.j2k", Expect::Short, 1, "one byte behind the end mark"},
    Exception{"CRW_0305.THM", Expect::Short, 1, "one byte behind the end mark"},
    Exception{"test-nested-tarball.tar", Expect::ZeroPadding, 0, "not padded to a record as tar does"},
};

inline const Exception* exceptionFor(const std::string& path) {
    for (const auto& exception : kExceptions) {
        if (path.find(exception.path) != path.npos)
            return &exception;
    }
    return nullptr;
}

}  // namespace vantor::test
