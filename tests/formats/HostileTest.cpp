// Hostile and mutated files: no walker may crash, run on, or claim more than there is.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <random>

#include "Corpus.h"
#include "Samples.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

// What a walk may read at most: some passes over the file and an allowance for hops, as ByteView promises.
constexpr std::uint64_t kPasses = 3;
constexpr std::uint64_t kAllowance = 32 * 1024 * 1024;

struct Effort {
    std::uint64_t walks = 0;
    std::uint64_t mostReads = 0;
    double mostPasses = 0;  // bytes read beyond the first MiB, as a multiple of the file
};

void expectBounded(const Bytes& bytes, const JoinedSource& source, const Format* format, const Extent& extent,
                   Effort& effort) {
    ASSERT_LE(extent.end, bytes.size());
    // Frames may miss behind a tag.
    const bool isFrames = format != nullptr && format->frameStream;
    EXPECT_TRUE(extent.verdict != Verdict::Unknown || extent.end == 0 || isFrames);
    EXPECT_LE(source.bytesRead(), kPasses * bytes.size() + kAllowance);
    EXPECT_LE(source.reads(), (kPasses * bytes.size() + kAllowance) / ByteView::kHopBytes + 64);
    ++effort.walks;
    effort.mostReads = std::max(effort.mostReads, source.reads());
    constexpr std::uint64_t kFree = 1 << 20;
    if (source.bytesRead() > kFree)
        effort.mostPasses =
            std::max(effort.mostPasses, static_cast<double>(source.bytesRead() - kFree) /
                                            static_cast<double>(std::max<std::size_t>(1, bytes.size())));
}

void walkOne(const Bytes& bytes, const std::string& extension, Effort& effort) {
    static const Bytes kNothing;
    JoinedSource source(bytes, kNothing);
    expectBounded(bytes, source, formatFor(extension), walk(extension, source), effort);
}

void walkWithAll(const Bytes& bytes, Effort& effort) {
    static const Bytes kNothing;
    for (const Format* format : allFormats()) {
        SCOPED_TRACE(format->name);
        JoinedSource source(bytes, kNothing);
        ByteView view(source);
        expectBounded(bytes, source, format, format->walk(view), effort);
    }
}

class Mutator {
  public:
    explicit Mutator(std::uint32_t seed) : m_random(seed) {}

    // Damages a copy in one to eight places; headers, being near the start, are hit more often.
    Bytes mutate(Bytes bytes) {
        const auto wounds = 1 + m_random() % 8;
        for (std::uint32_t i = 0; i < wounds && !bytes.empty(); ++i)
            wound(bytes);
        return bytes;
    }

  private:
    std::size_t place(const Bytes& bytes) {
        const std::size_t reach =
            m_random() % 2 == 0 ? std::min<std::size_t>(bytes.size(), 512) : bytes.size();
        return m_random() % reach;
    }

    void wound(Bytes& bytes) {
        static constexpr std::array<std::uint32_t, 8> kExtremes = {
            0, 1, 0x7F, 0xFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0xFFFFFFF0};
        const auto at = place(bytes);
        const auto span = std::min<std::size_t>(bytes.size() - at, 1 + m_random() % 64);
        const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        switch (m_random() % 6) {
            case 0:
                bytes[at] ^= static_cast<std::uint8_t>(1U << m_random() % 8);
                break;
            case 1:
                bytes[at] = static_cast<std::uint8_t>(m_random());
                break;
            case 2: {
                const auto value = kExtremes[m_random() % kExtremes.size()];
                const bool little = m_random() % 2 == 0;
                for (std::size_t i = 0; i < std::min<std::size_t>(4, span); ++i)
                    bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * (little ? i : 3 - i));
                break;
            }
            case 3:
                std::fill_n(from, span, static_cast<std::uint8_t>(m_random() % 2 == 0 ? 0 : 0xFF));
                break;
            case 4:
                bytes.erase(from, from + static_cast<std::ptrdiff_t>(span));
                break;
            default: {
                const Bytes piece(from, from + static_cast<std::ptrdiff_t>(span));
                const auto target = static_cast<std::ptrdiff_t>(place(bytes));
                bytes.insert(bytes.begin() + target, piece.begin(), piece.end());
                break;
            }
        }
    }

    std::mt19937 m_random;
};

void print(const char* what, const Effort& effort) {
    std::printf("%s: %llu walks, at most %llu reads, %.2f passes beyond the first MiB\n", what,
                static_cast<unsigned long long>(effort.walks),
                static_cast<unsigned long long>(effort.mostReads), effort.mostPasses);
}

TEST(Hostile, MutatedSamples_StayBoundedInEveryWalker) {
    Effort effort;
    Mutator mutator(4711);
    for (const auto& sample : allSamples()) {
        SCOPED_TRACE(sample.extension);
        for (int i = 0; i < 300; ++i)
            walkOne(mutator.mutate(sample.bytes), sample.extension, effort);
        for (int i = 0; i < 3; ++i)
            walkWithAll(mutator.mutate(sample.bytes), effort);
    }
    EXPECT_GT(effort.walks, 20'000U);
    print("mutated samples", effort);
}

TEST(Hostile, MutatedCorpus_StaysBounded) {
    const auto folder = corpusRoot();
    if (folder.empty())
        GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
    constexpr int kPerFile = 16;
    constexpr std::size_t kMost = 1 << 20;  // of a file; more adds payload, not structure
    Effort effort;
    Mutator mutator(815);
    for (const auto& file : corpusFiles(folder)) {
        SCOPED_TRACE(file.path);
        Bytes bytes = readFile(folder / file.path);
        bytes.resize(std::min(bytes.size(), kMost));
        for (int i = 0; i < kPerFile; ++i)
            walkOne(mutator.mutate(bytes), file.extension, effort);
    }
    EXPECT_GT(effort.walks, 4'000U);
    print("mutated corpus", effort);
}

TEST(Hostile, MutatedForeignFiles_StayBounded) {
    constexpr int kPerFile = 100;
    Effort effort;
    Mutator mutator(1642);
    for (const auto& entry : std::filesystem::directory_iterator(foreignFolder())) {
        SCOPED_TRACE(entry.path().filename());
        const std::string type = typeByName(entry.path());
        const Bytes bytes = readFile(entry.path());
        for (int i = 0; i < kPerFile; ++i)
            walkOne(mutator.mutate(bytes), type, effort);
    }
    EXPECT_GT(effort.walks, 15'000U);
    print("mutated foreign files", effort);
}

TEST(Hostile, DeliberatelyMalformedFiles_StayBoundedInEveryWalker) {
    const auto folder = corpusRoot();
    if (folder.empty())
        GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
    Effort effort;
    for (const auto& file : corpusFiles(folder)) {
        if (!file.hostile)
            continue;
        SCOPED_TRACE(file.path);
        const Bytes bytes = readFile(folder / file.path);
        walkOne(bytes, file.extension, effort);
        walkWithAll(bytes, effort);
    }
    EXPECT_GT(effort.walks, 1'000U);
    print("malformed files", effort);
}

// Reads as if the medium went on for gigabytes of the same bytes behind a head; turns unreadable once too
// much was read, so that a test that fails ends.
class EndlessSource final : public ByteSource {
  public:
    static constexpr std::uint64_t kSoon = 300 * 1024 * 1024;  // the largest search any format is allowed

    EndlessSource(const Bytes& head, std::uint8_t filler) : m_head(head), m_filler(filler) {}

    std::uint64_t size() const override { return kSize; }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        if (m_bytesRead > kSoon)
            return 0;
        m_bytesRead += into.size();
        std::fill(into.begin(), into.end(), m_filler);
        for (std::size_t i = 0; i < into.size() && offset + i < m_head.size(); ++i)
            into[i] = m_head[static_cast<std::size_t>(offset) + i];
        return into.size();
    }
    std::uint64_t bytesRead() const { return m_bytesRead; }

  private:
    static constexpr std::uint64_t kSize = std::uint64_t{64} << 30;
    const Bytes& m_head;
    const std::uint8_t m_filler;
    std::uint64_t m_bytesRead = 0;
};

// A file cut short on a large empty medium must not make a walker read the whole medium.
TEST(Hostile, CutSampleOnAnEmptyMedium_IsGivenUpSoon) {
    for (const auto& sample : allSamples()) {
        const auto size = sample.bytes.size();
        for (const std::size_t cut :
             {size / 8, size / 4, size / 2, size * 3 / 4, size - 12, size - 5, size - 3, size - 2, size}) {
            for (const std::uint8_t filler : {0x00, 0xFF}) {
                SCOPED_TRACE(sample.extension + " cut at " + std::to_string(cut) +
                             (filler == 0 ? ", zeros" : ", erased"));
                const Bytes part(sample.bytes.begin(),
                                 sample.bytes.begin() + static_cast<std::ptrdiff_t>(cut));
                EndlessSource source(part, filler);
                const Extent extent = walk(sample.extension, source);
                EXPECT_LE(source.bytesRead(), EndlessSource::kSoon);
                EXPECT_LE(extent.end, source.size());
            }
        }
    }
}

}  // namespace
}  // namespace vantor::test
