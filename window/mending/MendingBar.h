// How far the mending of broken files is, what came of it, and the buttons to end it and to see it.
#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vantor {

class MendingBar : public QFrame {
    Q_OBJECT

  public:
    explicit MendingBar(QWidget* parent);

    // While it goes on; `of` 0: nobody knows how many.
    void showProgress(const QString& text, std::size_t looked, std::size_t of);
    // When it is over; `hasMended`: something can be shown.
    void showEnd(const QString& text, bool hasMended);

    QLabel* label = nullptr;
    QProgressBar* progress = nullptr;
    QPushButton* stopButton = nullptr;
    QPushButton* showButton = nullptr;
    QPushButton* closeButton = nullptr;
};

}  // namespace vantor
