// Places for the copy of a medium.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "saving/CopyPlace.h"
#include "saving/CopyWords.h"

namespace vantor {

TEST(CopyPlace, NotOnTheMediumAndNotInAFolderThatIsNotThere) {
    const QTemporaryDir folder;
    const QString card = folder.filePath("card.img");
    QFile file(card);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(refuseCopyPlace(folder.filePath("copy.img"), card));
    EXPECT_TRUE(refuseCopyPlace(card, card));
    ASSERT_TRUE(QFile::link(card, folder.filePath("link.img")));
    EXPECT_TRUE(refuseCopyPlace(folder.filePath("link.img"), card));
    EXPECT_TRUE(refuseCopyPlace(folder.filePath("absent/copy.img"), card));
}

TEST(CopyPlace, TooLittleRoomAndTooSlowADiskAreTold) {
    const QTemporaryDir folder;
    const QStringList told = warnOfCopyPlace(folder.filePath("copy.img"), std::uint64_t{1} << 50);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.first().startsWith("There is not enough room")) << told.first().toStdString();
    EXPECT_FALSE(warnOfCopySpeed(40e6, 64'000'000'000));
    EXPECT_EQ(warnOfCopySpeed(5e6, 63'900'000'000),
              "The disk of the copy takes only 5.0 MB a second: a whole copy takes about 214 minutes.");
}

TEST(CopyWords, SayHowTheCopyStands) {
    CopyProgress copy;
    copy.sectors = 1000;
    copy.copied = 349;
    EXPECT_EQ(copyWords(copy), "34% copied");
    copy.bad = 1;
    EXPECT_EQ(copyWords(copy), "34% copied, 1 bad sector");
    copy.doubtful = 1200;
    copy.state = CopyProgress::State::Trimming;
    EXPECT_EQ(copyWords(copy), "34% copied, 1,201 bad sectors, reading around them");
    EXPECT_EQ(copyEndWords(copy),
              "178.7 kB of 512.0 kB copied, 1 bad sector, 1,200 sectors between bad ones left out");
    copy.state = CopyProgress::State::MediumGone;
    EXPECT_EQ(copyWords(copy), "34% copied, 1,201 bad sectors, the medium is gone");
}

}  // namespace vantor
