// How a set of range controls is filled, how it reacts, and what it says.
#include "window/panels/RangePanel.h"

#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QRadioButton>
#include <QSignalBlocker>

#include "catalogue/NumberText.h"
#include "media/LabelText.h"
#include "media/MyDataObject.h"
#include "window/widgets/SectorSlider.h"

namespace vantor {

namespace {

const QString kFirstSector = QStringLiteral("0");

// The slider stands there already and does not follow.
void setText(const RangeEnd& end, const QString& sector) {
    const QSignalBlocker quiet(end.value);
    end.value->setText(sector);
}

template <class Widgets>
void setHidden(const Widgets& widgets, bool hidden) {
    for (auto* widget : widgets) {
        widget->setHidden(hidden);
    }
}

}  // namespace

void RangePanel::setCaptions() {
    const QStringList captions = {QObject::tr("Disk\t\t\t\t:"),     QObject::tr("Volume Name\t:"),
                                  QObject::tr("File System\t\t:"),  QObject::tr("Capacity (size)\t:"),
                                  QObject::tr("Start Sector\t\t:"), QObject::tr("End Sector\t\t:")};
    for (qsizetype i = 0; i < captions.size(); ++i) {
        m_outlets.captions.at(i)->setText(captions.at(i));
    }
}

void RangePanel::fill(const MyDataObject& medium) {
    m_outlets.diskIdentifier->setText(medium.nsStrDiskIdentifier);
    m_outlets.sectors->setText(medium.nsStrSectors);
    const QStringList facts = {medium.nsStrDiskIdentifier,
                               shownLabel(medium.nsStrVolName),
                               shownLabel(medium.nsStrFileSystem),
                               medium.nsStrSize,
                               kFirstSector,
                               medium.nsStrSectors};
    for (qsizetype i = 0; i < facts.size(); ++i) {
        m_outlets.values.at(i)->setText(facts.at(i));
    }
    resetBounds(medium.nsStrSectors);
    m_outlets.entireDisk->setChecked(true);
    m_outlets.sectorRange->setChecked(false);
    m_outlets.path->clear();
}

void RangePanel::clear() {
    for (QLabel* value : m_outlets.values) {
        value->setText(noFact());
    }
}

// Both sliders over the whole medium; the end stands one past the last sector, which the checks allow.
void RangePanel::resetBounds(const QString& sectors) {
    const auto count = static_cast<double>(textToInt64(sectors));
    for (const RangeEnd& end : {m_outlets.start, m_outlets.end}) {
        end.slider->setSectors(count);
        end.minimum->setText(kFirstSector);
        end.maximum->setText(sectors);
    }
    m_outlets.start.slider->setDoubleValue(0);
    setText(m_outlets.start, kFirstSector);
    m_outlets.end.slider->setDoubleValue(count);
    setText(m_outlets.end, sectors);
}

void RangePanel::chooseEntireDisk() {
    m_outlets.entireDisk->setChecked(true);
    m_outlets.sectorRange->setChecked(false);
    showChosen();
}

void RangePanel::chooseSectorRange() {
    m_outlets.entireDisk->setChecked(false);
    m_outlets.sectorRange->setChecked(true);
    // Counted from the text of the facts; whatever range was typed before is lost.
    resetBounds(QString::number(textToInt64(m_outlets.values.constLast()->text())));
    showChosen();
}

void RangePanel::showChosen() {
    const bool entire = m_outlets.entireDisk->isChecked();
    // Hidden before the others are shown, or a small window would grow.
    if (entire) {
        setHidden(m_outlets.rangeControls, true);
    }
    setHidden(m_outlets.captions, !entire);
    setHidden(m_outlets.values, !entire);
    m_outlets.reachHint->setVisible(!entire && !m_outlets.start.slider->reachesAll());
    if (!entire) {
        setHidden(m_outlets.rangeControls, false);
    }
}

bool RangePanel::entireDiskOn() const {
    return m_outlets.entireDisk->isChecked() && !m_outlets.sectorRange->isChecked();
}

bool RangePanel::sectorRangeOn() const {
    return !m_outlets.entireDisk->isChecked() && m_outlets.sectorRange->isChecked();
}

void RangePanel::copySliderToText(const RangeEnd& end) {
    setText(end, QString::number(end.slider->intValue()));
}

bool RangePanel::textDidChange(const QLineEdit* field) {
    for (const RangeEnd& end : {m_outlets.start, m_outlets.end}) {
        if (end.value == field) {
            const std::optional<double> sector = scanDouble(field->text());
            if (sector && !(*sector > textToDouble(m_outlets.sectors->text()))) {
                end.slider->setDoubleValue(*sector);
            }
            return true;
        }
    }
    return false;
}

RangeControls RangePanel::controls() const {
    RangeControls said;
    said.diskIdentifier = m_outlets.diskIdentifier->text();
    said.sectors = m_outlets.sectors->text();
    said.entireDisk = m_outlets.entireDisk->isChecked() ? 1 : 0;
    said.sectorRange = m_outlets.sectorRange->isChecked() ? 1 : 0;
    said.startText = m_outlets.start.value->text();
    said.endText = m_outlets.end.value->text();
    return said;
}

std::optional<RangeRefusal> RangePanel::refusal() const {
    if (m_outlets.entireDisk->isChecked() || !m_outlets.sectorRange->isChecked()) {
        return std::nullopt;
    }
    return refuseRange(m_outlets.start.value->text(), m_outlets.end.value->text(), m_outlets.sectors->text());
}

QLineEdit* RangePanel::field(RangeField which) const {
    return which == RangeField::Start ? m_outlets.start.value : m_outlets.end.value;
}

}  // namespace vantor
