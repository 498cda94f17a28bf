// Hands an input to one of the readers that put broken files together; its first byte tells which.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "formats/IsoBox.h"
#include "repair/ArchivePieces.h"
#include "repair/AviRepair.h"
#include "repair/MoviePieces.h"
#include "repair/MovieSamples.h"
#include "repair/MovieWalk.h"
#include "repair/PhotoPieces.h"
#include "repair/PngPieces.h"
#include "repair/ProgressivePieces.h"
#include "repair/ReferenceMovie.h"

namespace vantor::fuzz {

namespace {

void expect(bool holds) {
    if (!holds) {
        std::abort();
    }
}

class MemoryMedium final : public SectorReader {
  public:
    explicit MemoryMedium(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}
    std::uint64_t mediumSectors() const override { return m_bytes.size() / kSectorBytes; }

  protected:
    bool fetch() override {
        if (position() >= mediumSectors()) {
            return false;
        }
        handOver(m_bytes.data() + position() * kSectorBytes, 1);
        return true;
    }
    bool moveTo(std::uint64_t) override { return true; }

  private:
    std::span<const std::uint8_t> m_bytes;
};

// As many as the bytes take, none of them twice.
void checkClusters(const std::vector<std::uint64_t>& clusters, std::uint64_t bytes,
                   const FreeClusters& grid) {
    std::vector<bool> seen(static_cast<std::size_t>(grid.count()), false);
    for (const std::uint64_t cluster : clusters) {
        expect(cluster < grid.count() && !seen[static_cast<std::size_t>(cluster)]);
        seen[static_cast<std::size_t>(cluster)] = true;
    }
    expect(bytes <= clusters.size() * kSectorBytes && bytes > (clusters.size() - 1) * kSectorBytes);
}

// The input as a medium with clusters of a sector, and a photo at its beginning.
void completePhoto(std::span<const std::uint8_t> bytes) {
    MemoryMedium medium(bytes);
    MediumBlocks blocks(medium);
    const FreeClusters grid({0, 1}, medium.mediumSectors());
    ClusterKinds kinds(blocks, grid);
    const std::atomic<int> goOn{0};
    std::uint64_t units = 50'000;
    const auto photo = PhotoPieces(blocks, grid, kinds, goOn).assemble(0, units);
    if (photo) {
        checkClusters(photo->clusters, photo->bytes, grid);
    }
    if (const auto scans = ProgressivePieces(blocks, grid, kinds, goOn).assemble(0, units)) {
        checkClusters(scans->clusters, scans->bytes, grid);
    }
}

// A movie at the beginning, of boxes or of chunks.
void completeMovie(std::span<const std::uint8_t> bytes) {
    MemoryMedium medium(bytes);
    MediumBlocks blocks(medium);
    const FreeClusters grid({0, 1}, medium.mediumSectors());
    const std::atomic<int> goOn{0};
    const auto indexes = indexPlaces(blocks, goOn);
    for (const std::uint64_t cluster : MoviePieces(blocks, grid, indexes, goOn).anchorsOf(0)) {
        expect(cluster < grid.count());
    }
    if (const auto movie = MoviePieces(blocks, grid, indexes, goOn).assemble(0)) {
        checkClusters(movie->clusters, movie->bytes, grid);
    }
}

void completePng(std::span<const std::uint8_t> bytes) {
    MemoryMedium medium(bytes);
    MediumBlocks blocks(medium);
    const FreeClusters grid({0, 1}, medium.mediumSectors());
    const std::atomic<int> goOn{0};
    const auto png = PngPieces(blocks, grid, goOn).assemble(0);
    if (png) {
        checkClusters(png->clusters, png->bytes, grid);
    }
}

void completeArchive(std::span<const std::uint8_t> bytes) {
    MemoryMedium medium(bytes);
    MediumBlocks blocks(medium);
    const FreeClusters grid({0, 1}, medium.mediumSectors());
    const std::atomic<int> goOn{0};
    const ArchivePlaces places = archivePlaces(blocks, goOn);
    ArchiveEffort effort{std::uint64_t{1} << 22};
    if (const auto archive = ArchivePieces(blocks, grid, places, goOn).assemble(0, effort)) {
        checkClusters(archive->clusters, archive->bytes, grid);
    }
}

void readSamples(std::span<const std::uint8_t> bytes) {
    SpanSource source(bytes);
    ByteView view(source);
    for (std::uint64_t at = 0;;) {
        const auto box = readIsoBox(view, at);
        if (!box || box->end <= at) {
            return;
        }
        if (box->text() == "moov") {
            const auto samples = promisedSamples(source, *box, {0, bytes.size()});
            for (const PromisedSample& sample : samples.value_or(std::vector<PromisedSample>())) {
                expect(sample.at <= bytes.size() && sample.bytes <= bytes.size() - sample.at);
                beginsAs(sample, bytes.subspan(static_cast<std::size_t>(sample.at)));
                isWholeSample(view, sample);
            }
        }
        at = box->end;
    }
}

// What is written of an AVI movie lies within it.
void repairChunks(std::span<const std::uint8_t> bytes) {
    SpanSource source(bytes);
    if (const auto movie = repairAvi(source, {.pictures = 1000})) {
        expect(movie->data.from <= movie->data.to && movie->data.to <= bytes.size() + 1);
        expect(movie->pictures != 0 && movie->index.size() >= 24);
    }
}

// A movie walked with what it tells itself, or as plain pictures of a kind where it tells nothing.
void walk(std::span<const std::uint8_t> bytes, Coding coding) {
    SpanSource source(bytes);
    ByteView view(source);
    auto reference = readReference(source);
    if (!reference) {
        reference.emplace();
        reference->syntax.coding = coding;
        reference->syntax.heads.set();
        reference->syntax.sets.set();
        reference->widestGap = 256;
        reference->slices = 1;
    }
    const DataPlace data{0, bytes.size()};
    const MovieWalk walk = walkMovie(view, *reference, data, {}, {.pictures = 1000});
    std::uint64_t before = 0;
    for (const CodedPicture& picture : walk.pictures) {
        expect(picture.at >= before && picture.end > picture.at && picture.end <= bytes.size());
        before = picture.end;
    }
}

}  // namespace

}  // namespace vantor::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    if (size == 0) {
        return 0;
    }
    const std::span<const std::uint8_t> bytes(data + 1, size - 1);
    switch (data[0] % 9) {
        case 0:
            fuzz::readSamples(bytes);
            break;
        case 1:
            fuzz::walk(bytes, Coding::Avc);
            break;
        case 2:
            fuzz::walk(bytes, Coding::Hevc);
            break;
        case 3:
            fuzz::walk(bytes, Coding::Jpeg);
            break;
        case 4:
            fuzz::completePng(bytes);
            break;
        case 6:
            fuzz::completeMovie(bytes);
            break;
        case 7:
            fuzz::repairChunks(bytes);
            break;
        case 8:
            fuzz::completeArchive(bytes);
            break;
        default:
            fuzz::completePhoto(bytes);
    }
    return 0;
}
