// Names that lead nowhere else, and dates in the time of the place where the program runs.
#include "saving/SavedName.h"

#include <QDateTime>

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

SavedName savedNameOf(const QString& type, const QString& name, const std::optional<CivilTime>& byDate) {
    SavedName saved{safePathComponent(type), safePathComponent(name)};
    if (!byDate || !secondsOf(*byDate)) {
        return saved;
    }
    const QDateTime time = localTimeOf(*byDate);
    saved.folder += time.toString(QStringLiteral("'/'yyyy-MM-dd"));
    saved.file = time.toString(QStringLiteral("yyyy-MM-dd HH.mm.ss ")) +
                 safePathComponent(saved.file.right(kLongestDatedName));
    return saved;
}

}  // namespace vantor
