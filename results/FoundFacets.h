// What the found items are grouped by beside their list: type, day, camera and size, with counts.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <vector>

#include "results/ItemGroups.h"
#include "results/Soundness.h"

namespace vantor {

// By bytes; each class begins where the one before ends.
enum class SizeClass : std::uint8_t { Under100kB, Under1MB, Under10MB, Under100MB, Under1GB, Larger };
inline constexpr int kSizeClasses = 6;
SizeClass sizeClassOf(std::uint64_t bytes);
// "100 kB to 1 MB".
QString wordsForSize(SizeClass size);

// By the pixels of a picture, in millions; each class begins where the one before ends.
enum class PixelClass : std::uint8_t { NotKnown, Under1, Under4, Under12, Under30, Larger };
inline constexpr int kPixelClasses = 6;
PixelClass pixelClassOf(std::uint32_t width, std::uint32_t height);
// "4 to 12 megapixels".
QString wordsForPixels(PixelClass pixels);

// By how long a movie or sound plays; each class begins where the one before ends.
enum class LengthClass : std::uint8_t { NotKnown, Under10s, Under1min, Under5min, Under30min, Longer };
inline constexpr int kLengthClasses = 6;
LengthClass lengthClassOf(std::uint64_t milliseconds);
// "1 to 5 minutes".
QString wordsForLength(LengthClass length);

// What is known of an item; packed, since there may be millions.
struct ItemTraits {
    QString type;
    QString camera;           // empty: not known
    std::int32_t day = 0;     // as dayNumber() gives it; 0: not known
    std::uint64_t bytes = 0;  // as it would be saved, or as it was found
    PixelClass pixels = PixelClass::NotKnown;
    LengthClass length = LengthClass::NotKnown;
    bool complete = false;  // as far as anyone has looked
};

// 20260517; 0 for what is no date. The second takes seconds since 1970 and gives the day of this place.
std::int32_t dayNumber(const CivilTime& time);
std::int32_t dayNumber(std::int64_t seconds);
// Of a file's own date, else of what the card tells of it.
std::int32_t dayOf(const Soundness* soundness, const CardFile* file);

// What the user picked of it. Within one kind of trait any of the picked will do, of each kind one has to.
struct FacetChoice {
    std::set<ItemGroup> groups;  // groups and types are one kind
    std::set<QString> types;
    std::set<std::int32_t> days;
    std::set<QString> cameras;
    std::set<SizeClass> sizes;
    std::set<PixelClass> pixels;
    std::set<LengthClass> lengths;

    bool isEmpty() const {
        return groups.empty() && types.empty() && days.empty() && cameras.empty() && sizes.empty() &&
               pixels.empty() && lengths.empty();
    }
    friend bool operator==(const FacetChoice&, const FacetChoice&) = default;
};

// Items by their place in the list. Any one thread.
class FoundFacets {
  public:
    void clear();
    std::size_t size() const { return m_items.size(); }
    // Of an item that is known already, or of the one behind the last.
    void set(std::size_t index, const ItemTraits& traits);
    std::uint64_t bytesOf(std::size_t index) const {
        return index < m_items.size() ? m_items[index].bytes : 0;
    }
    // Grows whenever a count has changed.
    std::uint64_t changes() const { return m_changes; }

    struct TypeCount {
        QString type;
        ItemGroup group = ItemGroup::Other;
        std::size_t count = 0;
    };
    const std::vector<TypeCount>& types() const { return m_types; }
    const std::map<std::int32_t, std::size_t>& days() const { return m_days; }  // none of them is 0 items
    std::map<QString, std::size_t> cameras() const;
    const std::vector<std::size_t>& sizes() const { return m_sizes; }      // by SizeClass
    const std::vector<std::size_t>& pixels() const { return m_pixels; }    // by PixelClass
    const std::vector<std::size_t>& lengths() const { return m_lengths; }  // by LengthClass
    std::uint64_t bytes() const { return m_bytes; }                        // of all items
    std::size_t complete() const { return m_complete; }

    // Tells which items were picked; good as long as nothing is set.
    class Filter {
      public:
        Filter(const FoundFacets& facets, const FacetChoice& choice);
        // An item that nothing is known of yet is not picked where anything is.
        bool admits(std::size_t index) const;

      private:
        const FoundFacets& m_facets;
        const FacetChoice& m_choice;
        std::vector<bool> m_types, m_cameras;  // by number
        bool m_sizes[kSizeClasses] = {};
        bool m_pixels[kPixelClasses] = {};
        bool m_lengths[kLengthClasses] = {};
    };

  private:
    struct Packed {
        std::uint64_t bytes = 0;
        std::int32_t day : 28 = 0;
        std::uint32_t length : 4 = 0;  // LengthClass
        std::uint16_t type : 13 = 0;
        std::uint16_t pixels : 3 = 0;  // PixelClass
        std::uint16_t camera : 15 = 0;
        bool complete : 1 = false;
    };
    void count(const Packed& item, int by);
    std::uint16_t numberOfType(const QString& type);
    std::uint16_t numberOfCamera(const QString& camera);

    std::vector<Packed> m_items;
    std::vector<TypeCount> m_types;
    QHash<QString, std::uint16_t> m_typeNumbers, m_cameraNumbers;
    std::vector<std::pair<QString, std::size_t>> m_cameras;  // the first is none
    std::map<std::int32_t, std::size_t> m_days;
    std::vector<std::size_t> m_sizes = std::vector<std::size_t>(kSizeClasses);
    std::vector<std::size_t> m_pixels = std::vector<std::size_t>(kPixelClasses);
    std::vector<std::size_t> m_lengths = std::vector<std::size_t>(kLengthClasses);
    std::uint64_t m_bytes = 0;
    std::size_t m_complete = 0;
    std::uint64_t m_changes = 0;
};

}  // namespace vantor
