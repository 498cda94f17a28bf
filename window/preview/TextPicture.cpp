// Carved text is drawn letter by letter from alphabets that need no shaping, so that nothing in it can be
// more than a row of glyphs.
#include "window/preview/TextPicture.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QStringDecoder>
#include <algorithm>

namespace vantor {

namespace {

constexpr qint64 kBytesRead = 8192;
constexpr int kLetterPixels = 8;
constexpr int kMargin = 8;
constexpr int kTabLetters = 4;
// The last letter of the Cyrillic block; before it lie Latin and Greek.
constexpr char16_t kLastLetter = 0x04ff;

bool isDrawn(QChar letter) {
    const char16_t code = letter.unicode();
    const bool control = code < 0x20 || (code >= 0x7f && code < 0xa0) || code == 0xad;
    const bool combining = code >= 0x0300 && code < 0x0370;
    return !control && !combining && code <= kLastLetter;
}

QString decoded(const QByteArray& bytes) {
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    QStringDecoder decoder(encoding);
    QString text = decoder.decode(bytes);
    if (!decoder.hasError()) {
        return text;
    }
    // Older texts: every byte is a letter.
    return QString::fromLatin1(bytes);
}

// Texts hold hardly anything but letters and white space; a preview's last sector may end in zeros.
bool isText(const QString& text) {
    qsizetype strange = 0;
    for (const QChar letter : text) {
        const bool white = letter == u'\n' || letter == u'\r' || letter == u'\t' || letter == u'\f';
        strange += !white && (letter.category() == QChar::Other_Control || letter.unicode() == 0xfffd);
    }
    return !text.isEmpty() && strange * 50 <= text.size();
}

}  // namespace

QStringList textLines(const QByteArray& beginning, int mostLines, int mostLetters) {
    qsizetype end = beginning.size();
    // UTF-16 has zeros of its own, at most one at the end.
    while (end > 1 && beginning[end - 1] == '\0' && beginning[end - 2] == '\0') {
        --end;
    }
    QByteArray bytes = beginning.left(end);
    if (bytes.endsWith('\0') && !bytes.startsWith("\xff\xfe")) {
        bytes.chop(1);
    }
    QString text = decoded(bytes);
    if (!isText(text)) {
        return {};
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        if (lines.size() == mostLines) {
            break;
        }
        QString shown = line;
        shown.replace(u'\t', QString(kTabLetters, u' '));
        shown.truncate(mostLetters);
        std::replace_if(
            shown.begin(), shown.end(), [](QChar letter) { return !isDrawn(letter); }, QChar(0xb7));
        lines.append(shown);
    }
    return lines;
}

QImage textPicture(const QString& file, QSize largest) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly)) {
        return {};
    }
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(kLetterPixels);
    // A page stands upright.
    const QSize page = QSize(3, 4).scaled(largest, Qt::KeepAspectRatio);
    const QFontMetrics metrics(font);
    const int mostLines = (page.height() - 2 * kMargin) / std::max(1, metrics.lineSpacing());
    const int mostLetters = (page.width() - 2 * kMargin) / std::max(1, metrics.horizontalAdvance(u'x')) + 1;
    const QStringList lines = textLines(opened.read(kBytesRead), mostLines, mostLetters);
    if (lines.isEmpty()) {
        return {};
    }
    QImage picture(page, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.setPen(QColor(0x1b, 0x24, 0x30));
    painter.setClipRect(picture.rect().adjusted(kMargin, kMargin, -kMargin, -kMargin));
    int baseline = kMargin + metrics.ascent();
    for (const QString& line : lines) {
        painter.drawText(kMargin, baseline, line);
        baseline += metrics.lineSpacing();
    }
    return picture;
}

}  // namespace vantor
