// The packed list gives every item back as it was, from memory and from the file.
#include <gtest/gtest.h>
#include <malloc.h>

#include <QDir>
#include <QTemporaryDir>

#include "results/FoundItems.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

void expectSame(const MyImageObject& a, const MyImageObject& b) {
    EXPECT_EQ(a.imageTitle(), b.imageTitle());
    EXPECT_EQ(a.imageUID(), b.imageUID());
    EXPECT_EQ(a.path(), b.path());
    EXPECT_EQ(a.type(), b.type());
    EXPECT_EQ(a.imageData(), b.imageData());
    EXPECT_EQ(a.heldBytes(), b.heldBytes());
    EXPECT_EQ(a.image().cacheKey(), b.image().cacheKey());
    EXPECT_EQ(a.File_Start_Sector(), b.File_Start_Sector());
    EXPECT_EQ(a.File_End_Sector(), b.File_End_Sector());
    EXPECT_EQ(a.publishedSectors(), b.publishedSectors());
    EXPECT_EQ(a.carved().runs, b.carved().runs);
    EXPECT_EQ(a.carved().repeats, b.carved().repeats);
    EXPECT_EQ(a.carved().readFailed, b.carved().readFailed);
}

std::vector<std::unique_ptr<MyImageObject>> variousItems(const QByteArray& placeholder) {
    constexpr std::uint64_t kFar = ~std::uint64_t{0} - 5;
    std::vector<std::unique_ptr<MyImageObject>> items;
    items.push_back(MyImageObject::initWithImage({}, "a.JPG", "a.JPG", 10, 20));
    items.back()->setOrigin("JPG", {{{10, 20}}, false}, {10, 20});
    items.back()->setPath("a.JPG");
    items.push_back(MyImageObject::initWithImage({}, "b.JPG", "b.JPG", 11, kFar));
    items.back()->setOrigin("JPG", {{{9, 14}, {16, kFar}}, true, {{3, 4}, {7, 9}}}, {11, kFar});
    items.push_back(MyImageObject::initWithImage_data(placeholder, "c.PNG", "GND00001.PNG"));
    items.back()->setOrigin("PNG", {{{1, 2}}, false}, {1, 2});
    items.back()->setHeldBytes("held");
    items.push_back(MyImageObject::initWithImage_data(noise(5000, 3), "d.PNG", "THD00001.PNG"));
    items.push_back(MyImageObject::initWithImage_Path(QString::fromUtf8("/tmp/Grüße \xF0\x9F\x98\x80"),
                                                      QString(1, QChar(0xD800)), ""));
    return items;
}

}  // namespace

class FoundItemsIn : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(FoundItems, FoundItemsIn, testing::Bool(), [](const auto& spilled) {
    return spilled.param ? std::string("AFile") : std::string("Memory");
});

TEST_P(FoundItemsIn, EveryItemComesBackAsItWas) {
    const QTemporaryDir folder;
    const QByteArray placeholder = noise(3000, 1);
    FoundItems list(GetParam() ? 1 : ByteSpool::kMostChunksInMemory);
    list.setSpillFolder([&] { return folder.path(); });
    list.setPlaceholder(placeholder);
    const auto items = variousItems(placeholder);
    constexpr std::size_t kTurns = 1000;
    for (std::size_t turn = 0; turn < kTurns; ++turn) {
        for (const auto& item : items) {
            list.append(*item);
        }
    }
    list.setPicture(3, "another");
    ASSERT_EQ(list.size(), kTurns * items.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto expected = i == 3 ? items[3]->withImageData("another")
                                     : std::make_shared<MyImageObject>(*items[i % items.size()]);
        ASSERT_NO_FATAL_FAILURE(expectSame(*list.at(i), *expected)) << i;
    }
    EXPECT_EQ(list.at(list.size()), nullptr);
    if (GetParam()) {
        EXPECT_LE(list.bytesInMemory(), 2 * ByteSpool::kChunkBytes + list.size() * 8);
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden))
        << "the file has no name";
    list.clear();
    EXPECT_EQ(list.size(), 0U);
    EXPECT_EQ(list.bytesInMemory(), 0U);
}

TEST(FoundItems, WithoutAFolder_AllStaysInMemory) {
    for (const char* folder : {"", "/proc/self"}) {
        FoundItems list(1);
        list.setSpillFolder([&] { return QString(folder); });
        const auto items = variousItems({});
        for (int turn = 0; turn < 1000; ++turn) {
            list.append(*items[3]);
        }
        for (std::size_t i = 0; i < list.size(); ++i) {
            ASSERT_NO_FATAL_FAILURE(expectSame(*list.at(i), *items[3]));
        }
    }
}

TEST(FoundItems, AnItemTakesLittleMoreThanItsText) {
    FoundItems list;
    constexpr std::size_t kCount = 200'000;
    const std::size_t before = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    qsizetype text = 0;
    for (std::uint64_t i = 0; i < kCount; ++i) {
        const QString name = QStringLiteral("JPG%1.JPG").arg(i, 5, 10, QLatin1Char('0'));
        text += name.size();
        const auto item = MyImageObject::initWithImage({}, name, name, i, i + 1);
        item->setOrigin(QStringLiteral("JPG"), {{{i, i + 1}}, false}, {i, i + 1});
        item->setPath(name);
        list.append(*item);
    }
    const std::size_t taken = ::mallinfo2().uordblks + ::mallinfo2().hblkhd - before;
    EXPECT_LE(taken, kCount * 30 + static_cast<std::size_t>(text));
}

}  // namespace vantor
