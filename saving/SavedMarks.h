// Which of the found items the user need not fear for any more.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

#include "saving/ItemSaver.h"

namespace vantor {

// Items by their place in the list of found items. Any one thread.
class SavedMarks {
  public:
    void note(std::size_t index, const SaveOutcome& outcome) {
        if (outcome.saved && !outcome.mediumGone) {
            noteSaved(index);
        } else if (outcome.leftOut != LeftOut::No && !m_saved.contains(index)) {
            m_leftOut.insert(index);
        }
    }
    void noteSaved(std::size_t index) {
        m_saved.insert(index);
        m_leftOut.erase(index);
    }
    void clear() {
        m_saved.clear();
        m_leftOut.clear();
    }

    bool isSaved(std::size_t index) const { return m_saved.contains(index); }
    std::size_t saved() const { return m_saved.size(); }
    // Ascending.
    std::vector<std::uint64_t> savedPlaces() const { return {m_saved.begin(), m_saved.end()}; }
    // Saved, or left out because the user asked for that.
    std::size_t settled() const { return m_saved.size() + m_leftOut.size(); }

  private:
    std::set<std::size_t> m_saved, m_leftOut;
};

}  // namespace vantor
