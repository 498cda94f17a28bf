#include "cli/MovieMending.h"

#include <QFile>
#include <QObject>
#include <algorithm>

#include "results/SizeForPeople.h"
#include "saving/TwinFile.h"

namespace vantor {

namespace {

// A file of the user's.
class FileSource final : public ByteSource {
  public:
    explicit FileSource(QFile& file) : m_file(file) {}

    std::uint64_t size() const override { return static_cast<std::uint64_t>(m_file.size()); }
    std::size_t read(std::uint64_t offset, std::span<std::uint8_t> into) override {
        if (!m_file.seek(static_cast<qint64>(offset))) {
            return 0;
        }
        const qint64 got =
            m_file.read(reinterpret_cast<char*>(into.data()), static_cast<qint64>(into.size()));
        return got < 0 ? 0 : static_cast<std::size_t>(got);
    }

  private:
    QFile& m_file;
};

QString seconds(double value) {
    return QString::number(value, 'f', 1);
}

}  // namespace

QString MovieMending::useReference(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QObject::tr("The movie %1 cannot be read.").arg(path);
    }
    FileSource source(file);
    auto movie = readReference(source);
    if (!movie) {
        return QObject::tr("%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.").arg(path);
    }
    m_named = std::make_unique<ReferenceShelf::Kept>(ReferenceShelf::Kept{path, 0, std::move(*movie)});
    return {};
}

ItemSource MovieMending::sourceOf(const MendableItem& item) const {
    ItemSource source;
    source.carved = item.carved;
    source.medium = [this] { return &m_medium; };
    source.mediumSectors = m_medium.mediumSectors();
    return source;
}

// Whole movies to the shelf; what has no index is given back. Several types may share an item.
std::vector<MovieMending::Broken> MovieMending::sortOut(const std::vector<MendableItem>& items) {
    std::vector<Broken> broken;
    std::set<std::uint64_t> seen;
    for (const MendableItem& item : items) {
        const bool fresh = isMovieOfBoxes(item.type) && !item.carved.runs.empty() &&
                           !m_completed.contains(item.carved.runs.front().first) &&
                           seen.insert(item.carved.runs.front().first).second;
        if (!fresh || m_stop != 0) {
            continue;
        }
        const ItemSource source = sourceOf(item);
        MediumBytes bytes(source, m_kept);
        if (const auto data = dataWithoutIndex(bytes)) {
            broken.push_back({&item, *data});
        } else if (!m_named) {
            if (auto movie = readReference(bytes)) {
                m_shelf.add({item.name, item.carved.runs.front().first, std::move(*movie)});
            }
        }
    }
    return broken;
}

void MovieMending::repair(const std::vector<MendableItem>& items, const QString& destination) {
    const std::vector<Broken> broken = sortOut(items);
    for (const Broken& each : broken) {
        if (m_stop == 0) {
            mend(each, destination);
        }
    }
    m_lines.append(QObject::tr("%1 of %2 movies without an index repaired")
                       .arg(numberForPeople(m_repaired), numberForPeople(broken.size())));
}

void MovieMending::mend(const Broken& broken, const QString& destination) {
    const MendableItem& item = *broken.item;
    const ItemSource source = sourceOf(item);
    MediumBytes bytes(source, m_kept);
    const ReferenceShelf::Kept* const reference =
        m_named ? m_named.get()
                : m_shelf.choose(bytes, broken.data, item.carved.runs.front().first, m_splitter, &m_stop);
    if (reference == nullptr) {
        m_lines.append(QObject::tr("%1: no whole movie of its camera was found").arg(item.name));
        return;
    }
    WalkLimits limits;
    limits.stop = &m_stop;
    const auto repaired = repairMovie(bytes, broken.data, reference->movie, m_splitter, limits);
    if (!repaired || m_stop != 0) {
        m_lines.append(QObject::tr("%1: no picture found").arg(item.name));
        return;
    }
    const WrittenTwin twin = writeTwin(
        destination, item.type, twinNameOf(item.name, QStringLiteral("repaired")), *repaired, bytes, &m_stop);
    if (twin.path.isEmpty()) {
        m_failed = true;
        m_lines.append(QStringLiteral("%1: %2").arg(item.name, twin.error));
        return;
    }
    ++m_repaired;
    m_lines.append(QObject::tr("%1: %2 pictures, %3 s, and %4 s of sound, as in %5")
                       .arg(twin.path, numberForPeople(repaired->pictures), seconds(repaired->pictureSeconds),
                            seconds(repaired->soundSeconds), reference->name));
}

}  // namespace vantor
