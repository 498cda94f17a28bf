// What kind of thing a file of a type holds.
#pragma once

#include <QMimeType>
#include <QString>

namespace vantor {

enum class FileKind { Document, Archive, Sound, Picture, Video, Other };

// Any thread may call these; extensions in either case.

FileKind kindOfExtension(const QString& extension);
// As above; where the extension says nothing, the words of the description decide.
FileKind kindOfType(const QString& extension, const QString& description);
// Whether files of the type are plain text, markup and source code included.
bool isTextExtension(const QString& extension);
// The shared MIME database's type; its default type where it knows none.
QMimeType mimeTypeOf(const QString& extension);

}  // namespace vantor
