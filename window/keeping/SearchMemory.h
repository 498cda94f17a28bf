// What is remembered of the search of the moment, and the file in which the last one was.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "media/SearchRange.h"
#include "scan/KeptThumbnails.h"
#include "scan/SearchKeeper.h"
#include "scan/SearchRecord.h"

namespace vantor {

// The file holds one search, the last that the user wanted to be remembered. Without a folder nothing
// outlives the program. Interface thread, but for what says otherwise.
class SearchMemory {
  public:
    explicit SearchMemory(QString folder) : m_folder(std::move(folder)) {}

    const QString& folder() const { return m_folder; }
    bool hasFolder() const { return !m_folder.isEmpty(); }
    // The search in the file; null where there is none that can be gone on with. It is read when first asked
    // for, and again after letGo().
    const SearchRecord* last();
    void letGo() { m_last.reset(); }
    // Deletes the file.
    void forgetLast();

    // A search begins, on with the one that the record knows. `found` counts its items, on any thread.
    std::shared_ptr<SearchKeeper> begin(SearchRecord record, bool remember,
                                        std::function<std::uint64_t()> found);
    const std::shared_ptr<SearchKeeper>& keeper() const { return m_keeper; }
    bool remembers() const { return m_remembers; }

    // What the file is to say from the next writing on.
    void setEnded(bool ended);
    void setMarks(std::vector<std::uint64_t> saved, std::vector<std::uint64_t> ticked,
                  std::vector<std::uint64_t> selected);

    // Of the search of the moment; null where it is not remembered. Any thread.
    std::shared_ptr<KeptThumbnails> thumbnails() const;

  private:
    SearchNotes notes() const;
    QString path() const;
    QString thumbnailPath() const;

    const QString m_folder;
    std::optional<std::optional<SearchRecord>> m_last;
    std::shared_ptr<SearchKeeper> m_keeper;
    bool m_remembers = false;
    std::function<std::uint64_t()> m_found;
    mutable std::mutex m_mutex;
    SearchNotes m_notes;
    std::shared_ptr<KeptThumbnails> m_thumbnails;
};

// Where the user's programs keep what they were doing; a folder of this program's own.
QString stateFolder();

// "“CANON_DC”, 64 GB: 34 % read, 412 photos found."
QString wordsForSearch(const SearchRecord& record);

// What it searches of the medium.
SectorRange rangeOfSearch(const SearchRecord& record);
// Whether nothing of that is left to be read.
bool isReadToItsEnd(const SearchRecord& record);

}  // namespace vantor
