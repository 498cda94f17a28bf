// A caption whose tabs line up its colon with those of its neighbours.
#pragma once

#include <QLabel>
#include <functional>

namespace vantor {

// Plain text in one line. The distance of its tab stops follows the font, chosen so that captions of up to
// three, two and no tabs' width end at the same stop when they carry one, two and four tabs. What stands
// behind the last tab keeps to the right edge: in other languages the widest of the neighbours makes room for
// all.
class TabbedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit TabbedLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // Calls `piece(x, text, last)` for what stands between the tabs, `last` for what is behind the last of
    // them; gives the place where it ends.
    int walk(const std::function<void(int x, const QString& text, bool last)>& piece) const;
    int tabDistance() const;
};

}  // namespace vantor
