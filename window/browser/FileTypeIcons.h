// Icons by file extension: the desktop's, or one of the program's own by kind.
#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

#include "catalogue/FileKind.h"

namespace vantor {

class FileTypeIcons {
  public:
    FileTypeIcons();

    // Looks the icon up, of that kind where the desktop has none for the type; interface thread only.
    void prepare(const QString& extension, FileKind kind);
    // Any thread, while nobody prepares; an extension that was not prepared has the general icon.
    QIcon icon(const QString& extension) const;

  private:
    QIcon m_general;
    QHash<QString, QIcon> m_byExtension;
};

}  // namespace vantor
