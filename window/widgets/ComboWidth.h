// How narrow a box with a list may become.
#pragma once

class QComboBox;

namespace vantor {

// From now on the box never cuts the words that it shows; again after each change of them.
void keepWordsWhole(QComboBox* box);

}  // namespace vantor
