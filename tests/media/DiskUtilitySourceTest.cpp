// The disk utility, played by a script.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "media/DiskUtilitySource.h"
#include "media/MediaList.h"

namespace vantor::test {
namespace {

class DiskUtilityTest : public testing::Test {
  protected:
    QString writeUtility(const QByteArray& script) {
        QFile file(folder.filePath(QStringLiteral("diskutil")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    static QByteArray plist(const QByteArray& entries) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + entries +
               "</dict></plist>";
    }

    static QByteArray volume() {
        return plist(
            "<key>BusProtocol</key><string>USB</string><key>DeviceIdentifier</key><string>disk2s1</string>"
            "<key>VolumeName</key><string>EOS &amp; I</string>"
            "<key>FilesystemUserVisibleName</key><string>MS-DOS (FAT32)</string>"
            "<key>ParentWholeDisk</key><string>disk2</string>"
            "<key>IOKitSize</key><integer>2013265920</integer>");
    }

    QByteArray writeList(const QByteArray& text) {
        QFile file(folder.filePath(QStringLiteral("list.plist")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName().toUtf8();
    }

    QTemporaryDir folder;
};

TEST_F(DiskUtilityTest, RunsWithTheThreeArgumentsAndReadsItsList) {
    const QByteArray list = writeList(volume());
    DiskUtilitySource source(
        writeUtility(
            "[ $# = 3 ] && [ \"$1\" = info ] && [ \"$2\" = -plist ] && [ \"$3\" = '/Volumes/EOS & I' ] "
            "&& cat " +
            list),
        [] {
            return QStringList{QStringLiteral("/Volumes/EOS & I"), QStringLiteral("/Volumes/other")};
        });
    MediaList media(source);
    media.rebuild();
    ASSERT_EQ(media.nsMutaryOfDataObject.size(), 1);
    const MyDataObject& row = *media.nsMutaryOfDataObject[0];
    EXPECT_EQ(row.nsStrDiskIdentifier, QStringLiteral("disk2s1"));
    EXPECT_EQ(row.nsStrVolName, QStringLiteral("EOS & I"));
    EXPECT_EQ(row.nsStrSize, QStringLiteral("1.88  GB "));
    EXPECT_EQ(row.nsStrParentDisk, QStringLiteral("disk2"));
    EXPECT_EQ(row.nsStrSectors, QStringLiteral("3932160"));
    EXPECT_EQ(source.targets()->find(QStringLiteral("disk2s1"))->path, QStringLiteral("/dev/rdisk2s1"));
}

TEST_F(DiskUtilityTest, PipeIsReadToItsEnd) {
    const QByteArray list =
        writeList(plist("<key>DeviceIdentifier</key><string>disk3</string><key>Filler</key><string>" +
                        QByteArray(1 << 20, 'x') + "</string>"));
    DiskUtilitySource source(writeUtility("head -c 100 " + list + "\nsleep 0.1\ntail -c +101 " + list));
    const MediaFacts facts = source.diskInfo(QStringLiteral("/Volumes/x"));
    EXPECT_EQ(facts.value(QStringLiteral("DeviceIdentifier")), QStringLiteral("disk3"));
    EXPECT_EQ(facts.value(QStringLiteral("Filler")).toString().size(), 1 << 20);
}

TEST_F(DiskUtilityTest, UtilityThatFails_GivesNoFacts) {
    EXPECT_TRUE(
        DiskUtilitySource(folder.filePath(QStringLiteral("absent"))).diskInfo(QStringLiteral("x")).isEmpty());
    EXPECT_TRUE(DiskUtilitySource(writeUtility("exit 1")).diskInfo(QStringLiteral("x")).isEmpty());
    EXPECT_TRUE(DiskUtilitySource(writeUtility("echo 'Could not find disk: x' >&2; echo no list"))
                    .diskInfo(QStringLiteral("x"))
                    .isEmpty());
    EXPECT_TRUE(DiskUtilitySource(writeUtility("kill -9 $$")).diskInfo(QStringLiteral("x")).isEmpty());
}

TEST_F(DiskUtilityTest, OutputWithoutEnd_IsCutOff) {
    EXPECT_TRUE(DiskUtilitySource(writeUtility("exec yes '<dict>'")).diskInfo(QStringLiteral("x")).isEmpty());
}

}  // namespace
}  // namespace vantor::test
