// A card that was taken out and put back: known again by what it is and what it holds, wherever it is now.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <random>
#include <set>
#include <vector>

#include "media/MediumTargets.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kSectors = 4096;

struct Card {
    explicit Card(unsigned seed) : bytes(kSectors * kSectorBytes) {
        std::mt19937 random(seed);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random() >> 24);
        }
    }
    std::vector<std::uint8_t> bytes;
    std::set<std::uint64_t> bad;
};

class CardSource : public BlockSource {
  public:
    explicit CardSource(const Card& card) : m_card(card) {}
    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const std::size_t count =
            std::min(into.size(), m_card.bytes.size() - std::min(m_card.bytes.size(), sector * kSectorBytes));
        for (std::size_t done = 0; done < count; done += kSectorBytes) {
            if (m_card.bad.contains(sector + done / kSectorBytes)) {
                return done == 0 ? -1 : static_cast<std::int64_t>(done);
            }
            std::memcpy(into.data() + done, m_card.bytes.data() + sector * kSectorBytes + done, kSectorBytes);
        }
        return static_cast<std::int64_t>(count);
    }
    bool usable() override { return true; }

  private:
    const Card& m_card;
};

// Slots that cards are put into and taken out of.
class SameMediumTest : public testing::Test {
  protected:
    void putIn(const QString& node, const Card& card, const MediumIdentity& as) {
        takeOut(node);
        inSlots[node] = {&card, ++lastSequence};
        MediumTarget target{node, as, std::make_shared<MediumMemory>()};
        target.identity.diskSequence = lastSequence;
        present.append(target);
    }
    void takeOut(const QString& node) {
        inSlots.erase(node);
        present.removeIf([&](const MediumTarget& target) { return target.path == node; });
    }
    std::unique_ptr<BlockSource> open(const MediumTarget& target) {
        return openSameMedium(
            target, [this] { return present; },
            [this](const QString& node) -> std::optional<OpenedNode> {
                ++opened;
                const auto slot = inSlots.find(node);
                if (slot == inSlots.end()) {
                    return std::nullopt;
                }
                return OpenedNode{std::make_unique<CardSource>(*slot->second.first),
                                  {kSectors, 512, slot->second.second}};
            });
    }
    static void readAll(BlockSource& source) {
        std::vector<std::uint8_t> window(64 * kSectorBytes);
        for (std::uint64_t sector = 0; sector < kSectors; sector += 64) {
            source.readAt(sector, window);
        }
    }
    // Listed in sdb1 and searched.
    MediumTarget searched(const Card& card) {
        putIn(QStringLiteral("/dev/sdb1"), card, identity);
        const MediumTarget target = present.last();
        const auto source = open(target);
        EXPECT_NE(source, nullptr);
        readAll(*source);
        return target;
    }

    const MediumIdentity identity{0,
                                  kSectors,
                                  QStringLiteral("Generic_Reader_0"),
                                  QStringLiteral("CANON_DC"),
                                  QStringLiteral("1234-ABCD"),
                                  QStringLiteral("1")};
    std::map<QString, std::pair<const Card*, std::uint64_t>> inSlots;
    QList<MediumTarget> present;
    std::uint64_t lastSequence = 20;
    int opened = 0;
};

TEST_F(SameMediumTest, TheCardPutBack_IsOpenedUnderItsNewNumber) {
    const Card card(1);
    const MediumTarget listed = searched(card);
    takeOut(listed.path);
    EXPECT_EQ(open(listed), nullptr);
    putIn(listed.path, card, identity);
    EXPECT_NE(open(listed), nullptr);
    opened = 0;
    EXPECT_NE(open(listed), nullptr);
    EXPECT_EQ(opened, 1) << "its new number is known";
}

TEST_F(SameMediumTest, TheCardPutBack_IsFoundAtAnotherNode) {
    const Card card(1);
    const MediumTarget listed = searched(card);
    takeOut(listed.path);
    putIn(QStringLiteral("/dev/sdd1"), card, identity);
    EXPECT_TRUE(nodesOf(listed, [this] { return present; }).contains(QStringLiteral("/dev/sdd1")));
    EXPECT_NE(open(listed), nullptr);
    takeOut(QStringLiteral("/dev/sdd1"));
    EXPECT_EQ(open(listed), nullptr);
}

TEST_F(SameMediumTest, AComputerThatMountedIt_DoesNotMakeItAnother) {
    Card card(1);
    const MediumTarget listed = searched(card);
    card.bytes[0x41] ^= 1;  // the mark of a mounted FAT32 volume
    card.bad = {1, 2, 3};
    putIn(listed.path, card, identity);
    EXPECT_NE(open(listed), nullptr);
}

TEST_F(SameMediumTest, AnotherCard_IsRefused) {
    const Card card(1), other(2);
    const MediumTarget listed = searched(card);
    putIn(listed.path, other, identity);
    EXPECT_EQ(open(listed), nullptr) << "same reader, size, label and number of its file system";
    Card sameBoot(2);
    std::memcpy(sameBoot.bytes.data(), card.bytes.data(), 8 * kSectorBytes);
    putIn(listed.path, sameBoot, identity);
    EXPECT_EQ(open(listed), nullptr) << "formatted alike";
    Card dead(1);
    for (std::uint64_t sector = 0; sector < kSectors; ++sector) {
        dead.bad.insert(sector);
    }
    putIn(listed.path, dead, identity);
    EXPECT_EQ(open(listed), nullptr) << "nothing to know it by";
}

TEST_F(SameMediumTest, WhatTheListingKnows_HasToAgree) {
    const Card card(1);
    const MediumTarget listed = searched(card);
    const auto refusedWith = [&](auto change) {
        MediumIdentity changed = identity;
        change(changed);
        putIn(listed.path, card, changed);
        return open(listed) == nullptr;
    };
    EXPECT_TRUE(refusedWith([](MediumIdentity& i) { i.serial = QStringLiteral("Other"); }));
    EXPECT_TRUE(refusedWith([](MediumIdentity& i) { i.label = QStringLiteral("NIKON"); }));
    EXPECT_TRUE(refusedWith([](MediumIdentity& i) { i.fileSystemId = QStringLiteral("0000-0000"); }));
    EXPECT_TRUE(refusedWith([](MediumIdentity& i) { i.partition = QStringLiteral("2"); }));
    EXPECT_TRUE(refusedWith([](MediumIdentity& i) { i.sectors = kSectors - 1; }));
    EXPECT_FALSE(refusedWith([](MediumIdentity&) {}));
}

TEST_F(SameMediumTest, BeforeAnythingWasRead_TheFileSystemsNumberDecides) {
    const Card card(1);
    putIn(QStringLiteral("/dev/sdb1"), card, identity);
    const MediumTarget listed = present.last();
    putIn(listed.path, card, identity);
    EXPECT_NE(open(listed), nullptr);
    MediumIdentity nameless = identity;
    nameless.fileSystemId.clear();
    putIn(QStringLiteral("/dev/sdc1"), card, nameless);
    const MediumTarget second = present.last();
    putIn(second.path, card, nameless);
    EXPECT_EQ(open(second), nullptr);
}

TEST_F(SameMediumTest, WithoutNumbersOfTheKernel_TheBytesDecideToo) {
    const Card card(1), other(2);
    lastSequence = ~std::uint64_t{0};  // the next one is 0, which stands for none
    const MediumTarget listed = searched(card);
    ASSERT_EQ(listed.identity.diskSequence, 0U);
    EXPECT_NE(open(listed), nullptr);
    inSlots[listed.path] = {&other, 0};
    EXPECT_EQ(open(listed), nullptr);
}

TEST(MediumMemory, KeepsFewSectorsOfAllThatWasRead_TheFirstAmongThem) {
    Card card(1);
    std::fill_n(card.bytes.begin() + 100 * 512, 3000 * 512, std::uint8_t{0});
    MediumMemory memory;
    memory.note(0, card.bytes);
    Card front(1);
    std::fill(front.bytes.begin() + 100 * 512, front.bytes.end(), std::uint8_t{7});
    CardSource onlyFront(front);
    EXPECT_FALSE(memory.agreesWith(onlyFront)) << "what lies behind is remembered too";
    CardSource whole(card);
    EXPECT_TRUE(memory.agreesWith(whole));
    for (std::uint64_t sector = 1; sector < kSectors; ++sector) {
        front.bad.insert(sector);
    }
    EXPECT_TRUE(memory.agreesWith(onlyFront)) << "the boot sector alone";
}

TEST(MediumTargets, AListingOfTheSameStay_KeepsWhatIsRemembered) {
    const auto target = [](std::uint64_t sequence) {
        return MediumTarget{
            QStringLiteral("/dev/sdb1"), {sequence, kSectors}, std::make_shared<MediumMemory>()};
    };
    MediumTargets targets;
    targets.replace({{QStringLiteral("sdb1"), target(5)}});
    const auto memory = targets.find(QStringLiteral("sdb1"))->memory;
    targets.replace({{QStringLiteral("sdb1"), target(5)}});
    EXPECT_EQ(targets.find(QStringLiteral("sdb1"))->memory, memory);
    targets.replace({{QStringLiteral("sdb1"), target(6)}});
    EXPECT_NE(targets.find(QStringLiteral("sdb1"))->memory, memory) << "listed anew, it is what it is now";
}

}  // namespace
}  // namespace vantor::test
