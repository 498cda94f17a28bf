// Packing and unpacking of items.
#include "results/FoundItems.h"

#include <algorithm>
#include <string>

namespace vantor {

namespace {

// What a record holds besides name, published sectors, type and icon.
enum Part : std::uint8_t {
    kOwnUid = 1,          // else the name
    kPathIsName = 2,      // else its own, perhaps none
    kSectorsAreRun = 4,   // File_Start_Sector and File_End_Sector are the published ones
    kRunIsPublished = 8,  // carved as published, in one run
    kReadFailed = 16,
    kPlaceholder = 32,
};

// How much is read of a record at first; most are shorter.
constexpr std::size_t kGuess = 256;

class Packer {
  public:
    void number(std::uint64_t value) {
        for (; value >= 0x80; value >>= 7) {
            m_bytes.push_back(static_cast<char>(value | 0x80));
        }
        m_bytes.push_back(static_cast<char>(value));
    }
    void bytes(QByteArrayView view) {
        number(static_cast<std::uint64_t>(view.size()));
        m_bytes.append(view.data(), static_cast<std::size_t>(view.size()));
    }
    void text(const QString& text) {
        const bool ascii =
            std::all_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.unicode() < 0x80; });
        number(ascii ? 1 : 0);
        bytes(ascii ? text.toLatin1()
                    : QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
    }
    void runs(const std::vector<SectorRun>& runs) {
        number(runs.size());
        for (const SectorRun& run : runs) {
            number(run.first);
            number(run.end);
        }
    }
    const std::string& packed() const { return m_bytes; }

  private:
    std::string m_bytes;
};

// Reads what a Packer wrote; nothing but zeros and nothing behind the end.
class Unpacker {
  public:
    explicit Unpacker(QByteArrayView bytes) : m_bytes(bytes) {}

    std::uint64_t number() {
        std::uint64_t value = 0;
        for (unsigned shift = 0; m_at < m_bytes.size() && shift < 64; shift += 7) {
            const auto byte = static_cast<std::uint8_t>(m_bytes[m_at++]);
            value |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80) {
                break;
            }
        }
        return value;
    }
    QByteArrayView bytes() {
        const auto count = static_cast<qsizetype>(
            std::min<std::uint64_t>(number(), static_cast<std::uint64_t>(m_bytes.size() - m_at)));
        m_at += count;
        return m_bytes.sliced(m_at - count, count);
    }
    QString text() {
        const bool ascii = number() == 1;
        const QByteArrayView view = bytes();
        if (ascii) {
            return QString::fromLatin1(view);
        }
        QString text(view.size() / 2, Qt::Uninitialized);
        std::copy_n(view.data(), text.size() * 2, reinterpret_cast<char*>(text.data()));
        return text;
    }
    std::vector<SectorRun> runs() {
        std::vector<SectorRun> runs;
        for (std::uint64_t left = number(); left > 0 && m_at < m_bytes.size(); --left) {
            const std::uint64_t first = number();
            runs.push_back({first, number()});
        }
        return runs;
    }

  private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

template <typename Value, typename Key>
std::uint32_t numberOf(const Value& value, const Key& key, std::vector<Value>& values,
                       QHash<Key, quint32>& numbers) {
    const auto known = numbers.constFind(key);
    if (known != numbers.constEnd()) {
        return *known;
    }
    values.push_back(value);
    return numbers[key] = static_cast<quint32>(values.size() - 1);
}

}  // namespace

void FoundItems::append(const MyImageObject& item) {
    if (!item.heldBytes().isEmpty()) {
        m_heldBytes[m_places.size()] = item.heldBytes();
    }
    m_places.push_back(store(item));
}

std::uint64_t FoundItems::store(const MyImageObject& item) {
    const SectorRun published = item.publishedSectors();
    const SectorRun sectors{item.File_Start_Sector(), item.File_End_Sector()};
    const CarvedRun& carved = item.carved();
    const bool likePublished = carved.runs == std::vector<SectorRun>{published} && carved.repeats.empty();
    const bool placeholder = !m_placeholders.empty() && item.imageData() == m_placeholders.back();
    unsigned parts = 0;
    parts |= item.imageUID() != item.imageTitle() ? kOwnUid : 0;
    parts |= item.path() == item.imageTitle() ? kPathIsName : 0;
    parts |= sectors == published ? kSectorsAreRun : 0;
    parts |= likePublished ? kRunIsPublished : 0;
    parts |= carved.readFailed ? kReadFailed : 0;
    parts |= placeholder ? kPlaceholder : 0;
    Packer record;
    record.number(parts);
    record.number(numberOf(item.type(), item.type(), m_types, m_typeNumbers));
    record.number(numberOf(item.image(), item.image().cacheKey(), m_icons, m_iconNumbers));
    record.text(item.imageTitle());
    record.number(published.first);
    record.number(published.end);
    if ((parts & kOwnUid) != 0) {
        record.text(item.imageUID());
    }
    if ((parts & kPathIsName) == 0) {
        record.text(item.path());
    }
    if ((parts & kSectorsAreRun) == 0) {
        record.number(sectors.first);
        record.number(sectors.end);
    }
    if ((parts & kRunIsPublished) == 0) {
        record.runs(carved.runs);
        record.runs(carved.repeats);
    }
    if (placeholder) {
        record.number(m_placeholders.size() - 1);
    } else {
        record.bytes(item.imageData());
    }
    Packer length;
    length.number(record.packed().size());
    const std::uint64_t place = m_spool.append(length.packed());
    m_spool.append(record.packed());
    return place;
}

std::shared_ptr<MyImageObject> FoundItems::at(std::size_t index) const {
    if (index >= m_places.size()) {
        return nullptr;
    }
    const std::uint64_t place = m_places[index];
    QByteArray bytes(kGuess, Qt::Uninitialized);
    bytes.resize(
        static_cast<qsizetype>(m_spool.read(place, {bytes.data(), static_cast<std::size_t>(bytes.size())})));
    const std::uint64_t length = Unpacker(bytes).number();
    Packer ahead;
    ahead.number(length);
    const auto whole = static_cast<qsizetype>(length + ahead.packed().size());
    if (bytes.size() < whole) {
        bytes.resize(whole);
        if (m_spool.read(place, {bytes.data(), static_cast<std::size_t>(whole)}) !=
            static_cast<std::size_t>(whole)) {
            return nullptr;
        }
    }
    Unpacker record(QByteArrayView(bytes).first(whole));
    record.number();
    const std::uint64_t parts = record.number();
    const QString& type = m_types.at(record.number());
    const QIcon& icon = m_icons.at(record.number());
    const QString name = record.text();
    SectorRun published;
    published.first = record.number();
    published.end = record.number();
    std::shared_ptr<MyImageObject> item(
        new MyImageObject(name, (parts & kOwnUid) != 0 ? record.text() : name));
    item->m_path = (parts & kPathIsName) != 0 ? name : record.text();
    const bool likePublished = (parts & kSectorsAreRun) != 0;
    item->m_File_Start_Sector = likePublished ? published.first : record.number();
    item->m_File_End_Sector = likePublished ? published.end : record.number();
    CarvedRun carved;
    if ((parts & kRunIsPublished) != 0) {
        carved.runs = {published};
    } else {
        carved.runs = record.runs();
        carved.repeats = record.runs();
    }
    carved.readFailed = (parts & kReadFailed) != 0;
    item->setOrigin(type, std::move(carved), published);
    item->m_image = icon;
    item->m_imageData =
        (parts & kPlaceholder) != 0 ? m_placeholders.at(record.number()) : record.bytes().toByteArray();
    if (const auto held = m_heldBytes.find(index); held != m_heldBytes.end()) {
        item->m_heldBytes = held->second;
    }
    return item;
}

void FoundItems::setPicture(std::size_t index, const QByteArray& picture) {
    if (const auto item = at(index)) {
        m_places[index] = store(*item->withImageData(picture));
    }
}

void FoundItems::clear() {
    m_spool.clear();
    m_places.clear();
    m_icons.clear();
    m_iconNumbers.clear();
    m_types.clear();
    m_typeNumbers.clear();
    m_placeholders.clear();
    m_heldBytes.clear();
}

}  // namespace vantor
