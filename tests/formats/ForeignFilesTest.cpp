// Small files by other programs: every one ends where its bytes end, whatever follows it on a medium.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "Corpus.h"
#include "WalkBytes.h"

namespace vantor::test {
namespace {

// The first column of the table that names each file's writer.
std::set<std::string> listedFiles() {
    std::set<std::string> names;
    std::ifstream table(foreignFolder() / "README.md");
    for (std::string line; std::getline(table, line);) {
        std::istringstream cells(line);
        std::string bar, name;
        if (cells >> bar >> name && bar == "|" && name != "file")
            names.insert(name);
    }
    return names;
}

TEST(ForeignFiles, WholeOnes_EndToTheByteWhateverFollows) {
    const auto names = listedFiles();
    ASSERT_GT(names.size(), 150U);
    std::set<std::string_view> formats;
    for (const auto& name : names) {
        SCOPED_TRACE(name);
        const Bytes file = readFile(foreignFolder() / name);
        ASSERT_FALSE(file.empty());
        const std::string type = typeByName(name);
        ASSERT_NE(formatFor(type), nullptr);
        formats.insert(formatFor(type)->name);
        const std::size_t filled = (file.size() + kSector - 1) / kSector * kSector;
        const Bytes next = Build().to(filled - file.size()).add(file);
        for (const Bytes& tail : {noise(100'000, 7), Bytes(100'000, 0), next, Bytes()}) {
            JoinedSource source(file, tail);
            const Extent extent = walk(type, source);
            EXPECT_EQ(extent.verdict, Verdict::Complete) << tail.size() << " bytes behind";
            EXPECT_EQ(extent.end, file.size()) << tail.size() << " bytes behind";
        }
    }
    EXPECT_GT(formats.size(), 80U);
}

TEST(ForeignFiles, CutOnes_AreNeverSurelyWhole) {
    constexpr std::size_t kCuts = 64;
    // The last bytes of some formats are optional: a line end, padding.
    constexpr std::size_t kOptional = 2;
    for (const auto& name : listedFiles()) {
        SCOPED_TRACE(name);
        const Bytes file = readFile(foreignFolder() / name);
        for (std::size_t i = 1; i < kCuts; ++i) {
            const std::size_t cut = (file.size() - kOptional) * i / kCuts;
            const Bytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(cut));
            const Extent extent = walkBytes(typeByName(name), part);
            ASSERT_LE(extent.end, cut);
            EXPECT_FALSE(extent.verdict == Verdict::Complete && extent.exactEnd) << "cut at " << cut;
        }
    }
}

// Files of which a large part is another's are said to be broken, or to end where they say at best.
TEST(ForeignFiles, SpoiltOnes_AreNeverSaidToBeChecked) {
    constexpr std::size_t kLeast = 128;
    std::set<std::string_view> checked;
    for (const auto& name : listedFiles()) {
        SCOPED_TRACE(name);
        const Bytes file = readFile(foreignFolder() / name);
        const std::string type = typeByName(name);
        if (file.size() < kLeast)
            continue;
        if (walkBytes(type, file).checked)
            checked.insert(formatFor(type)->name);
        for (const auto& [from, to, foreign] : spoiltParts(file)) {
            const Extent extent = walkBytes(type, withPart(file, from, foreign));
            EXPECT_FALSE(extent.checked && extent.end > from) << from << " to " << to;
        }
    }
    EXPECT_GT(checked.size(), 10U);
}

TEST(ForeignFiles, TableAndFolder_NameTheSame) {
    std::set<std::string> present;
    for (const auto& entry : std::filesystem::directory_iterator(foreignFolder()))
        present.insert(entry.path().filename().string());
    EXPECT_EQ(present.erase("README.md"), 1U);
    EXPECT_EQ(present, listedFiles());
}

}  // namespace
}  // namespace vantor::test
