// The found item: what it is made from and what it answers to a browser.
#include "results/MyImageObject.h"

#include "results/RecoveryMode.h"
#include "results/ResultRow.h"

namespace vantor {

std::unique_ptr<MyImageObject> MyImageObject::initWithImage(const QIcon& image, const QString& image_Name,
                                                            const QString& image_UID,
                                                            std::uint64_t File_Start_Sec,
                                                            std::uint64_t File_End_Sec) {
    std::unique_ptr<MyImageObject> item(new MyImageObject(image_Name, image_UID));
    item->m_image = image;
    item->m_File_Start_Sector = File_Start_Sec;
    item->m_File_End_Sector = File_End_Sec;
    return item;
}

std::unique_ptr<MyImageObject> MyImageObject::initWithImage_Path(const QString& path,
                                                                 const QString& image_Name,
                                                                 const QString& image_UID) {
    std::unique_ptr<MyImageObject> item(new MyImageObject(image_Name, image_UID));
    item->m_path = path;
    return item;
}

std::unique_ptr<MyImageObject> MyImageObject::initWithImage_data(const QByteArray& data,
                                                                 const QString& image_Name,
                                                                 const QString& image_UID) {
    std::unique_ptr<MyImageObject> item(new MyImageObject(image_Name, image_UID));
    item->m_imageData = data;
    return item;
}

RepresentationType MyImageObject::imageRepresentationType() const {
    return Recovery_MODE == kPhotoMode ? RepresentationType::EncodedData : RepresentationType::Picture;
}

QVariant MyImageObject::imageRepresentation() const {
    if (imageRepresentationType() == RepresentationType::EncodedData) {
        return m_imageData;
    }
    return QVariant::fromValue(m_image);
}

QVariant MyImageObject::valueForKey(const QString& key) const {
    if (key == u"File_Start_Sector") {
        return QVariant::fromValue<quint64>(m_File_Start_Sector);
    }
    if (key == u"File_End_Sector") {
        return QVariant::fromValue<quint64>(m_File_End_Sector);
    }
    if (key == u"path") {
        return m_path;
    }
    return {};
}

QString MyImageObject::fileType() const {
    return m_type.isEmpty() ? pathExtension(m_image_Name) : m_type;
}

}  // namespace vantor
