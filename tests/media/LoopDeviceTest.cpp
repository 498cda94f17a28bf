// The reader on real block devices of the kernel's; skipped where no loop device can be had.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <atomic>

#include "media/DiskSequence.h"
#include "media/RawDevice.h"
#include "tests/media/LoopDevice.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {
namespace {

class LoopDeviceTest : public testing::Test {
  protected:
    QString write(const QString& name, std::uint64_t sectors, std::uint64_t firstNumber = 0) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        for (std::uint64_t s = 0; s < sectors; ++s) {
            std::uint8_t sector[kSectorBytes];
            ScriptedDrive::fill(firstNumber + s, sector);
            file.write(reinterpret_cast<const char*>(sector), kSectorBytes);
        }
        return file.fileName();
    }

    // False, and the test is skipped, when there is no device to be had.
    bool attach(const QString& file) {
        device = std::make_unique<LoopDevice>(file);
        return device->isThere();
    }

    QTemporaryDir folder;
    std::unique_ptr<LoopDevice> device;
};

#define ATTACH_OR_SKIP(file)                         \
    if (!attach(file)) {                             \
        GTEST_SKIP() << device->why().toStdString(); \
    }

#define DIRECT_OR_SKIP()                                                                       \
    if (!device->useDirectRequests()) {                                                        \
        GTEST_SKIP() << "the temporary folder's file system takes no requests past its cache"; \
    }

std::uint64_t numberAt(const SectorReader& reader) {
    std::uint64_t number = 0;
    std::memcpy(&number, reader.current(), sizeof(number));
    return number;
}

TEST_F(LoopDeviceTest, EverySector_IsReadInPlaceToTheEnd) {
    ATTACH_OR_SKIP(write(QStringLiteral("card"), 5000));
    const auto facts = probeMedium(device->node());
    ASSERT_TRUE(facts);
    EXPECT_FALSE(facts->isImage);
    EXPECT_EQ(facts->sectors, 5000U);
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    for (std::uint64_t s = 0; s < 5000; ++s) {
        ASSERT_TRUE(reader->read()) << s;
        ASSERT_EQ(numberAt(*reader), s);
    }
    EXPECT_FALSE(reader->read());
    EXPECT_TRUE(reader->seek(4999));  // the end is no loss of the medium
    ASSERT_TRUE(reader->read());
    EXPECT_EQ(numberAt(*reader), 4999U);
}

TEST_F(LoopDeviceTest, Descriptor_IsReadOnlyUnbufferedAndClosedOnExec) {
    ATTACH_OR_SKIP(write(QStringLiteral("card"), 100));
    const auto countDescriptors = [this] {
        int unbuffered = 0;
        for (int fd = 0; fd < 256; ++fd) {
            const int flags = ::fcntl(fd, F_GETFL);
            if (QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(fd)) == device->node()) {
                EXPECT_EQ(flags & O_ACCMODE, O_RDONLY);
                EXPECT_TRUE(::fcntl(fd, F_GETFD) & FD_CLOEXEC);
                unbuffered += (flags & O_DIRECT) != 0 ? 1 : 0;
            }
        }
        return unbuffered;
    };
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(countDescriptors(), 1);
}

TEST_F(LoopDeviceTest, BeyondTwoTebibytes_IsReached) {
    const QString path = write(QStringLiteral("card"), 1);
    constexpr std::uint64_t kFar = (std::uint64_t{3} << 40) / kSectorBytes;
    if (!QFile::resize(path, static_cast<qint64>((kFar + 8) * kSectorBytes))) {
        GTEST_SKIP() << "the file system of the temporary folder takes no file of 3 TiB";
    }
    {
        const FileDescriptor file(::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC));
        std::uint8_t sector[kSectorBytes];
        ScriptedDrive::fill(kFar, sector);
        ASSERT_EQ(::pwrite(file.get(), sector, kSectorBytes, static_cast<off_t>(kFar * kSectorBytes)),
                  kSectorBytes);
    }
    ATTACH_OR_SKIP(path);
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    ASSERT_TRUE(reader->seek(kFar));
    ASSERT_TRUE(reader->read());
    EXPECT_EQ(numberAt(*reader), kFar);
}

TEST_F(LoopDeviceTest, LargeBlocks_AreReadFromAnySectorAndFailAsOne) {
    const QString path = write(QStringLiteral("card"), 8192);
    ATTACH_OR_SKIP(path);
    ASSERT_TRUE(device->useBlocksOf(4096));
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    for (const std::uint64_t start : {0U, 3U, 8U, 8185U}) {
        ASSERT_TRUE(reader->seek(start));
        for (std::uint64_t s = start; s < std::min<std::uint64_t>(start + 1500, 8192); ++s) {
            ASSERT_TRUE(reader->read()) << s;
            ASSERT_EQ(numberAt(*reader), s);
        }
    }
    EXPECT_FALSE(reader->read());
    DIRECT_OR_SKIP();
    ASSERT_TRUE(QFile::resize(path, 4096 * 512));  // the device keeps its size
    const auto shorter = openMedium(device->node());
    ASSERT_NE(shorter, nullptr);
    const auto steps = scanSteps(*shorter, 5, 4200);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        ASSERT_EQ(steps[i].readSucceeded, i + 5 < 4096) << i;
    }
    ASSERT_TRUE(shorter->seek(100));
    EXPECT_TRUE(shorter->read());
}

TEST_F(LoopDeviceTest, PlaceThatFailsForGood_FailsAloneAndKeepsTheRest) {
    const QString path = write(QStringLiteral("card"), 8192);
    ATTACH_OR_SKIP(path);
    DIRECT_OR_SKIP();
    ASSERT_TRUE(QFile::resize(path, 4096 * 512));  // the device keeps its size
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    const auto steps = scanSteps(*reader, 0, 4200);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        ASSERT_EQ(steps[i].readSucceeded, i < 4096) << i;
        ASSERT_TRUE(steps[i].seekSucceeded) << i;
    }
    ASSERT_TRUE(reader->seek(100));
    EXPECT_TRUE(reader->read());
}

TEST_F(LoopDeviceTest, OtherCardOfTheSameSizeInTheSlot_IsAMediumThatWentAway) {
    const QString card = write(QStringLiteral("card"), 8192);
    const QString other = write(QStringLiteral("other"), 8192, 100000);
    ATTACH_OR_SKIP(card);
    if (diskSequenceOf(device->name()) == 0) {
        GTEST_SKIP() << "this kernel keeps no disk sequence numbers";
    }
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    for (int s = 0; s < 600; ++s) {
        ASSERT_TRUE(reader->read());
    }
    ASSERT_TRUE(device->swap(other));
    bool failed = false;
    for (std::uint64_t s = 600; s < 8192; ++s) {
        if (reader->read()) {
            ASSERT_FALSE(failed);
            ASSERT_LT(numberAt(*reader), 100000U) << "a sector of the other card";
        } else {
            failed = true;
            ASSERT_FALSE(reader->seek(s));
        }
    }
    EXPECT_TRUE(failed);
}

TEST_F(LoopDeviceTest, OtherCardThanTheListedOne_CannotBeOpened) {
    const QString card = write(QStringLiteral("card"), 64);
    const QString other = write(QStringLiteral("other"), 64);
    ATTACH_OR_SKIP(card);
    const MediumIdentity listed{diskSequenceOf(device->name()), 64};
    if (listed.diskSequence == 0) {
        GTEST_SKIP() << "this kernel keeps no disk sequence numbers";
    }
    EXPECT_NE(openMedium(device->node(), {{}, {}, listed}), nullptr);
    ASSERT_TRUE(device->swap(other));
    EXPECT_EQ(openMedium(device->node(), {{}, {}, listed}), nullptr);
    EXPECT_EQ(openMedium(device->node(), {{}, {}, {0, 65}}), nullptr);
    OpenTerms terms;
    terms.identity = listed;
    terms.refusal = std::make_shared<LastRefusal>();
    EXPECT_EQ(openMedium(device->node(), terms), nullptr);
    EXPECT_EQ(terms.refusal->get(), OpenRefusal::AnotherMedium);
    EXPECT_TRUE(wordsForRefusal(terms.refusal->get()).startsWith("Another medium is in its place now."));
    EXPECT_NE(openMedium(device->node()), nullptr);
}

TEST_F(LoopDeviceTest, MediumThatChangesItsSize_IsAMediumThatWentAway) {
    const QString card = write(QStringLiteral("card"), 8192);
    ATTACH_OR_SKIP(card);
    const auto reader = openMedium(device->node());
    ASSERT_NE(reader, nullptr);
    ASSERT_TRUE(reader->read());
    ASSERT_TRUE(QFile::resize(card, 0));
    ASSERT_TRUE(device->resize());
    const auto steps = scanSteps(*reader, 1, 8192);
    EXPECT_FALSE(steps.back().readSucceeded);
    EXPECT_FALSE(steps.back().seekSucceeded);
    EXPECT_EQ(openMedium(device->node()), nullptr);
}

TEST_F(LoopDeviceTest, WithoutPermission_TheDescriptorIsAskedFor) {
    ATTACH_OR_SKIP(write(QStringLiteral("card"), 64));
    if (::geteuid() != 0) {
        GTEST_SKIP() << "not root";
    }
    std::atomic<int> asked{0};
    const DescriptorRequest refuse = [&](const QString& node, const StopRequest&) {
        ++asked;
        EXPECT_EQ(node, device->node());
        return FileDescriptor();
    };
    const int rootsOwn = ::open(QFile::encodeName(device->node()).constData(), O_RDONLY | O_CLOEXEC);
    const DescriptorRequest handOver = [&](const QString&, const StopRequest&) {
        ++asked;
        return FileDescriptor(::fcntl(rootsOwn, F_DUPFD_CLOEXEC, 0));
    };
    ASSERT_EQ(::seteuid(65534), 0);
    const auto refused = openMedium(device->node(), {{}, refuse, {}});
    const auto without = openMedium(device->node());
    const auto reader = openMedium(device->node(), {{}, handOver, {}});
    ASSERT_EQ(::seteuid(0), 0);
    ::close(rootsOwn);
    EXPECT_EQ(refused, nullptr);
    EXPECT_EQ(without, nullptr);
    EXPECT_EQ(asked, 2);
    ASSERT_NE(reader, nullptr);
    EXPECT_TRUE(reader->read());
}

}  // namespace
}  // namespace vantor::test
