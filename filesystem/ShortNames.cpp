#include "filesystem/ShortNames.h"

#include <algorithm>

namespace vantor {

namespace {

constexpr qsizetype kBaseLength = 8;
constexpr qsizetype kExtensionLength = 3;
// Where several names begin alike, a number of four digits follows these.
constexpr qsizetype kKeptOfMany = 2;

bool isForeign(QChar c) {
    return c.unicode() > 0x7F;
}

// What short names keep of a text: no blanks and dots, large letters, '_' for what they cannot hold.
QString keptOf(const QString& text) {
    QString kept;
    for (const QChar c : text) {
        if (c != u' ' && c != u'.') {
            kept += QStringLiteral("+,;=[]").contains(c) ? QChar(u'_') : c.toUpper();
        }
    }
    return kept;
}

QString trimmedText(std::span<const std::uint8_t> bytes) {
    QString text;
    for (const std::uint8_t byte : bytes) {
        text += QChar(byte);
    }
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    return text;
}

bool beginsAlike(const QString& part, const QString& kept, qsizetype length, bool toItsEnd) {
    for (qsizetype i = 0; i < length; ++i) {
        if (i < kept.size() && isForeign(kept[i])) {
            return true;
        }
        if (i >= kept.size() || i >= part.size() || kept[i] != part[i]) {
            return false;
        }
    }
    return !toItsEnd || part.size() == length;
}

}  // namespace

bool isShortNameOf(std::span<const std::uint8_t, 11> shortName, const QString& longName) {
    QString name = longName;
    while (name.startsWith(u'.') || name.startsWith(u' ')) {
        name.remove(0, 1);
    }
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString keptBase = keptOf(dot < 0 ? name : name.left(dot));
    const QString keptExtension = dot < 0 ? QString() : keptOf(name.mid(dot + 1));
    const QString base = trimmedText(shortName.first<8>());
    const QString extension = trimmedText(shortName.last<3>());
    const qsizetype tail = base.indexOf(u'~', 1);
    // What had to be cut or written otherwise gets a number.
    if (tail < 0 && std::any_of(keptBase.begin(), keptBase.end(), isForeign) &&
        (keptBase.size() > kBaseLength || std::none_of(base.begin(), base.end(), isForeign))) {
        return false;
    }
    const qsizetype told = std::min(keptBase.size(), tail < 0 ? kBaseLength : std::min(tail, kKeptOfMany));
    return beginsAlike(base, keptBase, told, tail < 0) &&
           beginsAlike(extension, keptExtension, std::min(keptExtension.size(), kExtensionLength), true);
}

}  // namespace vantor
