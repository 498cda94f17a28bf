// A slider over sectors, whose numbers may exceed what the toolkit's slider can count.
#pragma once

#include <QSlider>
#include <cstdint>

namespace vantor {

// Up to 2^31 - 1 sectors a step is a sector; beyond, the way is divided into as many steps as the toolkit can
// count.
class SectorSlider : public QSlider {
    Q_OBJECT

  public:
    explicit SectorSlider(QWidget* parent = nullptr);

    // The way from 0 to `sectors`; the knob is put at 0.
    void setSectors(double sectors);

    // False for a medium of more sectors than intValue() can say.
    bool reachesAll() const;

    double doubleValue() const;
    void setDoubleValue(double sector);
    // The knob's sector as a signed 32-bit number, the largest one where it does not fit.
    std::int32_t intValue() const;

  signals:
    // The knob was moved by mouse, wheel, keyboard or assistive technology, and not by setSectors() or
    // setDoubleValue().
    void movedByUser();

  private:
    double m_sectors = 0;
    bool m_moving = false;  // by the program
};

}  // namespace vantor
