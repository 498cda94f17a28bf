// Paths that are no text: the very folder that was named is saved into, the very image is searched.
#include <dirent.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>

#include "tests/cli/CommandRun.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

constexpr qsizetype kWavBytes = 10'000;

class PathBytes : public testing::Test {
  protected:
    void SetUp() override {
        // Two parts: the file reaches from one into the other.
        const QByteArray card = QByteArray(4 * 512, '\0') + wavFile(kWavBytes).leftJustified(40 * 512, '\0');
        write("card\xFF.img", card);
        ASSERT_EQ(::mkdir(at("d\xFFr").constData(), 0755), 0);
        write("d\xFFr/card.001", card.first(10 * 512));
        write("d\xFFr/card.002", card.mid(10 * 512));
    }

    // The toolkit cannot remove what it cannot name.
    void TearDown() override { std::filesystem::remove_all(at("").toStdString()); }

    QByteArray at(const QByteArray& name) const { return QFile::encodeName(m_folder.path()) + '/' + name; }
    // The names in a folder, sorted.
    QByteArrayList namesIn(const QByteArray& folder) const {
        QByteArrayList names;
        DIR* const opened = ::opendir(at(folder).constData());
        for (const dirent* entry = opened ? ::readdir(opened) : nullptr; entry; entry = ::readdir(opened)) {
            if (entry->d_name[0] != '.') {
                names.append(entry->d_name);
            }
        }
        if (opened) {
            ::closedir(opened);
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    // The arguments with \377 for the byte that is no text, seen from the folder.
    CommandRun run(const QString& arguments) const {
        return runCommand({"-c", QStringLiteral("cd '%1' && exec '%2' --mode rawfile %3")
                                     .arg(m_folder.path(), QStringLiteral(VANTOR_CLI), arguments)},
                          "/bin/sh");
    }
    void expectSaved(const QByteArray& folder) const {
        EXPECT_EQ(namesIn(folder), QByteArrayList{"WAV"}) << folder.toPercentEncoding().constData();
        struct stat info {};
        EXPECT_EQ(::stat(at(folder + "/WAV/WAV00001.WAV").constData(), &info), 0);
        EXPECT_EQ(info.st_size, kWavBytes);
    }

  private:
    void write(const QByteArray& name, const QByteArray& bytes) {
        FILE* const file = std::fopen(at(name).constData(), "wb");
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file),
                  static_cast<std::size_t>(bytes.size()));
        std::fclose(file);
    }

    const QTemporaryDir m_folder;
};

}  // namespace

TEST_F(PathBytes, TheNamedFolderIsSavedInto) {
    ASSERT_EQ(::mkdir(at("out\xFF").constData(), 0755), 0);
    const CommandRun saved = run("--save \"$(printf 'out\\377')\" \"$(printf 'card\\377.img')\"");
    EXPECT_EQ(saved.exitCode, 0) << saved.err.constData();
    expectSaved("out\xFF");
    EXPECT_EQ(namesIn(""), (QByteArrayList{"card\xFF.img", "d\xFFr", "out\xFF"}));
    EXPECT_FALSE(saved.out.contains("/proc/")) << saved.out.constData();
}

TEST_F(PathBytes, AFolderThatIsNotThereIsMadeByThatName) {
    const CommandRun saved = run("--report --save=\"$(printf 'd\\377r/new/\\377/in')\" card?.img");
    EXPECT_EQ(saved.exitCode, 0) << saved.err.constData();
    EXPECT_EQ(namesIn("d\xFFr"), (QByteArrayList{"card.001", "card.002", "new"}));
    EXPECT_EQ(namesIn("d\xFFr/new/\xFF/in"),
              (QByteArrayList{"Recovery report.csv", "Recovery report.html", "WAV"}));
}

TEST_F(PathBytes, PartsOfAnImageAreFoundThere) {
    const CommandRun saved = run("--save out \"$(printf 'd\\377r/card.001')\"");
    EXPECT_EQ(saved.exitCode, 0) << saved.err.constData();
    expectSaved("out");
}

TEST_F(PathBytes, WhatIsNotThereIsTold) {
    const CommandRun missing = run("\"$(printf 'no\\377/card.img')\"");
    EXPECT_NE(missing.exitCode, 0);
    EXPECT_FALSE(missing.err.contains("/proc/")) << missing.err.constData();
    EXPECT_TRUE(missing.err.contains("card.img")) << missing.err.constData();
    const CommandRun inTheWay = run("--save \"$(printf 'card\\377.img/in')\" \"$(printf 'card\\377.img')\"");
    EXPECT_EQ(inTheWay.exitCode, 6) << inTheWay.err.constData();
}

}  // namespace vantor
