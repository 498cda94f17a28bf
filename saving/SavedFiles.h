// What one destination holds, from now and from earlier, told by its bytes, so that the same bytes are saved
// once.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <limits>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace vantor {

// What tells most files apart without reading them whole.
struct Likeness {
    static constexpr std::uint64_t kHeadBytes = 16 * 1024;

    std::uint64_t bytes = 0;  // of the file
    QByteArray head;          // checksum of its first bytes, kHeadBytes at most

    friend bool operator<(const Likeness& a, const Likeness& b) {
        return std::tie(a.bytes, a.head) < std::tie(b.bytes, b.head);
    }
};

struct SavedFile {
    QString path;
    QString type;
    QByteArray sha256;              // raw; empty until it is asked for
    std::uint64_t firstSector = 0;  // on the medium; kNoPlace of a file from earlier
    bool allRead = true;            // no zeros stand in it for sectors that could not be read

    static constexpr std::uint64_t kNoPlace = std::numeric_limits<std::uint64_t>::max();
};

// What is about to be saved.
struct SoughtFile {
    QString type;
    QString path;
    std::uint64_t firstSector = 0;
    bool allRead = true;
    bool byPath = false;  // only a file at that path will do, not any of the type

    // Whether the saved file is what would be saved, not only the same bytes under another type or name.
    bool isServedBy(const SavedFile& file) const;
};

// Any one thread.
class SavedFiles {
  public:
    void add(const Likeness& likeness, SavedFile file);
    // Takes note of the files of a type that lie in and below its folder already, or of any that lie in a
    // folder of the card's; once a folder.
    void lookInto(const QString& folder, const QString& type);
    void lookIntoCardFolder(const QString& folder);
    bool hasLike(const Likeness& likeness);

    // The file of so many bytes that was read whole from that place of the medium, or the one alike that has
    // that checksum; one that serves as the sought one where there is a choice. Bytes that could not all be
    // read are only those of a file from the same place or under the same name. Null when there is none, or
    // when it is no longer there as it was saved. Valid until the next add().
    const SavedFile* fromPlace(std::uint64_t bytes, const SoughtFile& sought) const;
    const SavedFile* withChecksum(const Likeness& likeness, const QByteArray& sha256,
                                  const SoughtFile& sought);

    // Of the files with the same bytes as that one the one that serves as the sought one; null when there is
    // none.
    const SavedFile* servingCopyOf(const SavedFile& same, const Likeness& likeness, const SoughtFile& sought);

  private:
    using Files = std::multimap<Likeness, SavedFile>;

    void lookAtFilesOf(std::uint64_t bytes);

    Files m_files;
    // Of files that were read whole, by their places: a card may hold millions of one size.
    std::unordered_multimap<std::uint64_t, Files::const_iterator> m_byPlace;
    std::set<QString> m_folders;  // that were looked into
    // Files from earlier by their size; nothing of them is read before another of that size comes.
    std::multimap<std::uint64_t, SavedFile> m_fromEarlier;
};

}  // namespace vantor
