// The disk service over a real bus: its list, its signals, its descriptors, and its silences.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include "media/BackendMediaSource.h"
#include "media/MediaList.h"
#include "media/SysfsBackend.h"
#include "media/UdisksBackend.h"
#include "tests/media/StandInUdisks.h"
#include "tests/media/UdisksTrees.h"

namespace vantor::test {
namespace {

constexpr int kLongMs = 60'000;  // beyond which a test fails rather than waits

template <class Condition>
bool eventually(Condition condition) {
    const QDeadlineTimer deadline(kLongMs);
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    }
    return condition();
}

UdisksObjects allTrees() {
    return usbStick() + sdReaderWithCard() + emptySdReader() + cardWithoutFileSystem() + phone() +
           opticalDrive() + loopDevice() + systemDisk();
}

class UdisksBackendTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!bus.isRunning()) {
            GTEST_SKIP() << "no dbus-daemon on this machine";
        }
        service = std::make_unique<StandInUdisks>(bus.address(), allTrees());
        std::vector<std::unique_ptr<MediaBackend>> backends;
        backends.push_back(std::make_unique<UdisksBackend>(bus.address(), noMachine.path()));
        backends.push_back(std::make_unique<SysfsBackend>(noMachine.path()));
        source = std::make_unique<BackendMediaSource>(std::move(backends));
        source->changed = [this] { ++changes; };
    }

    // Sysfs of a machine with one stick, so that a list of the fallback can be told from the service's.
    void giveTheFallbackAStick() {
        for (const auto& [path, text] :
             {std::pair("removable", "1"), std::pair("size", "100"), std::pair("dev", "8:48")}) {
            QFile file(noMachine.filePath(QStringLiteral("sys/block/sdz/") + QLatin1String(path)));
            QDir().mkpath(QFileInfo(file).path());
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text);
        }
    }

    QString rows() {
        MediaList list(*source);
        list.rebuild();
        QStringList all;
        for (const auto& row : list.nsMutaryOfDataObject) {
            all << row->nsStrDiskIdentifier;
        }
        return all.join(u' ');
    }

    QTemporaryDir noMachine;
    PrivateBus bus;
    std::unique_ptr<StandInUdisks> service;
    std::unique_ptr<BackendMediaSource> source;
    int changes = 0;
};

const QString kAllRows = QStringLiteral("mmcblk0 mmcblk0p1 sdb sdb1 sdd sde");

TEST_F(UdisksBackendTest, ListIsThatOfTheService) {
    EXPECT_EQ(rows(), kAllRows);
    EXPECT_EQ(service->listings, 1);  // one question a list
    const MediaFacts stick = source->diskInfo(QStringLiteral("/media/anna/CANON DC"));
    EXPECT_EQ(stick.value(QStringLiteral("DeviceIdentifier")), QStringLiteral("sdb1"));
    EXPECT_EQ(stick.value(QStringLiteral("FilesystemUserVisibleName")), QStringLiteral("MS-DOS (FAT32)"));
    EXPECT_EQ(stick.value(QStringLiteral("ParentWholeDisk")), QStringLiteral("sdb"));
    EXPECT_EQ(source->diskInfo(QStringLiteral("sdb")).value(QStringLiteral("MediaName")),
              QStringLiteral("SanDisk Ultra"));
    EXPECT_TRUE(source->diskInfo(QStringLiteral("sdq")).isEmpty());
    EXPECT_EQ(source->targets()->find(QStringLiteral("sdb1"))->path, QStringLiteral("/dev/sdb1"));
    EXPECT_FALSE(source->targets()->find(QStringLiteral("nvme0n1")));
    EXPECT_EQ(rows(), kAllRows);
}

TEST_F(UdisksBackendTest, CardInAndOut_ChangesTheListOnce) {
    EXPECT_EQ(rows(), kAllRows);
    service->setObjects(usbStick());
    ASSERT_TRUE(eventually([this] { return changes > 0; }));
    EXPECT_EQ(rows(), QStringLiteral("sdb sdb1"));
    EXPECT_GT(service->signalsSent, 5);
    EXPECT_LT(changes, service->signalsSent);  // they settle first
    service->setObjects(usbStick() + sdReaderWithCard());
    ASSERT_TRUE(eventually([this] { return changes > 1; }));
    EXPECT_EQ(rows(), QStringLiteral("mmcblk0 mmcblk0p1 sdb sdb1"));
}

TEST_F(UdisksBackendTest, ADeviceThatNeverComesToRest_DoesNotKeepACardFromTheList) {
    EXPECT_EQ(rows(), kAllRows);
    UdisksObjects objects = usbStick();
    int told = 0;
    QTimer restless;
    restless.callOnTimeout([&] {
        objects[blockPath("sdb")][interfaceName("Block")]["IdLabel"] = QString::number(++told);
        service->setObjects(objects);
    });
    restless.start(1);
    EXPECT_TRUE(eventually([&] { return changes > 0 || told == 2000; }));
    EXPECT_GT(changes, 0);
    restless.stop();
    EXPECT_EQ(rows(), QStringLiteral("sdb sdb1"));
}

TEST_F(UdisksBackendTest, MountedOrRenamed_ReachesTheList) {
    EXPECT_EQ(rows(), kAllRows);
    const QString card = QStringLiteral("mmcblk0p1");
    EXPECT_TRUE(source->diskInfo(QStringLiteral("/media/anna/SUMMER")).isEmpty());
    UdisksObjects objects = allTrees();
    objects[blockPath(card)][interfaceName("Filesystem")][QStringLiteral("MountPoints")] =
        QVariant::fromValue(QByteArrayList{zeroEnded(QStringLiteral("/media/anna/SUMMER"))});
    service->setObjects(objects);
    ASSERT_TRUE(eventually([this] { return changes == 1; }));
    EXPECT_EQ(rows(), kAllRows);
    const MediaFacts mounted = source->diskInfo(QStringLiteral("/media/anna/SUMMER"));
    EXPECT_EQ(mounted.value(QStringLiteral("DeviceIdentifier")), card);
    EXPECT_TRUE(mounted.value(QStringLiteral("VolumeName")).toString().isEmpty());

    objects[blockPath(card)][interfaceName("Block")][QStringLiteral("IdLabel")] = QStringLiteral("WINTER");
    service->setObjects(objects);
    ASSERT_TRUE(eventually([this] { return changes == 2; }));
    EXPECT_EQ(rows(), kAllRows);
    EXPECT_EQ(source->diskInfo(card).value(QStringLiteral("VolumeName")), QStringLiteral("WINTER"));
}

TEST_F(UdisksBackendTest, ServiceThatIsSilent_LeavesTheFallbackListUntilItAnswers) {
    giveTheFallbackAStick();
    service->silent = true;
    EXPECT_EQ(rows(), QStringLiteral("sdz"));
    EXPECT_EQ(rows(), QStringLiteral("sdz"));  // without waiting again
    EXPECT_EQ(service->listings, 1);
    EXPECT_EQ(changes, 0);
    service->answerWhatWasHeldBack();
    ASSERT_TRUE(eventually([this] { return changes > 0; }));
    EXPECT_EQ(rows(), kAllRows);
}

TEST_F(UdisksBackendTest, ServiceThatDies_LeavesTheFallbackListAndIsNoticed) {
    giveTheFallbackAStick();
    EXPECT_EQ(rows(), kAllRows);
    service.reset();
    ASSERT_TRUE(eventually([this] { return changes > 0; }));
    EXPECT_EQ(rows(), QStringLiteral("sdz"));
    changes = 0;
    service = std::make_unique<StandInUdisks>(bus.address(), usbStick());
    ASSERT_TRUE(eventually([this] { return changes > 0; }));
    EXPECT_EQ(rows(), QStringLiteral("sdb sdb1"));
}

TEST_F(UdisksBackendTest, BusThatDies_LeavesTheFallbackListAndIsNoticed) {
    giveTheFallbackAStick();
    EXPECT_EQ(rows(), kAllRows);
    bus.kill();
    ASSERT_TRUE(eventually([this] { return changes > 0; }));
    EXPECT_EQ(rows(), QStringLiteral("sdz"));
}

TEST_F(UdisksBackendTest, BusThatDiesDuringTheQuestion_LeavesTheFallbackList) {
    giveTheFallbackAStick();
    EXPECT_EQ(rows(), kAllRows);
    service->silent = true;
    std::thread killer([this] {
        while (service->listings < 2) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        bus.kill();
    });
    EXPECT_EQ(rows(), QStringLiteral("sdz"));
    killer.join();
    EXPECT_EQ(rows(), QStringLiteral("sdz"));
}

TEST(UdisksBackend, BusThatIsAbsent_GivesNothing) {
    UdisksBackend backend(QStringLiteral("unix:path=/nonexistent/bus"));
    EXPECT_FALSE(backend.list());
    EXPECT_FALSE(backend.list());
    EXPECT_FALSE(backend.descriptorRequest()(QStringLiteral("/dev/sdb"), {}));
}

TEST(UdisksBackend, BusThatDoesNotGreet_GivesNothingAndIsNotWaitedForTwice) {
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("bus")).toUtf8();
    const int listening = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof(address.sun_path));
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    ASSERT_EQ(::bind(listening, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    ASSERT_EQ(::listen(listening, 5), 0);
    UdisksBackend backend(QStringLiteral("unix:path=") + QString::fromUtf8(path));
    EXPECT_FALSE(backend.list());
    EXPECT_FALSE(backend.list());
    ::close(listening);  // ends the greeting
}

class DescriptorTest : public UdisksBackendTest {
  protected:
    void SetUp() override {
        UdisksBackendTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        ASSERT_TRUE(file.open());
        file.write("the medium");
        file.flush();
        EXPECT_EQ(rows(), kAllRows);
        request = source->descriptorRequest();
    }

    FileDescriptor ask(const StopRequest& stop = {}) { return request(QStringLiteral("/dev/sdb1"), stop); }

    QTemporaryFile file;
    DescriptorRequest request;
};

TEST_F(DescriptorTest, IsReadOnlyAndOutlivesTheAnswerAndTheService) {
    service->handedOut = file.fileName();
    const FileDescriptor descriptor = ask();
    ASSERT_TRUE(descriptor);
    EXPECT_EQ(service->openedPath, blockPath(QStringLiteral("sdb1")));
    EXPECT_EQ(service->openedMode, QStringLiteral("r"));
    service.reset();
    source.reset();
    bus.kill();
    char bytes[10] = {};
    EXPECT_EQ(::pread(descriptor.get(), bytes, sizeof(bytes), 0), 10);
    EXPECT_EQ(QByteArray(bytes, 10), "the medium");
    EXPECT_EQ(::fcntl(descriptor.get(), F_GETFL) & O_ACCMODE, O_RDONLY);
    EXPECT_TRUE(::fcntl(descriptor.get(), F_GETFD) & FD_CLOEXEC);
}

TEST_F(DescriptorTest, IsAskedForFromAnyThread) {
    service->handedOut = file.fileName();
    std::thread other([this] { EXPECT_TRUE(ask()); });
    other.join();
}

TEST_F(DescriptorTest, RefusedConsent_GivesNone) {
    for (const char* error : {"NotAuthorized", "NotAuthorizedCanObtain", "NotAuthorizedDismissed"}) {
        service->refusal = QStringLiteral("org.freedesktop.UDisks2.Error.") + QLatin1String(error);
        EXPECT_FALSE(ask()) << error;
    }
}

TEST_F(DescriptorTest, UnansweredConsent_EndsWithTheStopRequest) {
    service->silent = true;
    EXPECT_FALSE(ask([this] { return service->openings > 0; }));
    EXPECT_EQ(service->openings, 1);
}

TEST_F(DescriptorTest, ServiceThatDiesMeanwhile_GivesNone) {
    service->silent = true;
    std::thread killer([this] {
        while (service->openings == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        bus.kill();
    });
    EXPECT_FALSE(ask());
    killer.join();
}

// A thread that waits for the user may outlast the source, which the program's end takes down.
TEST_F(DescriptorTest, TheSourcesEnd_EndsWhatIsAskedForAndLaterRequestsGetNone) {
    service->silent = true;
    std::atomic<bool> answered{false};
    std::thread asking([&] {
        EXPECT_FALSE(ask());
        answered = true;
    });
    while (service->openings == 0) {
        std::this_thread::yield();
    }
    source.reset();
    EXPECT_TRUE(eventually([&] { return answered.load(); }));
    asking.join();
    service->silent = false;
    service->handedOut = file.fileName();
    EXPECT_FALSE(ask());
    EXPECT_EQ(service->openings, 1) << "the bus is not asked any more";
}

}  // namespace
}  // namespace vantor::test
