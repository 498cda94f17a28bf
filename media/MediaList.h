// The list of storage media that the first wizard screen offers.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <memory>

#include "media/MediaSource.h"
#include "media/MediumKind.h"
#include "media/MyDataObject.h"

namespace vantor {

// Main thread only.
class MediaList {
  public:
    explicit MediaList(MediaSource& source) : m_source(source) {}

    // Empties the list and asks the source for every removable medium again.
    void rebuild();

    // Appends the mounted removable media in the source's order.
    void getVolumeToFSGetInfo();
    // Appends the local volumes by device name; the list rebuild does not use it.
    void getVolumeToBSDNode();
    // Appends at most one record: none for disk images, CD drives and media without an identifier.
    void find_disk_info(const QString& path);
    // Size (bytes, text) and name of a whole disk into Parent_Disk_Size and Parent_Media_Name.
    void find_disk_info_PARENT(const QString& wholeDisk);

    void deleteSelectedRow(qsizetype row);  // no effect outside the list
    void addRow(std::shared_ptr<MyDataObject> record) { nsMutaryOfDataObject.append(std::move(record)); }

    QList<std::shared_ptr<MyDataObject>> nsMutaryOfDataObject;
    // Of a listed medium, by its identifier.
    MediumKind kindOfMedium(const QString& identifier) const { return m_kinds.value(identifier); }

    QString Parent_Disk_Size = QStringLiteral("");
    QString Parent_Media_Name = QStringLiteral("");

  private:
    MediaSource& m_source;
    QHash<QString, MediumKind> m_kinds;
};

// The records of a fresh list, for those who need nothing else of it.
inline QList<std::shared_ptr<MyDataObject>> listedMedia(MediaSource& source) {
    MediaList list(source);
    list.rebuild();
    return list.nsMutaryOfDataObject;
}

}  // namespace vantor
