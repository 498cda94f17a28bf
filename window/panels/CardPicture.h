// The card as a bar: its partitions, what of them is used, and the range that will be searched.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "media/SectorRun.h"
#include "window/panels/RangePanel.h"

namespace vantor {

// A part of the card that has something to be said of it.
struct CardPart {
    QString words;  // "sdb1, FAT32"
    SectorRun sectors;
    std::optional<double> used;  // 0 to 1; nothing where nobody knows
};

// Of the medium with this identifier, in the order on the card.
using CardParts = std::function<std::vector<CardPart>(const QString& identifier)>;
// As the kernel has them, and used as far as they are mounted.
std::vector<CardPart> partsOnThisMachine(const QString& identifier);

// Reads what the range controls say whenever it is shown or they change. Interface thread.
class CardPicture : public QWidget {
    Q_OBJECT

  public:
    CardPicture(const RangeOutlets& range, CardParts parts, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    // What is drawn, in words; also the accessible description.
    QString words() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    std::uint64_t sectors() const;
    std::optional<RangeRefusal> refusal() const;
    SectorRun chosen() const;
    void learn();
    void describe();
    void paintParts(QPainter& painter, const QRect& bar) const;

    const RangeOutlets m_range;
    const CardParts m_partsOf;
    std::vector<CardPart> m_parts;
};

}  // namespace vantor
