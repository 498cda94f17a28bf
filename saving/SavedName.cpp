// Names that lead nowhere else, and dates in the time of the place where the program runs.
#include "saving/SavedName.h"

#include <QDateTime>
#include <QStringList>

#include "saving/WholeFile.h"

namespace vantor {

namespace {

// UTF-16 units; 240 bytes of UTF-8 at most, which leaves room for a number within the usual 255.
constexpr qsizetype kLongestComponent = 80;
// A date before the name takes some of that room.
constexpr qsizetype kLongestDatedName = 60;

QDateTime localTimeOf(const CivilTime& date) {
    const QDateTime time(QDate(date.year, date.month, date.day), QTime(date.hour, date.minute, date.second),
                         date.utc ? Qt::UTC : Qt::LocalTime);
    return time.toLocalTime();
}

// A longer way is nobody's folder, and no longer opens by its path.
constexpr qsizetype kLongestCardFolder = 1024;

// Names that stand for devices on some systems, with any extension.
bool isReserved(const QString& name) {
    static const QStringList kDevices{"CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4",
                                      "COM5", "COM6", "COM7", "COM8", "COM9", "LPT1", "LPT2", "LPT3",
                                      "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};
    return kDevices.contains(name.section(u'.', 0, 0).trimmed(), Qt::CaseInsensitive);
}

// Marks that are not seen and change how the text around them reads, and halves of characters.
bool isUnseen(QChar c) {
    // These two several languages are written with, and pictures of more than one.
    if (c == QChar(0x200C) || c == QChar(0x200D)) {
        return false;
    }
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
           c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

QString withoutUnsafe(const QString& text) {
    static const QString kForbidden = QStringLiteral("/\\:*?\"<>|");
    QString safe;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            safe += c;
            safe += text.at(++i);
        } else {
            safe += c.isSurrogate() || isUnseen(c) || kForbidden.contains(c) ? QChar(u'_') : c;
        }
    }
    return safe;
}

// A date before a name, in the time of the place where the program runs.
std::optional<QDateTime> dateOf(const std::optional<CivilTime>& taken, const CardFile* original) {
    if (taken && secondsOf(*taken)) {
        return localTimeOf(*taken);
    }
    return original != nullptr && original->modified
               ? std::optional(QDateTime::fromSecsSinceEpoch(*original->modified))
               : std::nullopt;
}

}  // namespace

QString safePathComponent(const QString& text) {
    static const QString kForbidden = QStringLiteral("/\\:*?\"<>|");
    QString component;
    for (const QChar c : text.left(kLongestComponent)) {
        component += c.unicode() < 0x20 || c.unicode() == 0x7F || kForbidden.contains(c) ? QChar(u'_') : c;
    }
    // Some file systems drop blanks and dots at the end, and then two names meet.
    while (component.endsWith(u'.') || component.endsWith(u' ')) {
        component.chop(1);
    }
    return component.isEmpty() ? QStringLiteral("_") : component;
}

std::optional<std::int64_t> secondsOf(const CivilTime& date) {
    const QDateTime time = localTimeOf(date);
    return time.isValid() ? std::optional<std::int64_t>(time.toSecsSinceEpoch()) : std::nullopt;
}

QString safeCardName(const QString& name) {
    QString safe = withoutUnsafe(name);
    while (safe.endsWith(u'.') || safe.endsWith(u' ')) {
        safe.chop(1);
    }
    if (safe.startsWith(u'.') || isReserved(safe)) {
        safe.prepend(u'_');
    }
    safe = cutToComponent(safe);
    return safe.isEmpty() ? QStringLiteral("_") : safe;
}

std::optional<QString> safeCardFolder(const QString& folder) {
    if (folder.size() > kLongestCardFolder) {
        return std::nullopt;
    }
    QStringList parts;
    for (const QString& part : folder.split(u'/', Qt::SkipEmptyParts)) {
        parts.append(safeCardName(part));
    }
    const QString safe = parts.join(u'/');
    return safe.toUtf8().size() <= kLongestCardFolder ? std::optional(safe) : std::nullopt;
}

SavedName savedNameOf(const QString& type, const QString& name, const SavePolicy& policy,
                      const std::optional<CivilTime>& taken, const CardFile* original) {
    SavedName saved{safePathComponent(type), safePathComponent(name)};
    if (original != nullptr && policy.names == SaveNames::Original) {
        saved.file = safeCardName(original->name);
    }
    if (original != nullptr && policy.folders == SaveFolders::Card) {
        const auto folder = safeCardFolder(original->folder);
        // In the root a name without an extension may be that of a type's folder.
        if (folder && (!folder->isEmpty() || saved.file.contains(u'.'))) {
            saved.folder = *folder;
            saved.asOnCard = true;
        }
    }
    const auto date = policy.folders == SaveFolders::Date ? dateOf(taken, original) : std::nullopt;
    if (date) {
        saved.folder += date->toString(QStringLiteral("'/'yyyy-MM-dd"));
        saved.file = date->toString(QStringLiteral("yyyy-MM-dd HH.mm.ss ")) +
                     safePathComponent(saved.file.right(kLongestDatedName));
    }
    return saved;
}

}  // namespace vantor
