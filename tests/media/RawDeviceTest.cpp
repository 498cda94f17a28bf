// Opening and reading image files: whole sectors, parts, and files that change under the reader.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "media/ImageFile.h"
#include "media/ImageParts.h"
#include "media/RawDevice.h"
#include "media/WindowedReader.h"
#include "tests/media/ScriptedDrive.h"

namespace vantor::test {
namespace {

class RawDeviceTest : public testing::Test {
  protected:
    QString pathOf(const QString& name) const { return m_folder.filePath(name); }

    // Sectors [first, end) of the numbered medium, and `extra` bytes.
    QString writeImage(const QString& name, std::uint64_t first, std::uint64_t end, qsizetype extra = 0) {
        QByteArray bytes;
        for (std::uint64_t s = first; s < end; ++s) {
            std::uint8_t sector[kSectorBytes];
            ScriptedDrive::fill(s, sector);
            bytes.append(reinterpret_cast<const char*>(sector), kSectorBytes);
        }
        bytes.append(extra, 'x');
        return writeFile(name, bytes);
    }

    QString writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(pathOf(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    static std::uint64_t numberAt(const SectorReader& reader) {
        std::uint64_t number = 0;
        std::memcpy(&number, reader.current(), sizeof(number));
        return number;
    }

    QTemporaryDir m_folder;
};

TEST_F(RawDeviceTest, TrailingPartialSector_IsDropped) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 3, 511);
    const auto facts = probeMedium(path);
    ASSERT_TRUE(facts);
    EXPECT_TRUE(facts->isImage);
    EXPECT_EQ(facts->sectors, 3U);
    const auto reader = openMedium(path);
    ASSERT_NE(reader, nullptr);
    for (std::uint64_t s = 0; s < 3; ++s) {
        ASSERT_TRUE(reader->read());
        EXPECT_EQ(numberAt(*reader), s);
    }
    EXPECT_FALSE(reader->read());
    EXPECT_EQ(reader->position(), 3U);
}

TEST_F(RawDeviceTest, WhatIsNoMedium_CannotBeOpened) {
    QString why;
    EXPECT_FALSE(probeMedium(pathOf(QStringLiteral("absent")), &why));
    EXPECT_FALSE(why.isEmpty());
    EXPECT_FALSE(probeMedium(m_folder.path(), &why));
    EXPECT_EQ(why, QStringLiteral("Neither a storage medium nor an image file"));
    EXPECT_EQ(openMedium(m_folder.path()), nullptr);
    EXPECT_EQ(openMedium(QStringLiteral("/dev/null")), nullptr);
    const QString pipe = pathOf(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(openMedium(pipe), nullptr);
}

TEST_F(RawDeviceTest, AnotherFileUnderTheName_IsNotRead) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 3);
    OpenTerms terms;
    terms.image = std::make_shared<HeldImage>();
    ASSERT_TRUE(probeMedium(path, nullptr, {}, terms.image.get()));
    const auto secondSector = [&] {
        const auto reader = openMedium(path, terms);
        return reader && reader->seek(1) && reader->read() ? std::optional(numberAt(*reader)) : std::nullopt;
    };
    ASSERT_EQ(secondSector(), 1U);
    const QString other = writeImage(QStringLiteral("other.img"), 100, 104);
    ASSERT_EQ(std::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()), 0);
    EXPECT_FALSE(terms.image->isAsNamed());
    EXPECT_EQ(secondSector(), 1U);
    QFile::remove(path);
    EXPECT_EQ(secondSector(), 1U);
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_EQ(secondSector(), 1U);
    EXPECT_FALSE(terms.image->wasWrittenTo());
    const auto apart = terms.image->openApart();
    ASSERT_TRUE(apart);
    std::uint64_t number = 0;
    ASSERT_EQ(::pread(apart->front().get(), &number, sizeof(number), 2 * kSectorBytes), 8);
    EXPECT_EQ(number, 2U);
}

TEST_F(RawDeviceTest, WritingIntoAnImage_IsNoticed) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 3);
    HeldImage image;
    EXPECT_FALSE(image.wasWrittenTo()) << "nothing is open yet";
    ASSERT_NE(image.open({path}), nullptr);
    EXPECT_FALSE(image.wasWrittenTo());
    EXPECT_TRUE(image.isAsNamed());
    const struct timespec later[2] = {{0, UTIME_OMIT}, {4102444800, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), later, 0), 0);
    EXPECT_TRUE(image.wasWrittenTo());
    EXPECT_FALSE(image.isAsNamed());
}

// Some of what the kernel tells of itself is waited for by whoever reads a byte of it.
TEST_F(RawDeviceTest, PlainFilesWithoutASize_AreNotRead) {
    const QString path = QStringLiteral("/proc/kmsg");
    struct stat info {};
    if (::stat("/proc/kmsg", &info) != 0 || !S_ISREG(info.st_mode) || ::access("/proc/kmsg", R_OK) != 0) {
        GTEST_SKIP() << "nothing here that would be waited for";
    }
    EXPECT_FALSE(isEvidenceSegment(path));
    EXPECT_FALSE(refusePackedImage(path));
    EXPECT_EQ(probeMedium(path)->sectors, 0U);
}

TEST_F(RawDeviceTest, Descriptor_IsReadOnlyAndClosedOnExec) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 3);
    const auto reader = openMedium(path);
    ASSERT_NE(reader, nullptr);
    int seen = 0;
    for (int fd = 0; fd < 256; ++fd) {
        if (QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(fd)) == path) {
            ++seen;
            EXPECT_EQ(::fcntl(fd, F_GETFL) & O_ACCMODE, O_RDONLY);
            EXPECT_TRUE(::fcntl(fd, F_GETFD) & FD_CLOEXEC);
        }
    }
    EXPECT_EQ(seen, 1);
}

TEST_F(RawDeviceTest, BeyondTwoTebibytes_IsReached) {
    const QString path = pathOf(QStringLiteral("sparse.img"));
    constexpr std::uint64_t kFar = (std::uint64_t{3} << 40) / kSectorBytes;  // 3 TiB
    const int fd = ::open(QFile::encodeName(path).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    ASSERT_GE(fd, 0);
    for (const std::uint64_t s : {(std::uint64_t{5} << 30) / kSectorBytes, kFar}) {
        std::uint8_t sector[kSectorBytes];
        ScriptedDrive::fill(s, sector);
        if (::pwrite(fd, sector, kSectorBytes, static_cast<off_t>(s * kSectorBytes)) != kSectorBytes) {
            ::close(fd);
            GTEST_SKIP() << "the file system of the temporary folder takes no file of 3 TiB";
        }
    }
    ::close(fd);
    const auto reader = openMedium(path);
    ASSERT_NE(reader, nullptr);
    for (const std::uint64_t s : {(std::uint64_t{5} << 30) / kSectorBytes, kFar}) {
        ASSERT_TRUE(reader->seek(s));
        ASSERT_TRUE(reader->read());
        EXPECT_EQ(numberAt(*reader), s);
    }
    EXPECT_FALSE(reader->read());
}

TEST_F(RawDeviceTest, SplitImageWithAPartMissing_IsRefusedByName) {
    const QStringList parts{writeFile("card.001", QByteArray(512, 'a')),
                            writeFile("card.003", QByteArray(512, 'c')), writeFile("card.txt", "x"),
                            writeFile("other.002", QByteArray(512, 'o'))};
    for (const QString& part : {parts[0], parts[1]}) {
        QString why;
        EXPECT_FALSE(probeMedium(part, &why));
        EXPECT_TRUE(why.contains("card.002")) << why.toStdString();
        EXPECT_EQ(openMedium(part), nullptr);
    }
    EXPECT_TRUE(probeMedium(parts[3])) << "a file that merely ends in a number";
    writeFile("card.002", QByteArray(512, 'b'));
    EXPECT_EQ(probeMedium(parts[0])->sectors, 3U);
}

TEST_F(RawDeviceTest, SplitImage_IsReadAsOne) {
    // Parts that do not end at a sector's end, one of them shorter than a sector.
    QFile whole(writeImage(QStringLiteral("whole.img"), 0, 1500, 100));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    QStringList parts;
    for (const qint64 length : {qint64{300000}, qint64{100}, qint64{262144}, whole.size()}) {
        parts << writeFile(QStringLiteral("card.%1").arg(parts.size() + 1, 3, 10, QChar(u'0')),
                           whole.read(length));
    }
    EXPECT_EQ(imageParts(parts.at(2)), parts);
    EXPECT_EQ(probeMedium(parts.first())->sectors, 1500U);
    for (const QString& part : {parts.first(), parts.last()}) {
        const auto reader = openMedium(part);
        ASSERT_NE(reader, nullptr);
        for (std::uint64_t s = 0; s < 1500; ++s) {
            ASSERT_TRUE(reader->read()) << s;
            ASSERT_EQ(numberAt(*reader), s);
        }
        EXPECT_FALSE(reader->read());
        ASSERT_TRUE(reader->seek(586));  // lies across two ends of parts
        ASSERT_TRUE(reader->read());
        EXPECT_EQ(numberAt(*reader), 586U);
    }
}

TEST_F(RawDeviceTest, NumberedFileWithoutAFirstPart_StandsAlone) {
    const QString third = writeImage(QStringLiteral("card.003"), 0, 2);
    EXPECT_EQ(imageParts(third), QStringList{third});
    writeImage(QStringLiteral("card.001"), 0, 2);
    EXPECT_EQ(imageParts(third), QStringList{third});  // the second is missing
    EXPECT_EQ(imageParts(QStringLiteral(".001")), QStringList{QStringLiteral(".001")});
}

TEST_F(RawDeviceTest, EmptyPart_IsPassedOver) {
    writeImage(QStringLiteral("card.001"), 0, 2);
    writeFile(QStringLiteral("card.002"), {});
    writeImage(QStringLiteral("card.003"), 2, 4);
    const auto reader = openMedium(pathOf(QStringLiteral("card.001")));
    ASSERT_NE(reader, nullptr);
    for (std::uint64_t s = 0; s < 4; ++s) {
        ASSERT_TRUE(reader->read()) << s;
        EXPECT_EQ(numberAt(*reader), s);
    }
    EXPECT_FALSE(reader->read());
}

TEST_F(RawDeviceTest, ImageThatShrinks_IsAMediumThatWentAway) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 2000);
    auto source = openMediumSource(path);
    ASSERT_NE(source, nullptr);
    // Nothing is read ahead, which would see the end sooner or later.
    WindowedReader reader(std::move(source), WindowedReader::Fetching::WhenAsked);
    ASSERT_TRUE(reader.read());
    ASSERT_TRUE(QFile::resize(path, 700 * 512 + 5));
    const auto steps = scanSteps(reader, 1, 1999);
    EXPECT_TRUE(steps[698].readSucceeded);  // sector 699
    EXPECT_EQ(steps[698].bytesOf, 699U);
    for (std::size_t i = 699; i < steps.size(); ++i) {
        ASSERT_FALSE(steps[i].readSucceeded) << i;
        ASSERT_FALSE(steps[i].seekSucceeded) << i;
        ASSERT_EQ(steps[i].bytesOf, 699U) << i;
    }
    EXPECT_FALSE(reader.seek(0));
    EXPECT_FALSE(reader.read());
}

TEST_F(RawDeviceTest, ImageThatShrinksWhileItIsReadAhead_EndsNoLaterAndComesNotBack) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 8000);
    const auto reader = openMedium(path);
    ASSERT_NE(reader, nullptr);
    std::uint64_t good = 0;
    while (good < 4000 && reader->read()) {
        ASSERT_EQ(numberAt(*reader), good);
        ++good;
    }
    ASSERT_EQ(good, 4000U);
    ASSERT_TRUE(QFile::resize(path, 4100 * 512 + 5));
    while (good < 8000 && reader->read()) {
        ASSERT_EQ(numberAt(*reader), good);
        ++good;
    }
    // What had been fetched before may be handed over still.
    ASSERT_LT(good, 8000U);
    for (std::uint64_t s = 0; s < 8000; ++s) {
        ASSERT_FALSE(reader->seek(s)) << s;
        ASSERT_FALSE(reader->read()) << s;
    }
    EXPECT_EQ(numberAt(*reader), good - 1);
}

TEST_F(RawDeviceTest, ImageThatVanishes_IsReadToItsEndButNotOpenedAgain) {
    const QString path = writeImage(QStringLiteral("card.img"), 0, 2000);
    const auto reader = openMedium(path);
    ASSERT_NE(reader, nullptr);
    ASSERT_TRUE(QFile::remove(path));
    for (const ScanStep& step : scanSteps(*reader, 0, 2000)) {
        ASSERT_TRUE(step.readSucceeded);
    }
    EXPECT_EQ(openMedium(path), nullptr);
}

struct Packed {
    const char* name;
    QByteArray bytes;
};

TEST_F(RawDeviceTest, PackedImage_IsRefusedWithASentenceThatSaysWhatToDo) {
    const QByteArray zeros(4096, '\0');
    const auto at = [&](qsizetype offset, const QByteArray& mark) {
        return QByteArray(zeros).replace(offset, mark.size(), mark);
    };
    const Packed kPacked[] = {
        {"gzip", at(0, QByteArray::fromHex("1f8b0800"))},
        {"xz", at(0, QByteArray::fromHex("fd377a585a00"))},
        {"bzip2", at(0, "BZh91AY&SY")},
        {"Zstandard", at(0, QByteArray::fromHex("28b52ffd"))},
        {"LZ4", at(0, QByteArray::fromHex("04224d18"))},
        {"ZIP", at(0, QByteArray::fromHex("504b03041400"))},
        {"7z", at(0, QByteArray::fromHex("377abcaf271c"))},
        {"RAR", at(0, QByteArray::fromHex("526172211a0700"))},
        {"QCOW2", at(0, QByteArray::fromHex("514649fb00000003"))},
        {"VDI", at(0x40, QByteArray::fromHex("7f10dabe"))},
        {"VMDK", at(0, "KDMV")},
        {"VMDK", at(0, "COWD")},
        {"VMDK", "# Disk DescriptorFile\nversion=1\n"},
        {"VHD", at(0, "conectix")},
        {"VHDX", at(0, "vhdxfile")},
        {"Ex01", at(0, QByteArray::fromHex("455646320d0a8100"))},
        {"L01", at(0, QByteArray::fromHex("4c5646090d0aff00"))},
        {"Lx01", at(0, QByteArray::fromHex("4c4546320d0a8100"))},
        {"AFF", at(0, "AFF10\r\n")},
        {"Apple disk image", at(4096 - 512, QByteArray::fromHex("6b6f6c7900000004"))},
    };
    for (const Packed& packed : kPacked) {
        const auto refusal = refusePackedImage(writeFile(QStringLiteral("packed.img"), packed.bytes));
        ASSERT_TRUE(refusal) << packed.name;
        EXPECT_TRUE(refusal->contains(QStringLiteral("packed.img"))) << packed.name;
        EXPECT_TRUE(refusal->contains(QLatin1String(packed.name))) << refusal->toStdString();
        EXPECT_TRUE(refusal->contains(QStringLiteral("Please "))) << refusal->toStdString();
    }
}

TEST_F(RawDeviceTest, PlainImage_IsNotRefused) {
    EXPECT_FALSE(refusePackedImage(writeImage(QStringLiteral("card.img"), 0, 5)));
    EXPECT_FALSE(refusePackedImage(writeFile(QStringLiteral("empty.img"), {})));
    EXPECT_FALSE(refusePackedImage(writeFile(QStringLiteral("short.img"), "B")));
    EXPECT_FALSE(refusePackedImage(pathOf(QStringLiteral("absent"))));
    // A card of which a picture is the first thing, and one that begins with a boot sector.
    EXPECT_FALSE(refusePackedImage(
        writeFile(QStringLiteral("jpg.img"), QByteArray::fromHex("ffd8ffe1") + QByteArray(9000, '\1'))));
    EXPECT_FALSE(refusePackedImage(
        writeFile(QStringLiteral("fat.img"),
                  QByteArray::fromHex("eb58906d6b66732e66617400") + QByteArray(9000, '\0'))));
    // A fixed VHD is a plain image with a footer.
    EXPECT_FALSE(refusePackedImage(
        writeFile(QStringLiteral("fixed.vhd"), QByteArray(4096, '\0') + "conectix" + QByteArray(504, '\0'))));
}

}  // namespace
}  // namespace vantor::test
