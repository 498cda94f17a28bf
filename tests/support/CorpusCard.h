// Real files on images of cards, and the account of what came back of them.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/formats/Corpus.h"

namespace vantor::test {

// What stands behind each file.
enum class Tail { Noise, Zeros, NextFile, MediumEnd };
const char* nameOf(Tail tail);

struct Placed {
    const CorpusFile* file = nullptr;
    std::uint64_t sector = 0;
    QByteArray sha256;  // hexadecimal
};

// One saved item as the report tells it.
struct Reported {
    QByteArray sha256;
    QByteArray soundness;
};
using ReportedItems = std::multimap<std::uint64_t, Reported>;  // by first sector
// Adds what a report in CSV lists.
void readReport(const QString& path, ReportedItems& items);

// The whole files of the corpus, and cards that hold them.
class CorpusCards {
  public:
    using Write = std::function<void(const QByteArray& sectors)>;

    // Empty where there is no corpus.
    CorpusCards();
    bool isEmpty() const { return m_files.empty(); }
    const std::vector<CorpusFile>& files() const { return m_files; }

    // All files on one card, one empty sector before the first; hands the card over piece by piece. Movies
    // of minutes are on the one with noise only.
    std::vector<Placed> writeAll(Tail tail, const Write& write) const;
    // One file behind an empty sector, and nothing behind it.
    Placed writeAtEnd(const CorpusFile& file, const Write& write) const;

  private:
    Placed writeFile(const CorpusFile& file, std::uint64_t sector, const Write& write) const;

    std::filesystem::path m_folder;
    std::vector<CorpusFile> m_files;
};

// What came back, by type, over all cards of a run.
class CorpusAccount {
  public:
    // Counts one placed file; fails the test when a file whose format marks its end was listed and did not
    // come back to the byte.
    void count(const Placed& placed, const ReportedItems& items);
    int listed() const;
    void print(const char* title) const;

  private:
    struct Line {
        int placed = 0;
        int listed = 0;      // an item begins at the file's first sector
        int exact = 0;       // saved to the byte
        int wrongWhole = 0;  // saved otherwise and said to be complete
        int wrongBroken = 0;
        int listedExceptions = 0;  // not exact, for a reason that is written down
    };
    std::map<std::string, Line> m_lines;
    std::map<std::string, std::string> m_reasons;  // by file: why it did not come back to the byte every time
};

}  // namespace vantor::test
