// The desktop's icon theme first.
#include "window/browser/FileTypeIcons.h"

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

QString ownIconName(FileKind kind) {
    switch (kind) {
        case FileKind::Document:
            return QStringLiteral("type-document");
        case FileKind::Archive:
            return QStringLiteral("type-archive");
        case FileKind::Sound:
            return QStringLiteral("type-sound");
        case FileKind::Picture:
            return QStringLiteral("type-picture");
        case FileKind::Video:
            return QStringLiteral("type-video");
        case FileKind::Other:
            break;
    }
    return QStringLiteral("type-other");
}

}  // namespace

FileTypeIcons::FileTypeIcons() : m_general(ownIcon(ownIconName(FileKind::Other))) {}

void FileTypeIcons::prepare(const QString& extension, FileKind kind) {
    if (m_byExtension.contains(extension)) {
        return;
    }
    const QMimeType mime = mimeTypeOf(extension);
    QIcon icon;
    if (!mime.isDefault()) {
        icon = QIcon::fromTheme(mime.iconName());
    }
    if (icon.isNull() || icon.availableSizes().isEmpty()) {
        icon = ownIcon(ownIconName(kind));
    }
    m_byExtension.insert(extension, icon);
}

QIcon FileTypeIcons::icon(const QString& extension) const {
    return m_byExtension.value(extension, m_general);
}

}  // namespace vantor
