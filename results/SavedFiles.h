// What one destination has received so far, told by its bytes, so that the same bytes are saved once.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <map>

namespace vantor {

struct SavedFile {
    QString path;
    QString type;
    QByteArray sha256;              // raw; empty until it is asked for
    std::uint64_t firstSector = 0;  // on the medium
};

// Any one thread.
class SavedFiles {
  public:
    void add(std::uint64_t bytes, SavedFile file) { m_bySize.emplace(bytes, std::move(file)); }
    bool hasSize(std::uint64_t bytes) const { return m_bySize.contains(bytes); }

    // The file of so many bytes that was read from that place of the medium, or that has that checksum; one
    // of the given type where there is a choice. Null when there is none, or when it is no longer there as it
    // was saved. Valid until the next add().
    const SavedFile* fromPlace(std::uint64_t bytes, std::uint64_t firstSector, const QString& type) const;
    const SavedFile* withChecksum(std::uint64_t bytes, const QByteArray& sha256, const QString& type);

  private:
    std::multimap<std::uint64_t, SavedFile> m_bySize;
};

}  // namespace vantor
