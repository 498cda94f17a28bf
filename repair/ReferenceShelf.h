// The whole movies that were found, from which the one is chosen that a broken movie's camera made.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "decode/MovieHelper.h"
#include "repair/MovieRepair.h"

namespace vantor {

class ReferenceShelf {
  public:
    // Of so many movies the data is kept; a card holds movies of few cameras.
    static constexpr std::size_t kMostKept = 256;

    struct Kept {
        QString name;
        std::uint64_t firstSector = 0;
        ReferenceMovie movie;
    };

    explicit ReferenceShelf(MovieReaderOptions options = {}) : m_options(std::move(options)) {}

    void add(Kept kept);
    bool isEmpty() const { return m_kept.empty(); }

    // The one that fits best: with it the movie's beginning decodes without an error, its sound comes out
    // even and as long as its pictures; among equals, of the same type and nearest on the medium. Null when
    // none fits, or no helper can be had to try. `movie` and `data` as repairMovie() takes them.
    const Kept* choose(ByteSource& movie, const DataPlace& data, std::uint64_t firstSector,
                       SoundSplitter& splitter, const std::atomic<int>* stop = nullptr) const;

  private:
    MovieReaderOptions m_options;
    std::vector<Kept> m_kept;
};

}  // namespace vantor
