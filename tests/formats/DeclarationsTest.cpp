// What is declared in one place is known in all: the list of formats and the fuzz harnesses forget none.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "Corpus.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

const std::filesystem::path kRepository = VANTOR_SOURCE_DIR;

const std::map<Group, std::string> kFolders = {{Group::Pictures, "pictures"}, {Group::Movies, "movies"},
                                               {Group::Sounds, "sounds"},     {Group::Documents, "documents"},
                                               {Group::Archives, "archives"}, {Group::Systems, "systems"}};

std::string textOf(const std::filesystem::path& path) {
    const Bytes bytes = readFile(path);
    return {bytes.begin(), bytes.end()};
}

// The first group of every match in a file.
std::vector<std::string> matchesIn(const std::string& text, const char* pattern) {
    const std::regex regex(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match)
        found.push_back((*match)[1]);
    return found;
}

// All sources of one folder.
std::string sourcesIn(const std::filesystem::path& folder) {
    std::string text;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".cpp")
            text += textOf(entry.path());
    }
    return text;
}

TEST(Formats, EveryDeclaredOne_IsInTheList) {
    std::multiset<std::string> declared;
    for (const auto& [group, folder] : kFolders) {
        for (const auto& constant :
             matchesIn(sourcesIn(kRepository / "formats" / folder), R"(\bFormat\s+(k\w+)\s*[={])"))
            declared.insert(constant);
    }
    const auto listed = matchesIn(textOf(kRepository / "formats" / "Formats.inc"), R"(FORMAT\((k\w+)\))");
    EXPECT_EQ(declared, std::multiset<std::string>(listed.begin(), listed.end()));
    EXPECT_EQ(declared.size(), allFormats().size());
    EXPECT_GT(declared.size(), 100U);
}

TEST(Formats, EveryOne_StandsInTheFolderOfItsGroup) {
    for (const auto& [group, folder] : kFolders) {
        const auto names =
            matchesIn(sourcesIn(kRepository / "formats" / folder), R"re(\.name = "([^"]*)")re");
        std::multiset<std::string> ofGroup;
        for (const Format* format : allFormats()) {
            if (format->group == group)
                ofGroup.insert(std::string(format->name));
        }
        EXPECT_FALSE(ofGroup.empty());
        EXPECT_EQ(std::multiset<std::string>(names.begin(), names.end()), ofGroup) << folder;
    }
}

TEST(Formats, EveryGroup_IsFuzzed) {
    const std::string targets = textOf(kRepository / "fuzz" / "formats" / "CMakeLists.txt");
    const std::string runs = textOf(kRepository / ".ci" / "run");
    for (const auto& [group, folder] : kFolders) {
        EXPECT_NE(targets.find(' ' + folder), targets.npos) << folder;
        EXPECT_NE(runs.find("fuzz_formats_" + folder), runs.npos) << folder;
    }
}

}  // namespace
}  // namespace vantor::test
