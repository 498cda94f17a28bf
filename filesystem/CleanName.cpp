#include "filesystem/CleanName.h"

namespace vantor {

namespace {

bool mayStand(char32_t character) {
    switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Other_NotAssigned:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            // Needed to write several languages and to join pictures into one.
            return character == 0x200C || character == 0x200D;
        default:
            return character != U'/' && character != U'\\';
    }
}

}  // namespace

QString cleanName(const QString& name) {
    QString clean;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar c = name[i];
        if (c.isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            const char32_t whole = QChar::surrogateToUcs4(c, name[i + 1]);
            clean += mayStand(whole) ? name.mid(i, 2) : QStringLiteral("_");
            ++i;
        } else {
            clean += mayStand(c.unicode()) ? c : QChar(u'_');
        }
    }
    if (clean.isEmpty() || clean == u"." || clean == u"..") {
        clean = QString(std::max<qsizetype>(clean.size(), 1), u'_');
    }
    return clean;
}

bool prependFolder(const QString& name, QString& path) {
    if (path.size() + 1 + name.size() > kLongestFolder) {
        return false;
    }
    path = path.isEmpty() ? name : name + u'/' + path;
    return true;
}

}  // namespace vantor
