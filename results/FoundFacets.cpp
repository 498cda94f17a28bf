// Counts that follow the items, so that nobody goes through all of them to show a number.
#include "results/FoundFacets.h"

#include <QDateTime>
#include <QObject>
#include <QTimeZone>
#include <algorithm>
#include <limits>

namespace vantor {

namespace {

constexpr std::uint64_t kBounds[] = {100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};
// More types or cameras than this are counted as one; a card may be written so that there are.
constexpr std::size_t kMostNames = 4000;
constexpr unsigned kCameraBits = 0x7FFF;
constexpr unsigned kTypeBits = 0x1FFF;
constexpr unsigned kPixelBits = 7;
constexpr std::uint64_t kPixelBounds[] = {1'000'000, 4'000'000, 12'000'000, 30'000'000};
constexpr std::uint64_t kLengthBounds[] = {10'000, 60'000, 300'000, 1'800'000};  // milliseconds
constexpr unsigned kLengthBits = 0xF;

std::int32_t dayNumber(const QDate& date) {
    return date.isValid() && date.year() > 0 && date.year() < 10'000
               ? date.year() * 10'000 + date.month() * 100 + date.day()
               : 0;
}

}  // namespace

SizeClass sizeClassOf(std::uint64_t bytes) {
    return static_cast<SizeClass>(std::upper_bound(std::begin(kBounds), std::end(kBounds), bytes) -
                                  std::begin(kBounds));
}

QString wordsForSize(SizeClass size) {
    switch (size) {
        case SizeClass::Under100kB:
            return QObject::tr("Under 100 kB");
        case SizeClass::Under1MB:
            return QObject::tr("100 kB to 1 MB");
        case SizeClass::Under10MB:
            return QObject::tr("1 MB to 10 MB");
        case SizeClass::Under100MB:
            return QObject::tr("10 MB to 100 MB");
        case SizeClass::Under1GB:
            return QObject::tr("100 MB to 1 GB");
        case SizeClass::Larger:
            break;
    }
    return QObject::tr("Over 1 GB");
}

PixelClass pixelClassOf(std::uint32_t width, std::uint32_t height) {
    const std::uint64_t pixels = std::uint64_t{width} * height;
    return pixels == 0 ? PixelClass::NotKnown
                       : static_cast<PixelClass>(
                             1 + std::upper_bound(std::begin(kPixelBounds), std::end(kPixelBounds), pixels) -
                             std::begin(kPixelBounds));
}

QString wordsForPixels(PixelClass pixels) {
    switch (pixels) {
        case PixelClass::NotKnown:
            return QObject::tr("Pixels not known");
        case PixelClass::Under1:
            return QObject::tr("Under 1 megapixel");
        case PixelClass::Under4:
            return QObject::tr("1 to 4 megapixels");
        case PixelClass::Under12:
            return QObject::tr("4 to 12 megapixels");
        case PixelClass::Under30:
            return QObject::tr("12 to 30 megapixels");
        case PixelClass::Larger:
            break;
    }
    return QObject::tr("Over 30 megapixels");
}

LengthClass lengthClassOf(std::uint64_t milliseconds) {
    return milliseconds == 0
               ? LengthClass::NotKnown
               : static_cast<LengthClass>(
                     1 + std::upper_bound(std::begin(kLengthBounds), std::end(kLengthBounds), milliseconds) -
                     std::begin(kLengthBounds));
}

QString wordsForLength(LengthClass length) {
    switch (length) {
        case LengthClass::NotKnown:
            return QObject::tr("Length not known");
        case LengthClass::Under10s:
            return QObject::tr("Under 10 seconds");
        case LengthClass::Under1min:
            return QObject::tr("10 seconds to 1 minute");
        case LengthClass::Under5min:
            return QObject::tr("1 to 5 minutes");
        case LengthClass::Under30min:
            return QObject::tr("5 to 30 minutes");
        case LengthClass::Longer:
            break;
    }
    return QObject::tr("Over 30 minutes");
}

std::int32_t dayNumber(const CivilTime& time) {
    const QDate date(time.year, time.month, time.day);
    if (!time.utc) {
        return dayNumber(date);
    }
    return dayNumber(
        QDateTime(date, QTime(time.hour, time.minute, std::min<int>(time.second, 59)), QTimeZone::utc())
            .toLocalTime()
            .date());
}

std::int32_t dayNumber(std::int64_t seconds) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / 1000;
    return seconds > -kMost && seconds < kMost ? dayNumber(QDateTime::fromSecsSinceEpoch(seconds).date()) : 0;
}

std::int32_t dayOf(const Soundness* soundness, const CardFile* file) {
    const std::int32_t own = soundness != nullptr && soundness->taken ? dayNumber(*soundness->taken) : 0;
    return own == 0 && file != nullptr && file->modified ? dayNumber(*file->modified) : own;
}

void FoundFacets::clear() {
    const std::uint64_t changes = m_changes + 1;
    *this = FoundFacets();
    m_changes = changes;
}

std::uint16_t FoundFacets::numberOfType(const QString& type) {
    const auto known = m_typeNumbers.constFind(type);
    if (known != m_typeNumbers.constEnd()) {
        return *known;
    }
    if (m_types.size() >= kMostNames) {
        return static_cast<std::uint16_t>(m_types.size() - 1);
    }
    m_types.push_back({type, groupOfType(type), 0});
    return m_typeNumbers[type] = static_cast<std::uint16_t>(m_types.size() - 1);
}

std::uint16_t FoundFacets::numberOfCamera(const QString& camera) {
    if (m_cameras.empty()) {
        m_cameras.emplace_back();
    }
    if (camera.isEmpty()) {
        return 0;
    }
    const auto known = m_cameraNumbers.constFind(camera);
    if (known != m_cameraNumbers.constEnd()) {
        return *known;
    }
    if (m_cameras.size() >= kMostNames) {
        return 0;
    }
    m_cameras.emplace_back(camera, 0);
    return m_cameraNumbers[camera] = static_cast<std::uint16_t>(m_cameras.size() - 1);
}

void FoundFacets::count(const Packed& item, int by) {
    const auto add = [by](std::size_t& count) { by > 0 ? ++count : --count; };
    add(m_types[item.type].count);
    add(m_cameras[item.camera].second);
    add(m_pixels[item.pixels]);
    add(m_lengths[item.length]);
    add(m_sizes[static_cast<std::size_t>(sizeClassOf(item.bytes))]);
    m_bytes = by > 0 ? m_bytes + item.bytes : m_bytes - item.bytes;
    if (item.complete) {
        add(m_complete);
    }
    std::size_t& ofDay = m_days[item.day];
    add(ofDay);
    if (ofDay == 0) {
        m_days.erase(item.day);
    }
}

void FoundFacets::set(std::size_t index, const ItemTraits& traits) {
    const Packed item{traits.bytes,
                      traits.day,
                      static_cast<std::uint32_t>(traits.length) & kLengthBits,
                      static_cast<std::uint16_t>(numberOfType(traits.type) & kTypeBits),
                      static_cast<std::uint16_t>(static_cast<unsigned>(traits.pixels) & kPixelBits),
                      static_cast<std::uint16_t>(numberOfCamera(traits.camera) & kCameraBits),
                      traits.complete};
    if (index < m_items.size()) {
        count(m_items[index], -1);
        m_items[index] = item;
    } else {
        m_items.push_back(item);
    }
    count(item, 1);
    ++m_changes;
}

std::map<QString, std::size_t> FoundFacets::cameras() const {
    std::map<QString, std::size_t> counts;
    for (const auto& [camera, count] : m_cameras) {
        if (count != 0) {
            counts[camera] = count;
        }
    }
    return counts;
}

FoundFacets::Filter::Filter(const FoundFacets& facets, const FacetChoice& choice)
    : m_facets(facets), m_choice(choice) {
    for (const TypeCount& each : facets.m_types) {
        m_types.push_back((choice.groups.empty() && choice.types.empty()) ||
                          choice.groups.contains(each.group) || choice.types.contains(each.type));
    }
    for (const auto& each : facets.m_cameras) {
        m_cameras.push_back(choice.cameras.empty() || choice.cameras.contains(each.first));
    }
    for (int pixels = 0; pixels < kPixelClasses; ++pixels) {
        m_pixels[pixels] = choice.pixels.empty() || choice.pixels.contains(static_cast<PixelClass>(pixels));
    }
    for (int length = 0; length < kLengthClasses; ++length) {
        m_lengths[length] =
            choice.lengths.empty() || choice.lengths.contains(static_cast<LengthClass>(length));
    }
    for (int size = 0; size < kSizeClasses; ++size) {
        m_sizes[size] = choice.sizes.empty() || choice.sizes.contains(static_cast<SizeClass>(size));
    }
}

bool FoundFacets::Filter::admits(std::size_t index) const {
    if (m_choice.isEmpty()) {
        return true;
    }
    if (index >= m_facets.m_items.size()) {
        return false;
    }
    const Packed& item = m_facets.m_items[index];
    return m_types[item.type] && m_cameras[item.camera] && m_pixels[item.pixels] && m_lengths[item.length] &&
           m_sizes[static_cast<std::size_t>(sizeClassOf(item.bytes))] &&
           (m_choice.days.empty() || m_choice.days.contains(item.day));
}

}  // namespace vantor
