// The walkers on real files: whole among foreign bytes, and cut.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <random>

#include "Corpus.h"
#include "CorpusExceptions.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

constexpr std::size_t kSector = 512;

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
        m_folder = corpusRoot();
        if (m_folder.empty())
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        for (const auto& file : corpusFiles(m_folder)) {
            if (!file.hostile)
                m_files.push_back(file);
        }
        ASSERT_GT(m_files.size(), 200U);
        m_photo = readFile(m_folder / "photos/jpg/digicam_corpus__HP__C200__DSC00002.JPG");
        ASSERT_FALSE(m_photo.empty());
    }

    // What may follow a file on a medium.
    std::vector<Bytes> tailsFor(const Bytes& file) const {
        // The sector's rest, then a file like it, or a photo.
        const Bytes rest((kSector - file.size() % kSector) % kSector, 0);
        Bytes again = rest, photo = rest;
        again.insert(again.end(), file.begin(), file.end());
        photo.insert(photo.end(), m_photo.begin(), m_photo.end());
        return {noise(200'000, 7), Bytes(200'000, 0), photo, again, Bytes()};
    }

    std::filesystem::path m_folder;
    std::vector<CorpusFile> m_files;
    Bytes m_photo;
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
                // A few bytes behind the end are the file's where the rest of the sector is empty.
                const std::size_t left = (kSector - bytes.size() % kSector) % kSector;
                const bool isEmpty = tails[i].size() >= left && left > 0 &&
                                     std::all_of(tails[i].begin(), tails[i].begin() + left,
                                                 [](auto byte) { return byte == 0; });
                EXPECT_TRUE(end == size - exception->bytes || (isEmpty && end == size))
                    << exception->reason << ", end " << end - size;
            } else if (exception->expect == Expect::ZeroPadding) {
                EXPECT_STREQ(nameOf(extent.verdict), "Complete") << exception->reason;
                const auto first = tails[i].begin(), last = first + std::max<std::int64_t>(0, end - size);
                EXPECT_GE(end, size);
                EXPECT_TRUE(std::all_of(first, last, [](auto byte) { return byte == 0; }));
            } else {
                // Foreign bytes may stand in for the few that are missing, never for others.
                const bool filled = !tails[i].empty() && exception->bytes != 0;
                EXPECT_TRUE(!complete || (filled && end == size + exception->bytes))
                    << exception->reason << ", end " << end - size;
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

TEST_F(CorpusTest, SpoiltFiles_AreNeverSaidToBeChecked) {
    int files = 0, checked = 0, spoilt = 0, damaged = 0;
    for (const auto& file : m_files) {
        const Bytes bytes = readFile(m_folder / file.path);
        ++files;
        checked += walkBefore(file, bytes, {}).checked ? 1 : 0;
        for (const auto& [from, to, foreign] : spoiltParts(bytes)) {
            SCOPED_TRACE(file.path + " from " + std::to_string(from) + " to " + std::to_string(to));
            const Extent extent = walkBefore(file, withPart(bytes, from, foreign), {});
            EXPECT_FALSE(extent.checked && extent.end > from);
            ++spoilt;
            damaged += extent.verdict == Verdict::Complete ? 0 : 1;
        }
    }
    std::printf("%d files, %d checked; %d spoilt ones, %d seen to be broken\n", files, checked, spoilt,
                damaged);
    EXPECT_GT(checked, 80);
}

}  // namespace
}  // namespace vantor::test
