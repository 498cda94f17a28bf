// Paths as they came from the command line, whatever their bytes are.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vantor {

// The toolkit's strings hold text, and a path need not be text. What there is of one that is none is opened
// and named by its descriptor, as "/proc/self/fd/7" or "/proc/self/fd/7/card.img"; the descriptor stays open.
// Main thread.
QString pathFromBytes(const QByteArray& path);
// The same for the arguments of a program, without its name: "--option=path" keeps its beginning.
QStringList argumentsFromBytes(int argc, char** argv);

// Makes the folder of a path from above with all that lead to it, and gives it the path by which it is there.
bool makeFolder(QString& path);

// The text with paths as people know them in the place of those by descriptor.
QString withShownPaths(QString text);

}  // namespace vantor
