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

// `name` is the path as it was typed.
CliMedium byPath(const QString& name, const QString& path, StopRequest stop) {
    CliMedium medium;
    medium.path = path;
    QString why;
    if (const auto facts = probeMedium(path, &why)) {
        medium.sectors = facts->sectors;
        if (facts->isImage && facts->sectors == 0) {
            medium.complaint = QStringLiteral("“%1” is empty: it holds no whole sector.").arg(name);
        } else if (const auto packed = facts->isImage ? refusePackedImage(path) : std::nullopt) {
            medium.complaint =
                *packed +
                QStringLiteral(" Searched all the same; only what is stored unpacked can be found.");
        }
    } else if (!QFileInfo::exists(path)) {
        medium.complaint =
            QStringLiteral("“%1” is neither a file nor a storage medium of this machine.").arg(name);
    } else {
        medium.complaint = QStringLiteral("%1: %2").arg(name, why);
    }
    medium.open = [path, stop = std::move(stop)](const QString&) {
        return openMedium(path, {stop, {}, {}, {}});
    };
    return medium;
}

}  // namespace

CliMedium findMedium(const QString& name, MediaSource& source, StopRequest stop) {
    const QString node = nodeOf(name);
    if (QFileInfo(node).isFile()) {
        return byPath(name, node, std::move(stop));
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
        const auto refusal = std::make_shared<LastRefusal>();
        medium.refusal = refusal;
        medium.open = [opener = makeMediumOpener(source, std::move(stop), refusal),
                       identifier](const QString&) { return opener(QStringLiteral("/dev/r") + identifier); };
        return medium;
    }
    return byPath(name, node, std::move(stop));
}

}  // namespace vantor
