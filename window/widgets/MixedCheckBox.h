// A tick box that is off and yet shows that a part of what it stands for is ticked.
#pragma once

#include <QCheckBox>

namespace vantor {

// Unlike the toolkit's box with three states it has but two: mixed is a look of the one that is off, and a
// click on it switches it on. Interface thread only.
class MixedCheckBox : public QCheckBox {
    Q_OBJECT

  public:
    explicit MixedCheckBox(QWidget* parent = nullptr);

    // Forgotten when the box is switched on.
    void setMixed(bool mixed);
    bool isMixed() const { return m_mixed && !isChecked(); }

  protected:
    void initStyleOption(QStyleOptionButton* option) const override;

  private:
    bool m_mixed = false;
};

}  // namespace vantor
