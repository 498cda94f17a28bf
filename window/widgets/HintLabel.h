// The line that says what to do on a screen, with its sign.
#pragma once

#include <QLabel>

namespace vantor {

// A label whose sign stands beside the first line that has words: texts may begin with an empty one.
class HintLabel : public QLabel {
    Q_OBJECT

  public:
    explicit HintLabel(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_middle = -1;  // of the sign, as it was painted last; pixels from the top
};

}  // namespace vantor
