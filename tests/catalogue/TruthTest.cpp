// Every real file, alone on a card and among all the others, is found where it begins and as what it is.
#include <gtest/gtest.h>

#include <QSet>
#include <algorithm>
#include <map>
#include <set>

#include "scan/ScanSession.h"
#include "tests/catalogue/CorpusScan.h"
#include "tests/catalogue/KnownConfusions.h"

namespace vantor {
namespace {

constexpr std::uint64_t kPlace = 5;
constexpr std::uint64_t kSectorsBehind = 3;
// Attachments and members are whole files at sector boundaries; TAR itself waits for the thorough pass.
const QSet<QString> kHoldOtherFiles = {"MSG", "TAR"};
constexpr RecoveryMode kSearchModes[] = {kPhotoMode, kVideoMode, kRawFileMode};

class Truth : public testing::Test {
  protected:
    void SetUp() override {
        m_folder = test::corpusRoot();
        if (m_folder.empty()) {
            GTEST_SKIP() << "no corpus: set VANTOR_CORPUS";
        }
        m_files = soundCorpusFiles(m_folder);
        ASSERT_GT(m_files.size(), 200U);
    }

    // A card with the file alone on it, between sectors of noise.
    ScriptedMedium cardWith(const LaidFile& laid) const {
        ScriptedMedium card(kPlace + laid.sectors + kSectorsBehind);
        const test::Bytes noise = test::noise(kSectorBytes, 7);
        for (std::uint64_t sector = 0; sector < card.bytes.size(); ++sector) {
            if (sector < kPlace || sector >= kPlace + laid.sectors) {
                std::copy(noise.begin(), noise.end(), card.bytes[sector].begin());
            }
        }
        lay(card, m_folder, laid.file, kPlace);
        return card;
    }

    // All files one after another, as a camera writes them; fills in where each begins.
    ScriptedMedium cardWithAll() {
        std::uint64_t end = kPlace;
        for (LaidFile& laid : m_files) {
            laid.sector = end;
            end += laid.sectors;
        }
        ScriptedMedium card(end + kSectorsBehind);
        for (const LaidFile& laid : m_files) {
            lay(card, m_folder, laid.file, laid.sector);
        }
        return card;
    }

    std::filesystem::path m_folder;
    std::vector<LaidFile> m_files;
    ShippedRecords m_records;
};

}  // namespace

TEST_F(Truth, FileAloneOnACard_IsTheFirstItem) {
    for (const RecoveryMode mode : kSearchModes) {
        int right = 0;
        int known = 0;
        for (const LaidFile& laid : m_files) {
            if (!m_records.lists(mode, laid.type)) {
                continue;
            }
            ScriptedMedium card = cardWith(laid);
            const auto items = scanCard(m_records, mode, card);
            const QStringList first = typesFirstOpenedAt(items, kPlace);
            const QString foundAs = first.isEmpty() ? QString() : first.first();
            if (!first.contains(laid.type)) {
                EXPECT_NE(confusionOf(laid.type, foundAs), nullptr)
                    << nameOf(mode) << ": " << laid.file.path << " is found as \"" << foundAs.toStdString()
                    << '"';
                ++known;
                continue;
            }
            EXPECT_TRUE(items.front().first == kPlace || kHoldOtherFiles.contains(laid.type))
                << nameOf(mode) << ": " << laid.file.path;
            ++right;
        }
        std::printf("%s mode: %d files of its types first under their own, %d confusions\n", nameOf(mode),
                    right, known);
        EXPECT_GT(right, 30) << nameOf(mode);
    }
}

// Whoever knows what was lost ticks that type alone; nothing else is then in the way.
TEST_F(Truth, FileWhoseTypeAloneIsTicked_IsTheFirstItemUnderIt) {
    for (const RecoveryMode mode : {kVideoMode, kRawFileMode}) {
        std::set<QString> notFound;
        int right = 0;
        for (const LaidFile& laid : m_files) {
            if (!m_records.lists(mode, laid.type)) {
                continue;
            }
            ScriptedMedium card = cardWith(laid);
            const auto items = scanCard(m_records, mode, card, laid.type);
            if (items.empty() || items.front().first != kPlace) {
                notFound.insert(laid.type);
                continue;
            }
            EXPECT_EQ(items.front().type, laid.type) << laid.file.path;
            ++right;
        }
        std::printf("%s mode: %d files are the first item when their type alone is ticked\n", nameOf(mode),
                    right);
        EXPECT_GT(right, 30);
        for (const QString& type : notFound) {
            const bool known =
                std::any_of(std::begin(kKnownConfusions), std::end(kKnownConfusions),
                            [&](const KnownConfusion& c) { return type == QLatin1String(c.type); });
            EXPECT_TRUE(known) << nameOf(mode) << ": " << type.toStdString();
        }
    }
}

TEST_F(Truth, WholeCorpusOnOneCard_GivesEachFileUnderItsType) {
    ScriptedMedium card = cardWithAll();
    std::set<const KnownConfusion*> met;
    for (const RecoveryMode mode : kSearchModes) {
        const auto items = scanCard(m_records, mode, card);
        int right = 0;
        std::map<std::pair<QString, QString>, int> table;
        for (const LaidFile& laid : m_files) {
            const QStringList types = typesFirstOpenedAt(items, laid.sector);
            if (types.contains(laid.type)) {
                ++right;
            } else if (!types.isEmpty() || m_records.lists(mode, laid.type)) {
                ++table[{laid.type, types.isEmpty() ? QString() : types.first()}];
            }
        }
        std::printf("%s mode: %d files on one card first under their own type, %d confusions\n", nameOf(mode),
                    right, static_cast<int>(table.size()));
        for (const auto& [pair, count] : table) {
            const KnownConfusion* known = confusionOf(pair.first, pair.second);
            std::printf("  %d x %s found as %s: %s\n", count, qPrintable(pair.first),
                        pair.second.isEmpty() ? "nothing" : qPrintable(pair.second),
                        known == nullptr ? "NOT EXPLAINED" : known->why);
            EXPECT_NE(known, nullptr) << qPrintable(pair.first) << " as " << qPrintable(pair.second);
            met.insert(known);
        }
        EXPECT_GT(right, 30) << nameOf(mode);
    }
    for (const KnownConfusion& known : kKnownConfusions) {
        EXPECT_TRUE(met.contains(&known))
            << known.type << " is no longer found as \"" << known.foundAs << '"';
    }
}

// A header inside a file ends its item there, so the general pass may know none but those of whole files.
TEST_F(Truth, GeneralPass_CutsNoFileOfItsTypesShort) {
    ScriptedMedium card = cardWithAll();
    for (const RecoveryMode mode : kSearchModes) {
        int whole = 0;
        for (const FoundItem& item : scanCard(m_records, mode, card)) {
            const auto laid = std::find_if(m_files.begin(), m_files.end(),
                                           [&](const LaidFile& l) { return l.sector == item.first; });
            if (laid == m_files.end() || item.pass != kGeneralPass || kHoldOtherFiles.contains(laid->type)) {
                continue;
            }
            EXPECT_GE(item.end, laid->sector + laid->sectors) << nameOf(mode) << ": " << laid->file.path;
            ++whole;
        }
        EXPECT_GT(whole, 30) << nameOf(mode);
    }
}

}  // namespace vantor
