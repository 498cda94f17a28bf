// Checks and removals of files, by the names the rest of the program knows them under.
#pragma once

#include <QString>

namespace vantor {

// One shared object without state; any thread.
class FileManager {
  public:
    static const FileManager& defaultManager();

    // True for a file whose folder lets it be removed.
    bool isDeletableFileAtPath(const QString& path) const;
    // False when the file could not be removed.
    bool removeItemAtPath(const QString& path) const;
};

}  // namespace vantor
