// One set of range controls; the photo set and the `_Sig` set are two instances of it.
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include "media/SearchRange.h"

class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace vantor {

class MyDataObject;
class SectorSlider;

// What a fact says while there is no medium.
inline QString noFact() {
    return QObject::tr("<None>");
}

// One end of the range: its text field and the slider beside it.
struct RangeEnd {
    QLineEdit* value = nullptr;
    SectorSlider* slider = nullptr;
    QLabel* minimum = nullptr;
    QLabel* maximum = nullptr;
};

// The controls of a set, as the interface description made them.
struct RangeOutlets {
    QRadioButton* entireDisk = nullptr;
    QRadioButton* sectorRange = nullptr;
    QList<QLabel*> captions;        // disk, volume name, file system, size, start sector, end sector
    QList<QLabel*> values;          // in the same order
    QList<QWidget*> rangeControls;  // explanation and both groups with all they hold
    RangeEnd start, end;
    QLabel* reachHint = nullptr;  // of a medium with more sectors than the sliders reach
    QLineEdit* path = nullptr;
    QLabel* diskIdentifier = nullptr;  // shared by both sets
    QLabel* sectors = nullptr;         // shared by both sets
};

// Main thread only.
class RangePanel {
  public:
    explicit RangePanel(const RangeOutlets& outlets) : m_outlets(outlets) {}

    // The six given captions.
    void setCaptions();
    // Facts, sliders and texts of the medium; entire disk on, no destination.
    void fill(const MyDataObject& medium);
    // noFact() in all facts.
    void clear();

    void chooseEntireDisk();
    void chooseSectorRange();
    // Shows what belongs to the radio button that is on.
    void showChosen();

    bool entireDiskOn() const;
    bool sectorRangeOn() const;

    // A slider was moved: its sector goes into the field beside it.
    void copySliderToText(const RangeEnd& end);
    // A text was typed or set by assistive technology: the slider follows unless the number is beyond the
    // medium. False when the field is not ours.
    bool textDidChange(const QLineEdit* field);

    // What the controls say, for the scan.
    RangeControls controls() const;
    // The first check that fails, or nothing; nothing is checked while the entire disk is chosen.
    std::optional<RangeRefusal> refusal() const;
    QLineEdit* field(RangeField which) const;

    const RangeOutlets& outlets() const { return m_outlets; }

  private:
    void resetBounds(const QString& sectors);

    RangeOutlets m_outlets;
};

}  // namespace vantor
