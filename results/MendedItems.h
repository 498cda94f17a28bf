// What was made of the broken items of a list, by where they begin on the medium.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "results/Mend.h"

namespace vantor {

class MyImageObject;

// Any thread may call anything.
class MendedItems {
  public:
    // The list begins anew.
    void clear();
    // In place of what was made of the item before.
    void add(const QString& type, std::uint64_t firstSector, Mend mend);

    // Of the item, or of another that begins in the same place and whose type is of the same format; null
    // where there is none.
    std::shared_ptr<const Mend> of(const QString& type, std::uint64_t firstSector) const;
    std::shared_ptr<const Mend> of(const MyImageObject& item) const;
    // The same where it is better than the item itself beyond doubt.
    std::shared_ptr<const Mend> provedOf(const MyImageObject& item) const;

    std::vector<std::shared_ptr<const Mend>> allProved() const;

    struct Counts {
        std::size_t completed = 0, putTogether = 0, repaired = 0;
        std::size_t all() const { return completed + putTogether + repaired; }
    };
    Counts counts() const;

  private:
    struct Kept {
        QString type;
        std::shared_ptr<const Mend> mend;
    };

    mutable std::mutex m_mutex;
    std::multimap<std::uint64_t, Kept> m_kept;  // by first sector
};

}  // namespace vantor
