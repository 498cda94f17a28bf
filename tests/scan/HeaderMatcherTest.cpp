// The compiled header match, by its rules and against the plain transcription.
#include <gtest/gtest.h>

#include "scan/HeaderMatcher.h"
#include "tests/scan/PlainScan.h"
#include "tests/scan/RandomScans.h"
#include "tests/support/Records.h"

namespace vantor {
namespace {

ScriptedMedium::Sector sectorWith(std::string_view text, std::size_t at, std::uint8_t filler = 0x7A) {
    ScriptedMedium::Sector sector;
    sector.fill(filler);
    std::memcpy(sector.data() + at, text.data(), text.size());
    return sector;
}

bool matches(const TestRecord& record, const ScriptedMedium::Sector& sector) {
    return HeaderMatcher(recordsOf({record})).firstMatch(sector.data()).has_value();
}

}  // namespace

TEST(HeaderMatcher, RuleOneComparesAtTheFirstByteOnly) {
    EXPECT_TRUE(matches({"A", "41424344"}, sectorWith("ABCD", 0)));
    EXPECT_FALSE(matches({"A", "41424344"}, sectorWith("ABCD", 1)));
}

TEST(HeaderMatcher, NumericRuleComparesAtItsOneOffset) {
    EXPECT_TRUE(matches({"A", "66747970", "5"}, sectorWith("ftyp", 4)));
    EXPECT_FALSE(matches({"A", "66747970", "5"}, sectorWith("ftyp", 5)));
    EXPECT_TRUE(matches({"A", "66747970", "5x"}, sectorWith("ftyp", 4)));
}

TEST(HeaderMatcher, LastNumericOffsetIs507) {
    EXPECT_TRUE(matches({"A", "414243444546", "507"}, sectorWith("ABCDEF", 506)));
    EXPECT_FALSE(matches({"A", "4142434445", "508"}, sectorWith("ABCDE", 507)));
    EXPECT_FALSE(matches({"A", "41424344454647", "507"}, sectorWith("ABCDEF", 506)));
}

TEST(HeaderMatcher, OffsetsBelowOneNeverMatch) {
    for (const char* rule : {"0", "-3", "", "NN", "x"}) {
        EXPECT_FALSE(matches({"A", "4141", rule}, sectorWith("", 0, 0x41))) << rule;
    }
    EXPECT_TRUE(matches({"A", "4141", "01"}, sectorWith("", 0, 0x41)));
}

TEST(HeaderMatcher, NarrowSearchMovesOnlyOverItsFirstByte) {
    EXPECT_TRUE(matches({"A", "414243", "nn"}, sectorWith("ABC", 0)));
    EXPECT_FALSE(matches({"A", "414243", "nn"}, sectorWith("ABC", 40)));
    auto behindItsFirstByte = sectorWith("ABC", 40);
    std::fill_n(behindItsFirstByte.begin(), 40, 0x41);
    EXPECT_TRUE(matches({"A", "414243", "nn"}, behindItsFirstByte));
    // After a partial match it goes on at the byte that differed.
    EXPECT_TRUE(matches({"A", "414243", "nn"}, sectorWith("ABABC", 0)));
    EXPECT_TRUE(matches({"A", "41414243", "nn"}, sectorWith("AAAABC", 0)));
    EXPECT_FALSE(matches({"A", "41414243", "nn"}, sectorWith("AAABC", 0)));
}

TEST(HeaderMatcher, NothingMatchesBeyondTheSector) {
    EXPECT_FALSE(matches({"A", "4142", "nn"}, sectorWith("", 0, 0x41)));
    const QByteArray longHex = QByteArray("41").repeated(513);
    EXPECT_FALSE(matches({"A", longHex.constData()}, sectorWith("", 0, 0x41)));
    EXPECT_FALSE(matches({"A", longHex.constData(), "nn"}, sectorWith("", 0, 0x41)));
    EXPECT_TRUE(matches({"A", QByteArray("41").repeated(512).constData()}, sectorWith("", 0, 0x41)));
}

TEST(HeaderMatcher, EmptyAndOneDigitHeadersNeverMatch) {
    EXPECT_FALSE(matches({"A", ""}, sectorWith("", 0)));
    EXPECT_FALSE(matches({"A", "7"}, sectorWith("", 0, 0x07)));
}

TEST(HeaderMatcher, OddTrailingDigitIsIgnored) {
    EXPECT_TRUE(matches({"A", "41424"}, sectorWith("AB", 0)));
}

TEST(HeaderMatcher, FirstByteOfAnotherLineMustAgree) {
    QStringList records = recordsOf({{"A", "4142"}});
    records[6] = "66";
    EXPECT_FALSE(HeaderMatcher(records).firstMatch(sectorWith("AB", 0).data()).has_value());
    records[6] = "";
    EXPECT_FALSE(HeaderMatcher(records).firstMatch(sectorWith("AB", 0).data()).has_value());
    // Without a header line the first byte is 0, which a header of that byte may match.
    QStringList zero = recordsOf({{"A", "0042"}});
    zero[6] = "";
    EXPECT_TRUE(HeaderMatcher(zero).firstMatch(sectorWith(std::string_view("\0B", 2), 0).data()).has_value());
}

TEST(HeaderMatcher, FirstRecordInListOrderWins) {
    const auto records = recordsOf({{"A", "5A5A", "2"}, {"B", "4142"}, {"C", "41"}, {"D", "414243"}});
    EXPECT_EQ(HeaderMatcher(records).firstMatch(sectorWith("ABC", 0).data()), 1);
}

TEST(HeaderMatcher, IncompleteLastRecordIsNotExamined) {
    QStringList records = recordsOf({{"A", "4142"}});
    records << "B"
            << "100"
            << "5A5A";
    EXPECT_FALSE(HeaderMatcher(records).firstMatch(sectorWith("ZZ", 0).data()).has_value());
}

TEST(HeaderMatcher, AgreesWithThePlainMatchOnRandomCataloguesAndSectors) {
    RandomScans random(20260517);
    int matched = 0;
    for (int round = 0; round < 2000; ++round) {
        const QStringList records = random.records(1 + random.below(30));
        const HeaderMatcher matcher(records);
        for (int i = 0; i < 10; ++i) {
            const auto sector = random.sector();
            const auto expected = plain::firstMatch(records, sector);
            ASSERT_EQ(matcher.firstMatch(sector.data()), expected) << "round " << round;
            matched += expected ? 1 : 0;
        }
    }
    EXPECT_GT(matched, 2000);
    EXPECT_LT(matched, 18000);
}

// Headers of four bytes and more at few places each, as the fields of a directory have them.
TEST(HeaderMatcher, AgreesWithThePlainMatchOnManyStartBytes) {
    RandomScans random(11);
    int matched = 0;
    for (int round = 0; round < 400; ++round) {
        QStringList records;
        for (std::uint64_t n = 5 + random.below(60); n > 0; --n) {
            QByteArray hex;
            for (std::uint64_t bytes = 3 + random.below(4); bytes > 0; --bytes) {
                hex += random.oneIn(2) ? "41" : "42";
            }
            const QByteArray offset = QByteArray::number(static_cast<int>(1 + random.below(507)));
            records += recordsOf({{"A", hex.constData(), offset.constData()}});
        }
        const HeaderMatcher matcher(records);
        for (int i = 0; i < 20; ++i) {
            ScriptedMedium::Sector sector;
            for (std::uint8_t& byte : sector) {
                byte = static_cast<std::uint8_t>(random.oneIn(3) ? 0x43 : 0x41 + random.below(2));
            }
            const auto expected = plain::firstMatch(records, sector);
            ASSERT_EQ(matcher.firstMatch(sector.data()), expected) << "round " << round;
            matched += expected ? 1 : 0;
        }
    }
    EXPECT_GT(matched, 1000);
    EXPECT_LT(matched, 7000);
}

}  // namespace vantor
