// The window with a gate that holds its threads where a test wants them.
#pragma once

#include "tests/support/Gate.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/window/WindowTest.h"

namespace vantor {

class GatedWindow : public WindowTest {
  protected:
    // The window waits for its threads, so the gate opens first.
    void TearDown() override {
        gate.open();
        WindowTest::TearDown();
    }

    // Searches read as they do outside of tests: ahead, and nobody asks for what was refused twice.
    void readAhead() {
        parts.openMedium = [this](const QString&) { return openReadAhead(card); };
    }

    // The widget of this name, which has to be there.
    template <class Widget>
    Widget* part(const char* name) const {
        return controller->window->findChild<Widget*>(QString::fromLatin1(name));
    }

    Gate gate;
};

}  // namespace vantor
