// Patches of instruments for the Gravis Ultrasound (PAT): heads of instruments, layers and samples. Source:
// Gravis Ultrasound developers' kit, "Patch file format".
#include "formats/Format.h"
#include "formats/ToldLength.h"

namespace vantor {

namespace {

Extent walkGravisPatch(ByteView& view) {
    constexpr std::uint64_t kHead = 129, kInstruments = 82, kInstrument = 63, kLayers = 22, kLayer = 47,
                            kSamples = 6, kSample = 96, kWave = 8;
    if (!view.matches(0, "GF1PATCH1"))
        return unknownExtent();
    const std::uint64_t instruments = view.u8(kInstruments).value_or(0);
    std::uint64_t at = kHead;
    for (std::uint64_t i = 0; i < instruments; ++i) {
        const std::uint64_t layers = view.u8(at + kLayers).value_or(0);
        at += kInstrument;
        for (std::uint64_t layer = 0; layer < layers; ++layer) {
            const std::uint64_t samples = view.u8(at + kSamples).value_or(0);
            at += kLayer;
            for (std::uint64_t sample = 0; sample < samples; ++sample) {
                const auto wave = view.le32(at + kWave);
                if (!wave)
                    return cutOffAt(view, view.size());
                at += kSample + *wave;
            }
        }
    }
    return at > kHead || view.size() < kHead ? completeAt(view, at) : unknownExtent();
}

}  // namespace

extern constexpr Format kGravisPatch = {
    .name = "Gravis patch",
    .group = Group::Sounds,
    .walk = walkGravisPatch,
    .extensions = " GF1 ",  // PAT is also that of patterns
    .mayNotTellEnd = true,
};

}  // namespace vantor
