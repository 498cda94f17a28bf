// Pieces: from what is broken to runs of sectors, one kind of file after the other.
#include "repair/ItemMending.h"

#include <algorithm>

#include "formats/Registry.h"
#include "repair/ArchiveCompletion.h"
#include "repair/MovieCompletion.h"
#include "repair/PhotoCompletion.h"

namespace vantor {

namespace {

bool isOfFormat(const QString& type, const Format* format) {
    return formatFor(type.toUpper().toStdString()) == format;
}

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

Mend mendOf(const Assembly& pieces) {
    Mend mend;
    mend.kind = pieces.proof == AssemblyProof::Proved ? MendKind::Completed : MendKind::PutTogether;
    mend.assembly = pieces;
    mend.twin.data = {0, pieces.bytes};
    return mend;
}

}  // namespace

struct ItemMending::Kind {
    bool (*includes)(const QString& type);
    // Whether a complete item takes places away.
    bool (*yieldsTo)(const MendableItem& item);
    std::function<void(std::span<const std::uint64_t> broken, std::span<const SectorRun> whole,
                       const AssemblyFound& tell)>
        find;
};

CompletionSum ItemMending::completeMovies(const std::vector<MendableItem>& items) {
    // Pictures in a movie look like files of their own, and behind lengths alone anything may stand.
    std::vector<SectorRun> otherFiles;
    for (const MendableItem& item : items) {
        if (item.checked && (isPictureWithSyntax(item.type) || isArchiveOfMembers(item.type))) {
            addFileRuns(item, otherFiles);
        }
    }
    return complete(
        {[](const QString& type) { return isMovieOfBoxes(type) || isMovieOfChunks(type); },
         [](const MendableItem& item) {
             return isMovieOfBoxes(item.type) || (isMovieOfChunks(item.type) && item.checked);
         },
         [&](auto broken, auto whole, const AssemblyFound& tell) {
             MovieCompletion(m_medium, m_stop, m_progress, m_helper).run(broken, whole, otherFiles, tell);
         }},
        items);
}

CompletionSum ItemMending::completePhotos(const std::vector<MendableItem>& items) {
    return complete({isPictureWithSyntax, [](const MendableItem& item) { return item.checked; },
                     [this](auto broken, auto whole, const AssemblyFound& tell) {
                         PhotoCompletion(m_medium, m_stop, m_progress).run(broken, whole, tell);
                     }},
                    items);
}

CompletionSum ItemMending::completeArchives(const std::vector<MendableItem>& items) {
    return complete({isArchiveOfMembers, [](const MendableItem& item) { return item.checked; },
                     [this](auto broken, auto whole, const AssemblyFound& tell) {
                         ArchiveCompletion(m_medium, m_stop, m_progress).run(broken, whole, tell);
                     }},
                    items);
}

CompletionSum ItemMending::complete(const Kind& kind, const std::vector<MendableItem>& items) {
    std::vector<std::uint64_t> broken;
    std::vector<const MendableItem*> brokenItems;
    std::set<std::uint64_t> seen;
    std::vector<SectorRun> whole = m_whole;
    for (const MendableItem& item : items) {
        if (item.carved.runs.empty()) {
            continue;
        }
        const std::uint64_t first = item.carved.runs.front().first;
        if (item.complete) {
            if (kind.yieldsTo(item)) {
                addFileRuns(item, whole);
            }
        } else if (kind.includes(item.type) && seen.insert(first).second) {
            broken.push_back(first);
            brokenItems.push_back(&item);
        }
    }
    CompletionSum sum;
    sum.broken = broken.size();
    kind.find(broken, whole, [&](std::size_t i, const Assembly& pieces) {
        m_whole.insert(m_whole.end(), pieces.runs.begin(), pieces.runs.end());
        if (m_stop == 0 && m_take(*brokenItems[i], mendOf(pieces))) {
            ++(pieces.proof == AssemblyProof::Proved ? sum.completed : sum.putTogether);
            m_completed.insert(broken[i]);
        }
    });
    return sum;
}

bool isPictureWithSyntax(const QString& type) {
    static const Format* const jpeg = formatFor("JPG");
    static const Format* const png = formatFor("PNG");
    return isOfFormat(type, jpeg) || isOfFormat(type, png);
}

bool isArchiveOfMembers(const QString& type) {
    static const Format* const archive = formatFor("ZIP");
    return isOfFormat(type, archive);
}

bool isMovieOfChunks(const QString& type) {
    return type.compare(QLatin1String("AVI"), Qt::CaseInsensitive) == 0;
}

bool isMovieOfBoxes(const QString& type) {
    static const Format* const boxes = formatFor("MP4");
    return isOfFormat(type, boxes);
}

}  // namespace vantor
