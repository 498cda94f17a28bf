// Why a medium could not be opened.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>

#include "media/ImageShelf.h"
#include "media/OpenRefusal.h"
#include "media/RawDevice.h"

namespace vantor {
namespace {

// As a user without rights, whoever runs the tests.
class Nobody {
  public:
    Nobody() : m_changed(::geteuid() == 0 && ::seteuid(65534) == 0) {}
    ~Nobody() {
        if (m_changed) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;

  private:
    bool m_changed;
};

class NoMedia : public MediaSource {
  public:
    QStringList mountedRemovableMedia() override { return {}; }
    MediaFacts diskInfo(const QString&) override { return {}; }
};

class OpenRefusalTest : public testing::Test {
  protected:
    OpenRefusal refusalOf(const QString& path, DescriptorRequest request = {}) {
        OpenTerms terms;
        terms.askForDescriptor = std::move(request);
        terms.refusal = refusal;
        EXPECT_EQ(openMedium(path, terms), nullptr);
        return refusal->get();
    }

    QString image() {
        QFile file(folder.filePath(QStringLiteral("card.img")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(1024, 'x'));
        return file.fileName();
    }

    QTemporaryDir folder;
    std::shared_ptr<LastRefusal> refusal = std::make_shared<LastRefusal>();
};

TEST_F(OpenRefusalTest, WithoutConsentACardMayNotBeRead) {
    const QString node = QStringLiteral("/dev/loop0");
    struct stat info {};
    if (::stat("/dev/loop0", &info) != 0 || !S_ISBLK(info.st_mode)) {
        GTEST_SKIP() << "no device here";
    }
    const Nobody nobody;
    if (::eaccess("/dev/loop0", R_OK) == 0) {
        GTEST_SKIP() << "everybody may read it";
    }
    EXPECT_EQ(refusalOf(node), OpenRefusal::MayNotReadDevice) << "nobody to ask";
    bool asked = false;
    EXPECT_EQ(refusalOf(node,
                        [&asked](const QString&, const StopRequest&) {
                            asked = true;
                            return FileDescriptor();
                        }),
              OpenRefusal::MayNotReadDevice);
    EXPECT_TRUE(asked);
    EXPECT_TRUE(wordsForRefusal(refusal->get()).startsWith("You may not read this card."));
}

TEST_F(OpenRefusalTest, AnImageOfSomebodyElse) {
    const QString file = image();
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), 0), 0);
    const Nobody nobody;
    EXPECT_EQ(refusalOf(file), OpenRefusal::MayNotReadImage);
    EXPECT_TRUE(wordsForRefusal(refusal->get()).startsWith("You may not read this image file."));
    ImageShelf shelf(std::make_unique<NoMedia>());
    const QString told = shelf.addImage(file).refusal;
    EXPECT_TRUE(told.endsWith(wordsForRefusal(OpenRefusal::MayNotReadImage))) << told.toStdString();
    const QString absent = shelf.addImage(folder.filePath(QStringLiteral("absent"))).refusal;
    EXPECT_TRUE(absent.endsWith(QStringLiteral("There is nothing of this name."))) << absent.toStdString();
}

TEST_F(OpenRefusalTest, WhatIsNotThere) {
    EXPECT_EQ(refusalOf(folder.filePath(QStringLiteral("absent"))), OpenRefusal::NotThere);
    EXPECT_FALSE(wordsForRefusal(refusal->get()).isEmpty());
}

TEST_F(OpenRefusalTest, WhatCannotBeAMediumHasNoWords) {
    EXPECT_EQ(refusalOf(folder.path()), OpenRefusal::Unknown);
    EXPECT_EQ(wordsForRefusal(refusal->get()), QString());
}

TEST_F(OpenRefusalTest, AnOpeningThatSucceedsEndsIt) {
    refusal->note(OpenRefusal::NotThere);
    OpenTerms terms;
    terms.refusal = refusal;
    EXPECT_NE(openMedium(image(), terms), nullptr);
    EXPECT_EQ(refusal->get(), OpenRefusal::None);
    EXPECT_EQ(wordsForRefusal(refusal->get()), QString());
}

}  // namespace
}  // namespace vantor
