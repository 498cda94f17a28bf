// A picture as large as its place allows, or pixel by pixel and pushed about.
#pragma once

#include <QImage>
#include <QWidget>

namespace vantor {

// A picture has a full size, and what is at hand of it may be a smaller copy: zoom and place are told in
// pixels of the full size, so that a sharper copy changes neither.
class ZoomPicture : public QWidget {
    Q_OBJECT

  public:
    explicit ZoomPicture(QWidget* parent = nullptr);

    // Shown fitted. `full`: of the whole picture; empty: not known, and `picture` is drawn as large as fits.
    void begin(const QImage& picture, QSize full);
    // The same picture with more pixels; whoever has zoomed stays where he looks.
    void sharpen(const QImage& picture, QSize full);
    const QImage& picture() const { return m_picture; }
    QSize fullSize() const { return m_full; }

    void fit();
    void showActualSize();
    void zoomBy(double factor);
    void push(QPointF by);  // the picture, in pixels of this widget
    bool isFitted() const { return m_fitted; }
    // Pixels of the screen for a pixel of the full size.
    double scale() const;
    // Whether more pixels of it are on the screen than are at hand.
    bool wantsMore() const;
    // Where the whole picture lies, reaching beyond the widget when it is larger.
    QRectF place() const;

  signals:
    void zoomChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    double fittingScale() const;
    void zoomTo(double scale, QPointF at);
    void keepInView();

    QImage m_picture;
    QSize m_full;
    bool m_fullKnown = false;
    bool m_fitted = true;
    double m_scale = 1;  // unless it is fitted
    QPointF m_offset;    // of the picture's middle from the widget's
    QPointF m_heldAt;
};

}  // namespace vantor
