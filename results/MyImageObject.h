// One found item, as both image browsers show it.
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QString>
#include <QVariant>
#include <cstdint>
#include <memory>
#include <utility>

#include "results/CarvedRun.h"

namespace vantor {

// What a browser is given to draw an item from.
enum class RepresentationType { Picture, EncodedData };

// An item as it was listed; the list hands out a copy to everyone who asks. It may be read from any thread.
class MyImageObject {
  public:
    static std::unique_ptr<MyImageObject> initWithImage(const QIcon& image, const QString& image_Name,
                                                        const QString& image_UID,
                                                        std::uint64_t File_Start_Sec,
                                                        std::uint64_t File_End_Sec);
    static std::unique_ptr<MyImageObject> initWithImage_Path(const QString& path, const QString& image_Name,
                                                             const QString& image_UID);
    static std::unique_ptr<MyImageObject> initWithImage_data(const QByteArray& data,
                                                             const QString& image_Name,
                                                             const QString& image_UID);

    void setPath(const QString& path) { m_path = path; }
    // The same item with another picture, to stand in its place.
    std::shared_ptr<MyImageObject> withImageData(const QByteArray& data) const {
        auto copy = std::make_shared<MyImageObject>(*this);
        copy->m_imageData = data;
        return copy;
    }

    QString imageUID() const { return m_image_UID; }
    QString imageTitle() const { return m_image_Name; }
    QString imageSubtitle() const { return m_image_Name; }

    // Decided by the recovery mode at the moment of asking, not by how the item was made.
    RepresentationType imageRepresentationType() const;
    // The picture (QIcon) in the video and raw-file modes, the encoded bytes (QByteArray) in photo mode.
    QVariant imageRepresentation() const;

    // "File_Start_Sector", "File_End_Sector" (quint64) and "path" by name; anything else is an invalid
    // variant.
    QVariant valueForKey(const QString& key) const;

    const QString& path() const { return m_path; }
    const QByteArray& imageData() const { return m_imageData; }
    const QIcon& image() const { return m_image; }
    std::uint64_t File_Start_Sector() const { return m_File_Start_Sector; }
    std::uint64_t File_End_Sector() const { return m_File_End_Sector; }

    // Type name (`Ext_Name`) and the sectors really read, for saving; empty for items that are files already.
    const QString& type() const { return m_type; }
    // The same, or the extension of a name without a type.
    QString fileType() const;
    const CarvedRun& carved() const { return m_carved; }
    // As the scan published them; after a failed read they are not the ones really read.
    const SectorRun& publishedSectors() const { return m_published; }
    // The carved bytes as published, of a few items that the medium may not give again; empty of all others.
    const QByteArray& heldBytes() const { return m_heldBytes; }
    void setHeldBytes(const QByteArray& bytes) { m_heldBytes = bytes; }
    void setOrigin(const QString& type, CarvedRun carved, SectorRun published) {
        m_type = type;
        m_carved = std::move(carved);
        m_published = published;
    }

  private:
    friend class FoundItems;

    MyImageObject(const QString& image_Name, const QString& image_UID)
        : m_image_Name(image_Name), m_image_UID(image_UID) {}

    QByteArray m_imageData;  // encoded thumbnail, or the placeholder picture's bytes
    QString m_path;
    QIcon m_image;  // file-type icon of raw items
    QString m_image_Name;
    QString m_image_UID;
    std::uint64_t m_File_Start_Sector = 0;
    std::uint64_t m_File_End_Sector = 0;
    QString m_type;
    CarvedRun m_carved;
    SectorRun m_published;
    QByteArray m_heldBytes;
};

}  // namespace vantor
