// What the saver's own files share.
#pragma once

#include <QObject>
#include <QStringList>
#include <array>
#include <optional>
#include <set>
#include <vector>

#include "saving/FilesWithin.h"
#include "saving/ItemSaver.h"
#include "saving/LengthClaims.h"
#include "saving/SavedFiles.h"
#include "saving/SavingFolder.h"
#include "saving/Sha256.h"

namespace vantor {

// 0 for an item without a run.
inline std::uint64_t firstSectorOf(const FoundItem& item) {
    return item.source.carved.runs.empty() ? 0 : item.source.carved.runs.front().first;
}

inline bool isUnwanted(const FoundItem& item) {
    return item.unwanted != nullptr && *item.unwanted;
}

inline QString cancelledText() {
    return QObject::tr("Cancelled");
}

struct ItemSaver::State {
    std::vector<std::uint8_t> kept;
    std::array<std::vector<std::uint8_t>, 2> chunks;
    BackgroundSha256 sum;
    SavedFiles saved;
    FilesWithin within;                  // those of the choice at hand
    FilesWithin waiting;                 // that will perhaps be
    std::optional<LengthClaims> claims;  // of the choice at hand
    std::set<QString> folders;           // below it, that were written into
    QStringList madeFolders;             // that were not there before this saver; the outer ones first
};

// What is being written, and where to.
struct ItemSaver::Writing {
    const FoundItem& item;
    SavingFolder folder;
    QString name;
    bool byPath = false;  // the card tells its place
    // On the medium; the bytes of an item in pieces are not those that follow its first sector.
    std::uint64_t place = 0;
    Likeness likeness;  // empty where duplicates do not matter

    SoughtFile sought(bool allRead = true) const {
        return {item.type, folder.path() + u'/' + name, place, allRead, byPath};
    }
};

}  // namespace vantor
