// Offers the remembered search on the first screen.
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace vantor {

struct SearchRecord;

class KeptSearchBar : public QFrame {
    Q_OBJECT

  public:
    explicit KeptSearchBar(QWidget* parent);

    // Says what there is, and what can be done with it.
    void offer(const SearchRecord& record);

    QLabel* label = nullptr;
    QPushButton* goOnButton = nullptr;
    QPushButton* lookButton = nullptr;
    QPushButton* forgetButton = nullptr;
};

}  // namespace vantor
