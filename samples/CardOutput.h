// Writing the card and its list to files, whole or not at all.
#pragma once

#include <QByteArray>
#include <QString>

namespace vantor::samples {

enum class Writing {
    Plain,
    Sparse,  // long runs of zeros are skipped, so that they take no room on the disk
};

// Writes a file; on failure yields what went wrong and leaves no partial file, on success an empty text.
QString writeWhole(const QString& path, const QByteArray& bytes, Writing writing);

}  // namespace vantor::samples
