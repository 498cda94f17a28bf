// At most one panel at a time: whose turn it is to ask.
#pragma once

#include <QApplication>

namespace vantor {

// Whoever asks several things in a row holds a turn from the first question until the last answer is acted
// upon; between two of them nobody else's panel comes up. Interface thread only.
class AskingTurn {
  public:
    AskingTurn() { ++s_holders; }
    ~AskingTurn() { --s_holders; }
    AskingTurn(const AskingTurn&) = delete;
    AskingTurn& operator=(const AskingTurn&) = delete;

    // True as well while any panel is in view.
    static bool isTaken() { return s_holders > 0 || QApplication::activeModalWidget() != nullptr; }

  private:
    static inline int s_holders = 0;
};

}  // namespace vantor
