// Which of the found items the user ticked for saving, whatever is shown and in which order.
#pragma once

#include <QList>
#include <cstddef>
#include <vector>

namespace vantor {

// Items by their place in the list. Any one thread.
class TickedItems {
  public:
    void set(std::size_t index, bool ticked) {
        if (index >= m_ticks.size() && ticked) {
            m_ticks.resize(index + 1);
        }
        if (isTicked(index) != ticked) {
            m_ticks[index] = ticked;
            m_count += ticked ? 1 : -1;
        }
    }
    bool isTicked(std::size_t index) const { return index < m_ticks.size() && m_ticks[index]; }
    std::size_t count() const { return m_count; }
    void clear() {
        m_ticks.clear();
        m_count = 0;
    }
    QList<qsizetype> all() const {  // ascending
        QList<qsizetype> indexes;
        for (std::size_t index = 0; index < m_ticks.size(); ++index) {
            if (m_ticks[index]) {
                indexes.append(static_cast<qsizetype>(index));
            }
        }
        return indexes;
    }

  private:
    std::vector<bool> m_ticks;
    std::size_t m_count = 0;
};

}  // namespace vantor
