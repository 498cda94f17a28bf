// A number that is read by people and by the program.
#pragma once

#include <QLabel>

namespace vantor {

// Holds the plain digits, as ranges are checked against them and fields take them, and shows them in groups
// as the language writes them. What is not a whole number is shown as it is, and what is selected to be
// copied too.
class NumberLabel : public QLabel {
    Q_OBJECT

  public:
    explicit NumberLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    QString shownText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantor
