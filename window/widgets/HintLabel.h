// The line that says what to do on a screen, with its sign.
#pragma once

#include <QLabel>

namespace vantor {

// A label of plain text with a sign beside its first line. Empty lines at a text's beginning take no room.
class HintLabel : public QLabel {
    Q_OBJECT

  public:
    explicit HintLabel(QWidget* parent = nullptr);

    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_middle = -1;  // of the sign, as it was painted last; pixels from the top
};

}  // namespace vantor
