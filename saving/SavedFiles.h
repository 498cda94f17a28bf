// What one destination has received so far, told by its bytes, so that the same bytes are saved once.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <map>
#include <tuple>
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
    std::uint64_t firstSector = 0;  // on the medium
};

// Any one thread.
class SavedFiles {
  public:
    void add(const Likeness& likeness, SavedFile file) { m_files.emplace(likeness, std::move(file)); }
    bool hasLike(const Likeness& likeness) const { return m_files.contains(likeness); }

    // The file of so many bytes that was read from that place of the medium, or the one alike that has that
    // checksum; one of the given type where there is a choice. Null when there is none, or when it is no
    // longer there as it was saved. Valid until the next add().
    const SavedFile* fromPlace(std::uint64_t bytes, std::uint64_t firstSector, const QString& type) const;
    const SavedFile* withChecksum(const Likeness& likeness, const QByteArray& sha256, const QString& type);

  private:
    std::multimap<Likeness, SavedFile> m_files;
};

}  // namespace vantor
