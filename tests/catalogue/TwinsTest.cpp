// The records whose items open together on one header: exactly those that are wanted.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "catalogue/SignatureRecord.h"
#include "tests/catalogue/CorpusScan.h"

namespace vantor {
namespace {

struct Twins {
    RecoveryMode mode;
    bool general;
    const char* first;  // the type whose record matches
    const char* second;
    const char* why;
};

constexpr const char* kOffice =
    "the name of the first entry is alike in all three; the kind stands further in";
constexpr const char* kCompound = "the first sector of a compound document does not name the program";

constexpr Twins kWanted[] = {
    {kRawFileMode, true, "DOCX", "XLSX", kOffice},
    {kRawFileMode, true, "DOCX", "PPTX", kOffice},
    {kRawFileMode, true, "XLSX", "PPTX", kOffice},
    {kRawFileMode, true, "DOC", "XLS", kCompound},
    {kRawFileMode, true, "DOC", "PPT", kCompound},
    {kRawFileMode, true, "XLS", "PPT", kCompound},
    {kRawFileMode, true, "WMV", "WMA", "one container; whether it holds pictures stands at a changing place"},
    {kRawFileMode, false, "MSG", "VSD", kCompound},
};

using Pair = std::pair<std::string, std::string>;

// The rule of the raw scan: when record i matches, every later record opens whose header text lies within
// that of i, or holds it at the same offset.
bool opensTogether(const QStringList& records, qsizetype i, qsizetype j) {
    const QString& matching = recordField(records, i, Header_Hex);
    const QString& other = recordField(records, j, Header_Hex);
    return matching.contains(other) ||
           (other.contains(matching) &&
            recordField(records, i, Header_Offset) == recordField(records, j, Header_Offset));
}

std::multiset<Pair> pairsIn(const QStringList& records) {
    std::multiset<Pair> pairs;
    for (qsizetype i = 0; i < recordCount(records); ++i) {
        for (qsizetype j = i + 1; j < recordCount(records); ++j) {
            if (opensTogether(records, i, j)) {
                pairs.insert({recordField(records, i, Ext_Name).toStdString(),
                              recordField(records, j, Ext_Name).toStdString()});
            }
        }
    }
    return pairs;
}

std::multiset<Pair> wantedIn(RecoveryMode mode, bool general) {
    std::multiset<Pair> pairs;
    for (const Twins& twins : kWanted) {
        if (twins.mode == mode && twins.general == general) {
            pairs.insert({twins.first, twins.second});
        }
    }
    return pairs;
}

}  // namespace

TEST(ShippedTwins, NoRecordsOpenTogetherButTheWantedOnes) {
    const ShippedRecords records;
    for (const Twins& twins : kWanted) {
        std::printf("%s mode, %s pass: %s opens with %s, since %s\n", nameOf(twins.mode),
                    twins.general ? "general" : "thorough", twins.second, twins.first, twins.why);
    }
    for (const RecoveryMode mode : {kVideoMode, kRawFileMode}) {
        EXPECT_EQ(pairsIn(records.general(mode)), wantedIn(mode, true)) << nameOf(mode);
        EXPECT_EQ(pairsIn(records.thorough(mode)), wantedIn(mode, false)) << nameOf(mode) << ", thorough";
    }
}

// A card with nothing but the headers of all records, one a sector, through the engine itself.
TEST(ShippedTwins, EachHeaderAloneOpensItsTypeAndItsWantedTwins) {
    const ShippedRecords shipped;
    for (const RecoveryMode mode : {kVideoMode, kRawFileMode}) {
        const QStringList& records = shipped.general(mode);
        ScriptedMedium card(static_cast<std::size_t>(recordCount(records)) + 1);
        for (qsizetype n = 0; n < recordCount(records); ++n) {
            const QByteArray header = QByteArray::fromHex(recordField(records, n, Header_Hex).toLatin1());
            const auto at = recordField(records, n, Header_Offset).toULongLong() - 1;
            card.put(static_cast<std::size_t>(n), header.toStdString(), at);
        }
        const auto wanted = wantedIn(mode, true);
        const auto items = scanCard(shipped, mode, card);
        for (qsizetype n = 0; n < recordCount(records); ++n) {
            const QString type = recordField(records, n, Ext_Name);
            const QStringList opened = typesFirstOpenedAt(items, static_cast<std::uint64_t>(n));
            EXPECT_EQ(opened.count(type), 1) << nameOf(mode) << ": " << type.toStdString() << ' '
                                             << recordField(records, n, Header_Hex).toStdString();
            for (const QString& other : opened) {
                EXPECT_TRUE(other == opened.first() ||
                            wanted.contains({opened.first().toStdString(), other.toStdString()}))
                    << opened.join('+').toStdString();
            }
        }
    }
}

}  // namespace vantor
