// Pictures for cells: of what is in view, through one reader, and none for what the medium does not give.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <mutex>

#include "tests/support/Gate.h"
#include "tests/support/ScriptedMedium.h"
#include "tests/window/WindowTest.h"
#include "window/preview/CellPictures.h"

namespace vantor {
namespace {

constexpr std::size_t kSectors = 64;
constexpr int kSide = 40;

class CellPicturesTest : public testing::Test {
  protected:
    CellPicturesTest() {
        for (std::size_t sector = 0; sector < kSectors; ++sector) {
            medium.fill(sector, static_cast<std::uint8_t>(sector));
        }
    }
    ~CellPicturesTest() override { gate.open(); }

    // The item n lies in sector n; its picture is as wide as its first byte says.
    FileLook look(const QString& path, QSize bound) {
        QFile file(path);
        const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const std::lock_guard guard(lock);
        looked.push_back(bytes.isEmpty() ? -1 : bytes.at(0));
        bounds.push_back(bound);
        if (bytes.isEmpty() || bytes.at(0) % 2 != 0) {
            return {};
        }
        QImage picture(bytes.at(0) * 10, 10, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        return {picture, bytes.at(0) * 1000};
    }
    std::optional<ViewOrder> orderOf(std::size_t index) {
        if (notNeeded.contains(index)) {
            return std::nullopt;
        }
        ViewOrder order;
        order.file.type = QStringLiteral("xyz");
        order.file.carved.runs = {{index, index + 1}};
        order.file.start = index;
        order.file.hints.mend = mends[index];
        order.file.previewFile = folder.filePath(QStringLiteral("dprv.xyz"));
        order.file.folder = folder.path();
        order.openMedium = [this]() -> std::unique_ptr<SectorReader> {
            ++opened;
            if (refused) {
                return nullptr;
            }
            return std::make_unique<ScriptedReader>(medium);
        };
        return order;
    }
    bool waitFor(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, static_cast<int>(std::chrono::milliseconds(kPatience).count()));
    }
    bool isMade(std::size_t index) { return pictures.find(index) != nullptr; }
    QSize sizeOf(std::size_t index) {
        return isMade(index) ? QImage::fromData(pictures.find(index)->encoded).size() : QSize();
    }

    QTemporaryDir folder;
    ScriptedMedium medium{kSectors};
    Gate gate;
    std::mutex lock;
    std::vector<int> looked;
    std::vector<QSize> bounds;
    std::set<std::size_t> notNeeded;
    std::map<std::size_t, std::shared_ptr<const Mend>> mends;
    std::atomic<int> opened{0};
    std::atomic<bool> refused{false};
    CellPictures pictures{[this](const QString& path, QSize bound) { return look(path, bound); },
                          [this](std::size_t index) { return orderOf(index); }};
};

TEST_F(CellPicturesTest, OfWhatSomethingWasMadeOf_ThePictureIsMadeAgain_AndOfThatAlone) {
    pictures.want({8, 2}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return isMade(8) && isMade(2); }));
    mends[2] = std::make_shared<const Mend>();
    pictures.mendsChanged();
    EXPECT_FALSE(isMade(2));
    EXPECT_TRUE(isMade(8));
    ASSERT_TRUE(waitFor([&] { return isMade(2); }));
    pictures.mendsChanged();
    EXPECT_TRUE(isMade(2)) << "it shows what there is";
}

TEST_F(CellPicturesTest, WhatIsMadeWhileItIsLookedAt_IsLookedAtAgain) {
    medium.beforeRead = gate.atRead(0);
    pictures.want({4}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits(); }));
    mends[4] = std::make_shared<const Mend>();
    pictures.mendsChanged();
    gate.open();
    ASSERT_TRUE(waitFor([&] { return isMade(4); }));
    EXPECT_EQ(looked, (std::vector<int>{4, 4}));
}

TEST_F(CellPicturesTest, WhatIsInView_GetsItsPicturesInThatOrder_ThroughOneReader) {
    notNeeded = {6};
    pictures.want({8, 6, 2, 3}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return isMade(8) && isMade(2) && isMade(3); }));
    EXPECT_EQ(looked, (std::vector<int>{8, 2, 3}));
    EXPECT_EQ(bounds.front(), QSize(kSide, kSide));
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(sizeOf(8), QSize(kSide, 5)) << "no larger than it is shown";
    EXPECT_EQ(sizeOf(2), QSize(20, 10)) << "never enlarged";
    EXPECT_EQ(pictures.find(2)->durationMs, 2000);
    EXPECT_TRUE(pictures.find(3)->encoded.isEmpty()) << "and it is not asked again";
    EXPECT_FALSE(isMade(6));
    pictures.want({3, 2}, kSide, false);
    pictures.want({4}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return isMade(4); }));
    EXPECT_EQ(looked, (std::vector<int>{8, 2, 3, 4}));
}

TEST_F(CellPicturesTest, WhatIsNoLongerInView_HoldsUpNobody) {
    medium.beforeRead = gate.atRead(0);
    pictures.want({10, 12}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return gate.someoneWaits(); }));
    pictures.want({20}, kSide, false);
    gate.open();
    ASSERT_TRUE(waitFor([&] { return isMade(20); }));
    EXPECT_FALSE(isMade(10));
    EXPECT_FALSE(isMade(12));
    EXPECT_EQ(looked, std::vector<int>{20});
}

TEST_F(CellPicturesTest, AMediumThatCannotBeOpened_IsAskedOnce_UntilItMayBeThereAgain) {
    refused = true;
    pictures.want({2, 4}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return opened == 1; }));
    refused = false;
    pictures.want({2, 4}, kSide, false);
    QTest::qWait(0);
    EXPECT_FALSE(isMade(2));
    ASSERT_TRUE(waitFor([&] {
        pictures.tryAgain();
        pictures.want({2, 4}, kSide, false);
        return isMade(2) && isMade(4);
    }));
}

TEST_F(CellPicturesTest, WhileSomebodyWaitsForTheMedium_NothingIsRead) {
    pictures.rest(true);
    pictures.want({2}, kSide, false);
    EXPECT_TRUE(pictures.hasEnded()) << "there is not even a thread";
    EXPECT_EQ(opened, 0);
    pictures.rest(false);
    EXPECT_TRUE(waitFor([&] { return isMade(2); }));
}

TEST_F(CellPicturesTest, AnotherList_KnowsNothingOfTheLast) {
    pictures.want({2}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return isMade(2); }));
    pictures.begin();
    EXPECT_FALSE(isMade(2));
    pictures.want({2}, kSide, false);
    ASSERT_TRUE(waitFor([&] { return isMade(2); }));
    EXPECT_EQ(opened, 2) << "it may be another medium";
}

}  // namespace
}  // namespace vantor
