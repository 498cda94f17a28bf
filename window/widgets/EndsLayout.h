// A row of buttons with its ends apart, in as many lines as the window needs.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

class QBoxLayout;

namespace vantor {

// What stands before the stretch keeps to the left, what stands behind it to the right. Where both do not fit
// into one line, the right part begins another; nothing becomes narrower than it wants to be. What lies in a
// row of its own within the row, as a control with its label, stays together.
class EndsLayout : public QLayout {
  public:
    // Takes all items of a row, of which one may be a stretch.
    explicit EndsLayout(QBoxLayout* row);
    ~EndsLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return layOut(QRect(0, 0, width, 0), false); }
    QSize sizeHint() const override;
    // That of the widest control.
    QSize minimumSize() const override;
    void setGeometry(const QRect& room) override;

  private:
    struct Line {
        std::vector<QLayoutItem*> items;
        int width = 0, least = 0, height = 0;
        bool right = false;
    };
    std::vector<Line> linesFor(int width) const;
    int layOut(const QRect& room, bool place) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

}  // namespace vantor
