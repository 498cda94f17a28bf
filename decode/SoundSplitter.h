// Coded sound without an index, taken apart by the movie helper.
#pragma once

#include <QByteArray>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "decode/MovieHelper.h"

namespace vantor {

// Used and destroyed on one thread. A helper that breaks on some bytes is replaced for the next.
class SoundSplitter {
  public:
    explicit SoundSplitter(MovieReaderOptions options = {}) : m_options(std::move(options)) {}

    // Lengths of the packets that follow each other from the first byte on, together no more than the bytes.
    // `coding` is the name of the sample entry, `configuration` what its decoder has to know. Empty where
    // nothing was found, or no helper can be had.
    std::vector<std::uint32_t> split(const std::array<char, 4>& coding, QByteArrayView configuration,
                                     QByteArrayView sound);

  private:
    MovieReaderOptions m_options;
    std::unique_ptr<decode::HelperProcess> m_process;
};

}  // namespace vantor
