#include "decode/CardExchange.h"

#include <QStringList>
#include <algorithm>
#include <cstring>

#include "filesystem/CleanName.h"
#include "filesystem/LittleEndian.h"

namespace vantor::decode {

namespace {

constexpr std::size_t kMostListed = 16'000'000;
constexpr qsizetype kMostNameLength = 255;
// A file record has no more room.
constexpr qsizetype kMostContentBytes = 4096;
constexpr std::uint32_t kMostClusterSectors = 1 << 16;
constexpr std::uint32_t kMostUnitSectors = 2048;
// Times outside the years 1600 to 3000 are damage.
constexpr std::int64_t kEarliest = -11'700'000'000;
constexpr std::int64_t kLatest = 32'600'000'000;

class ByteGiver {
  public:
    void number(std::uint64_t value, std::size_t bytes) {
        for (std::size_t i = 0; i < bytes; ++i) {
            m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        }
    }
    void text(const QString& text) {
        number(static_cast<std::uint64_t>(text.size()), 4);
        for (const QChar c : text) {
            number(c.unicode(), 2);
        }
    }
    void bytes(const QByteArray& bytes) {
        number(static_cast<std::uint64_t>(bytes.size()), 4);
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    }
    void time(const std::optional<std::int64_t>& seconds) {
        number(seconds ? 1 : 0, 1);
        number(static_cast<std::uint64_t>(seconds.value_or(0)), 8);
    }
    void run(const SectorRun& run) {
        number(run.first, 8);
        number(run.end, 8);
    }
    std::vector<std::uint8_t>& bytes() { return m_bytes; }

  private:
    std::vector<std::uint8_t> m_bytes;
};

std::vector<std::uint8_t> block(BlockKind kind, std::uint64_t count, const std::vector<std::uint8_t>& rows) {
    ByteGiver head;
    head.number(static_cast<std::uint32_t>(kind), 4);
    head.number(count, 4);
    std::vector<std::uint8_t> bytes = std::move(head.bytes());
    bytes.insert(bytes.end(), rows.begin(), rows.end());
    return bytes;
}

void give(const CardFile& file, ByteGiver& to) {
    to.text(file.folder);
    to.text(file.name);
    to.number(file.nameIsWhole ? 1 : 0, 1);
    to.number(static_cast<std::uint64_t>(file.state), 1);
    to.number(file.bytes, 8);
    to.number(file.validBytes, 8);
    to.time(file.modified);
    to.time(file.created);
    to.number(static_cast<std::uint64_t>(file.runsKnownBy), 1);
    to.number(file.beginningIsInUse ? 1 : 0, 1);
    to.number(file.clusterSectors, 4);
    // A row has to fit into a block; of a file in more pieces the first are told.
    const std::size_t runs = std::min<std::size_t>(file.runs.size(), kBlockBytes / 64);
    to.number(runs, 4);
    for (std::size_t i = 0; i < runs; ++i) {
        to.run(file.runs[i]);
    }
    to.bytes(file.contents.left(kMostContentBytes));
    to.number(file.holes.size(), 4);
    for (const SectorRun& hole : file.holes) {
        to.run(hole);
    }
    to.number(file.unitSectors, 4);
}

void give(const CardFileSystem& system, ByteGiver& to) {
    to.number(static_cast<std::uint64_t>(system.kind), 1);
    to.number(system.isCurrent ? 1 : 0, 1);
    to.number(system.firstSector, 8);
    to.number(system.sectors, 8);
    to.number(system.firstCluster, 8);
    to.number(system.clusterSectors, 4);
    to.text(system.label);
    to.run(system.tables);
}

// As many rows from `at` on as one block holds.
template <typename Rows, typename Give>
std::vector<std::uint8_t> nextBlock(BlockKind kind, const Rows& rows, std::size_t& at, Give give) {
    std::vector<std::uint8_t> bytes;
    std::uint64_t count = 0;
    for (; at < rows.size(); ++at, ++count) {
        ByteGiver row;
        give(rows[at], row);
        if (bytes.size() + row.bytes().size() + 8 > kBlockBytes) {
            break;
        }
        bytes.insert(bytes.end(), row.bytes().begin(), row.bytes().end());
    }
    return block(kind, count, bytes);
}

bool isCleanFolder(const QString& folder) {
    if (folder.size() > kLongestFolder) {
        return false;
    }
    const QStringList parts = folder.isEmpty() ? QStringList() : folder.split(u'/');
    return std::all_of(parts.begin(), parts.end(), [](const QString& part) {
        return part.size() <= kMostNameLength && cleanName(part) == part;
    });
}

}  // namespace

// After something that is not wholly there everything is 0 and ok() stays false.
class ByteTaker {
  public:
    explicit ByteTaker(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    bool ok() const { return m_ok; }
    std::uint64_t number(std::size_t bytes) {
        if (!m_ok || bytes > m_bytes.size() - m_at) {
            m_ok = false;
            return 0;
        }
        m_at += bytes;
        return littleEndian(m_bytes, m_at - bytes, bytes);
    }
    QString text(qsizetype most) {
        const std::uint64_t length = number(4);
        if (length > static_cast<std::uint64_t>(most) || length * 2 > m_bytes.size() - m_at) {
            m_ok = false;
            return {};
        }
        QString text;
        text.reserve(static_cast<qsizetype>(length));
        for (std::uint64_t i = 0; i < length; ++i) {
            text += QChar(static_cast<char16_t>(number(2)));
        }
        return text;
    }
    QByteArray bytes(qsizetype most) {
        const std::uint64_t length = number(4);
        if (length > static_cast<std::uint64_t>(most) || length > m_bytes.size() - m_at) {
            m_ok = false;
            return {};
        }
        m_at += length;
        return {reinterpret_cast<const char*>(m_bytes.data() + m_at - length),
                static_cast<qsizetype>(length)};
    }
    bool flag() {
        const std::uint64_t value = number(1);
        m_ok = m_ok && value <= 1;
        return value == 1;
    }
    std::optional<std::int64_t> time() {
        const bool isTold = flag();
        const auto seconds = static_cast<std::int64_t>(number(8));
        return isTold ? std::optional(std::clamp(seconds, kEarliest, kLatest)) : std::nullopt;
    }
    template <typename Enum>
    Enum oneOf(Enum last) {
        const std::uint64_t value = number(1);
        m_ok = m_ok && value <= static_cast<std::uint64_t>(last);
        return m_ok ? static_cast<Enum>(value) : Enum{};
    }

  private:
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_at = 0;
    bool m_ok = true;
};

std::vector<std::uint8_t> bytesOf(const CardTask& task) {
    ByteGiver to;
    to.number(task.sectors, 8);
    to.number(task.traces.directories.size(), 4);
    for (const SectorRun& run : task.traces.directories) {
        to.run(run);
    }
    to.number(task.traces.bootSectors.size(), 4);
    for (const std::uint64_t sector : task.traces.bootSectors) {
        to.number(sector, 8);
    }
    const std::size_t found = std::min(task.found.size(), kMostListed);
    to.number(found, 4);
    for (std::size_t i = 0; i < found; ++i) {
        to.number(task.found[i].sector, 8);
        to.text(task.found[i].extension.left(kMostNameLength));
    }
    return std::move(to.bytes());
}

std::optional<CardTask> taskOf(std::span<const std::uint8_t> bytes) {
    ByteTaker from(bytes);
    CardTask task;
    task.sectors = from.number(8);
    for (std::uint64_t left = from.number(4); left > 0 && from.ok(); --left) {
        const std::uint64_t first = from.number(8);
        task.traces.directories.push_back({first, from.number(8)});
    }
    for (std::uint64_t left = from.number(4); left > 0 && from.ok(); --left) {
        task.traces.bootSectors.push_back(from.number(8));
    }
    for (std::uint64_t left = from.number(4); left > 0 && from.ok(); --left) {
        const std::uint64_t sector = from.number(8);
        task.found.push_back({sector, from.text(kMostNameLength)});
    }
    return from.ok() ? std::optional(std::move(task)) : std::nullopt;
}

std::vector<std::uint8_t> TableWriter::next() {
    if (m_ended) {
        return {};
    }
    if (m_fileSystems < m_table.fileSystems.size()) {
        return nextBlock(BlockKind::FileSystems, m_table.fileSystems, m_fileSystems,
                         [](const CardFileSystem& row, ByteGiver& to) { give(row, to); });
    }
    if (m_inUse < m_table.inUse.size()) {
        return nextBlock(BlockKind::InUse, m_table.inUse, m_inUse,
                         [](const SectorRun& row, ByteGiver& to) { to.run(row); });
    }
    if (m_files < m_table.files.size()) {
        return nextBlock(BlockKind::Files, m_table.files, m_files,
                         [](const CardFile& row, ByteGiver& to) { give(row, to); });
    }
    m_ended = true;
    return block(BlockKind::End, 0, {});
}

bool TableReader::takeRun(ByteTaker& from, std::vector<SectorRun>& into) {
    const std::uint64_t first = from.number(8);
    const std::uint64_t end = std::min(from.number(8), m_sectors);
    if (!from.ok() || first >= end || ++m_runs > kMostRunsOfAll) {
        return false;
    }
    into.push_back({first, end});
    return true;
}

// In the order of the file's sectors, one at a time.
bool TableReader::takeHole(ByteTaker& from, std::vector<SectorRun>& into) {
    const std::uint64_t first = from.number(8);
    const std::uint64_t end = from.number(8);
    if (!from.ok() || first >= end || end > m_sectors + kMostUnitSectors ||
        (!into.empty() && first < into.back().end) || ++m_runs > kMostRunsOfAll) {
        return false;
    }
    into.push_back({first, end});
    return true;
}

bool TableReader::takeFile(ByteTaker& from) {
    CardFile file;
    file.folder = from.text(kLongestFolder);
    const bool isKnownFolder = !m_table.files.empty() && m_table.files.back().folder == file.folder;
    if (isKnownFolder) {
        file.folder = m_table.files.back().folder;  // the files of one folder share its text
    }
    file.name = from.text(kMostNameLength);
    file.nameIsWhole = from.flag();
    file.state = from.oneOf(FileState::Lost);
    file.bytes = from.number(8);
    file.validBytes = from.number(8);
    file.modified = from.time();
    file.created = from.time();
    file.runsKnownBy = from.oneOf(RunsKnownBy::StartOnly);
    file.beginningIsInUse = from.flag();
    file.clusterSectors = static_cast<std::uint32_t>(from.number(4));
    const std::uint64_t runs = from.number(4);
    std::uint64_t sectors = 0;
    for (std::uint64_t i = 0; i < runs; ++i) {
        if (!takeRun(from, file.runs)) {
            return false;
        }
        sectors += file.runs.back().end - file.runs.back().first;
    }
    file.contents = from.bytes(kMostContentBytes);
    for (std::uint64_t left = from.number(4); left > 0; --left) {
        if (!takeHole(from, file.holes)) {
            return false;
        }
    }
    file.unitSectors = static_cast<std::uint32_t>(from.number(4));
    const auto held = static_cast<std::uint64_t>(file.contents.size());
    const bool fits = (held == 0 || (held == sectors * 512 && file.bytes <= held && file.holes.empty())) &&
                      file.unitSectors <= kMostUnitSectors;
    // No file is larger than the medium, nor are its pieces together.
    if (!from.ok() || !fits || file.bytes / 512 > m_sectors || file.validBytes > file.bytes ||
        sectors > m_sectors || file.clusterSectors == 0 || file.clusterSectors > kMostClusterSectors ||
        m_table.files.size() >= kMostFiles || cleanName(file.name) != file.name ||
        (!isKnownFolder && !isCleanFolder(file.folder))) {
        return false;
    }
    m_table.files.push_back(std::move(file));
    return true;
}

bool TableReader::take(std::span<const std::uint8_t> bytes) {
    ByteTaker from(bytes);
    const std::uint64_t kind = from.number(4);
    std::uint64_t left = from.number(4);
    bool good = from.ok() && !m_ended;
    switch (static_cast<BlockKind>(kind)) {
        case BlockKind::FileSystems:
            for (; left > 0 && good; --left) {
                CardFileSystem system;
                system.kind = from.oneOf(FileSystemKind::Ntfs);
                system.isCurrent = from.flag();
                system.firstSector = from.number(8);
                system.sectors = from.number(8);
                system.firstCluster = from.number(8);
                system.clusterSectors = static_cast<std::uint32_t>(from.number(4));
                system.label = from.text(kMostNameLength);
                system.tables.first = from.number(8);
                system.tables.end = from.number(8);
                good = from.ok() && system.tables.first <= system.tables.end &&
                       system.tables.end <= m_sectors && m_table.fileSystems.size() < kMostFileSystems &&
                       system.firstSector < m_sectors && system.firstCluster < m_sectors &&
                       system.clusterSectors != 0 && system.clusterSectors <= kMostClusterSectors;
                system.label = system.label.isEmpty() ? QString() : cleanName(system.label);
                m_table.fileSystems.push_back(std::move(system));
            }
            return good;
        case BlockKind::InUse:
            for (; left > 0 && good; --left) {
                good = takeRun(from, m_table.inUse);
            }
            return good;
        case BlockKind::Files:
            for (; left > 0 && good; --left) {
                good = takeFile(from);
            }
            return good;
        case BlockKind::End:
            m_ended = good;
            return good;
        case BlockKind::Question:
            break;
    }
    return false;
}

CardTable TableReader::table() {
    joinRuns(m_table.inUse);
    return std::move(m_table);
}

std::vector<std::uint8_t> bytesOf(const CardQuestion& question) {
    ByteGiver to;
    to.number(question.first, 8);
    to.number(question.sectors, 4);
    return block(BlockKind::Question, 1, to.bytes());
}

std::optional<CardQuestion> questionOf(std::span<const std::uint8_t> bytes, std::uint64_t sectors) {
    ByteTaker from(bytes);
    if (from.number(4) != static_cast<std::uint32_t>(BlockKind::Question) || from.number(4) != 1) {
        return std::nullopt;
    }
    CardQuestion question;
    question.first = from.number(8);
    question.sectors = static_cast<std::uint32_t>(from.number(4));
    if (!from.ok() || question.sectors == 0 || question.sectors > kMostSectorsAsked ||
        question.first >= sectors || question.sectors > sectors - question.first) {
        return std::nullopt;
    }
    return question;
}

}  // namespace vantor::decode
