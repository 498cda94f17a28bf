// Opening a file that the user names and that is to be read as a whole.
#pragma once

#include <QFile>
#include <QString>

namespace vantor {

// Opens `file` for reading without waiting for anything, and only where its name is that of a plain file: a
// pipe would be waited for, and a device has no end. No more than file.size() bytes are to be read: what the
// kernel tells of itself in plain files has no size, and some of that is waited for. False with the reason,
// a few words for the user.
bool openPlainFile(QFile& file, QString* why = nullptr);

}  // namespace vantor
