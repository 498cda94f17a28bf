// Lays out a row of controls that takes further lines where the window is narrow.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace vantor {

class WrapLayout : public QLayout {
  public:
    // The gap between controls and between lines, in pixels before scaling.
    WrapLayout(QWidget* parent, int gap);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    // That of the widest control.
    QSize minimumSize() const override;
    void setGeometry(const QRect& room) override;

  private:
    int layOut(const QRect& room, bool place) const;

    int m_gap;
    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

}  // namespace vantor
