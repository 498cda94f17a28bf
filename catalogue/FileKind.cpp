// Kinds come from the shared MIME database, with corrections of our own.
#include "catalogue/FileKind.h"

#include <QHash>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QStringList>

namespace vantor {

namespace {

// Types whose names the MIME database does not know or files under something else, one list a kind.
FileKind kindByName(const QString& extension) {
    static const QHash<QString, FileKind> kinds = [] {
        QHash<QString, FileKind> all;
        const auto add = [&all](FileKind kind, const char* extensions) {
            for (const QByteArray& each : QByteArray(extensions).split(' ')) {
                all.insert(QString::fromLatin1(each), kind);
            }
        };
        add(FileKind::Picture,
            "apng ari aseprite avci bpg cin cr3 crw dcx dpx fits flif fpx gpr hdr heic heif "
            "iiq jb2 jls jpx jxr lfp miff ntf pam pdn pfm psb psd psp pvr qoi raf viff x3f");
        add(FileKind::Video,
            "3gp 4xm amv anm cine cpk dav dvb dxa gxf h264 h265 hik ivf lxf m2ts m2v m4e mlv "
            "mts mve mxf nut pmp psmf r3d rm roq swf thp ts vob wtv y4m");
        add(FileKind::Sound,
            "8svx ape bnk brstm caf ds2 dss fsb hca m4p mlp mmf mod msv nsf ofr okt oma pvf qcp "
            "rf64 rmi shn spc sph tak vgm vqf w64");
        add(FileKind::Archive,
            "ab ace aff alz apk arc bam cab chd crx cso daa deb dmg e01 egg hdd hqx imd img "
            "ipa iso jar kgb lrz lz lz4 lzo mar mdf mds par par2 qcow2 rpm rvz rz shar simg "
            "sitx sparseimage sqx sz szdd uu vdi vhd vhdx vmdk warc wbfs wia wim xar zoo "
            "zpaq");
        add(FileKind::Document,
            "123 accdb ai amf asice aspx asx bas bat bib ccd chm csproj db dbx djvu drawio "
            "dbf der dvi edb enex enw eps fcpxml fdx fm fp7 frm gpkg graphml hlp hwp idml idx indd "
            "inf ini jmx jsp kdb kdbx kdenlive key kfx kra lit lrf lwp mbx mdb mht mif mny "
            "mobi mpd msf msg musicxml mzml nk2 nmea numbers ofx one onetoc2 osm ost p7m "
            "pages pbxproj pdb pem pgp plist pls ppd ppk ps pst qgs qif qrc qxd ris sam sbml "
            "sln snb sqlite sxc sxd sxi sxm sxw tcx tnef torrent ttml vbp vnt vsd vsdx wab "
            "geojson gv hl7 plt prj vhdr wpt wk1 wk3 wk4 wpd wpl wri x3d xd xmp");
        return all;
    }();
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
