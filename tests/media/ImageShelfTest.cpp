// Opened images among the media, and the way from a listed medium to a reader.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "media/ImageShelf.h"
#include "media/MediaList.h"
#include "media/PlatformMedia.h"

namespace vantor::test {
namespace {

// A machine with one card, whose target is a file of the test's.
class OneCard : public MediaSource {
  public:
    explicit OneCard(const QString& node) { m_targets->replace({{QStringLiteral("sdb1"), {node, {}}}}); }
    QStringList mountedRemovableMedia() override { return {QStringLiteral("/media/card")}; }
    MediaFacts diskInfo(const QString& path) override {
        return path == u"/media/card"
                   ? MediaFacts{{QStringLiteral("DeviceIdentifier"), QStringLiteral("sdb1")}}
                   : MediaFacts();
    }
    std::shared_ptr<const MediumTargets> targets() const override { return m_targets; }

  private:
    std::shared_ptr<MediumTargets> m_targets = std::make_shared<MediumTargets>();
};

class ImageShelfTest : public testing::Test {
  protected:
    QString write(const QString& name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    QStringList rows() {
        QStringList all;
        for (const auto& row : listedMedia(*source)) {
            all << row->nsStrDiskIdentifier + u' ' + row->nsStrVolName + u' ' + row->nsStrSectors;
        }
        return all;
    }

    QTemporaryDir folder;
    QString card = write(QStringLiteral("card"), QByteArray(1024, 'c'));
    std::unique_ptr<MediaSource> source = std::make_unique<ImageShelf>(std::make_unique<OneCard>(card));
};

TEST_F(ImageShelfTest, OpenedImage_StaysBehindTheMachinesMedia) {
    const QString path = write(QStringLiteral("old card.img"), QByteArray(2000, 'i'));
    const OpenedImage opened = source->addImage(path);
    EXPECT_EQ(opened.refusal, QString());
    EXPECT_EQ(opened.identifier, QStringLiteral("image1"));
    const QStringList expected{QStringLiteral("sdb1 Untitled 0"), QStringLiteral("image1 old card.img 3")};
    EXPECT_EQ(rows(), expected);
    EXPECT_EQ(rows(), expected);
    const MediaFacts facts = source->diskInfo(opened.identifier);
    EXPECT_EQ(facts.value(QStringLiteral("BusProtocol")), QStringLiteral("Image File"));
    EXPECT_EQ(facts.value(QStringLiteral("IOKitSize")).toULongLong(), 1536U);
}

TEST_F(ImageShelfTest, SameImageTwice_IsOneMedium) {
    const QString path = write(QStringLiteral("a.img"), QByteArray(512, 'i'));
    QFile::link(path, folder.filePath(QStringLiteral("link.img")));
    source->addImage(path);
    EXPECT_EQ(source->addImage(folder.filePath(QStringLiteral("link.img"))).identifier,
              QStringLiteral("image1"));
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(ImageShelfTest, WhatWasListed_IsReadUntilTheNextListing) {
    const QString path = write(QStringLiteral("a.img"), QByteArray(512, 'i'));
    const QString device = QStringLiteral("/dev/r") + source->addImage(path).identifier;
    const auto opener = makeMediumOpener(*source, {});
    const auto firstByte = [&] {
        const auto reader = opener(device);
        return reader && reader->read() ? static_cast<char>(*reader->current()) : '-';
    };
    EXPECT_EQ(firstByte(), 'i');
    rows();
    const QString other = write(QStringLiteral("b.img"), QByteArray(512, 'j'));
    ASSERT_EQ(std::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()), 0);
    EXPECT_EQ(firstByte(), 'i');
    rows();
    EXPECT_EQ(firstByte(), 'j');
}

TEST_F(ImageShelfTest, AnyPartOfASplitImage_OpensTheWhole) {
    write(QStringLiteral("a.001"), QByteArray(700, 'i'));
    const QString second = write(QStringLiteral("a.002"), QByteArray(700, 'j'));
    EXPECT_EQ(source->addImage(second).identifier, QStringLiteral("image1"));
    EXPECT_EQ(source->addImage(folder.filePath(QStringLiteral("a.001"))).identifier,
              QStringLiteral("image1"));
    EXPECT_EQ(rows().last(), QStringLiteral("image1 a.001 2"));
}

TEST_F(ImageShelfTest, AnImageWithAMapBesideIt_HasWhatWasNotReadAsUnreadable) {
    const QString path = write(QStringLiteral("a.img"), QByteArray(8 * 512, 'i'));
    write(QStringLiteral("a.map"), "0x0 + 1\n0x0 0x400 +\n0x400 0x200 -\n0x600 0xA00 +\n");
    const OpenedImage opened = source->addImage(path);
    ASSERT_EQ(opened.refusal, QString());
    EXPECT_EQ(rows().last(), QStringLiteral("image1 a.img 8"));
    const auto medium = makeMediumOpener(*source)(QStringLiteral("/dev/rimage1"));
    ASSERT_NE(medium, nullptr);
    for (std::uint64_t sector = 0; sector < 8; ++sector) {
        ASSERT_TRUE(medium->seek(sector));
        EXPECT_EQ(medium->read(), sector != 2) << sector;
    }
}

TEST_F(ImageShelfTest, WhatIsNoImage_IsRefusedInASentence) {
    const QStringList paths{
        write(QStringLiteral("a.gz"), QByteArray::fromHex("1f8b0808") + QByteArray(600, 'x')),
        write(QStringLiteral("empty.img"), "too short"), folder.path(),
        folder.filePath(QStringLiteral("absent.img")), QStringLiteral("/dev/null")};
    for (const QString& path : paths) {
        const OpenedImage opened = source->addImage(path);
        EXPECT_EQ(opened.identifier, QString()) << path.toStdString();
        EXPECT_TRUE(opened.refusal.endsWith(u'.')) << opened.refusal.toStdString();
        EXPECT_TRUE(opened.refusal.startsWith(u'“' + path + u'”')) << opened.refusal.toStdString();
    }
    EXPECT_EQ(rows().size(), 1);
}

TEST_F(ImageShelfTest, ImageThatVanishes_HasNoRowUntilItIsBack) {
    const QString path = write(QStringLiteral("a.img"), QByteArray(512, 'i'));
    source->addImage(path);
    QFile::remove(path);
    EXPECT_EQ(rows().size(), 1);
    write(QStringLiteral("a.img"), QByteArray(512, 'i'));
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(ImageShelfTest, FileSystemOfAnImage_IsNamedOnceUntilTheFileIsAnother) {
    int asked = 0;
    ImageShelf shelf(std::make_unique<OneCard>(card), [&](SectorReader& medium, std::uint64_t sectors) {
        ++asked;
        EXPECT_EQ(sectors, 3U);
        return medium.read() ? QString::fromLatin1(reinterpret_cast<const char*>(medium.current()), 4)
                             : QString();
    });
    const auto named = [&] { return listedMedia(shelf).constLast()->nsStrFileSystem; };
    const QString path = write(QStringLiteral("card.img"), QByteArray("EXT9") + QByteArray(2000, 'i'));
    shelf.addImage(path);
    EXPECT_EQ(named(), QStringLiteral("EXT9"));
    EXPECT_EQ(named(), QStringLiteral("EXT9"));
    EXPECT_EQ(asked, 1) << "not at every listing";
    const auto held = shelf.targets()->find(QStringLiteral("image1"))->image->open({path});
    ASSERT_TRUE(QFile::remove(path));
    write(QStringLiteral("card.img"), QByteArray("EXT8") + QByteArray(2000, 'i'));
    EXPECT_EQ(named(), QStringLiteral("EXT8"));
}

TEST_F(ImageShelfTest, ChangesOfTheMachine_AreTold) {
    auto machine = std::make_unique<OneCard>(card);
    MediaSource* inner = machine.get();
    ImageShelf shelf(std::move(machine));
    inner->changed();  // nobody listens yet
    int changes = 0;
    shelf.changed = [&changes] { ++changes; };
    inner->changed();
    EXPECT_EQ(changes, 1);
}

TEST_F(ImageShelfTest, Opener_OpensWhatWasListedAndNothingElse) {
    const QString image = write(QStringLiteral("a.img"), QByteArray(512, 'i'));
    source->addImage(image);
    rows();
    const auto open = makeMediumOpener(*source);
    for (const auto& [path, byte] : {std::pair("/dev/rsdb1", 'c'), std::pair("/dev/rimage1", 'i')}) {
        const auto reader = open(QLatin1String(path));
        ASSERT_NE(reader, nullptr) << path;
        ASSERT_TRUE(reader->read());
        EXPECT_EQ(reader->current()[0], byte);
    }
    for (const char* path : {"/dev/rsdc1", "/dev/r", "", "/dev/sdb1", "sdb1", "/dev/r../etc/passwd"}) {
        EXPECT_EQ(open(QLatin1String(path)), nullptr) << path;
    }
    source.reset();
    EXPECT_NE(open(QStringLiteral("/dev/rimage1")), nullptr);
}

TEST(PlatformMedia, ListsThisMachineWithoutHanging) {
    const auto source = makePlatformMediaSource();
    MediaList list(*source);
    list.rebuild();
    for (const auto& row : list.nsMutaryOfDataObject) {
        EXPECT_FALSE(row->nsStrDiskIdentifier.isEmpty());
    }
    EXPECT_NE(source->targets(), nullptr);
}

}  // namespace
}  // namespace vantor::test
