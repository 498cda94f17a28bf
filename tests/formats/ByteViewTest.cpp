// The view that keeps walkers inside their source, and the small tools beside it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>

#include "Build.h"
#include "Corpus.h"
#include "formats/ByteView.h"
#include "formats/Crc.h"
#include "formats/Dates.h"
#include "formats/Inflate.h"
#include "formats/TextReader.h"

namespace vantor::test {
namespace {

constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();

TEST(ByteView, NoBytes_MatchAnywhere) {
    const Bytes bytes = {1, 2};
    SpanSource source(bytes);
    ByteView view(source);
    for (const std::uint64_t at : {0, 2, 5})
        EXPECT_TRUE(view.matches(at, std::string_view()));
}

TEST(ByteView, Numbers_InBothOrdersAndOnlyWhereWhollyThere) {
    const Bytes bytes = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    SpanSource source(bytes);
    ByteView view(source);
    EXPECT_EQ(view.be32(1), 0x02030405U);
    EXPECT_EQ(view.le32(1), 0x05040302U);
    EXPECT_EQ(view.be64(1), 0x0203040506070809U);
    EXPECT_EQ(view.le16(7), 0x0908U);
    EXPECT_EQ(view.number(0, 3, Endian::Big), 0x010203U);
    EXPECT_EQ(view.be32(6), std::nullopt);
    EXPECT_EQ(view.u8(9), std::nullopt);
    EXPECT_EQ(view.be64(kMost - 2), std::nullopt);
}

TEST(ByteView, Windows_HoldWhatTheSourceHoldsAtAnyHop) {
    const Bytes bytes = noise(300'000, 1);
    SpanSource source(bytes);
    ByteView view(source);
    const std::uint64_t places[] = {0, 299'999, 131'071, 65'536, 65'535, 4096, 4095, 0, 200'000};
    for (const auto at : places) {
        const auto window = view.window(at, 5000);
        ASSERT_GE(window.size(), std::min<std::uint64_t>(5000, bytes.size() - at));
        EXPECT_TRUE(
            std::equal(window.begin(), window.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at)));
    }
    EXPECT_TRUE(view.window(300'000).empty());
}

TEST(ByteView, Text_EndsAtAControlByteOrTwoErasedOnes) {
    // Windows end at 4096 and 12288 bytes when a text is read from its beginning.
    for (const std::size_t length : {0U, 9U, 4094U, 4095U, 4096U, 4097U, 12287U, 12288U, 131071U}) {
        for (const Bytes& whole :
             {Build().fill(length, 'a').fill(3000, 0xFF).bytes(),
              Build().fill(length, 'a').fill(3000, 1).bytes(), Build().fill(length, 'a').bytes()}) {
            SpanSource source(whole);
            ByteView view(source);
            EXPECT_EQ(textEnd(view, 0), length);
        }
        const Bytes one = Build().fill(length, 'a').fill(1, 0xFF).fill(9000, 'b').fill(2, 0).bytes();
        SpanSource source(one);
        ByteView view(source);
        EXPECT_EQ(textEnd(view, 0), length + 9001);
    }
}

// Holds its first half in memory.
class HalfAtHand final : public ByteSource {
  public:
    explicit HalfAtHand(const Bytes& bytes)
        : m_bytes(bytes),
          m_held(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2)) {
        m_held.resize(bytes.size());
    }

    std::uint64_t size() const override { return m_bytes.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        bytesCopied += into.size();
        return SpanSource(m_bytes).read(offset, into);
    }
    std::span<const std::uint8_t> atHand(std::uint64_t offset) override {
        const std::size_t half = m_bytes.size() / 2;
        return offset < half ? std::span(m_held).first(half).subspan(static_cast<std::size_t>(offset))
                             : std::span<const std::uint8_t>();
    }

    std::size_t bytesCopied = 0;

  private:
    const Bytes& m_bytes;
    Bytes m_held;
};

TEST(ByteView, BytesAtHand_AreLookedAtInPlaceAndTheRestIsRead) {
    const Bytes bytes = noise(300'000, 6);
    HalfAtHand source(bytes);
    ByteView view(source);
    for (std::uint64_t at = 0; at < 100'000; at += 777) {
        EXPECT_EQ(view.u8(at), bytes[at]);
    }
    EXPECT_EQ(source.bytesCopied, 0U);
    for (const std::uint64_t at : {149'990U, 150'000U, 120'000U, 299'000U, 5U}) {
        const auto window = view.window(at, 900);
        ASSERT_GE(window.size(), 900U);
        EXPECT_TRUE(
            std::equal(window.begin(), window.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at)));
    }
    EXPECT_NE(source.bytesCopied, 0U);
}

TEST(ByteView, ReadingOn_TakesFewReadsAndHoppingLittle) {
    const Bytes bytes(10'000'000, 7), nothing;
    JoinedSource stream(bytes, nothing), hops(bytes, nothing);
    ByteView streaming(stream);
    const Finding none = streaming.find(8, 0, bytes.size());
    EXPECT_EQ(none.outcome, Finding::Outcome::Absent);
    EXPECT_EQ(none.at, bytes.size());
    EXPECT_LE(stream.reads(), 10'000'000 / ByteView::kWindowBytes + 16);
    ByteView hopping(hops);
    for (std::uint64_t at = 0; at < bytes.size(); at += 1'000'000)
        EXPECT_EQ(hopping.u8(at), 7);
    EXPECT_LE(hops.bytesRead(), 11 * 2 * ByteView::kHopBytes);
}

TEST(ByteView, ALookWithinASector_ReadsNoMoreThanThat) {
    const Bytes bytes = noise(300'000, 1), nothing;
    JoinedSource source(bytes, nothing);
    ByteView view(source);
    std::array<std::uint8_t, 4> word{};
    EXPECT_TRUE(view.copyWithinSector(1000, word));
    EXPECT_TRUE(std::equal(word.begin(), word.end(), bytes.begin() + 1000));
    EXPECT_EQ(source.bytesRead(), 512U);
    EXPECT_FALSE(view.copyWithinSector(1022, word)) << "two of them lie in the next sector";
    EXPECT_FALSE(view.copyWithinSector(299'998, word));
    EXPECT_TRUE(view.copyWithinSector(299'996, word)) << "the last sector is short";
    EXPECT_FALSE(view.copyWithinSector(kMost - 1, word));
}

TEST(ByteView, UnreadablePlace_ReadsAsTheEndAndBehindItGoesOn) {
    const Bytes bytes = noise(20'000, 2);
    HoledSource source(bytes, 8192);
    ByteView view(source);
    EXPECT_EQ(view.u8(8191), bytes[8191]);
    EXPECT_EQ(view.u8(8192), std::nullopt);
    EXPECT_EQ(view.be32(8190), std::nullopt);
    EXPECT_EQ(view.u8(9000), bytes[9000]);
    Bytes copy(20'000);
    EXPECT_FALSE(view.copy(0, copy));
}

TEST(ByteView, Search_TellsWhatItCameUpon) {
    Bytes bytes(20'000, 1);
    bytes[100] = 7;
    bytes[15'000] = 7;
    HoledSource source(bytes, 8192);
    ByteView view(source);
    const Finding hit = view.find(7, 0, bytes.size()), hole = view.find(7, 101, bytes.size()),
                  none = view.find(7, 9000, 14'000), end = view.find(7, 15'001, 30'000);
    EXPECT_TRUE(hit.found());
    EXPECT_EQ(hit.at, 100U);
    EXPECT_TRUE(hole.stopped());
    EXPECT_EQ(hole.at, 8192U);
    EXPECT_TRUE(!none.found() && !none.stopped());
    EXPECT_EQ(none.at, 14'000U);
    EXPECT_TRUE(end.stopped());
    EXPECT_EQ(end.at, bytes.size());
}

TEST(ByteView, ReadingWithoutEnd_IsCutOff) {
    const Bytes bytes(100'000, 1), nothing;
    JoinedSource source(bytes, nothing);
    ByteView view(source);
    for (int i = 0; i < 100'000 && !view.exhausted(); ++i)
        view.u8(i % 2 == 0 ? 0 : 90'000);
    EXPECT_TRUE(view.exhausted());
    EXPECT_LE(source.bytesRead(), 3 * bytes.size() + 32 * 1024 * 1024);
    EXPECT_EQ(view.u8(0), std::nullopt);
}

TEST(ByteView, ClampedArithmetic_StopsAtTheLargest) {
    EXPECT_EQ(addClamped(kMost - 1, 1), kMost);
    EXPECT_EQ(addClamped(kMost, 2), kMost);
    EXPECT_EQ(mulClamped(std::uint64_t{1} << 33, std::uint64_t{1} << 33), kMost);
    EXPECT_EQ(mulClamped(0, kMost), 0U);
    EXPECT_EQ(mulClamped(6, 7), 42U);
}

TEST(Cursor, FieldBeyondTheEnd_FailsForGood) {
    const Bytes bytes = {1, 2, 3, 4, 5};
    SpanSource source(bytes);
    ByteView view(source);
    Cursor in(view);
    EXPECT_EQ(in.u24(), 0x010203U);
    EXPECT_TRUE(in.ok());
    EXPECT_EQ(in.u32(), 0U);
    EXPECT_FALSE(in.ok());
    EXPECT_EQ(in.u8(), 0U);
}

TEST(Extents, NeverReachBeyondTheSource) {
    const Bytes bytes(10);
    SpanSource source(bytes);
    const ByteView view(source);
    EXPECT_EQ(completeAt(view, 10).verdict, Verdict::Complete);
    EXPECT_EQ(completeAt(view, 11).verdict, Verdict::CutOff);
    EXPECT_EQ(completeAt(view, 11).end, 10U);
    EXPECT_EQ(damagedAt(view, 99).end, 10U);
}

TEST(Crc, KnownValues) {
    const Bytes digits = Build().text("123456789");
    EXPECT_EQ(crc32(0, digits), 0xCBF43926U);
    std::uint16_t sixteen = 0;
    std::uint8_t eight = 0;
    for (const auto byte : digits) {
        sixteen = crc16(sixteen, byte);
        eight = crc8(eight, byte);
    }
    EXPECT_EQ(sixteen, 0xFEE8U);  // CRC-16/UMTS
    EXPECT_EQ(eight, 0xF4U);      // CRC-8/SMBUS
    EXPECT_EQ(crcOgg(0, digits), 0x89A1897FU);
}

TEST(Dates, AllForms_GiveTheSameMoment) {
    const CivilTime moment{2021, 7, 9, 18, 30, 5, true};
    EXPECT_EQ(dateFromUnixSeconds(1'625'855'405), moment);
    EXPECT_EQ(dateFromSecondsSince1904(1'625'855'405ULL + 2'082'844'800), moment);
    EXPECT_EQ(dateFromTicksSince1601((1'625'855'405ULL + 11'644'473'600) * 10'000'000), moment);
    EXPECT_EQ(dateFromNanosecondsSince2001((1'625'855'405LL - 978'307'200) * 1'000'000'000), moment);
    EXPECT_EQ(parseDate("2021:07:09 18:30:05"), (CivilTime{2021, 7, 9, 18, 30, 5, false}));
}

TEST(Dates, Nonsense_IsNoDate) {
    for (const auto* text : {"", "0000:00:00 00:00:00", "2021:02:30 10:00:00", "2021:07:09 25:00:00",
                             "    :  :     :  :  ", "2021:07:09 18:30"})
        EXPECT_EQ(parseDate(text), std::nullopt) << text;
    EXPECT_EQ(dateFromSecondsSince1904(0), std::nullopt);
    EXPECT_EQ(dateFromTicksSince1601(0), std::nullopt);
    EXPECT_EQ(dateFromTicksSince1601(11'644'473'600 * 10'000'000), std::nullopt) << "never set";
    EXPECT_EQ(dateFromUnixSeconds(std::numeric_limits<std::int64_t>::max()), std::nullopt);
}

InflateResult inflateBytes(const Bytes& bytes, std::uint64_t most = kAnyOutput) {
    SpanSource source(bytes);
    ByteView view(source);
    return inflate(view, 0, most);
}

TEST(Inflate, FixedCodes_EndWhereTheStreamEnds) {
    // "hello hello hello hello" packed with fixed codes, and a foreign byte behind.
    const Bytes packed = {0xCB, 0x48, 0xCD, 0xC9, 0xC9, 0x57, 0xC8, 0x40, 0x27, 0x01, 0xEE};
    const auto result = inflateBytes(packed);
    EXPECT_EQ(result.outcome, InflateOutcome::Done);
    EXPECT_EQ(result.end, 10U);
    EXPECT_EQ(result.produced, 23U);
    EXPECT_EQ(result.crc, crc32(0, Build().text("hello hello hello hello").bytes()));
}

TEST(Inflate, CutStream_IsCut) {
    const auto result = inflateBytes({0xCB, 0x48, 0xCD, 0xC9});
    EXPECT_EQ(result.outcome, InflateOutcome::Cut);
}

TEST(Inflate, BadStreams_AreBroken) {
    EXPECT_EQ(inflateBytes({0x07, 0, 0}).outcome, InflateOutcome::Broken);                 // block type 3
    EXPECT_EQ(inflateBytes({0x01, 5, 0, 5, 0, 1, 2, 3}).outcome, InflateOutcome::Broken);  // lengths disagree
    EXPECT_EQ(inflateBytes({0x03 | 1 << 3, 0x02, 0x7E}).outcome,
              InflateOutcome::Broken);  // reaches before the start
}

TEST(Inflate, MoreOutputThanAllowed_IsGivenUp) {
    Build stored;
    for (int i = 0; i < 3; ++i)
        stored.u8(i == 2 ? 1 : 0).le16(40'000).le16(0xFFFF - 40'000).fill(40'000, 5);
    EXPECT_EQ(inflateBytes(stored).outcome, InflateOutcome::Done);
    EXPECT_EQ(inflateBytes(stored, 50'000).outcome, InflateOutcome::TooMuch);
}

}  // namespace
}  // namespace vantor::test
