// Preview pictures: a bounded picture of a file in a document frame, and the icons of file types.
#pragma once

#include <QHash>
#include <QIcon>
#include <QImage>
#include <QString>
#include <functional>

namespace vantor {

// A picture of the file no larger than the size; null when there is none. Any one thread.
using PicturePreviewer = std::function<QImage(const QString& file, QSize largest)>;

// Reads the still pictures that the toolkit knows, with a cap on the memory a picture may ask for.
QImage readPicture(const QString& file, QSize largest);

// The picture on a sheet of paper with a margin and a shadow, no larger than `largest`.
QImage framedAsDocument(const QImage& picture, QSize largest);

// What kind of thing a file of the type holds.
enum class FileKind { Document, Archive, Sound, Picture, Video, Other };

// Icons by file extension: the desktop's, or one of the program's own by kind.
class FileTypeIcons {
  public:
    // Looks the icon up, of that kind where the desktop has none for the type; interface thread only.
    void prepare(const QString& extension, FileKind kind);
    // Any thread, while nobody prepares; an extension that was not prepared has the general icon.
    QIcon icon(const QString& extension) const;

    FileTypeIcons();

  private:
    QIcon m_general;
    QHash<QString, QIcon> m_byExtension;
};

FileKind kindOfExtension(const QString& extension);
// Whether files of the type are plain text, markup and source code included.
bool isTextExtension(const QString& extension);
// As above; where the extension says nothing, the words of the description decide.
FileKind kindOfType(const QString& extension, const QString& description);

}  // namespace vantor
