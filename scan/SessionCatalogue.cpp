// Loading of the six catalogues, and the file-type selection made from them.
#include <QCryptographicHash>

#include "catalogue/CatalogueFile.h"
#include "scan/ScanSession.h"

namespace vantor {

void ScanSession::loadCatalogues(const QString& folder) {
    const std::pair<const char*, QStringList*> files[] = {
        {kPhotoCatalogue, &Ext_Array},       {kPhotoThoroughCatalogue, &Adv_Ext_Array},
        {kVideoCatalogue, &Video_Array},     {kVideoThoroughCatalogue, &Adv_Video_Array},
        {kRawFileCatalogue, &RawFile_Array}, {kRawFileThoroughCatalogue, &Adv_RawFile_Array},
    };
    for (const auto& [name, array] : files) {
        appendCatalogueFile(folder + QLatin1String(name), *array);
    }
}

const QStringList& ScanSession::generalCatalogueOfMode() const {
    return Recovery_MODE == kVideoMode ? Video_Array : RawFile_Array;
}

const QStringList& ScanSession::thoroughCatalogueOfMode() const {
    return Recovery_MODE == kVideoMode ? Adv_Video_Array : Adv_RawFile_Array;
}

QByteArray ScanSession::catalogueSum() const {
    const bool photo = Recovery_MODE == kPhotoMode;
    QCryptographicHash sum(QCryptographicHash::Sha256);
    for (const QStringList* const records :
         {photo ? &Ext_Array : &CheckListHeader_Array, photo ? &Adv_Ext_Array : &CheckListHeader_Adv_Array}) {
        sum.addData(records->join(u'\n').toUtf8());
        sum.addData(QByteArrayView("\n\n"));
    }
    return sum.result();
}

void ScanSession::buildFileTypeList() {
    nsCheckedListDataObject.clear();
    for (const FileTypeRow& row : fileTypeRows(generalCatalogueOfMode(), thoroughCatalogueOfMode())) {
        createExtensionListTableRecord(row[QStringLiteral("Extension")].toString(), isTicked(row),
                                       row[QStringLiteral("Description")].toString(),
                                       row[QStringLiteral("Thoro")].toString());
    }
    sortFileTypeRows(nsCheckedListDataObject);
    m_view.fileTypeRowsChanged();
}

void ScanSession::createExtensionListTableRecord(const QString& extension, bool ExtState,
                                                 const QString& ExtDescp, const QString& Thoro) {
    nsCheckedListDataObject.append(makeFileTypeRow(extension, ExtState, ExtDescp, Thoro));
    m_view.fileTypeRowsChanged();
}

void ScanSession::setAllFileTypes(bool ticked) {
    const QList<FileTypeRow> rows = nsCheckedListDataObject;
    nsCheckedListDataObject.clear();
    for (const FileTypeRow& row : rows) {
        createExtensionListTableRecord(row[QStringLiteral("Extension")].toString(), ticked,
                                       row[QStringLiteral("Description")].toString(),
                                       row[QStringLiteral("Thoro")].toString());
    }
}

bool ScanSession::Check_For_One_Extension_Selection() const {
    return std::any_of(nsCheckedListDataObject.begin(), nsCheckedListDataObject.end(), isTicked);
}

void ScanSession::cutCataloguesToTickedTypes() {
    {
        const std::lock_guard lock(m_listLock);
        nsSIGFileInfoDataObject.clear();
    }
    CheckListHeader_Array = generalCatalogueOfMode();
    CheckListHeader_Adv_Array = thoroughCatalogueOfMode();
    for (const FileTypeRow& row : std::as_const(nsCheckedListDataObject)) {
        const QString extension = row[QStringLiteral("Extension")].toString();
        if (isTicked(row)) {
            createSignatureListTableRecord(extension, 0, QStringLiteral(""), QStringLiteral(""), extension);
        } else {
            removeRecordsOfType(CheckListHeader_Array, extension);
            removeRecordsOfType(CheckListHeader_Adv_Array, extension);
        }
    }
}

}  // namespace vantor
