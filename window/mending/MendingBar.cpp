// A card with a sentence, a bar and its buttons, of which each is there when it does something.
#include "window/mending/MendingBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>

#include "window/widgets/MessageLayout.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kMendingSideMargin = 2 * theme::kUnit;
constexpr int kMendingTopMargin = theme::kUnit;
constexpr int kMendingSpacing = 12;
constexpr int kMendingSign = 3 * theme::kUnit;
constexpr int kProgressWidth = 22 * theme::kUnit;

}  // namespace

MendingBar::MendingBar(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("mendingBar"));
    setProperty("role", QStringLiteral("card"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(kMendingSideMargin, kMendingTopMargin, kMendingSideMargin, kMendingTopMargin);
    row->setSpacing(kMendingSpacing);
    // Where the bar above has the sign of how the search ended.
    auto* const sign = new QLabel(this);
    sign->setPixmap(ownIcon(QStringLiteral("info")).pixmap(kMendingSign, kMendingSign));
    row->addWidget(sign);
    label = new QLabel(this);
    label->setObjectName(QStringLiteral("mendingLabel"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setAccessibleDescription(tr("How far the completing of broken files is, and what came of it"));
    row->addWidget(label);
    progress = new QProgressBar(this);
    progress->setObjectName(QStringLiteral("mendingProgress"));
    progress->setAccessibleName(tr("Progress of completing broken files"));
    progress->setTextVisible(false);
    progress->setFixedWidth(kProgressWidth);
    row->addWidget(progress);
    const auto button = [&](const char* name, const QString& text, const QString& meaning) {
        auto* const made = new QPushButton(text, this);
        made->setObjectName(QLatin1String(name));
        made->setToolTip(meaning);
        made->setAccessibleName(meaning);
        row->addWidget(made);
        return made;
    };
    stopButton = button("stopMendingButton", tr("St&op"),
                        tr("Stop completing broken files; what was put together stays"));
    showButton =
        button("showMendedButton", tr("Show Th&em"), tr("Show the files that were put together or repaired"));
    closeButton = button("closeMendingButton", tr("Clo&se"), tr("Close this message"));
    MessageLayout::replace(row);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::hide);
}

void MendingBar::showProgress(const QString& text, std::size_t looked, std::size_t of) {
    // Shares of a thousand: there may be more files than the bar can count.
    constexpr int kSteps = 1000;
    label->setText(text);
    progress->setRange(0, of == 0 ? 0 : kSteps);
    progress->setValue(of == 0 ? 0 : static_cast<int>(std::min(looked, of) * kSteps / of));
    progress->show();
    stopButton->show();
    showButton->hide();
    closeButton->hide();
    show();
}

void MendingBar::showEnd(const QString& text, bool hasMended) {
    label->setText(text);
    progress->hide();
    stopButton->hide();
    showButton->setVisible(hasMended);
    closeButton->show();
    show();
}

}  // namespace vantor
