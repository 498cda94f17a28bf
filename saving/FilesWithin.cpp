// Ranges of which none lies within another.
#include "saving/FilesWithin.h"

#include <iterator>
#include <utility>

#include "formats/ByteView.h"
#include "formats/Registry.h"
#include "media/SectorReader.h"

namespace vantor {

namespace {

const Format* formatOf(const QString& type) {
    return formatFor(type.toUpper().toStdString());
}

// Rows of frames of sound, and archives of members. Movies and texts may run on into the next file where one
// fills its sectors, as recorders of transport streams see to.
bool holdsItsKind(const QString& type) {
    const Format* const format = formatOf(type);
    return format != nullptr && format->frameStream && format->group != Group::Movies &&
           format->group != Group::Documents;
}

}  // namespace

void FilesWithin::note(const QString& type, const QString& name, std::uint64_t first, std::uint64_t bytes,
                       bool proved) {
    if (proved) {
        add(m_proved, first, {addClamped(first, bytes), name});
    }
    if (holdsItsKind(type)) {
        add(m_streams[type], first, {addClamped(first, bytes), name});
    }
}

void FilesWithin::noteOnCard(const QString& type, const QString& name, std::span<const SectorRun> runs,
                             std::uint32_t clusterSectors) {
    for (const SectorRun& run : runs) {
        add(m_onCard, run.first * kSectorBytes,
            {run.end * kSectorBytes, name, type, std::uint64_t{clusterSectors} * kSectorBytes});
    }
}

std::optional<QString> FilesWithin::holderOf(const QString& type, std::uint64_t first, std::uint64_t bytes,
                                             bool isWhole) const {
    const File* const whole = lastBefore(m_proved, first);
    if (whole != nullptr && addClamped(first, bytes) <= whole->end) {
        return whole->name;
    }
    const auto run = m_onCard.upper_bound(first);
    if (run != m_onCard.begin()) {
        const auto& [begin, file] = *std::prev(run);
        const Format* const format = formatOf(type);
        const bool isOfItsKind = format != nullptr && format == formatOf(file.type);
        if (first < file.end && (first - begin) % file.clusterBytes != 0 && (!isWhole || isOfItsKind)) {
            return file.name;
        }
    }
    const auto streams = m_streams.find(type);
    const File* const stream = streams == m_streams.end() ? nullptr : lastBefore(streams->second, first);
    return stream != nullptr && first < stream->end ? std::optional(stream->name) : std::nullopt;
}

void FilesWithin::add(Files& files, std::uint64_t first, File file) {
    const auto behind = files.upper_bound(first);
    if (behind != files.begin() && std::prev(behind)->second.end >= file.end) {
        return;
    }
    auto next = files.lower_bound(first);
    while (next != files.end() && next->second.end <= file.end) {
        next = files.erase(next);
    }
    files.emplace_hint(next, first, std::move(file));
}

const FilesWithin::File* FilesWithin::lastBefore(const Files& files, std::uint64_t first) {
    const auto at = files.lower_bound(first);
    return at == files.begin() ? nullptr : &std::prev(at)->second;
}

}  // namespace vantor
