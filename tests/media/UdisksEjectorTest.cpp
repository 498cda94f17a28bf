// Letting a card go over a real bus: what is asked of the service, in which order, and what it refuses.
#include <gtest/gtest.h>

#include "media/UdisksEjector.h"
#include "tests/media/StandInUdisks.h"
#include "tests/media/UdisksTrees.h"

namespace vantor::test {
namespace {

const QString kStick = QStringLiteral("/dev/sdb1");

class UdisksEjectorTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!bus.isRunning()) {
            GTEST_SKIP() << "no dbus-daemon on this machine";
        }
        service = std::make_unique<StandInUdisks>(
            bus.address(), usbStick() + sdReaderWithCard() + loopDevice() + systemDisk());
    }

    PrivateBus bus;
    std::unique_ptr<StandInUdisks> service;
};

TEST(EjectionOf, ADriveThatEjects_HasAllItsMountedFileSystemsLetGo) {
    const UdisksObjects objects = usbStick() + sdReaderWithCard() + loopDevice() + systemDisk();
    const auto stick = ejectionOf(objects, QStringLiteral("/dev/sdb"));
    ASSERT_TRUE(stick);
    EXPECT_EQ(stick->drive, udisksPath(QStringLiteral("drives/SanDisk_Ultra_4C53")));
    EXPECT_EQ(stick->mounted, QStringList{blockPath(QStringLiteral("sdb1"))}) << "and none of another drive";
    const auto card = ejectionOf(objects, QStringLiteral("/dev/mmcblk0p1"));
    ASSERT_TRUE(card);
    EXPECT_TRUE(card->mounted.isEmpty());
    for (const char* const other : {"/dev/nvme0n1", "/dev/loop3", "/dev/sdq", "/home/anna/card.img", ""}) {
        EXPECT_FALSE(ejectionOf(objects, QLatin1String(other))) << other;
    }
}

TEST_F(UdisksEjectorTest, IsUnmountedFirst_ThenEjected) {
    UdisksEjector ejector(bus.address());
    EXPECT_TRUE(ejector.canEject(kStick));
    EXPECT_FALSE(ejector.canEject(QStringLiteral("/dev/nvme0n1p1")));
    EXPECT_EQ(ejector.eject(kStick), QString());
    EXPECT_EQ(service->calls,
              (QStringList{QStringLiteral("Unmount sdb1"), QStringLiteral("Eject SanDisk_Ultra_4C53")}));
}

TEST_F(UdisksEjectorTest, WhatIsStillInUse_IsNotEjected_AndTheReasonIsTold) {
    service->refusedCall = QStringLiteral("Unmount");
    UdisksEjector ejector(bus.address());
    ASSERT_TRUE(ejector.canEject(kStick));
    EXPECT_EQ(ejector.eject(kStick), QStringLiteral("target is busy"));
    EXPECT_EQ(service->calls, QStringList{QStringLiteral("Unmount sdb1")});
}

TEST_F(UdisksEjectorTest, WithoutTheService_NothingCanBeEjected) {
    service.reset();
    EXPECT_FALSE(UdisksEjector(bus.address()).canEject(kStick));
    EXPECT_FALSE(UdisksEjector(QStringLiteral("unix:path=/nowhere/bus")).canEject(kStick));
}

}  // namespace
}  // namespace vantor::test
