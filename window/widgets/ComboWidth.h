// How narrow a box with a list may become.
#pragma once

class QComboBox;

namespace vantor {

// From now on the box never cuts the words that it shows; again after each change of them.
void keepWordsWhole(QComboBox* box);
// Its list opens with all its lines at once, as high as the style sheet has them.
void openWholeList(QComboBox* box);

}  // namespace vantor
