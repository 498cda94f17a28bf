// Groups follow the kinds of files, but what a camera writes without developing it stands alone.
#include "results/ItemGroups.h"

#include <QObject>
#include <QSet>

#include "catalogue/FileKind.h"

namespace vantor {

namespace {

bool isCameraRaw(const QString& type) {
    static const QSet<QString> types = [] {
        QSet<QString> all;
        for (const char* each : {"3fr", "arw", "bay", "cap", "cr2", "cr3", "crw", "dcr", "dng", "erf",
                                 "fff", "gpr", "iiq", "k25", "kdc", "mef", "mos", "mrw", "nef", "nrw",
                                 "orf", "pef", "raf", "raw", "rw2", "rwl", "sr2", "srf", "srw", "x3f"}) {
            all.insert(QString::fromLatin1(each));
        }
        return all;
    }();
    return types.contains(type.toLower());
}

}  // namespace

ItemGroup groupOfType(const QString& type) {
    if (isCameraRaw(type)) {
        return ItemGroup::CameraRaw;
    }
    switch (kindOfExtension(type)) {
        case FileKind::Picture:
            return ItemGroup::Photos;
        case FileKind::Video:
            return ItemGroup::Movies;
        case FileKind::Sound:
            return ItemGroup::Sound;
        case FileKind::Document:
            return ItemGroup::Documents;
        case FileKind::Archive:
            return ItemGroup::Archives;
        case FileKind::Other:
            break;
    }
    return ItemGroup::Other;
}

QString wordsForGroup(ItemGroup group) {
    switch (group) {
        case ItemGroup::Photos:
            return QObject::tr("Photos");
        case ItemGroup::CameraRaw:
            return QObject::tr("Camera raw");
        case ItemGroup::Movies:
            return QObject::tr("Movies");
        case ItemGroup::Sound:
            return QObject::tr("Sound");
        case ItemGroup::Documents:
            return QObject::tr("Documents");
        case ItemGroup::Archives:
            return QObject::tr("Archives");
        case ItemGroup::Other:
            break;
    }
    return QObject::tr("Other");
}

}  // namespace vantor
