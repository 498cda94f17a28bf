// Which found items are no files of their own, but parts of files that are saved whole.
#pragma once

#include <QString>
#include <cstdint>
#include <map>
#include <optional>
#include <span>

#include "media/SectorRun.h"

namespace vantor {

// Files by their bytes [first, end) on the medium. One medium, one thread.
class FilesWithin {
  public:
    // A saved file all of whose bytes were read. What was proved to its end holds whatever lies wholly
    // inside; whole archives of members and sounds of frames hold what is of their type and begins inside.
    // Others hold nothing.
    void note(const QString& type, const QString& name, std::uint64_t first, std::uint64_t bytes,
              bool proved);
    // One that the card's directory and its own bytes, or a directory of what is there, tell of: it holds
    // what begins within its runs where no cluster does, unless that is whole and of another kind. The last
    // sectors of a cluster may be left of older files: `runs` end with the file's bytes.
    void noteOnCard(const QString& type, const QString& name, std::span<const SectorRun> runs,
                    std::uint32_t clusterSectors);
    // The name of the file that an item is a part of; nothing where it is a file of its own. `isWhole`: its
    // bytes tell its end, and all are there.
    std::optional<QString> holderOf(const QString& type, std::uint64_t first, std::uint64_t bytes,
                                    bool isWhole = true) const;
    void clear() { m_proved.clear(), m_streams.clear(), m_onCard.clear(); }

  private:
    struct File {
        std::uint64_t end = 0;
        QString name;
        QString type = {};
        std::uint64_t clusterBytes = 1;
    };
    // By first byte; none lies within another, so that ends ascend as well.
    using Files = std::map<std::uint64_t, File>;

    static void add(Files& files, std::uint64_t first, File file);
    static const File* lastBefore(const Files& files, std::uint64_t first);

    Files m_proved;
    std::map<QString, Files> m_streams;  // by type
    Files m_onCard;                      // their runs
};

}  // namespace vantor
