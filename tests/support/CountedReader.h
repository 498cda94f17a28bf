// A reader of a scripted medium that is counted while it is open.
#pragma once

#include <atomic>

#include "tests/support/ScriptedMedium.h"

namespace vantor {

class CountedReader : public ScriptedReader {
  public:
    CountedReader(ScriptedMedium& medium, std::atomic<int>& open) : ScriptedReader(medium), m_open(open) {
        ++m_open;
    }
    ~CountedReader() override { --m_open; }

  private:
    std::atomic<int>& m_open;
};

}  // namespace vantor
