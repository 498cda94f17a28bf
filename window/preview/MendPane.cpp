#include "window/preview/MendPane.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "window/preview/PieceStrip.h"
#include "window/widgets/Theme.h"

namespace vantor {

MendPane::MendPane(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("mendPane"));
    const auto button = [this](const char* name, const QString& meaning) {
        auto* const made = new QToolButton(this);
        made->setObjectName(QLatin1String(name));
        made->setCheckable(true);
        made->setToolTip(meaning);
        made->setAccessibleName(meaning);
        made->setFocusPolicy(Qt::TabFocus);
        return made;
    };
    m_asFound = button("viewerAsFound", tr("Show the file as it was found (B)"));
    m_asFound->setText(tr("As Found"));
    m_asMade = button("viewerAsMade", tr("Show the file as it was put together (B)"));
    auto* const sides = new QButtonGroup(this);
    sides->addButton(m_asFound);
    sides->addButton(m_asMade);
    m_words = new QLabel(this);
    m_words->setObjectName(QStringLiteral("viewerMendWords"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_strip = new PieceStrip(this);
    m_strip->setOnDark(true);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_words, 1);
    row->addWidget(m_asFound);
    row->addWidget(m_asMade);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::kUnit, theme::kUnit, theme::kUnit, 0);
    column->addWidget(m_strip);
    column->addLayout(row);
    connect(sides, &QButtonGroup::idClicked, this, &MendPane::sideChosen);
    hide();
}

bool MendPane::isAsFound() const {
    return m_asFound->isChecked();
}

void MendPane::turn() {
    if (!isHidden()) {
        (isAsFound() ? m_asMade : m_asFound)->click();
    }
}

void MendPane::setMend(const Mend* mend) {
    setVisible(mend != nullptr);
    if (mend == nullptr) {
        return;
    }
    m_asMade->setChecked(true);
    m_asMade->setText(mend->kind == MendKind::Repaired ? tr("Repaired") : tr("Put Together"));
    m_words->setText(describe(*mend));
    m_strip->setPieces(mend->assembly.runs);
}

}  // namespace vantor
