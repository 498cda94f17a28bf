// What the found items are grouped by, and what is picked of it.
#include <gtest/gtest.h>

#include "results/FoundFacets.h"
#include "results/TickedItems.h"

namespace vantor {
namespace {

ItemTraits traits(const char* type, std::int32_t day, std::uint64_t bytes, const char* camera = "") {
    return {QString::fromLatin1(type), QString::fromLatin1(camera), day, bytes};
}

class Facets : public ::testing::Test {
  protected:
    Facets() {
        facets.set(0, traits("JPG", 20260517, 4'000'000, "Canon EOS R6"));
        facets.set(1, traits("CR2", 20260517, 24'000'000, "Canon EOS R6"));
        facets.set(2, traits("MP4", 20260518, 2'000'000'000));
        facets.set(3, traits("PDF", 0, 99'999));
        facets.set(4, traits("JPG", 20260518, 100'000));
    }
    std::vector<int> picked(const FacetChoice& choice) const {
        const FoundFacets::Filter filter(facets, choice);
        std::vector<int> items;
        for (int i = 0; i < 6; ++i) {
            if (filter.admits(static_cast<std::size_t>(i))) {
                items.push_back(i);
            }
        }
        return items;
    }
    std::size_t countOf(const char* type) const {
        for (const auto& each : facets.types()) {
            if (each.type == QLatin1String(type)) {
                return each.count;
            }
        }
        return 0;
    }

    FoundFacets facets;
};

TEST(ItemGroups, ATypeIsOfTheGroupThatPeopleLookForItIn) {
    EXPECT_EQ(groupOfType(QStringLiteral("JPG")), ItemGroup::Photos);
    EXPECT_EQ(groupOfType(QStringLiteral("heic")), ItemGroup::Photos);
    EXPECT_EQ(groupOfType(QStringLiteral("CR3")), ItemGroup::CameraRaw);
    EXPECT_EQ(groupOfType(QStringLiteral("nef")), ItemGroup::CameraRaw);
    EXPECT_EQ(groupOfType(QStringLiteral("MP4")), ItemGroup::Movies);
    EXPECT_EQ(groupOfType(QStringLiteral("WAV")), ItemGroup::Sound);
    EXPECT_EQ(groupOfType(QStringLiteral("PDF")), ItemGroup::Documents);
    EXPECT_EQ(groupOfType(QStringLiteral("ZIP")), ItemGroup::Archives);
    EXPECT_EQ(groupOfType(QStringLiteral("XYZZY")), ItemGroup::Other);
}

TEST_F(Facets, CountsFollowTheItems) {
    EXPECT_EQ(countOf("JPG"), 2U);
    EXPECT_EQ(facets.days(), (std::map<std::int32_t, std::size_t>{{0, 1U}, {20260517, 2U}, {20260518, 2U}}));
    EXPECT_EQ(facets.cameras(),
              (std::map<QString, std::size_t>{{QString(), 3U}, {QStringLiteral("Canon EOS R6"), 2U}}));
    EXPECT_EQ(facets.sizes(), (std::vector<std::size_t>{1, 1, 1, 1, 0, 1}));
    EXPECT_EQ(facets.bytes(), 2'028'199'999U);
    const std::uint64_t before = facets.changes();
    EXPECT_EQ(facets.complete(), 0U);
    ItemTraits whole = traits("PDF", 20260517, 1'000'000'000);
    whole.complete = true;
    facets.set(3, whole);
    EXPECT_EQ(facets.complete(), 1U);
    EXPECT_GT(facets.changes(), before);
    EXPECT_EQ(facets.size(), 5U);
    EXPECT_EQ(countOf("PDF"), 1U);
    EXPECT_EQ(facets.days(), (std::map<std::int32_t, std::size_t>{{20260517, 3U}, {20260518, 2U}}));
    EXPECT_EQ(facets.sizes(), (std::vector<std::size_t>{0, 1, 1, 1, 0, 2}));
    EXPECT_EQ(facets.bytesOf(3), 1'000'000'000U);
    facets.clear();
    EXPECT_EQ(facets.size(), 0U);
    EXPECT_TRUE(facets.types().empty());
    EXPECT_EQ(facets.bytes(), 0U);
}

TEST_F(Facets, OfOneKindAnyOfEachKindOne) {
    EXPECT_EQ(picked({}), (std::vector<int>{0, 1, 2, 3, 4, 5})) << "nothing is picked: all are shown";
    FacetChoice choice;
    choice.groups = {ItemGroup::Movies};
    EXPECT_EQ(picked(choice), std::vector<int>{2});
    choice.types = {QStringLiteral("JPG")};
    EXPECT_EQ(picked(choice), (std::vector<int>{0, 2, 4}));
    choice.days = {20260518};
    EXPECT_EQ(picked(choice), (std::vector<int>{2, 4}));
    choice.sizes = {SizeClass::Under1MB};
    EXPECT_EQ(picked(choice), std::vector<int>{4});
    FacetChoice ofCamera;
    ofCamera.cameras = {QStringLiteral("Canon EOS R6")};
    EXPECT_EQ(picked(ofCamera), (std::vector<int>{0, 1}));
}

TEST_F(Facets, LengthsAreClasses_WhoseBoundsBelongToTheLongerOne) {
    EXPECT_EQ(lengthClassOf(0), LengthClass::NotKnown);
    EXPECT_EQ(lengthClassOf(9'999), LengthClass::Under10s);
    EXPECT_EQ(lengthClassOf(10'000), LengthClass::Under1min);
    EXPECT_EQ(lengthClassOf(60'000), LengthClass::Under5min);
    EXPECT_EQ(lengthClassOf(300'000), LengthClass::Under30min);
    EXPECT_EQ(lengthClassOf(1'800'000), LengthClass::Longer);
    ItemTraits movie = traits("MP4", 99991231, 2'000'000'000);
    movie.length = LengthClass::Longer;
    facets.set(2, movie);
    EXPECT_EQ(facets.lengths(), (std::vector<std::size_t>{4, 0, 0, 0, 0, 1}));
    EXPECT_EQ(facets.days().rbegin()->first, 99991231) << "beside it the day is whole";
    FacetChoice choice;
    choice.lengths = {LengthClass::Longer};
    EXPECT_EQ(picked(choice), std::vector<int>{2});
    choice.lengths = {LengthClass::NotKnown};
    EXPECT_EQ(picked(choice), (std::vector<int>{0, 1, 3, 4}));
}

TEST(FoundFacets, MoreNamesThanAnyoneReads_AreCountedAsOne) {
    FoundFacets facets;
    constexpr std::size_t kItems = 70'000;  // more than two bytes can number
    for (std::size_t i = 0; i < kItems; ++i) {
        const QString name = QStringLiteral("T%1").arg(i);
        facets.set(i, {name, name, 0, 1});
    }
    EXPECT_LT(facets.types().size(), 10'000U);
    std::size_t sum = 0;
    for (const auto& each : facets.types()) {
        sum += each.count;
    }
    EXPECT_EQ(sum, kItems);
    EXPECT_LT(facets.cameras().size(), 10'000U);
}

TEST(DayNumber, IsThatOfThisPlace_AndZeroForWhatIsNoDate) {
    EXPECT_EQ(dayNumber(CivilTime{2026, 5, 17, 23, 59, 60, false}), 20260517);
    EXPECT_EQ(dayNumber(CivilTime{2026, 2, 30, 0, 0, 0, false}), 0);
    EXPECT_EQ(dayNumber(CivilTime{0, 0, 0, 0, 0, 0, true}), 0);
    EXPECT_EQ(dayNumber(std::numeric_limits<std::int64_t>::max()), 0);
    Soundness dated;
    dated.taken = CivilTime{2026, 5, 17};
    CardFile file;
    file.modified = 1'700'000'000;
    EXPECT_EQ(dayOf(&dated, &file), 20260517) << "the file's own date goes before the card's";
    EXPECT_EQ(dayOf(nullptr, &file) / 100, 202311);
    EXPECT_EQ(dayOf(nullptr, nullptr), 0);
}

TEST(TickedItems, AreCountedOnce) {
    TickedItems ticks;
    ticks.set(7, true);
    ticks.set(7, true);
    ticks.set(2, true);
    ticks.set(100, false);
    EXPECT_EQ(ticks.count(), 2U);
    EXPECT_EQ(ticks.all(), (QList<qsizetype>{2, 7}));
    ticks.set(7, false);
    EXPECT_FALSE(ticks.isTicked(7));
    EXPECT_EQ(ticks.all(), QList<qsizetype>{2});
    ticks.clear();
    EXPECT_EQ(ticks.count(), 0U);
}

}  // namespace
}  // namespace vantor
