// Thumbnails in a file beside a remembered search, so that nothing is decoded twice for its items.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QString>
#include <cstdint>
#include <mutex>

namespace vantor {

// A photo on the medium of the search, wherever it stands in the list.
struct ThumbnailPlace {
    std::uint64_t firstSector = 0;  // as published
    std::uint64_t bytes = 0;        // carved

    bool operator==(const ThumbnailPlace&) const = default;
};

inline std::size_t qHash(const ThumbnailPlace& place, std::size_t seed) {
    return qHashMulti(seed, place.firstSector, place.bytes);
}

// The file grows by each thumbnail and is never written anew, so an end of the program at any moment costs
// the one being written. What cannot be written is not kept; nobody is told, since it is made again. Any
// thread.
class KeptThumbnails {
  public:
    // Photos beyond these get their thumbnails made again.
    static constexpr qint64 kMostFileBytes = qint64{64} << 20;
    static constexpr qsizetype kMostThumbnailBytes = 64 * 1024;

    // What the file has counts when it was begun for this search; otherwise it begins empty. What is behind
    // damage in the file is dropped.
    KeptThumbnails(const QString& path, const QByteArray& searchId);

    bool contains(const ThumbnailPlace& place) const;
    // Empty when it has none.
    QByteArray find(const ThumbnailPlace& place) const;
    void add(const ThumbnailPlace& place, const QByteArray& thumbnail);

  private:
    struct Stretch {
        qint64 offset = 0;
        qsizetype bytes = 0;
    };

    bool begin();
    void readEntries();

    const QByteArray m_head;
    mutable std::mutex m_mutex;
    mutable QFile m_file;
    qint64 m_end = 0;  // of what is whole; 0: there is no file
    QHash<ThumbnailPlace, Stretch> m_known;
};

}  // namespace vantor
