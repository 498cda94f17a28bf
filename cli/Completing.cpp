// From what a search found to twins that are whole, one kind of file after the other.
#include "cli/Completing.h"

#include <QObject>
#include <algorithm>

#include "formats/Registry.h"
#include "results/SizeForPeople.h"
#include "saving/TwinFile.h"

namespace vantor {

namespace {

bool isOfFormat(const QString& type, const Format* format) {
    return formatFor(type.toUpper().toStdString()) == format;
}

class Completion {
  public:
    Completion(const CompletableKind& kind, SectorReader& medium, const std::atomic<int>& stop,
               const QString& destination)
        : m_kind(kind), m_medium(medium), m_stop(stop), m_destination(destination) {}

    Completed run(const std::vector<MendableItem>& items, std::vector<SectorRun> whole);

  private:
    bool write(const MendableItem& item, const Assembly& assembly);

    const CompletableKind& m_kind;
    SectorReader& m_medium;
    const std::atomic<int>& m_stop;
    const QString& m_destination;
    std::vector<std::uint8_t> m_kept;
    Completed m_done;
};

// The runs of a file's bytes among those it was carved from.
void addFileRuns(const MendableItem& item, std::vector<SectorRun>& whole) {
    std::uint64_t left = item.pieces > 1 ? 1 : (item.bytes + kSectorBytes - 1) / kSectorBytes;
    for (const SectorRun& run : item.carved.runs) {
        const std::uint64_t sectors = std::min(left, run.end - run.first);
        if (sectors != 0) {
            whole.push_back({run.first, run.first + sectors});
        }
        left -= sectors;
    }
}

Completed Completion::run(const std::vector<MendableItem>& items, std::vector<SectorRun> whole) {
    std::vector<std::uint64_t> broken;
    std::vector<const MendableItem*> brokenItems;
    std::set<std::uint64_t> seen;
    for (const MendableItem& item : items) {
        if (item.carved.runs.empty()) {
            continue;
        }
        const std::uint64_t first = item.carved.runs.front().first;
        if (item.complete) {
            if (m_kind.yieldsTo(item)) {
                addFileRuns(item, whole);
            }
        } else if (m_kind.includes(item.type) && seen.insert(first).second) {
            broken.push_back(first);
            brokenItems.push_back(&item);
        }
    }
    const auto assemblies = m_kind.find(broken, whole);
    std::size_t proved = 0;
    std::size_t likely = 0;
    for (std::size_t i = 0; i < assemblies.size() && m_stop == 0; ++i) {
        if (!assemblies[i]) {
            continue;
        }
        const std::vector<SectorRun>& runs = assemblies[i]->runs;
        whole.insert(whole.end(), runs.begin(), runs.end());
        if (write(*brokenItems[i], *assemblies[i])) {
            ++(assemblies[i]->proof == AssemblyProof::Proved ? proved : likely);
            m_done.firstSectors.insert(broken[i]);
        }
    }
    m_done.lines.append(
        m_kind.summary.arg(numberForPeople(proved), numberForPeople(broken.size()), numberForPeople(likely)));
    m_done.whole = std::move(whole);
    return m_done;
}

bool Completion::write(const MendableItem& item, const Assembly& assembly) {
    const bool proved = assembly.proof == AssemblyProof::Proved;
    ItemSource source;
    source.carved = {assembly.runs, false};
    source.medium = [this] { return &m_medium; };
    source.mediumSectors = m_medium.mediumSectors();
    source.asPublished = true;
    MediumBytes bytes(source, m_kept);
    RepairedMovie twin;
    twin.data = {0, assembly.bytes};
    const QString mark = proved ? QStringLiteral("complete") : QStringLiteral("put together");
    const WrittenTwin written =
        writeTwin(m_destination, item.type, twinNameOf(item.name, mark), twin, bytes, &m_stop);
    if (written.path.isEmpty()) {
        m_done.failed = true;
        m_done.lines.append(QStringLiteral("%1: %2").arg(item.name, written.error));
        return false;
    }
    m_done.lines.append(
        (proved ? QObject::tr("%1: complete, from %2 pieces", nullptr, pluralOf(assembly.runs.size()))
                : QObject::tr("%1: put together from %2 pieces, please look", nullptr,
                              pluralOf(assembly.runs.size())))
            .arg(written.path, numberForPeople(assembly.runs.size())));
    return true;
}

}  // namespace

Completed completeBroken(const CompletableKind& kind, const std::vector<MendableItem>& items,
                         std::vector<SectorRun> whole, SectorReader& medium, const std::atomic<int>& stop,
                         const QString& destination) {
    return Completion(kind, medium, stop, destination).run(items, std::move(whole));
}

bool isPictureWithSyntax(const QString& type) {
    static const Format* const jpeg = formatFor("JPG");
    static const Format* const png = formatFor("PNG");
    return isOfFormat(type, jpeg) || isOfFormat(type, png);
}

bool isMovieOfBoxes(const QString& type) {
    static const Format* const boxes = formatFor("MP4");
    return isOfFormat(type, boxes);
}

}  // namespace vantor
