// From the facts of a volume to its record, with the rules that keep disk images and optical discs out.
#include "media/MediaList.h"

#include "catalogue/NumberText.h"
#include "catalogue/TextHelpers.h"
#include "media/SizeText.h"

namespace vantor {

namespace {

QString text(const MediaFacts& facts, const char* key) {
    return facts.value(QLatin1String(key)).toString();
}

QString byteCount(const MediaFacts& facts) {
    return QString::number(facts.value(QStringLiteral("IOKitSize")).toULongLong());
}

}  // namespace

void MediaList::rebuild() {
    nsMutaryOfDataObject.clear();
    m_kinds.clear();
    getVolumeToFSGetInfo();
}

void MediaList::getVolumeToFSGetInfo() {
    for (const QString& path : m_source.mountedRemovableMedia()) {
        find_disk_info(path);
    }
}

void MediaList::getVolumeToBSDNode() {
    for (const QString& device : m_source.localVolumes()) {
        find_disk_info(device);
    }
}

void MediaList::find_disk_info(const QString& path) {
    Parent_Disk_Size = QStringLiteral("");
    Parent_Media_Name = QStringLiteral("");
    const MediaFacts facts = m_source.diskInfo(path);
    if (text(facts, "BusProtocol") == u"Disk Image" ||
        Find_Str(text(facts, "OpticalDeviceType"), QStringLiteral("CD"))) {
        return;
    }
    const QString identifier = text(facts, "DeviceIdentifier");
    if (identifier.isEmpty()) {
        return;
    }
    m_kinds.insert(identifier, mediumKindOf(facts));
    const QString bytes = byteCount(facts);
    const QString sectors =
        QString::number(static_cast<quint64>(textToInt64(bytes) / static_cast<qint64>(kSectorBytes)));
    QString name = text(facts, "VolumeName");
    if (name.isEmpty()) {
        name = QStringLiteral("Untitled");
    }
    nsMutaryOfDataObject.append(
        MyDataObject::initWithString1(identifier, name, text(facts, "FilesystemUserVisibleName"),
                                      getMPSize(bytes), text(facts, "ParentWholeDisk"), sectors));
}

void MediaList::find_disk_info_PARENT(const QString& wholeDisk) {
    Parent_Disk_Size = QStringLiteral("");
    Parent_Media_Name = QStringLiteral("");
    const MediaFacts facts = m_source.diskInfo(wholeDisk);
    Parent_Disk_Size = byteCount(facts);
    Parent_Media_Name = text(facts, "MediaName");
}

void MediaList::deleteSelectedRow(qsizetype row) {
    if (row >= 0 && row < nsMutaryOfDataObject.size()) {
        nsMutaryOfDataObject.removeAt(row);
    }
}

}  // namespace vantor
