// The house: a file includes only its own room and rooms below it.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

namespace {

// The rooms of a tree, a floor a line from the ground up; what stands on one floor knows nothing of its
// neighbours. A folder within a room is a room of its own where it is named here.
const QStringList kFloors{
    "formats",
    "catalogue",
    "media",
    "filesystem",
    "decode",
    "decode/helper",
    "decode/card decode/evidence decode/movie decode/plugins",
    "results",
    "repair",
    "saving",
    "scan",
    "cli window/widgets",
    "window/panels",
    "window/browser window/keeping window/mending window/preview window/saving",
    "window",
};
// These stand beside the house: they may include nobody, and nobody them.
const QStringList kBesides{"resources", "samples"};

QString roomOf(QString folder) {
    static const QStringList rooms = kFloors.join(' ').split(' ') + kBesides;
    while (!folder.isEmpty() && !rooms.contains(folder)) {
        folder = folder.section('/', 0, -2);
    }
    return folder;
}

qsizetype floorOf(const QString& room) {
    for (qsizetype floor = 0; floor < kFloors.size(); ++floor) {
        if (kFloors[floor].split(' ').contains(room)) {
            return floor;
        }
    }
    return -1;
}

bool mayInclude(const QString& from, const QString& to) {
    return from == to || (floorOf(from) >= 0 && floorOf(to) >= 0 && floorOf(to) < floorOf(from));
}

// What a source file of the tree includes of it: paths from the tree's root.
QStringList includesOf(const QString& path) {
    static const QRegularExpression include("^\\s*#\\s*include\\s+\"([^\"]+)\"",
                                            QRegularExpression::MultilineOption);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QStringList found;
    for (auto hit = include.globalMatch(QString::fromUtf8(file.readAll())); hit.hasNext();) {
        found << hit.next().captured(1);
    }
    return found;
}

// "scan/Naming.cpp includes window/Exit.h" for each that points up or sideways, and how many were looked at.
struct Verdict {
    QStringList offenders;
    int includes = 0;
};

Verdict lookThrough(const QDir& tree) {
    Verdict verdict;
    QStringList tops;
    for (const QString& room : kFloors.join(' ').split(' ') + kBesides) {
        tops << room.section('/', 0, 0);
    }
    tops.removeDuplicates();
    for (const QString& top : tops) {
        QDirIterator files(tree.filePath(top), {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = tree.relativeFilePath(files.next());
            const QString room = roomOf(file.section('/', 0, -2));
            for (const QString& included : includesOf(tree.filePath(file))) {
                if (!tree.exists(included)) {
                    continue;  // made by the build, or a neighbour in the same folder
                }
                ++verdict.includes;
                if (!mayInclude(room, roomOf(included.section('/', 0, -2)))) {
                    verdict.offenders << file + " includes " + included;
                }
            }
        }
    }
    return verdict;
}

TEST(Floors, NothingIncludesARoomAboveItsOwn) {
    const Verdict verdict = lookThrough(QDir(VANTOR_SOURCE_DIR));
    EXPECT_EQ(verdict.offenders.join('\n').toStdString(), "");
    EXPECT_GT(verdict.includes, 500);
}

TEST(Floors, EveryFolderOfSourcesIsARoomOrStandsBeside) {
    const QStringList others{"bench", "build", "cmake", "docs", "fuzz", "packaging", "tests"};
    const QDir tree(VANTOR_SOURCE_DIR);
    for (const QString& folder : tree.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDirIterator sources(tree.filePath(folder), {"*.cpp", "*.h"}, QDir::Files,
                             QDirIterator::Subdirectories);
        EXPECT_TRUE(others.contains(folder) || !sources.hasNext() || !roomOf(folder).isEmpty())
            << folder.toStdString() << " has sources and no floor";
    }
}

TEST(Floors, UpwardsAndSidewaysIsTold) {
    EXPECT_TRUE(mayInclude("window", "formats"));
    EXPECT_TRUE(mayInclude("saving", "results"));
    EXPECT_FALSE(mayInclude("results", "saving"));
    EXPECT_FALSE(mayInclude("cli", "window/widgets"));
    EXPECT_FALSE(mayInclude("window/browser", "window/preview"));
    EXPECT_FALSE(mayInclude("window/widgets", "window"));
    EXPECT_FALSE(mayInclude("scan", "samples"));
    EXPECT_FALSE(mayInclude("samples", "scan"));
    EXPECT_EQ(roomOf("formats/documents").toStdString(), "formats");
    EXPECT_EQ(roomOf("window/saving").toStdString(), "window/saving");
}

}  // namespace
