// Folders on the medium that is read are told from all others.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "results/DestinationCheck.h"

namespace vantor {

TEST(DestinationCheck, ImageFilesNeverForbidAFolder) {
    const QTemporaryDir folder;
    QFile image(folder.filePath("card.img"));
    ASSERT_TRUE(image.open(QIODevice::WriteOnly));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), image.fileName()));
    EXPECT_FALSE(destinationIsOnMedium(folder.path(), "/nowhere/at/all"));
}

TEST(DestinationCheck, FolderOnTheReadDiskIsSeen) {
    // The device under the root folder, where the system shows one.
    QFile mounts("/proc/self/mountinfo");
    ASSERT_TRUE(mounts.open(QIODevice::ReadOnly));
    QString device;
    for (const QByteArray& line : mounts.readAll().split('\n')) {
        const auto fields = line.split(' ');
        const auto dash = fields.indexOf("-");
        if (fields.value(4) == "/" && dash > 0) {
            device = QString::fromLocal8Bit(fields.value(dash + 2));
        }
    }
    if (!device.startsWith("/dev/") || !QFile::exists(device)) {
        GTEST_SKIP() << "the root folder lies on no device that is visible here";
    }
    EXPECT_TRUE(destinationIsOnMedium("/", device));
    EXPECT_TRUE(destinationIsOnMedium("/not/yet/there", device));
    EXPECT_FALSE(destinationIsOnMedium("/proc", device));
}

}  // namespace vantor
