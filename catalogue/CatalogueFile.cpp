// The catalogue file format: value lines with a colon, six a record, every value cut at its first dot.
#include "catalogue/CatalogueFile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include "catalogue/NumberText.h"

namespace vantor {

namespace {

constexpr QStringView kHeaderKey = u"Header :";

// The first byte of the header as decimal text, taken before any dot cuts the value.
QString firstByteText(QStringView trimmedHeader) {
    return QString::number(HexText::hex2int(trimmedHeader.left(2)));
}

QString cutAtDot(const QString& trimmed) {
    const qsizetype dot = trimmed.indexOf(u'.');
    return dot < 0 ? trimmed : trimmed.mid(dot + 1).toUpper();
}

}  // namespace

bool parseCatalogueLine(QStringView line, CatalogueLine& out) {
    const qsizetype colon = line.indexOf(u':');
    if (colon < 0) {
        return false;
    }
    const QStringView key = line.left(colon + 1);
    out.key = key.toString();
    out.isHeader = key == kHeaderKey;
    out.rawValue = line.sliced(colon + 1).trimmed().toString();
    out.value = cutAtDot(out.rawValue);
    return true;
}

bool appendCatalogueText(QByteArrayView utf8, QStringList& array) {
    if (!utf8.isValidUtf8()) {
        return false;
    }
    QString pendingFirstByte = QStringLiteral("");
    int valueLines = 0;
    CatalogueLine line;
    // Line by line, so that a file of any size costs no second copy of itself.
    for (qsizetype begin = 0; begin <= utf8.size();) {
        const qsizetype feed = utf8.indexOf('\n', begin);
        const qsizetype end = feed < 0 ? utf8.size() : feed;
        // A byte order mark is a character like any other, so that only an exact key is a header line's.
        QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        const QString text = decode(utf8.sliced(begin, end - begin));
        begin = end + 1;
        if (!parseCatalogueLine(text, line)) {
            continue;
        }
        if (line.isHeader) {
            pendingFirstByte = firstByteText(line.rawValue);
        }
        array.append(line.value);
        if (++valueLines == kValueLinesPerRecord) {
            array.append(pendingFirstByte);
            pendingFirstByte = QStringLiteral("");
            valueLines = 0;
        }
    }
    return true;
}

bool appendCatalogueFile(const QString& path, QStringList& array) {
    // A pipe or device of that name would block the start for ever.
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    return file.error() == QFileDevice::NoError && appendCatalogueText(bytes, array);
}

}  // namespace vantor
