// How the parts of an image are named and found.
#include "media/ImageParts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <optional>

#include "media/PlainFile.h"

namespace vantor {

namespace {

constexpr qsizetype kSuffixLength = 4;
constexpr QByteArrayView kEvidenceMark("EVF\x09\x0d\x0a\xff\x00", 8);
// A segment ends with the head of its last section, which begins with that section's kind.
constexpr qint64 kSectionHeadBytes = 76;
constexpr QByteArrayView kAnotherFollows("next\0", 5);

QString numberedSuffix(int number, bool) {
    return QStringLiteral(".%1").arg(number, 3, 10, QChar(u'0'));
}

// E01 to E99, then EAA to ZZZ.
QString evidenceSuffix(int number, bool small) {
    constexpr int kWithDigits = 99, kLetters = 26;
    QString suffix = QStringLiteral(".E%1").arg(number, 2, 10, QChar(u'0'));
    if (number > kWithDigits) {
        const int rest = number - kWithDigits - 1;
        suffix = QStringLiteral(".");
        suffix += QChar(u'E' + rest / (kLetters * kLetters));
        suffix += QChar(u'A' + rest / kLetters % kLetters);
        suffix += QChar(u'A' + rest % kLetters);
    }
    return small ? suffix.toLower() : suffix;
}

// The row of parts that a path is one of, by its name.
struct Row {
    QString stem;
    QString (*suffix)(int number, bool small);
    int last = 0;
    bool small = false;  // letters

    QString path(int number) const { return stem + suffix(number, small); }

    QStringList partsThere() const {
        QStringList parts;
        for (int number = 1; number <= last && QFileInfo(path(number)).isFile(); ++number) {
            parts << path(number);
        }
        return parts;
    }
};

std::optional<Row> numberedRow(const QString& path) {
    constexpr int kLast = 999;
    if (path.size() <= kSuffixLength || path.at(path.size() - kSuffixLength) != u'.') {
        return std::nullopt;
    }
    const auto digits = QStringView(path).last(kSuffixLength - 1);
    const bool numbered =
        std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return numbered ? std::optional(Row{path.chopped(kSuffixLength), numberedSuffix, kLast, false})
                    : std::nullopt;
}

// By its bytes as well: many an image is named .img or .iso, which segments may be too.
std::optional<Row> evidenceRow(const QString& path) {
    constexpr int kLast = 99 + 22 * 26 * 26;
    if (path.size() <= kSuffixLength || !isEvidenceSegment(path)) {
        return std::nullopt;
    }
    const bool small = path.at(path.size() - kSuffixLength + 1).isLower();
    Row row{path.chopped(kSuffixLength), evidenceSuffix, kLast, small};
    for (int number = 1; number <= row.last; ++number) {
        if (row.path(number) == path) {
            return row;
        }
    }
    return std::nullopt;
}

bool saysThatAnotherFollows(const QString& path) {
    QFile file(path);
    return openPlainFile(file) && file.size() > kSectionHeadBytes &&
           file.seek(file.size() - kSectionHeadBytes) && file.read(kAnotherFollows.size()) == kAnotherFollows;
}

QString missingOf(const Row& row, const QString& path) {
    const QStringList parts = row.partsThere();
    const bool more = !parts.contains(path) || saysThatAnotherFollows(parts.constLast());
    return more ? row.path(static_cast<int>(parts.size()) + 1) : QString();
}

// Two numbered neighbours make a row; a file that merely ends in a number is whole.
QString missingNumbered(const Row& row) {
    int last = 0, parts = 0;
    for (const QString& name : QFileInfo(row.stem).dir().entryList(QDir::Files)) {
        const auto other = numberedRow(name);
        if (other && other->stem == QFileInfo(row.stem).fileName()) {
            const int number = QStringView(name).last(kSuffixLength - 1).toInt();
            last = std::max(last, number);
            parts += number > 0 ? 1 : 0;
        }
    }
    for (int number = 1; parts > 1 && number < last; ++number) {
        if (!QFileInfo(row.path(number)).isFile()) {
            return row.path(number);
        }
    }
    return {};
}

}  // namespace

bool isEvidenceSegment(const QString& path) {
    QFile file(path);
    return openPlainFile(file) && isEvidenceSegment(file.handle());
}

bool isEvidenceSegment(int descriptor) {
    std::array<char, kEvidenceMark.size()> begin{};
    struct stat info {};
    // What has no size may have to be waited for.
    return ::fstat(descriptor, &info) == 0 && info.st_size >= kEvidenceMark.size() &&
           ::pread(descriptor, begin.data(), begin.size(), 0) == kEvidenceMark.size() &&
           QByteArrayView(begin) == kEvidenceMark;
}

QStringList imageParts(const QString& path) {
    auto row = numberedRow(path);
    if (!row) {
        row = evidenceRow(path);
    }
    const QStringList parts = row ? row->partsThere() : QStringList();
    return parts.contains(path) ? parts : QStringList{path};
}

QString missingPart(const QString& path) {
    if (const auto row = numberedRow(path)) {
        return missingNumbered(*row);
    }
    const auto row = evidenceRow(path);
    return row ? missingOf(*row, path) : QString();
}

}  // namespace vantor
