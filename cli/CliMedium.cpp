// Image files are opened as they are; devices as the machine's list knows them, so that consent and identity
// count.
#include "cli/CliMedium.h"

#include <QFileInfo>

#include "catalogue/NumberText.h"
#include "media/ImageFile.h"
#include "media/MediaList.h"
#include "media/MediumTargets.h"
#include "media/PlatformMedia.h"

namespace vantor {

namespace {

QString nodeOf(const QString& name) {
    const bool isPath = name.contains(u'/') || QFileInfo::exists(name);
    return isPath ? name : QStringLiteral("/dev/") + name;
}

CliMedium byPath(const QString& path, StopRequest stop) {
    CliMedium medium;
    medium.path = path;
    QString why;
    if (const auto facts = probeMedium(path, &why)) {
        medium.sectors = facts->sectors;
        if (const auto packed = facts->isImage ? refusePackedImage(path) : std::nullopt) {
            medium.complaint =
                *packed +
                QStringLiteral(" Searched all the same; only what is stored unpacked can be found.");
        }
    } else {
        medium.complaint = QStringLiteral("%1: %2").arg(path, why);
    }
    medium.open = [path, stop = std::move(stop)](const QString&) { return openMedium(path, {stop, {}, {}}); };
    return medium;
}

}  // namespace

CliMedium findMedium(const QString& name, MediaSource& source, StopRequest stop) {
    const QString node = nodeOf(name);
    if (QFileInfo(node).isFile()) {
        return byPath(node, std::move(stop));
    }
    const QString canonicalNode = QFileInfo(node).canonicalFilePath();
    for (const auto& record : listedMedia(source)) {
        const QString& identifier = record->nsStrDiskIdentifier;
        const auto target = source.targets() ? source.targets()->find(identifier) : std::nullopt;
        if (!target || canonicalNode.isEmpty() ||
            QFileInfo(target->path).canonicalFilePath() != canonicalNode) {
            continue;
        }
        CliMedium medium;
        medium.path = target->path;
        medium.sectors = static_cast<std::uint64_t>(textToInt64(record->nsStrSectors));
        medium.open = [opener = makeMediumOpener(source, std::move(stop)), identifier](const QString&) {
            return opener(QStringLiteral("/dev/r") + identifier);
        };
        return medium;
    }
    return byPath(node, std::move(stop));
}

}  // namespace vantor
