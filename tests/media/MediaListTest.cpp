// The rules by which facts become rows.
#include <gtest/gtest.h>

#include "media/MediaList.h"

namespace vantor::test {
namespace {

class FakeSource : public MediaSource {
  public:
    QStringList mountedRemovableMedia() override { return paths; }
    QStringList localVolumes() override { return locals; }
    MediaFacts diskInfo(const QString& path) override { return facts.value(path); }

    void add(const QString& path, const MediaFacts& of) {
        paths << path;
        facts[path] = of;
    }

    QStringList paths, locals;
    QMap<QString, MediaFacts> facts;
};

MediaFacts volume(const QString& identifier, quint64 bytes) {
    return {{QStringLiteral("DeviceIdentifier"), identifier},
            {QStringLiteral("VolumeName"), QStringLiteral("CANON_DC")},
            {QStringLiteral("FilesystemUserVisibleName"), QStringLiteral("MS-DOS (FAT32)")},
            {QStringLiteral("ParentWholeDisk"), QStringLiteral("sdb")},
            {QStringLiteral("IOKitSize"), bytes},
            {QStringLiteral("BusProtocol"), QStringLiteral("USB")}};
}

MediaFacts with(MediaFacts facts, const char* key, const QVariant& value) {
    facts[QLatin1String(key)] = value;
    return facts;
}

MediaFacts without(MediaFacts facts, const char* key) {
    facts.remove(QLatin1String(key));
    return facts;
}

class MediaListTest : public testing::Test {
  protected:
    const MyDataObject& only() {
        list.rebuild();
        EXPECT_EQ(list.nsMutaryOfDataObject.size(), 1);
        return *list.nsMutaryOfDataObject.value(0, std::make_shared<MyDataObject>());
    }

    FakeSource source;
    MediaList list{source};
};

TEST_F(MediaListTest, Volume_BecomesARowOfSixTexts) {
    source.add(QStringLiteral("/media/card"), volume(QStringLiteral("sdb1"), 1000000000));
    const MyDataObject& row = only();
    EXPECT_EQ(row.nsStrDiskIdentifier, QStringLiteral("sdb1"));
    EXPECT_EQ(row.nsStrVolName, QStringLiteral("CANON_DC"));
    EXPECT_EQ(row.nsStrFileSystem, QStringLiteral("MS-DOS (FAT32)"));
    EXPECT_EQ(row.nsStrSize, QStringLiteral("953.67  MB "));
    EXPECT_EQ(row.nsStrParentDisk, QStringLiteral("sdb"));
    EXPECT_EQ(row.nsStrSectors, QStringLiteral("1953125"));
    EXPECT_EQ(row.root(), nullptr);
}

TEST_F(MediaListTest, SmallVolumes_ShowBytesAndWholeSectors) {
    source.add(QStringLiteral("a"), volume(QStringLiteral("sdb1"), 1023));
    source.add(QStringLiteral("b"), volume(QStringLiteral("sdb2"), 511));
    list.rebuild();
    ASSERT_EQ(list.nsMutaryOfDataObject.size(), 2);
    EXPECT_EQ(list.nsMutaryOfDataObject[0]->nsStrSize, QStringLiteral("1023.00 bytes "));
    EXPECT_EQ(list.nsMutaryOfDataObject[0]->nsStrSectors, QStringLiteral("1"));
    EXPECT_EQ(list.nsMutaryOfDataObject[1]->nsStrSectors, QStringLiteral("0"));
}

TEST_F(MediaListTest, DiskImage_IsNeverListed) {
    source.add(QStringLiteral("a"),
               with(volume(QStringLiteral("loop0"), 4096), "BusProtocol", QStringLiteral("Disk Image")));
    source.add(QStringLiteral("b"),
               with(volume(QStringLiteral("sdb1"), 4096), "BusProtocol", QStringLiteral("disk image")));
    EXPECT_EQ(only().nsStrDiskIdentifier, QStringLiteral("sdb1"));  // the text is exact
}

TEST_F(MediaListTest, OpticalDriveOfAnyCdKind_IsNeverListed) {
    source.add(QStringLiteral("a"), with(volume(QStringLiteral("sr0"), 4096), "OpticalDeviceType",
                                         QStringLiteral("CD-ROM, DVD-ROM")));
    source.add(QStringLiteral("b"),
               with(volume(QStringLiteral("sr1"), 4096), "OpticalDeviceType", QStringLiteral("BD/CD-RW")));
    source.add(QStringLiteral("c"),
               with(volume(QStringLiteral("sdb1"), 4096), "OpticalDeviceType", QStringLiteral("DVD-ROM")));
    EXPECT_EQ(only().nsStrDiskIdentifier, QStringLiteral("sdb1"));
}

TEST_F(MediaListTest, VolumeWithoutAnOpticalDeviceType_IsListed) {
    source.add(QStringLiteral("a"), volume(QStringLiteral("sdb1"), 4096));
    EXPECT_EQ(only().nsStrDiskIdentifier, QStringLiteral("sdb1"));
}

TEST_F(MediaListTest, VolumeWithoutAName_IsUntitled) {
    source.add(QStringLiteral("a"), with(volume(QStringLiteral("sdb1"), 4096), "VolumeName", QString()));
    source.add(QStringLiteral("b"), without(volume(QStringLiteral("sdc1"), 4096), "VolumeName"));
    list.rebuild();
    ASSERT_EQ(list.nsMutaryOfDataObject.size(), 2);
    EXPECT_EQ(list.nsMutaryOfDataObject[0]->nsStrVolName, QStringLiteral("Untitled"));
    EXPECT_EQ(list.nsMutaryOfDataObject[1]->nsStrVolName, QStringLiteral("Untitled"));
}

TEST_F(MediaListTest, VolumeWithoutAnIdentifier_IsNotListed) {
    source.add(QStringLiteral("a"), without(volume(QStringLiteral("sdb1"), 4096), "DeviceIdentifier"));
    source.add(QStringLiteral("b"), volume(QString(), 4096));
    source.add(QStringLiteral("c"), {});
    list.rebuild();
    EXPECT_TRUE(list.nsMutaryOfDataObject.isEmpty());
}

TEST_F(MediaListTest, TwoRebuilds_GiveTheSameList) {
    source.add(QStringLiteral("b"), volume(QStringLiteral("sdc1"), 4096));
    source.add(QStringLiteral("a"), volume(QStringLiteral("sdb1"), 4096));
    const auto identifiers = [this] {
        QStringList all;
        for (const auto& row : list.nsMutaryOfDataObject) {
            all << row->nsStrDiskIdentifier;
        }
        return all;
    };
    list.rebuild();
    const QStringList first = identifiers();
    EXPECT_EQ(first, (QStringList{QStringLiteral("sdc1"), QStringLiteral("sdb1")}));  // the source's order
    list.rebuild();
    EXPECT_EQ(identifiers(), first);
}

TEST_F(MediaListTest, WholeDiskQuery_KeepsSizeAndNameUntilTheNextQuery) {
    source.facts[QStringLiteral("sdb")] = with(volume(QStringLiteral("sdb"), 18446744073709551615ULL),
                                               "MediaName", QStringLiteral("SD Reader"));
    list.find_disk_info_PARENT(QStringLiteral("sdb"));
    EXPECT_EQ(list.Parent_Disk_Size, QStringLiteral("18446744073709551615"));
    EXPECT_EQ(list.Parent_Media_Name, QStringLiteral("SD Reader"));
    EXPECT_TRUE(list.nsMutaryOfDataObject.isEmpty());
    list.find_disk_info(QStringLiteral("absent"));
    EXPECT_EQ(list.Parent_Disk_Size, QStringLiteral(""));
    EXPECT_EQ(list.Parent_Media_Name, QStringLiteral(""));
}

TEST_F(MediaListTest, SecondEnumerator_AppendsTheLocalVolumes) {
    source.locals = QStringList{QStringLiteral("sdb1"), QStringLiteral("sdz9")};
    source.facts[QStringLiteral("sdb1")] = volume(QStringLiteral("sdb1"), 4096);
    list.getVolumeToBSDNode();
    EXPECT_EQ(list.nsMutaryOfDataObject.size(), 1);
    list.getVolumeToBSDNode();
    EXPECT_EQ(list.nsMutaryOfDataObject.size(), 2);
}

TEST_F(MediaListTest, RowsAreAddedAndDeletedOneByOne) {
    list.addRow(std::make_shared<MyDataObject>());
    list.addRow(MyDataObject::initWithString1(QStringLiteral("sdb1"), {}, {}, {}, {}, {}));
    list.deleteSelectedRow(-1);
    list.deleteSelectedRow(2);
    ASSERT_EQ(list.nsMutaryOfDataObject.size(), 2);
    list.deleteSelectedRow(0);
    EXPECT_EQ(list.nsMutaryOfDataObject[0]->nsStrDiskIdentifier, QStringLiteral("sdb1"));
}

TEST(MyDataObject, PlainAndWeakRecords_HaveARoot) {
    MyDataObject parent;
    ASSERT_NE(parent.root(), nullptr);
    EXPECT_TRUE(parent.root()->isEmpty());
    const auto child = MyDataObject::weakReferenceWithParent(&parent);
    EXPECT_EQ(child->parent(), &parent);
    EXPECT_NE(child->root(), nullptr);
    EXPECT_NE(child->root(), parent.root());
}

}  // namespace
}  // namespace vantor::test
