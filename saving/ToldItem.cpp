// Its bytes lie where the directory says, and it bears the name that the directory gives.
#include "saving/ToldItem.h"

#include "results/ResultRow.h"
#include "results/ToldFiles.h"

namespace vantor {

FoundItem toldItem(const std::shared_ptr<const CardFile>& file, const std::shared_ptr<const CardIndex>& card,
                   SectorReader& medium) {
    const QString extension = pathExtension(file->name).toUpper();
    FoundItem item{extension.isEmpty() ? QStringLiteral("FILE") : extension,
                   file->name,
                   {runsOf(*file), file->contents, [&medium] { return &medium; }, medium.mediumSectors()}};
    item.source.hints = {card, file};
    return item;
}

}  // namespace vantor
