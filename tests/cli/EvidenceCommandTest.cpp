// Evidence images in the command: a search of one finds what a search of the medium finds.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tests/cli/CommandRun.h"
#include "tests/support/EvidenceFiles.h"
#include "tests/support/Files.h"

namespace vantor {
namespace {

class EvidenceCommand : public testing::Test {
  protected:
    // Of the saved files names and bytes, and of the report the rows.
    QMap<QString, QByteArray> savedFrom(const QString& medium, const QStringList& how) {
        const QString out = folder.filePath(QStringLiteral("out%1").arg(m_runs++));
        const CommandRun run = runCommand(QStringList{"--save", out} + how + QStringList{medium});
        EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
        QMap<QString, QByteArray> files;
        for (const QString& file : filesUnder(out)) {
            if (!file.startsWith(QStringLiteral("Recovery report"))) {
                files[file] = contentsOf(out + u'/' + file);
            }
        }
        return files;
    }

    const QTemporaryDir folder;
    const QByteArray card = contentsOf(QStringLiteral(VANTOR_SAMPLE_CARD));

  private:
    int m_runs = 0;
};

}  // namespace

TEST_F(EvidenceCommand, FindsAndSavesWhatTheRawImageHas) {
    const auto paths = writeEvidence(folder.path(), "card", card, {true, 4 << 20, {}});
    ASSERT_GE(paths.size(), 2);
    for (const QStringList& how : {QStringList(), QStringList{"--mode", "rawfile"}}) {
        const auto expected = savedFrom(QStringLiteral(VANTOR_SAMPLE_CARD), how);
        EXPECT_GT(expected.size(), 10);
        EXPECT_EQ(savedFrom(paths[1], how), expected);
    }
}

TEST_F(EvidenceCommand, MissingSegmentAndOtherKinds_AreSaidClearly) {
    const auto paths = writeEvidence(folder.path(), "card", card, {true, 4 << 20, {}});
    ASSERT_GE(paths.size(), 2);
    ASSERT_TRUE(QFile::remove(paths[1]));
    const CommandRun missing = runCommand({paths[0]});
    EXPECT_NE(missing.exitCode, 0);
    EXPECT_TRUE(missing.err.contains("card.E02")) << missing.err.toStdString();

    const QString other = folder.filePath("card.Ex01");
    QFile file(other);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromHex("455646320d0a8100") + QByteArray(100000, 'x'));
    file.close();
    const CommandRun packed = runCommand({other});
    EXPECT_TRUE(packed.err.contains("packed (Ex01)")) << packed.err.toStdString();
}

}  // namespace vantor
