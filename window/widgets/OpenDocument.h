// Handing a document or a folder to the desktop.
#pragma once

#include <QString>
#include <chrono>

namespace vantor {

// Shows it in the program that the desktop has for it; false when there is none, or when that one gives up
// within the patience. Interface thread; the window is painted meanwhile but takes no input.
bool openInDesktop(const QString& path, std::chrono::milliseconds patience = std::chrono::seconds(3));

}  // namespace vantor
