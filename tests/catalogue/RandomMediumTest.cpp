// Random bytes give no item: 4 GiB of them through the general pass of each mode.
#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "tests/catalogue/CorpusScan.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

constexpr std::uint64_t kMediumBytes = std::uint64_t{4} << 30;
constexpr std::uint64_t kSeed = 0x56414E544F522D34;

// A medium that is made while it is read, the same bytes for the same seed (xorshift64*).
class RandomReader : public SectorReader {
  public:
    std::uint64_t mediumSectors() const override { return kMediumBytes / kSectorBytes; }

  protected:
    bool fetch() override {
        if (position() >= mediumSectors()) {
            return false;
        }
        for (std::uint64_t& word : m_words) {
            m_state ^= m_state >> 12;
            m_state ^= m_state << 25;
            m_state ^= m_state >> 27;
            word = m_state * 0x2545F4914F6CDD1D;
        }
        handOver(reinterpret_cast<const std::uint8_t*>(m_words.data()),
                 m_words.size() * sizeof(std::uint64_t) / kSectorBytes);
        return true;
    }
    bool moveTo(std::uint64_t sector) override { return sector == position(); }

  private:
    std::uint64_t m_state = kSeed;
    std::array<std::uint64_t, 4096> m_words{};
};

class RandomMedium : public testing::TestWithParam<RecoveryMode> {};

}  // namespace

TEST_P(RandomMedium, GivesNoItemInTheGeneralPass) {
    const RecoveryMode mode = GetParam();
    const ShippedRecords records;
    ScriptedMedium unused(0);
    TestSession session(unused);
    session.controls.sectors = QString::number(kMediumBytes / kSectorBytes);
    session.setMediumOpener([](const QString&) { return std::make_unique<RandomReader>(); });
    Recovery_MODE = mode;
    bool completed = false;
    if (mode == kPhotoMode) {
        session.Ext_Array = records.general(mode);
        completed = session.Photo_Recovey_Mode(kGeneralPass.toString());
    } else {
        (mode == kVideoMode ? session.Video_Array : session.RawFile_Array) = records.general(mode);
        session.buildFileTypeList();
        session.cutCataloguesToTickedTypes();
        completed = session.Raw_File_Recovey_Mode(kGeneralPass.toString());
    }
    EXPECT_TRUE(completed);
    EXPECT_EQ(session.for_index, kMediumBytes / kSectorBytes);
    for (const HandedOver& item : session.handedOver) {
        EXPECT_TRUE(item.name.isEmpty()) << item.name.toStdString() << " at sector " << item.first;
    }
    std::printf("%s mode: %llu sectors of random bytes, %zu items\n", nameOf(mode),
                static_cast<unsigned long long>(session.for_index), session.itemCount());
}

INSTANTIATE_TEST_SUITE_P(Modes, RandomMedium, testing::Values(kPhotoMode, kVideoMode, kRawFileMode),
                         [](const auto& mode) { return std::string(nameOf(mode.param)); });

}  // namespace vantor
