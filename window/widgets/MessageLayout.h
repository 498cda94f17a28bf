// A bar that tells something: its sentence, and what can be done about it, beside it or below.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

class QBoxLayout;
class QLabel;

namespace vantor {

// The sentence takes all the width that the others leave. Where they would leave it too little, they go into
// lines below it, at the right end; nothing but the sentence becomes narrower than it wants to be.
class MessageLayout : public QLayout {
  public:
    // Puts itself into the place of a bar's row, which it deletes. The sentence is the row's first label with
    // word wrap; what stands before it keeps beside it.
    static void replace(QBoxLayout* row);
    ~MessageLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return layOut(QRect(0, 0, width, 0), false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& room) override;

  private:
    MessageLayout() = default;
    int layOut(const QRect& room, bool place) const;
    std::vector<QLayoutItem*> shownFrom(int first, int end) const;
    int widthOf(const std::vector<QLayoutItem*>& items) const;
    int wantedByWords() const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    QLabel* m_words = nullptr;  // one of the items
    int m_wordsAt = 0;
};

}  // namespace vantor
