// The pieces of a file, as they follow each other in it and as they lie on the medium.
#pragma once

#include <QWidget>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

//     file   ▐ 1 ▌▐  2  ▌▐ 3 ▌
//     card   ▐ 1 ▌░░░▐ 3 ▌░░▐  2  ▌
class PieceStrip : public QWidget {
    Q_OBJECT

  public:
    explicit PieceStrip(QWidget* parent);

    // In the order of the file. Hidden with fewer than two.
    void setPieces(const std::vector<SectorRun>& pieces);
    const std::vector<SectorRun>& pieces() const { return m_pieces; }
    // On a ground that is dark in either look.
    void setOnDark(bool dark) { m_onDark = dark; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Block {
        QRectF place;
        std::size_t piece = 0;  // from 0
    };
    int captionWidth() const;
    std::vector<Block> inFile(const QRectF& bar) const;
    std::vector<Block> onCard(const QRectF& bar) const;
    void paintBar(QPainter& painter, const QRectF& bar, const std::vector<Block>& blocks) const;

    std::vector<SectorRun> m_pieces;
    bool m_onDark = false;
};

}  // namespace vantor
