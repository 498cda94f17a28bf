// The searched range as a strip: what was read, where something was found, what is bad, what is yet to come.
#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "media/SectorRun.h"

namespace vantor {

class CardStrip : public QWidget {
    Q_OBJECT

  public:
    // In the order in which one covers the other.
    enum class Mark : std::uint8_t { ToCome, Read, Found, Bad };

    explicit CardStrip(QWidget* parent);

    // Begins anew, over these sectors.
    void begin(SectorRun range);
    // Of what lies within the range; what a place was marked as before stays where it covers this.
    void mark(const SectorRun& sectors, Mark mark);
    Mark markAt(std::uint64_t sector) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    static constexpr std::size_t kPlaces = 600;

    std::size_t placeOf(std::uint64_t sector) const;

    SectorRun m_range{0, 0};
    std::vector<Mark> m_places = std::vector<Mark>(kPlaces, Mark::ToCome);
};

}  // namespace vantor
