// Image files are opened as they are; devices as the machine's list knows them, so that consent and identity
// count.
#include "cli/CliMedium.h"

#include <QFileInfo>
#include <QObject>

#include "catalogue/NumberText.h"
#include "media/ImageFile.h"
#include "media/MediaList.h"
#include "media/MediumTargets.h"
#include "media/PlatformMedia.h"
#include "results/SizeForPeople.h"

namespace vantor {

namespace {

QString nodeOf(const QString& name) {
    const bool isPath = name.contains(u'/') || QFileInfo::exists(name);
    return isPath ? name : QStringLiteral("/dev/") + name;
}

// `name` is the path as it was typed.
CliMedium byPath(const QString& name, const QString& path, StopRequest stop, const QString& map) {
    CliMedium medium;
    medium.path = path;
    OpenTerms terms;
    terms.image = std::make_shared<HeldImage>();
    medium.image = terms.image;
    QString why;
    if (const auto facts = probeMedium(path, &why, map, terms.image.get())) {
        medium.sectors = facts->sectors;
        if (facts->isImage && facts->sectors == 0) {
            medium.complaint = QObject::tr("“%1” is empty: it holds no whole sector.").arg(name);
        } else if (const auto packed = facts->isImage ? refusePackedImage(path) : std::nullopt) {
            medium.complaint =
                *packed + u' ' +
                QObject::tr("Searched all the same; only what is stored unpacked can be found.");
        } else if (facts->notRead != 0) {
            medium.complaint =
                QObject::tr("Of %1 sectors of “%2” %3 were not read, says its map.")
                    .arg(numberForPeople(facts->sectors), name, numberForPeople(facts->notRead));
        }
    } else if (!QFileInfo::exists(path)) {
        medium.complaint =
            QObject::tr("“%1” is neither a file nor a storage medium of this machine.").arg(name);
    } else {
        medium.complaint = QStringLiteral("%1: %2").arg(name, why);
        terms.refusal = std::make_shared<LastRefusal>();
        medium.refusal = terms.refusal;  // tells what to do about it
    }
    terms.stop = std::move(stop);
    terms.map = map;
    medium.open = [path, terms](const QString&) { return openMedium(path, terms); };
    medium.openSource = [path, terms](StopRequest also) {
        OpenTerms both = terms;
        both.stop = eitherStop(terms.stop, std::move(also));
        return openMediumSource(path, std::move(both));
    };
    return medium;
}

}  // namespace

CliMedium findMedium(const QString& name, MediaSource& source, StopRequest stop, const QString& map) {
    const QString node = nodeOf(name);
    if (QFileInfo(node).isFile()) {
        return byPath(name, node, std::move(stop), map);
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
        const QString devicePath = QStringLiteral("/dev/r") + identifier;
        medium.open = [opener = makeMediumOpener(source, stop, refusal), devicePath](const QString&) {
            return opener(devicePath);
        };
        medium.openSource = [opener = makeSourceOpener(source, std::move(stop), refusal),
                             devicePath](StopRequest also) { return opener(devicePath, std::move(also)); };
        return medium;
    }
    return byPath(name, node, std::move(stop), {});
}

}  // namespace vantor
