// The fuzz harnesses name the walkers they feed by hand: none may be forgotten.
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "Corpus.h"
#include "formats/Registry.h"

namespace vantor::test {
namespace {

TEST(FuzzHarnesses, EveryWalker_IsInOneOfThem) {
    const std::filesystem::path folder = std::filesystem::path(VANTOR_SOURCE_DIR) / "fuzz" / "formats";
    const std::regex quotedType("\"([A-Z0-9+]+)\"");
    std::set<std::string_view> fed;
    for (const char* group : {"Pictures", "Movies", "Sounds", "Archives", "Documents"}) {
        const Bytes bytes = readFile(folder / ("Fuzz" + std::string(group) + ".cpp"));
        const std::string source(bytes.begin(), bytes.end());
        ASSERT_FALSE(source.empty()) << group;
        for (std::sregex_iterator type(source.begin(), source.end(), quotedType), end; type != end; ++type) {
            const Walker* walker = walkerFor((*type)[1].str());
            ASSERT_NE(walker, nullptr) << (*type)[1] << " in " << group;
            fed.insert(walker->name);
        }
    }
    for (const auto& walker : allWalkers())
        EXPECT_TRUE(fed.contains(walker.name)) << walker.name;
}

}  // namespace
}  // namespace vantor::test
