// Which kind of file was found where.
#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "filesystem/CardTraces.h"

namespace vantor {

// Kinds are those that a file's first bytes tell apart: a camera's JPG and THM are one, MP4 and MOV another.
class FoundStarts {
  public:
    explicit FoundStarts(const std::vector<FoundStart>& found);

    // Whether a file of the kind of such a name was found to begin in the sector.
    bool isAt(std::uint64_t sector, const QString& name) const;
    // Whether any file was.
    bool isAnyAt(std::uint64_t sector) const { return m_kinds.contains(sector); }
    // Where files of that kind were found; at most `most`, spread over all of them.
    std::vector<std::uint64_t> ofKind(const QString& name, std::size_t most) const;
    bool isEmpty() const { return m_kinds.empty(); }

  private:
    std::unordered_map<std::uint64_t, QString> m_kinds;
    std::unordered_map<std::string, std::vector<std::uint64_t>> m_places;
};

}  // namespace vantor
