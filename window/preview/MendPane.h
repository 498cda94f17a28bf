// What was made of a broken item, below its picture: in words, its pieces, and the choice between the item as
// it was found and as it was made.
#pragma once

#include <QWidget>

#include "results/Mend.h"

class QLabel;
class QToolButton;

namespace vantor {

class PieceStrip;

class MendPane : public QWidget {
    Q_OBJECT

  public:
    explicit MendPane(QWidget* parent);

    // Null: nothing was made of it, and nothing is shown.
    void setMend(const Mend* mend);
    bool isAsFound() const;
    // To the other side, where there is one.
    void turn();

  signals:
    // The user wants the other one.
    void sideChosen();

  private:
    QToolButton* m_asFound;
    QToolButton* m_asMade;
    QLabel* m_words;
    PieceStrip* m_strip;
};

}  // namespace vantor
