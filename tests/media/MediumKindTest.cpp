// What the facts of a medium say of its kind.
#include <gtest/gtest.h>

#include "media/MediaList.h"
#include "media/MediumKind.h"
#include "media/SysfsMedia.h"

namespace vantor {
namespace {

MediaFacts facts(const char* bus, const QStringList& takes = {}) {
    return {{QStringLiteral("BusProtocol"), QLatin1String(bus)},
            {QStringLiteral("MediaCompatibility"), takes}};
}

TEST(MediumKind, ComesFromFactsNotFromNames) {
    EXPECT_EQ(mediumKindOf(facts("Image File")), MediumKind::ImageFile);
    EXPECT_EQ(mediumKindOf(facts("Secure Digital")), MediumKind::Card);
    EXPECT_EQ(mediumKindOf(facts("USB")), MediumKind::UsbStick);
    EXPECT_EQ(mediumKindOf(facts("USB", {"flash_sdhc", "flash_ms"})), MediumKind::Card) << "a card reader";
    EXPECT_EQ(mediumKindOf(facts("USB", {"thumb"})), MediumKind::UsbStick);
    EXPECT_EQ(mediumKindOf(facts("", {"thumb"})), MediumKind::UsbStick);
    EXPECT_EQ(mediumKindOf(facts("FireWire")), MediumKind::Disk);
    EXPECT_EQ(mediumKindOf({}), MediumKind::Disk);
    MediaFacts burner = facts("USB", {"optical_dvd"});
    burner[QStringLiteral("OpticalDeviceType")] = QStringLiteral("DVD-ROM");
    EXPECT_EQ(mediumKindOf(burner), MediumKind::OpticalDisc);
}

TEST(MediumKind, TheDeviceManagersWordsCountToo) {
    SysfsDisk reader;
    reader.disk = {QStringLiteral("sdc"), QStringLiteral("1000\n"), QStringLiteral("8:32\n"),
                   QStringLiteral("E:ID_BUS=usb\nE:ID_DRIVE_FLASH_SD=1\n")};
    reader.hardwarePath = QStringLiteral("/devices/pci0/usb2/2-1/block/sdc");
    const auto media = sysfsMedia({reader}, {});
    ASSERT_EQ(media.size(), 1);
    EXPECT_EQ(mediumKindOf(media[0].facts), MediumKind::Card);
    reader.disk.udevDatabase = QStringLiteral("E:ID_BUS=usb\n");
    EXPECT_EQ(mediumKindOf(sysfsMedia({reader}, {}).at(0).facts), MediumKind::UsbStick);
}

class OneListedCard : public MediaSource {
  public:
    QStringList mountedRemovableMedia() override { return {QStringLiteral("/media/x")}; }
    MediaFacts diskInfo(const QString&) override {
        MediaFacts all = facts("USB", {"flash_cf"});
        all[QStringLiteral("DeviceIdentifier")] = QStringLiteral("sdb1");
        return all;
    }
};

TEST(MediumKind, TheListKnowsItOfEachMedium) {
    OneListedCard source;
    MediaList list(source);
    list.rebuild();
    EXPECT_EQ(list.kindOfMedium(QStringLiteral("sdb1")), MediumKind::Card);
    EXPECT_EQ(list.kindOfMedium(QStringLiteral("sdz9")), MediumKind::Disk);
}

}  // namespace
}  // namespace vantor
