// The coded pictures of HEIF and AVIF files. Source: ISO/IEC 14496-12, 8.11; 23008-12.
#include <algorithm>
#include <array>
#include <optional>

#include "formats/IsoItemPlaces.h"
#include "formats/IsoSamples.h"

namespace vantor {

namespace {

constexpr int kMostItemBoxes = 4096;
constexpr std::size_t kIsoItemsMostItems = 1024;

struct Item {
    std::uint32_t number = 0;
    Coding coding = Coding::Unknown;
};

// The coded items among those that the information box lists.
class CodedItems {
  public:
    void read(ByteView& view, const IsoBox& info) {
        std::uint64_t at = info.body + (view.u8(info.body) != 0 ? 8 : 6);
        for (int i = 0; i < kMostItemBoxes && at < info.end; ++i) {
            const auto entry = readIsoBox(view, at);
            if (!entry || entry->end > info.end)
                return;
            at = entry->end;
            const auto version = view.u8(entry->body).value_or(0);
            Cursor in(view, entry->body + 4);
            Item item;
            item.number = version == 2 ? in.u16() : in.u32();
            in.skip(2);
            std::array<char, 4> name{};
            for (char& letter : name)
                letter = static_cast<char>(in.u8());
            item.coding = codingOf({name.data(), name.size()});
            if (in.ok() && version >= 2 && item.coding != Coding::Unknown && m_count < m_items.size())
                m_items[m_count++] = item;
        }
    }
    Coding codingOfItem(std::uint32_t number) const {
        for (std::size_t i = 0; i < m_count; ++i) {
            if (m_items[i].number == number)
                return m_items[i].coding;
        }
        return Coding::Unknown;
    }

  private:
    std::array<Item, kIsoItemsMostItems> m_items{};
    std::size_t m_count = 0;
};

// The width of the lengths within, as the first configuration among the properties tells.
unsigned lengthBytesOf(ByteView& view, const IsoBox& properties) {
    const auto container = readIsoBox(view, properties.body);
    return container && container->text() == "ipco"
               ? lengthBytesIn(view, container->body, std::min(container->end, properties.end))
               : 4;
}

ContentCheck checkLocated(ByteView& view, const IsoBox& locations, const CodedItems& coded,
                          unsigned lengthBytes) {
    ContentCheck check;
    std::uint64_t widest = 0, all = 0;
    forItemPieces(view, locations, kMostItemBoxes, [&](const IsoItemPiece& piece) {
        const Coding coding = coded.codingOfItem(piece.item);
        // Only what lies in one piece can be followed.
        if (piece.pieces != 1 || coding == Coding::Unknown || !view.holds(piece.at, piece.bytes))
            return true;
        const auto blind = lookAtSample(view, coding, lengthBytes, piece.at, piece.bytes);
        if (!blind) {
            check.outcome = ContentCheck::Outcome::Broken;
            return false;
        }
        widest = std::max(widest, *blind);
        all = addClamped(all, piece.bytes);
        return true;
    });
    if (check.outcome != ContentCheck::Outcome::Broken && isEnough(widest, all))
        check.outcome = ContentCheck::Outcome::Sound;
    return check;
}

}  // namespace

ContentCheck checkItems(ByteView& view, const IsoBox& meta) {
    CodedItems coded;
    std::optional<IsoBox> locations;
    unsigned lengthBytes = 4;
    std::uint64_t at = meta.body + 4;
    for (int i = 0; i < kMostItemBoxes && at < meta.end; ++i) {
        const auto box = readIsoBox(view, at);
        if (!box || box->toEnd || box->end > meta.end)
            break;
        if (box->text() == "iinf")
            coded.read(view, *box);
        else if (box->text() == "iloc")
            locations = *box;
        else if (box->text() == "iprp")
            lengthBytes = lengthBytesOf(view, *box);
        at = box->end;
    }
    return locations ? checkLocated(view, *locations, coded, lengthBytes) : ContentCheck{};
}

}  // namespace vantor
