// The first lines of a text file as a picture of a page.
#pragma once

#include <QImage>
#include <QString>

namespace vantor {

// No larger than `largest`; null when the file does not begin with text. Any thread.
QImage textPicture(const QString& file, QSize largest);

// What is drawn: the lines that fit, letters of the common alphabets only, a point for any other; empty when
// the bytes are no text.
QStringList textLines(const QByteArray& beginning, int mostLines, int mostLetters);

}  // namespace vantor
