// A line that names the format, numbers with the lowest byte first, texts with their lengths, and a checksum.
#include "scan/SearchRecord.h"

#include <QCryptographicHash>
#include <QFile>
#include <QObject>
#include <algorithm>
#include <utility>

#include "media/PlainFile.h"

namespace vantor {

namespace {

const QByteArray kMagic = QByteArrayLiteral("Vantor Recovery search 1\n");
constexpr qsizetype kSumBytes = 32;
constexpr auto kSum = QCryptographicHash::Sha256;
// A terabyte's worth is some 50 MB.
constexpr qint64 kMostFileBytes = qint64{256} << 20;
// More than any search has; what says more would take many times its own size in memory.
constexpr std::uint64_t kMostTypes = 4096;
constexpr std::uint64_t kMostSamples = 1024;
constexpr std::uint64_t kMostRuns = std::uint64_t{4} << 20;
constexpr std::uint64_t kMostPlaces = std::uint64_t{16} << 20;
constexpr std::uint64_t kMostBitBytes = std::uint64_t{128} << 20;  // in memory

class Writer {
  public:
    explicit Writer(QByteArray& bytes) : m_bytes(bytes) {}

    // Seven bits a byte, the lowest first; a set high bit says that more follow.
    void number(std::uint64_t value) {
        for (; value >= 0x80; value >>= 7) {
            m_bytes.append(static_cast<char>(value | 0x80));
        }
        m_bytes.append(static_cast<char>(value));
    }
    void bytes(const QByteArray& value) {
        number(static_cast<std::uint64_t>(value.size()));
        m_bytes.append(value);
    }
    void text(const QString& value) { bytes(value.toUtf8()); }
    void runs(const std::vector<SectorRun>& runs) {
        number(runs.size());
        std::uint64_t at = 0;
        for (const SectorRun& run : runs) {
            number(run.first - at);
            number(run.end - run.first);
            at = run.end;
        }
    }

    void places(const std::vector<std::uint64_t>& places) {
        number(places.size());
        std::uint64_t at = 0;
        for (const std::uint64_t place : places) {
            number(place - at);
            at = place + 1;
        }
    }

  private:
    QByteArray& m_bytes;
};

// Fails for good at the first thing that cannot be.
class Reader {
  public:
    explicit Reader(QByteArrayView bytes) : m_rest(bytes) {}

    bool failed() const { return m_failed; }
    bool atEnd() const { return m_rest.isEmpty(); }

    std::uint64_t number() {
        std::uint64_t value = 0;
        for (int shift = 0; shift < 64; shift += 7) {
            if (m_rest.isEmpty()) {
                break;
            }
            const auto byte = static_cast<std::uint8_t>(m_rest.front());
            m_rest = m_rest.sliced(1);
            if (shift == 63 && byte > 1) {
                break;
            }
            value |= std::uint64_t{byte & 0x7FU} << shift;
            if (byte < 0x80) {
                return value;
            }
        }
        return fail();
    }
    // Of things that take at least a byte each.
    std::uint64_t count(std::uint64_t most = ~std::uint64_t{0}) {
        const std::uint64_t n = number();
        return n <= std::min<std::uint64_t>(m_rest.size(), most) ? n : fail();
    }
    void refuse() { fail(); }
    QByteArray bytes() {
        const auto size = static_cast<qsizetype>(count());
        const QByteArray value = m_rest.first(size).toByteArray();
        m_rest = m_rest.sliced(size);
        return value;
    }
    QString text() { return QString::fromUtf8(bytes()); }
    std::vector<SectorRun> runs() {
        std::vector<SectorRun> runs;
        std::uint64_t at = 0;
        for (std::uint64_t n = count(kMostRuns); n > 0 && !m_failed; --n) {
            const std::uint64_t first = sum(at, number());
            at = sum(first, number());
            if (at <= first) {
                fail();
                break;
            }
            runs.push_back({first, at});
        }
        return runs;
    }
    std::vector<std::uint64_t> places() {
        std::vector<std::uint64_t> places;
        std::uint64_t at = 0;
        std::uint64_t n = count(kMostPlaces);
        places.reserve(n);
        for (; n > 0 && !m_failed; --n) {
            const std::uint64_t place = sum(at, number());
            at = sum(place, 1);
            places.push_back(place);
        }
        return places;
    }
    // Without overflow.
    std::uint64_t sum(std::uint64_t a, std::uint64_t b) { return b <= ~a ? a + b : fail(); }

  private:
    std::uint64_t fail() {
        m_failed = true;
        m_rest = {};
        return 0;
    }

    QByteArrayView m_rest;
    bool m_failed = false;
};

void writeBits(Writer& writer, const SectorBits& bits) {
    writer.number(bits.count());
    std::uint64_t at = 0;
    for (std::uint64_t sector = bits.firstFrom(0); sector != SectorBits::kNone; sector = bits.firstFrom(at)) {
        writer.number(sector - at);
        at = sector + 1;
    }
}

SectorBits readBits(Reader& reader) {
    constexpr std::uint64_t kPlacesPerLook = 65536;
    SectorBits bits;
    std::uint64_t at = 0;
    for (std::uint64_t n = reader.count(); n > 0 && !reader.failed(); --n) {
        const std::uint64_t sector = reader.sum(at, reader.number());
        at = reader.sum(sector, 1);
        if (!reader.failed()) {
            bits.append(sector);
        }
        if (n % kPlacesPerLook == 0 && bits.bytes() > kMostBitBytes) {
            reader.refuse();
        }
    }
    return bits;
}

// Whether the checksum at a file's end is that of what stands before it, read in pieces: a file that only
// begins like a search is never taken into memory. Leaves the file at its beginning.
bool sumHolds(QFile& file) {
    constexpr qint64 kPiece = qint64{1} << 20;
    QCryptographicHash sum(kSum);
    QByteArray piece(kPiece, Qt::Uninitialized);  // one for all, so that nothing has to be given back
    for (qint64 left = file.size() - kSumBytes; left > 0;) {
        const qint64 got = file.read(piece.data(), std::min(left, kPiece));
        if (got <= 0) {
            return false;
        }
        sum.addData(QByteArrayView(piece).first(got));
        left -= got;
    }
    return file.read(kSumBytes) == sum.result() && file.seek(0);
}

}  // namespace

QByteArray recordBytes(const SearchRecord& record) {
    QByteArray bytes = kMagic;
    Writer writer(bytes);
    writer.number(static_cast<std::uint64_t>(record.wishes.mode));
    writer.number(static_cast<std::uint64_t>(record.wishes.types.size()));
    for (const QString& type : record.wishes.types) {
        writer.text(type);
    }
    writer.number(record.wishes.thorough ? 1 : 0);
    writer.number(record.wishes.entire ? 1 : 0);
    writer.text(record.wishes.start);
    writer.text(record.wishes.end);
    writer.bytes(record.wishes.catalogueSum);
    writer.text(record.medium);
    writer.number(record.sectors);
    writer.number(record.samples.size());
    for (const SectorSample& sample : record.samples) {
        writer.number(sample.sector);
        writer.bytes(sample.sum);
    }
    writer.number(record.reached);
    writer.runs(record.read);
    writer.runs(record.refused);
    writeBits(writer, record.worthALook);
    writer.text(record.notes.name);
    writer.number(record.notes.found);
    writer.number(record.notes.ended ? 1 : 0);
    writer.number(record.notes.generalNumber);
    writer.number(record.notes.thoroughNumber);
    writer.text(record.notes.copy);
    writer.places(record.notes.saved);
    writer.places(record.notes.ticked);
    writer.places(record.notes.selected);
    writer.bytes(record.notes.id);
    return bytes + QCryptographicHash::hash(bytes, kSum);
}

std::optional<SearchRecord> recordOf(const QByteArray& bytes, QString* why) {
    const auto refuse = [why](const QString& sentence) {
        if (why != nullptr) {
            *why = sentence;
        }
        return std::nullopt;
    };
    if (!bytes.startsWith(kMagic)) {
        return refuse(QObject::tr("It is not a search that this program has kept."));
    }
    const QByteArrayView body =
        QByteArrayView(bytes).first(std::max(kMagic.size(), bytes.size() - kSumBytes));
    auto record = QCryptographicHash::hash(body, kSum) == QByteArrayView(bytes).sliced(body.size())
                      ? uncheckedRecordOf(body)
                      : std::nullopt;
    return record ? std::move(record) : refuse(QObject::tr("The file is damaged."));
}

std::optional<SearchRecord> uncheckedRecordOf(QByteArrayView body) {
    if (!body.startsWith(kMagic)) {
        return std::nullopt;
    }
    Reader reader(body.sliced(kMagic.size()));
    SearchRecord record;
    const std::uint64_t mode = reader.number();
    record.wishes.mode = static_cast<int>(std::min<std::uint64_t>(mode, 3));
    for (std::uint64_t n = reader.count(kMostTypes); n > 0 && !reader.failed(); --n) {
        record.wishes.types.append(reader.text());
    }
    record.wishes.thorough = reader.number() != 0;
    record.wishes.entire = reader.number() != 0;
    record.wishes.start = reader.text();
    record.wishes.end = reader.text();
    record.wishes.catalogueSum = reader.bytes();
    record.medium = reader.text();
    record.sectors = reader.number();
    for (std::uint64_t n = reader.count(kMostSamples); n > 0 && !reader.failed(); --n) {
        const std::uint64_t sector = reader.number();
        record.samples.push_back({sector, reader.bytes()});
    }
    record.reached = reader.number();
    record.read = reader.runs();
    record.refused = reader.runs();
    record.worthALook = readBits(reader);
    record.notes.name = reader.text();
    record.notes.found = reader.number();
    record.notes.ended = reader.number() != 0;
    record.notes.generalNumber = reader.number();
    record.notes.thoroughNumber = reader.number();
    record.notes.copy = reader.text();
    record.notes.saved = reader.places();
    // Earlier versions of the program end here.
    if (!reader.atEnd()) {
        record.notes.ticked = reader.places();
        record.notes.selected = reader.places();
        record.notes.id = reader.bytes();
    }
    if (reader.failed() || !reader.atEnd() || record.wishes.mode > 2) {
        return std::nullopt;
    }
    return record;
}

std::optional<SearchRecord> readSearchRecord(const QString& path, QString* why) {
    QFile file(path);
    if (!openPlainFile(file, why)) {
        return std::nullopt;
    }
    // What begins or ends otherwise is not worth the memory.
    const bool begins =
        file.size() >= kMagic.size() && file.size() <= kMostFileBytes && file.peek(kMagic.size()) == kMagic;
    return recordOf(!begins ? QByteArray() : sumHolds(file) ? file.read(file.size()) : kMagic, why);
}

}  // namespace vantor
