// The adders: every found item enters the lists through one of them.
#include <QFile>
#include <QFileInfo>

#include "catalogue/TextHelpers.h"
#include "scan/ScanSession.h"

namespace vantor {

namespace {

// The browsers follow the scan in steps of so many items, not at every one.
constexpr std::uint64_t kPhotoScrollStep = 6;
constexpr std::uint64_t kRawScrollStep = 4;
// A picture on disk larger than this is not read to see whether it decodes.
constexpr qint64 kLargestPictureFile = qint64{512} * 1024 * 1024;

const QString kPlaceholderName = QStringLiteral("/NoPreview.png");

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kLargestPictureFile || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

}  // namespace

void ScanSession::loadPlaceholder(const QString& resourcesFolder) {
    m_placeholderPath = resourcesFolder + kPlaceholderName;
    Null_Image_Data = bytesOf(m_placeholderPath);
    noprevfile = QStringLiteral("");
}

void ScanSession::addImageWithData(const QByteArray& data, const QString& imageName,
                                   const QString& image_UID) {
    if (data.isEmpty()) {
        return;
    }
    addThumbnail(m_thumbnailer ? m_thumbnailer(data, pathExtension(imageName)) : QByteArray(), imageName,
                 image_UID, m_handOver);
}

void ScanSession::addThumbnail(const QByteArray& thumbnail, const QString& imageName,
                               const QString& image_UID, const HandOver& from) {
    auto item = MyImageObject::initWithImage_data(thumbnail.isEmpty() ? Null_Image_Data : thumbnail,
                                                  imageName, image_UID);
    item->setOrigin(from.type, from.carved, {from.firstSector, from.firstSector + from.bytes / kSectorBytes});
    item->setHeldBytes(from.heldBytes);
    appendItem(*item);
    pacePhotoBrowser();
}

void ScanSession::replaceThumbnail(std::size_t index, const QString& image_UID, const QByteArray& thumbnail) {
    const std::lock_guard lock(m_listLock);
    const auto item = thumbnail.isEmpty() ? nullptr : images.at(index);
    if (item && item->imageUID() == image_UID) {
        images.setPicture(index, thumbnail);
    }
}

void ScanSession::addImageWithPath(const QString& path, const QString& imageName, const QString& image_UID) {
    const QString trimmed = Trim_Str(path);
    if (trimmed.isEmpty()) {
        return;
    }
    const bool shownFromPath =
        Recovery_MODE == kVideoMode ||
        (m_thumbnailer && !m_thumbnailer(bytesOf(trimmed), pathExtension(trimmed)).isEmpty());
    if (shownFromPath) {
        appendItem(*MyImageObject::initWithImage_Path(trimmed, imageName, image_UID));
    } else {
        noprevfile = m_placeholderPath;
        auto item = MyImageObject::initWithImage_data(Null_Image_Data, imageName, image_UID);
        item->setPath(noprevfile);
        appendItem(*item);
    }
    pacePhotoBrowser();
}

void ScanSession::addImageWithData_2(const QByteArray&, const QString& imageName, const QString& image_UID,
                                     std::uint64_t File_Start_Sec, std::uint64_t File_End_Sec) {
    const QString name = Trim_Str(imageName);
    if (name.isEmpty()) {
        return;
    }
    auto item = MyImageObject::initWithImage(m_view.iconForFileType(pathExtension(name)), name, image_UID,
                                             File_Start_Sec, File_End_Sec);
    item->setOrigin(m_handOver.type, m_handOver.carved, {File_Start_Sec, File_End_Sec});
    addRawItem(*item, name, name);
}

void ScanSession::addImageWithPath_2(const QString& path, const QString& imageName,
                                     const QString& image_UID) {
    const QString trimmed = Trim_Str(path);
    if (trimmed.isEmpty()) {
        return;
    }
    const auto item = MyImageObject::initWithImage(m_view.iconForFileType(pathExtension(trimmed)), imageName,
                                                   image_UID, 0, 0);
    addRawItem(*item, imageName, trimmed);
}

// Lists a raw item, counts it in its type's row and lets the browser follow.
void ScanSession::addRawItem(MyImageObject& item, const QString& name, const QString& path) {
    item.setPath(path);
    appendItem(item);
    {
        const std::lock_guard lock(m_listLock);
        countItem(nsSIGFileInfoDataObject, pathExtension(path), name, path);
    }
    m_view.resultRowsChanged();
    paceBrowser(ControlSet::Sig, kRawScrollStep);
}

void ScanSession::pacePhotoBrowser() {
    paceBrowser(ControlSet::Photo, kPhotoScrollStep);
}

void ScanSession::paceBrowser(ControlSet set, std::uint64_t step) {
    m_view.reloadBrowser(set);
    if (++m_addedItems % step == 0) {
        m_view.scrollBrowserTo(set, static_cast<qsizetype>(itemCount()) - 1);
    }
}

void ScanSession::createSignatureListTableRecord(const QString& type, std::uint64_t NoOfFile,
                                                 const QString& FileName, const QString& FilePath,
                                                 const QString& FileTypes_Hidden) {
    {
        const std::lock_guard lock(m_listLock);
        nsSIGFileInfoDataObject.append(makeResultRow(type, NoOfFile, FileName, FilePath, FileTypes_Hidden));
    }
    m_view.resultRowsChanged();
}

void ScanSession::appendItem(const MyImageObject& item) {
    const std::lock_guard lock(m_listLock);
    images.setPlaceholder(Null_Image_Data);
    images.append(item);
}

std::size_t ScanSession::itemCount() const {
    const std::lock_guard lock(m_listLock);
    return images.size();
}

std::shared_ptr<MyImageObject> ScanSession::itemAt(std::size_t index) const {
    const std::lock_guard lock(m_listLock);
    return images.at(index);
}

void ScanSession::clearItems() {
    const std::lock_guard lock(m_listLock);
    images.clear();
}

QList<ResultRow> ScanSession::resultRows() const {
    // A list of its own: one that is shared would be changed in place as soon as the other side lets go.
    const std::lock_guard lock(m_listLock);
    return QList<ResultRow>(nsSIGFileInfoDataObject.cbegin(), nsSIGFileInfoDataObject.cend());
}

}  // namespace vantor
