// The walkers on real files: whole among foreign bytes, and cut.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <random>

#include "Corpus.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

constexpr std::size_t kSector = 512;

// Files whose end cannot be told to the byte, and why.
enum class Expect {
    Unknown,      // no walker, or the format hides its end
    CutOff,       // not whole themselves: never said to be
    Short,        // the format's end stands `bytes` before the file's
    ZeroPadding,  // zeros behind it count as its own
};
struct Exception {
    std::string_view path;  // part of it
    Expect expect;
    std::int64_t bytes;
    std::string_view reason;
};
constexpr std::array kExceptions = {
    Exception{"fixture.dmg", Expect::Unknown, 0, "a disk image tells itself by its last bytes only"},
    Exception{"NEWSSLID.DOC", Expect::Unknown, 0, "Word 2 document, no walker"},
    Exception{"testIBMDisplayWrite40.doc", Expect::Unknown, 0, "DisplayWrite document, no walker"},
    Exception{"line-weights.dwg", Expect::Unknown, 0, "DWG, no walker"},
    Exception{"test-documents-enc.rar", Expect::Unknown, 0, "block headers are encrypted"},
    Exception{"palette_and_groups.jxl", Expect::Unknown, 0,
              "bare JPEG XL stream: only a decoder finds the end"},
    Exception{"jxl__xyb.jxl", Expect::Unknown, 0, "bare JPEG XL stream: only a decoder finds the end"},
    Exception{"01r_00.pcx", Expect::Unknown, 0, "its header contradicts itself (8 bits, rows for 1 bit)"},
    Exception{"kB-garbage-prefix.mp3", Expect::Unknown, 0, "begins with bytes that are no MP3"},
    Exception{"sony-zv-e10.arw", Expect::CutOff, 0, "cut to 100000 bytes"},
    Exception{"cr3/file-type__fixture__fixture.cr3", Expect::CutOff, 0, "cut to 131072 bytes"},
    Exception{"canon-r6.cr3", Expect::CutOff, 0, "the head of a larger file"},
    Exception{"sony-a7-xavc.MP4", Expect::CutOff, 0, "its media data was taken out"},
    Exception{"realmedia-audio.rm", Expect::CutOff, 0, "the last 10 bytes are missing"},
    Exception{"fixture-mpa.mp2", Expect::CutOff, 0, "cut to 16384 bytes inside a frame"},
    Exception{"mp2/file-type__fixture__fixture.mp2", Expect::CutOff, 0, "cut to 16384 bytes inside a frame"},
    Exception{"__ts__sample.ac3", Expect::CutOff, 0, "cut inside a frame"},
    Exception{"IllegalArgumentException.HeifReader", Expect::CutOff, 0, "a broken file of a test suite"},
    Exception{"testMSG_chinese.msg", Expect::Short, 1, "one byte beyond the last sector"},
    Exception{"Olympus__C-3000__P1010006.WAV", Expect::Short, 4, "four samples more than its header counts"},
    Exception{"Olympus__C-3000__P1010007.WAV", Expect::Short, 4, "four samples more than its header counts"},
    Exception{"9bit.j2k", Expect::Short, 1, "one byte behind the end mark"},
    Exception{"CRW_0305.THM", Expect::Short, 1, "one byte behind the end mark"},
    Exception{"exifr__test__fixtures__001.tif", Expect::Short, 1, "padded to four bytes"},
    Exception{"Bush-dog.tif", Expect::Short, 2, "padded to four bytes"},
    Exception{"tif-with-iptc-icc-xmp.tif", Expect::Short, 3, "padded to four bytes"},
    Exception{"test-nested-tarball.tar", Expect::ZeroPadding, 0, "not padded to a record as tar does"},
};

const Exception* exceptionFor(const std::string& path) {
    for (const auto& exception : kExceptions) {
        if (path.find(exception.path) != path.npos)
            return &exception;
    }
    return nullptr;
}

const char* nameOf(Verdict verdict) {
    static constexpr std::array<const char*, 4> kNames = {"Unknown", "Complete", "CutOff", "Damaged"};
    return kNames[static_cast<std::size_t>(verdict)];
}

struct Tally {
    int tried = 0;
    int exact = 0;          // Complete, end to the byte
    int wrongComplete = 0;  // Complete elsewhere
    int wrongBroken = 0;    // CutOff or Damaged though whole
    int unknown = 0;
    int cuts = 0;          // of whole files
    int cutSaidWhole = 0;  // at the medium's end
    int cutSwallowed = 0;  // before foreign bytes, said whole with some of them
};

class CorpusTest : public testing::Test {
  protected:
    void SetUp() override {
        m_folder = corpusFolder();
        if (m_folder.empty())
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        for (const auto& file : corpusFiles(m_folder)) {
            if (!file.hostile)
                m_files.push_back(file);
        }
        ASSERT_GT(m_files.size(), 200U);
    }

    // What may follow a file on a medium.
    std::vector<Bytes> tailsFor(const Bytes& file) const {
        Bytes again((kSector - file.size() % kSector) % kSector,
                    0);  // the sector's rest, then a file like it
        again.insert(again.end(), file.begin(), file.end());
        return {noise(200'000, 7), Bytes(200'000, 0),
                readFile(m_folder / "photos/jpg/digicam_corpus__HP_C200__DSC00002.JPG"), again, Bytes()};
    }

    std::filesystem::path m_folder;
    std::vector<CorpusFile> m_files;
};

Extent walkBefore(const CorpusFile& file, const Bytes& bytes, const Bytes& tail) {
    JoinedSource source(bytes, tail);
    return walk(file.extension, source);
}

void printTable(const std::map<std::string, Tally>& tallies) {
    std::printf("%-9s %5s %5s %14s %12s %7s | %5s %10s %14s\n", "type", "tried", "exact", "wrong complete",
                "wrong broken", "unknown", "cuts", "said whole", "took foreign");
    Tally all;
    const auto line = [](const std::string& name, const Tally& t) {
        std::printf("%-9s %5d %5d %14d %12d %7d | %5d %10d %14d\n", name.c_str(), t.tried, t.exact,
                    t.wrongComplete, t.wrongBroken, t.unknown, t.cuts, t.cutSaidWhole, t.cutSwallowed);
    };
    for (const auto& [name, tally] : tallies) {
        line(name, tally);
        all.tried += tally.tried;
        all.exact += tally.exact;
        all.wrongComplete += tally.wrongComplete;
        all.wrongBroken += tally.wrongBroken;
        all.unknown += tally.unknown;
        all.cuts += tally.cuts;
        all.cutSaidWhole += tally.cutSaidWhole;
        all.cutSwallowed += tally.cutSwallowed;
    }
    line("all", all);
}

TEST_F(CorpusTest, WholeFiles_EndToTheByteWhateverFollows) {
    std::map<std::string, Tally> tallies;
    for (const auto& file : m_files) {
        const Exception* exception = exceptionFor(file.path);
        const Bytes bytes = readFile(m_folder / file.path);
        const auto tails = tailsFor(bytes);
        Tally& tally = tallies[file.extension];
        for (std::size_t i = 0; i < tails.size(); ++i) {
            SCOPED_TRACE(file.path + " before tail " + std::to_string(i));
            const Extent extent = walkBefore(file, bytes, tails[i]);
            const auto size = static_cast<std::int64_t>(bytes.size()),
                       end = static_cast<std::int64_t>(extent.end);
            const bool complete = extent.verdict == Verdict::Complete;
            ASSERT_LE(extent.end, bytes.size() + tails[i].size());
            ++tally.tried;
            tally.exact += complete && end == size ? 1 : 0;
            tally.wrongComplete += complete && end != size ? 1 : 0;
            tally.wrongBroken +=
                extent.verdict == Verdict::CutOff || extent.verdict == Verdict::Damaged ? 1 : 0;
            tally.unknown += extent.verdict == Verdict::Unknown ? 1 : 0;
            if (exception == nullptr) {
                EXPECT_STREQ(nameOf(extent.verdict), "Complete") << "end " << end - size;
                EXPECT_EQ(end, size);
            } else if (exception->expect == Expect::Unknown) {
                EXPECT_STREQ(nameOf(extent.verdict), "Unknown") << exception->reason;
            } else if (exception->expect == Expect::Short) {
                EXPECT_STREQ(nameOf(extent.verdict), "Complete") << exception->reason;
                EXPECT_EQ(end, size - exception->bytes) << exception->reason;
            } else if (exception->expect == Expect::ZeroPadding) {
                EXPECT_STREQ(nameOf(extent.verdict), "Complete") << exception->reason;
                const auto first = tails[i].begin(), last = first + std::max<std::int64_t>(0, end - size);
                EXPECT_GE(end, size);
                EXPECT_TRUE(std::all_of(first, last, [](auto byte) { return byte == 0; }));
            } else if (tails[i].empty()) {
                EXPECT_STRNE(nameOf(extent.verdict), "Complete") << exception->reason;
            }
        }
    }
    printTable(tallies);
}

// Types that prove their content: a cut in them is seen even when other bytes follow at once.
bool provesContent(const std::string& extension) {
    static constexpr std::array kProving = {"JPG",  "PNG",   "APNG",    "GIF", "MPO", "THM",  "GZ",   "TGZ",
                                            "BZ2",  "XZ",    "FLAC",    "OGG", "OGA", "OPUS", "PDF",  "7Z",
                                            "DOCX", "XLSX",  "PPTX",    "ODT", "ODS", "ODP",  "EPUB", "XPS",
                                            "KEY",  "PAGES", "NUMBERS", "ZIP", "CRW"};
    return std::find(kProving.begin(), kProving.end(), extension) != kProving.end();
}

TEST_F(CorpusTest, CutFiles_AreNeverSaidToBeWhole) {
    constexpr int kCutsPerFile = 12;
    constexpr std::size_t kOptional = 2;  // a line end or padding that a format may go without
    std::mt19937_64 random(20211);
    std::map<std::string, Tally> tallies;
    const Bytes foreign = noise(300'000, 5);
    for (const auto& file : m_files) {
        const Bytes bytes = readFile(m_folder / file.path);
        const Extent whole = walkBefore(file, bytes, {});
        if (whole.verdict != Verdict::Complete)
            continue;
        Tally& tally = tallies[file.extension];
        for (int i = 0; i < kCutsPerFile; ++i) {
            const std::size_t cut = random() % (whole.end > kOptional ? whole.end - kOptional : 1);
            SCOPED_TRACE(file.path + " cut at " + std::to_string(cut));
            const Bytes part(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(cut));
            const Extent extent = walkBefore(file, part, {});
            ++tally.cuts;
            ASSERT_LE(extent.end, cut);
            if (extent.verdict == Verdict::Complete) {
                ++tally.cutSaidWhole;
                EXPECT_FALSE(extent.exactEnd) << "said whole at " << extent.end;
            }
            const Extent among = walkBefore(file, part, foreign);
            ASSERT_LE(among.end, cut + foreign.size());
            if (among.verdict == Verdict::Complete && among.end > cut) {
                ++tally.cutSwallowed;
                EXPECT_FALSE(provesContent(file.extension)) << "said whole at " << among.end;
            }
        }
    }
    printTable(tallies);
}

}  // namespace
}  // namespace vantor::test
