// What the program is, whose, and of what.
#pragma once

class QWidget;

namespace vantor {

// Version, licence and the libraries that it is made with, over the window.
void showAbout(QWidget* over);

}  // namespace vantor
