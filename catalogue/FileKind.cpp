// Kinds come from the shared MIME database, with corrections of our own.
#include "catalogue/FileKind.h"

#include <QHash>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QStringList>

namespace vantor {

namespace {

// Types whose names the MIME database does not know or files under something else.
FileKind kindByName(const QString& extension) {
    static const QHash<QString, FileKind> kinds = {
        {QStringLiteral("mts"), FileKind::Video},     {QStringLiteral("m2ts"), FileKind::Video},
        {QStringLiteral("ts"), FileKind::Video},      {QStringLiteral("3gp"), FileKind::Video},
        {QStringLiteral("mod"), FileKind::Video},     {QStringLiteral("vob"), FileKind::Video},
        {QStringLiteral("rm"), FileKind::Video},      {QStringLiteral("swf"), FileKind::Video},
        {QStringLiteral("ps"), FileKind::Document},   {QStringLiteral("eps"), FileKind::Document},
        {QStringLiteral("cr3"), FileKind::Picture},   {QStringLiteral("crw"), FileKind::Picture},
        {QStringLiteral("raf"), FileKind::Picture},   {QStringLiteral("x3f"), FileKind::Picture},
        {QStringLiteral("psd"), FileKind::Picture},   {QStringLiteral("heic"), FileKind::Picture},
        {QStringLiteral("caf"), FileKind::Sound},     {QStringLiteral("ape"), FileKind::Sound},
        {QStringLiteral("jar"), FileKind::Archive},   {QStringLiteral("cab"), FileKind::Archive},
        {QStringLiteral("dmg"), FileKind::Archive},   {QStringLiteral("iso"), FileKind::Archive},
        {QStringLiteral("pst"), FileKind::Document},  {QStringLiteral("chm"), FileKind::Document},
        {QStringLiteral("djvu"), FileKind::Document}, {QStringLiteral("mobi"), FileKind::Document},
    };
    return kinds.value(extension.toLower(), FileKind::Other);
}

bool isArchive(const QMimeType& mime) {
    static const QStringList archives = {QStringLiteral("application/zip"),
                                         QStringLiteral("application/gzip"),
                                         QStringLiteral("application/x-tar"),
                                         QStringLiteral("application/x-7z-compressed"),
                                         QStringLiteral("application/vnd.rar"),
                                         QStringLiteral("application/x-rar"),
                                         QStringLiteral("application/x-bzip"),
                                         QStringLiteral("application/x-bzip2"),
                                         QStringLiteral("application/x-xz"),
                                         QStringLiteral("application/x-arj"),
                                         QStringLiteral("application/x-lha"),
                                         QStringLiteral("application/x-lzma"),
                                         QStringLiteral("application/zstd"),
                                         QStringLiteral("application/x-compress"),
                                         QStringLiteral("application/x-stuffit"),
                                         QStringLiteral("application/x-cpio"),
                                         QStringLiteral("application/vnd.ms-cab-compressed"),
                                         QStringLiteral("application/x-archive")};
    return archives.contains(mime.name()) || mime.name().endsWith(QLatin1String("-compressed-tar"));
}

bool isDocument(const QMimeType& mime) {
    const QString name = mime.name();
    return name.startsWith(QLatin1String("text/")) || mime.inherits(QStringLiteral("text/plain")) ||
           name.contains(QLatin1String("document")) || name.contains(QLatin1String("msword")) ||
           name.contains(QLatin1String("ms-excel")) || name.contains(QLatin1String("ms-powerpoint")) ||
           name.contains(QLatin1String("pdf")) || name.contains(QLatin1String("rtf")) ||
           name.contains(QLatin1String("epub")) || name.contains(QLatin1String("postscript"));
}

}  // namespace

QMimeType mimeTypeOf(const QString& extension) {
    static const QMimeDatabase database;
    return database.mimeTypeForFile(QStringLiteral("x.") + extension.toLower(),
                                    QMimeDatabase::MatchExtension);
}

bool isTextExtension(const QString& extension) {
    return mimeTypeOf(extension).inherits(QStringLiteral("text/plain"));
}

FileKind kindOfExtension(const QString& extension) {
    const FileKind byName = kindByName(extension);
    if (byName != FileKind::Other) {
        return byName;
    }
    const QMimeType mime = mimeTypeOf(extension);
    const QString name = mime.name();
    if (name.startsWith(QLatin1String("image/"))) {
        return FileKind::Picture;
    }
    if (name.startsWith(QLatin1String("video/")) || name.endsWith(QLatin1String("matroska"))) {
        return FileKind::Video;
    }
    if (name.startsWith(QLatin1String("audio/"))) {
        return FileKind::Sound;
    }
    if (isArchive(mime)) {
        return FileKind::Archive;
    }
    return isDocument(mime) ? FileKind::Document : FileKind::Other;
}

FileKind kindOfType(const QString& extension, const QString& description) {
    const FileKind kind = kindOfExtension(extension);
    if (kind != FileKind::Other) {
        return kind;
    }
    static const std::pair<QRegularExpression, FileKind> words[] = {
        {QRegularExpression(QStringLiteral("sound|audio|music|song|voice|midi|instrument|tracker")),
         FileKind::Sound},
        {QRegularExpression(QStringLiteral("movie|video|film|animation")), FileKind::Video},
        {QRegularExpression(QStringLiteral("picture|image|photo|bitmap|icon|drawing")), FileKind::Picture},
        {QRegularExpression(QStringLiteral("archive|compressed|package|backup")), FileKind::Archive},
        {QRegularExpression(QStringLiteral("document|text|spreadsheet|presentation|book|mail|note|database")),
         FileKind::Document},
    };
    const QString lower = description.toLower();
    for (const auto& [pattern, byWords] : words) {
        if (lower.contains(pattern)) {
            return byWords;
        }
    }
    return FileKind::Other;
}

}  // namespace vantor
