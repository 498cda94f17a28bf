// A caption whose tabs line up its colon with those of its neighbours.
#pragma once

#include <QLabel>
#include <functional>

namespace vantor {

// Plain text in one line. The distance of its tab stops follows the font, chosen so that captions of up to
// three, two and no tabs' width end at the same stop when they carry one, two and four tabs.
class TabbedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit TabbedLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // Calls `piece(x, text)` for what stands between the tabs; gives the place where the last one ends.
    int walk(const std::function<void(int x, const QString& text)>& piece) const;
    int tabDistance() const;
};

}  // namespace vantor
