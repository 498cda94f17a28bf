// A file system that lacks what others have: in this program's calls, while an object of the class lives.
#pragma once

#include <functional>

namespace vantor::test {

class PoorFileSystem {
  public:
    struct Has {
        bool unnamedFiles = false;          // O_TMPFILE
        bool secondNames = false;           // linkat
        bool namesThatReplaceNone = false;  // RENAME_NOREPLACE
        bool longFiles = true;              // false: it tells that it is FAT
    };
    explicit PoorFileSystem(Has has);
    ~PoorFileSystem();
    PoorFileSystem(const PoorFileSystem&) = delete;
    PoorFileSystem& operator=(const PoorFileSystem&) = delete;
};

// How often something was flushed to its medium by this program so far.
int flushesSoFar();

// Does something before that many further flushes, once.
void beforeFlush(int further, std::function<void()> act);

}  // namespace vantor::test
