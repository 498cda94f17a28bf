// Drawn to scale but for pieces too small to be seen.
#include "window/preview/PieceStrip.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "results/SizeForPeople.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPiecesHeight = 18;
constexpr int kBarGap = 6;
constexpr qreal kLeastWidth = 4;
constexpr qreal kStripRadius = 3;
constexpr std::size_t kMostInWords = 20;

// Colours that are told apart on light and dark ground, with white digits on them.
const QColor kColours[] = {{0x1f, 0x5f, 0xd6}, {0x1a, 0x7f, 0x4b}, {0xb4, 0x5f, 0x06},
                           {0x7c, 0x3a, 0xae}, {0x0e, 0x74, 0x90}, {0xb9, 0x1c, 0x5c}};

}  // namespace

PieceStrip::PieceStrip(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setObjectName(QStringLiteral("pieceStrip"));
    hide();
}

void PieceStrip::setPieces(const std::vector<SectorRun>& pieces) {
    m_pieces = pieces;
    QStringList words;
    for (std::size_t i = 0; i < pieces.size() && i < kMostInWords; ++i) {
        words << tr("piece %1: sectors %2 to %3")
                     .arg(numberForPeople(i + 1), numberForPeople(pieces[i].first),
                          numberForPeople(pieces[i].end - 1));
    }
    setAccessibleName(tr("Pieces on the card"));
    setAccessibleDescription(words.join(QStringLiteral(", ")));
    setVisible(pieces.size() > 1);
    update();
}

QSize PieceStrip::sizeHint() const {
    return {40 * theme::kUnit, 2 * kPiecesHeight + kBarGap};
}

QSize PieceStrip::minimumSizeHint() const {
    return {12 * theme::kUnit, 2 * kPiecesHeight + kBarGap};
}

int PieceStrip::captionWidth() const {
    return std::max(fontMetrics().horizontalAdvance(tr("File")),
                    fontMetrics().horizontalAdvance(tr("Card"))) +
           theme::kUnit;
}

std::vector<PieceStrip::Block> PieceStrip::inFile(const QRectF& bar) const {
    double all = 0;
    for (const SectorRun& piece : m_pieces) {
        all += static_cast<double>(piece.end - piece.first);
    }
    std::vector<Block> blocks;
    double at = 0;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const double size = static_cast<double>(m_pieces[i].end - m_pieces[i].first);
        blocks.push_back({QRectF(bar.left() + at / all * bar.width(), bar.top(),
                                 std::max(size / all * bar.width(), kLeastWidth), bar.height()),
                          i});
        at += size;
    }
    return blocks;
}

// From the first sector of any piece to the last of any.
std::vector<PieceStrip::Block> PieceStrip::onCard(const QRectF& bar) const {
    const auto first = std::min_element(m_pieces.begin(), m_pieces.end(), [](const auto& a, const auto& b) {
                           return a.first < b.first;
                       })->first;
    const auto end = std::max_element(m_pieces.begin(), m_pieces.end(), [](const auto& a, const auto& b) {
                         return a.end < b.end;
                     })->end;
    const double scale = bar.width() / static_cast<double>(std::max<std::uint64_t>(end - first, 1));
    std::vector<Block> blocks;
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const double left = static_cast<double>(m_pieces[i].first - first) * scale;
        const double width = static_cast<double>(m_pieces[i].end - m_pieces[i].first) * scale;
        blocks.push_back({QRectF(bar.left() + std::min(left, bar.width() - kLeastWidth), bar.top(),
                                 std::max(width, kLeastWidth), bar.height()),
                          i});
    }
    return blocks;
}

void PieceStrip::paintBar(QPainter& painter, const QRectF& bar, const std::vector<Block>& blocks) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_onDark ? QColor(0x3a, 0x44, 0x52) : QColor(theme::kRule));
    painter.drawRoundedRect(bar, kStripRadius, kStripRadius);
    for (const Block& block : blocks) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(kColours[block.piece % std::size(kColours)]);
        // A hair of the ground stays between neighbours.
        painter.drawRoundedRect(block.place.adjusted(0.5, 0, -0.5, 0), kStripRadius, kStripRadius);
        const QString number = QString::number(block.piece + 1);
        if (painter.fontMetrics().horizontalAdvance(number) + 4 < block.place.width()) {
            painter.setPen(Qt::white);
            painter.drawText(block.place, Qt::AlignCenter, number);
        }
    }
}

void PieceStrip::paintEvent(QPaintEvent*) {
    if (m_pieces.empty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int caption = captionWidth();
    QRectF bar(caption, 0, width() - caption, kPiecesHeight);
    for (const bool card : {false, true}) {
        painter.setPen(m_onDark ? QColor(0xb6, 0xc0, 0xd0) : QColor(theme::kQuietInk));
        painter.drawText(QRectF(0, bar.top(), caption, kPiecesHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         card ? tr("Card") : tr("File"));
        paintBar(painter, bar, card ? onCard(bar) : inFile(bar));
        bar.translate(0, kPiecesHeight + kBarGap);
    }
}

bool PieceStrip::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           accessibleDescription().replace(QStringLiteral(", "), QStringLiteral("\n")), this);
        return true;
    }
    return QWidget::event(event);
}

}  // namespace vantor
