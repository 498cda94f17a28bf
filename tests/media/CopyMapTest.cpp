// Maps of copies: their runs, their text, and images read through them.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <random>
#include <vector>

#include "media/CopyMapFile.h"
#include "media/CopyMapText.h"
#include "media/MappedImage.h"
#include "media/RawDevice.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"

namespace vantor {
namespace {

constexpr CopyState kStates[] = {CopyState::NotTried, CopyState::NotTrimmed, CopyState::NotScraped,
                                 CopyState::Bad, CopyState::Copied};

std::vector<CopyRun> runsOf(const CopyMap& map) {
    std::vector<CopyRun> runs;
    for (std::uint64_t at = 0; at < map.bytes(); at = runs.back().end) {
        runs.push_back(map.at(at));
    }
    return runs;
}

QString refusalOf(const QByteArray& text) {
    QString why;
    EXPECT_FALSE(readCopyMap(text, &why)) << text.constData();
    return why;
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

}  // namespace

TEST(CopyMap, AgreesWithAStateForEachByte) {
    std::mt19937 random(7);
    constexpr std::uint64_t kBytes = 300;
    CopyMap map(kBytes);
    std::vector<CopyState> plain(kBytes, CopyState::NotTried);
    for (int step = 0; step < 2000; ++step) {
        const std::uint64_t first = random() % (kBytes + 20);
        const std::uint64_t end = first + random() % 60;
        const CopyState state = kStates[random() % 5];
        map.set(first, end, state);
        for (std::uint64_t byte = first; byte < std::min(end, kBytes); ++byte) {
            plain[byte] = state;
        }
        for (const CopyState asked : kStates) {
            ASSERT_EQ(map.bytesIn(asked),
                      static_cast<std::uint64_t>(std::count(plain.begin(), plain.end(), asked)));
            const std::uint64_t from = random() % kBytes, until = random() % (kBytes + 50);
            std::uint64_t at = from;
            while (at < std::min(until, kBytes) && plain[at] != asked) {
                ++at;
            }
            const auto run = map.firstOf(asked, from, until);
            ASSERT_EQ(run.has_value(), at < std::min(until, kBytes));
            ASSERT_TRUE(!run || run->first == at);
            std::uint64_t back = std::min(until, kBytes);
            while (back > from && plain[back - 1] != asked) {
                --back;
            }
            const auto last = map.lastOf(asked, from, until);
            ASSERT_EQ(last.has_value(), back > from);
            ASSERT_TRUE(!last || last->end == back);
        }
        const std::vector<CopyRun> runs = runsOf(map);
        ASSERT_EQ(runs.size(), map.runs());
        for (std::size_t i = 0; i < runs.size(); ++i) {
            ASSERT_TRUE(i == 0 || runs[i - 1].state != runs[i].state) << "neighbours alike";
            for (std::uint64_t byte = runs[i].first; byte < runs[i].end; ++byte) {
                ASSERT_EQ(plain[byte], runs[i].state);
            }
        }
    }
}

TEST(CopyMap, OnlyWholeSectorsCountAsCopied) {
    CopyMap map(5 * 512 + 100);
    map.set(100, 2000, CopyState::Copied);
    map.set(2000, 2100, CopyState::Bad);
    map.set(2100, 5 * 512 + 100, CopyState::Copied);
    EXPECT_EQ(runsOf(map.ofWholeSectors()), (std::vector<CopyRun>{{0, 512, CopyState::NotTried},
                                                                  {512, 1536, CopyState::Copied},
                                                                  {1536, 2560, CopyState::Bad}}));
}

TEST(CopyMapText, ReadsWhatTheToolWrites) {
    const auto map = readCopyMap(
        "# Mapfile. Created by GNU ddrescue version 1.27\n"
        "# Command line: ddrescue -d /dev/sdb card.img card.map\n"
        "# current_pos  current_status  current_pass\n"
        "0x00014A00     *               3\n"
        "#      pos        size  status\n"
        "0x00000000  0x00010000  +\n"
        "0x00010000  02000  *   # octal\n"
        "66560\t512 -\r\n"
        "0x00010600  0x00000A00  /\n"
        "0x00011000  0x00009000  ?");
    ASSERT_TRUE(map);
    EXPECT_EQ(map->position.at, 0x14A00U);
    EXPECT_EQ(map->position.phase, '*');
    EXPECT_EQ(map->position.pass, 3U);
    EXPECT_EQ(runsOf(*map), (std::vector<CopyRun>{{0, 0x10000, CopyState::Copied},
                                                  {0x10000, 0x10400, CopyState::NotTrimmed},
                                                  {0x10400, 0x10600, CopyState::Bad},
                                                  {0x10600, 0x11000, CopyState::NotScraped},
                                                  {0x11000, 0x1A000, CopyState::NotTried}}));
}

TEST(CopyMapText, AnOlderMapHasNoPassAndMayBeginLater) {
    const auto map = readCopyMap("0 +\n512 512 +\n");
    ASSERT_TRUE(map);
    EXPECT_EQ(map->position.pass, 1U);
    EXPECT_EQ(runsOf(*map),
              (std::vector<CopyRun>{{0, 512, CopyState::NotTried}, {512, 1024, CopyState::Copied}}));
}

TEST(CopyMapText, SaysWhatIsWrongAndWhere) {
    const QByteArray head = "# comment\n0 ? 1\n";
    EXPECT_EQ(refusalOf(head + "0 512 +\n1024 512 -\n"), "line 4: there is a gap before it");
    EXPECT_EQ(refusalOf(head + "0 512 +\n\n256 512 -\n"), "line 5: it overlaps with the line before");
    const QString run = "line 3: a position, a size and one of ?*/-+ are expected";
    for (const char* bad : {"0 512 x", "0 512", "0 512 + 1", "0 512 ++", "0 -512 +", "-1 512 +", "0x 512 +",
                            "0 1e3 +", "08 1 +", "0 512 F", "0x8000000000000000 1 +",
                            "99999999999999999999999 1 +", "0 0x1FFFFFFFFFFFFFFFF +"}) {
        EXPECT_EQ(refusalOf(head + bad), run) << bad;
    }
    EXPECT_EQ(refusalOf(head + "0x7FFFFFFFFFFFFFFF 1 +"), "line 3: the size cannot be");
    EXPECT_EQ(refusalOf(head + "0 0 +"), "line 3: the size cannot be");
    EXPECT_EQ(refusalOf(head + "0 512 +" + QByteArray(400, ' ') + "+\n"), "line 3: the line is too long");
    const QString position = "a position, one of ?*/-FG+ and a pass are expected";
    for (const char* bad : {"hello", "0", "0 x 1", "0 ? 1 2", "? 0", "\xFF\xD8\xFF"}) {
        EXPECT_EQ(refusalOf(bad), "line 1: " + position) << bad;
    }
    EXPECT_EQ(refusalOf(""), "there is no line that tells the position");
    EXPECT_EQ(refusalOf("# only\n# comments\n"), "there is no line that tells the position");
}

TEST(CopyMapText, MoreRunsThanAreKeptAreRefused) {
    QByteArray text = "0 ? 1\n";
    for (std::size_t i = 0; i <= CopyMap::kMostRuns; ++i) {
        text += QByteArray::number(static_cast<qulonglong>(i)) + (i % 2 == 0 ? " 1 +\n" : " 1 -\n");
    }
    EXPECT_TRUE(refusalOf(text).endsWith("there are too many lines"));
}

TEST(CopyMapText, WhatIsWrittenIsReadBack) {
    std::mt19937_64 random(11);
    for (int round = 0; round < 200; ++round) {
        CopyMap map(1 + random() % (std::uint64_t{1} << 40));
        for (int step = 0; step < 30; ++step) {
            const std::uint64_t first = random() % map.bytes();
            map.set(first, first + random() % (std::uint64_t{1} << 37), kStates[random() % 5]);
        }
        map.position = {random() % map.bytes(), "?*/-FG+"[random() % 7], random() % 9};
        const QByteArray text = writeCopyMap(map);
        EXPECT_TRUE(claimsToBeCopyMap(text));
        const auto again = readCopyMap(text);
        ASSERT_TRUE(again) << text.constData();
        EXPECT_EQ(runsOf(*again), runsOf(map));
        EXPECT_EQ(again->position.at, map.position.at);
        EXPECT_EQ(again->position.phase, map.position.phase);
        EXPECT_EQ(again->position.pass, map.position.pass);
    }
}

class MappedImages : public testing::Test {
  protected:
    void SetUp() override {
        QByteArray bytes;
        for (int sector = 0; sector < 1200; ++sector) {
            bytes += QByteArray(512, static_cast<char>('a' + sector % 26));
        }
        writeFile(m_image, bytes);
    }

    QString pathOf(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    void writeMap(const char* name, std::uint64_t sectors, const std::vector<CopyRun>& runs) const {
        CopyMap map(sectors * 512);
        for (const CopyRun& run : runs) {
            map.set(run.first * 512, run.end * 512, run.state);
        }
        ASSERT_FALSE(storeCopyMap(pathOf(name), map));
    }

    // The sectors that cannot be read when all are asked for in turn.
    std::vector<std::uint64_t> unreadable(const OpenTerms& terms = {}) const {
        std::vector<std::uint64_t> refused;
        const auto reader = openMedium(m_image, terms);
        if (!reader) {
            return {~std::uint64_t{0}};
        }
        for (std::uint64_t sector = 0; sector < reader->mediumSectors(); ++sector) {
            if (!reader->seek(sector) || !reader->read()) {
                refused.push_back(sector);
            } else {
                EXPECT_EQ(reader->current()[0], 'a' + sector % 26);
            }
        }
        EXPECT_FALSE(reader->isGone());
        return refused;
    }

    const QTemporaryDir m_folder;
    const QString m_image = m_folder.filePath("card.img");
};

TEST_F(MappedImages, PlacesThatWereNotReadAreUnreadable) {
    EXPECT_TRUE(unreadable().empty());
    writeMap("card.img.map", 1200,
             {{0, 1200, CopyState::Copied},
              {3, 4, CopyState::Bad},
              {700, 702, CopyState::NotScraped},
              {900, 901, CopyState::NotTrimmed},
              {1199, 1200, CopyState::NotTried}});
    EXPECT_EQ(unreadable(), (std::vector<std::uint64_t>{3, 700, 701, 900, 1199}));
    EXPECT_EQ(probeMedium(m_image)->notRead, 5U);
}

TEST_F(MappedImages, AnImageThatEndsEarlyIsAsLongAsItsMedium) {
    writeMap("card.map", 1202, {{0, 1201, CopyState::Copied}});
    EXPECT_EQ(probeMedium(m_image)->sectors, 1202U);
    EXPECT_EQ(unreadable(), (std::vector<std::uint64_t>{1200, 1201}));
    writeMap("card.map", 10, {{0, 9, CopyState::Copied}});
    EXPECT_EQ(probeMedium(m_image)->sectors, 1200U);
    EXPECT_EQ(unreadable(), (std::vector<std::uint64_t>{9}));
}

TEST_F(MappedImages, TheMapIsTheOneNamedOrTheFirstBeside) {
    EXPECT_EQ(mapBeside(m_image), "");
    writeFile(pathOf("card.log"), "a log of something else\n");
    EXPECT_EQ(mapBeside(m_image), "") << "a log that does not say that it is a map";
    writeFile(pathOf("card.log"), "# Rescue Logfile. Created by GNU ddrescue version 1.16\n0 +\n0 512 +\n");
    for (const char* name :
         {"card.log", "card.img.log", "card.mapfile", "card.img.mapfile", "card.map", "card.img.map"}) {
        writeMap(name, 1200, {{0, 1200, CopyState::Copied}});
        EXPECT_EQ(mapBeside(m_image), pathOf(name));
    }
    writeMap("other.map", 1200, {{1, 1200, CopyState::Copied}});
    OpenTerms terms;
    terms.map = pathOf("other.map");
    EXPECT_EQ(unreadable(terms), (std::vector<std::uint64_t>{0}));
}

TEST_F(MappedImages, AFullDiskLeavesTheMapThatWasThere) {
    CopyMap map(64 * 512);
    map.set(0, 512, CopyState::Copied);
    ASSERT_FALSE(storeCopyMap(pathOf("card.img.map"), map));
    map.set(512, 1024, CopyState::Copied);
    std::optional<QString> trouble;
    {
        const test::FullDisk full;
        trouble = storeCopyMap(pathOf("card.img.map"), map);
    }
    EXPECT_TRUE(trouble);
    const auto kept = loadCopyMap(pathOf("card.img.map"));
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->bytesIn(CopyState::Copied), 512U);
}

TEST_F(MappedImages, ABadMapIsAReasonNotToOpen) {
    writeFile(pathOf("card.map"), "0 ? 1\n0 512 +\n1024 512 +\n");
    QString why;
    EXPECT_FALSE(probeMedium(m_image, &why));
    EXPECT_EQ(why, "The map “card.map” cannot be used: line 3: there is a gap before it");
    EXPECT_EQ(openMedium(m_image), nullptr);
    EXPECT_FALSE(probeMedium(m_image, &why, pathOf("absent.map")));
    EXPECT_EQ(why, "The map “absent.map” cannot be used: it is not there");
    EXPECT_FALSE(probeMedium(m_image, &why, m_folder.path()));
    EXPECT_TRUE(why.endsWith("it is no file")) << why.toStdString();
}

TEST_F(MappedImages, TheRescueToolGoesOnWithOurMap) {
    const QString tool = QStandardPaths::findExecutable("ddrescue");
    if (tool.isEmpty()) {
        GTEST_SKIP() << "ddrescue (package gddrescue) is not installed";
    }
    writeMap("copy.map", 1200, {{0, 500, CopyState::Copied}, {500, 600, CopyState::Bad}});
    writeFile(pathOf("copy.img"), QByteArray(500 * 512, 'x'));
    ASSERT_EQ(QProcess::execute(tool, {"-q", m_image, pathOf("copy.img"), pathOf("copy.map")}), 0);
    const auto map = loadCopyMap(pathOf("copy.map"));
    ASSERT_TRUE(map);
    EXPECT_EQ(runsOf(*map), (std::vector<CopyRun>{{0, 500 * 512, CopyState::Copied},
                                                  {500 * 512, 600 * 512, CopyState::Bad},
                                                  {600 * 512, 1200 * 512, CopyState::Copied}}));
    const QByteArray copy = contentsOf(pathOf("copy.img"));
    EXPECT_EQ(copy.left(500 * 512), QByteArray(500 * 512, 'x'));
    EXPECT_EQ(copy.mid(600 * 512), contentsOf(m_image).mid(600 * 512));
}

}  // namespace vantor
