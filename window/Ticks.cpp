// Ticks for saving: they stay with their items whatever is shown of them and in which order.
#include "results/SizeForPeople.h"
#include "saving/SaveSummary.h"
#include "window/MyTableController.h"

namespace vantor {

void MyTableController::wireTicks() {
    for (ImageBrowserView* browser : {imageBrowser, imageBrowser_2}) {
        connect(browser, &ImageBrowserView::ticksWanted, this, &MyTableController::tickItems);
    }
    for (QPushButton* button : {tickShownButton, tickShownButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::tickShownItems);
    }
    for (QPushButton* button : {invertTicksButton, invertTicksButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::invertTicks);
    }
    for (QPushButton* button : {saveTickedButton, saveTickedButton_Sig}) {
        connect(button, &QPushButton::clicked, this, &MyTableController::saveTicked);
    }
}

void MyTableController::tickItems(const QList<qsizetype>& indexes, bool ticked) {
    for (const qsizetype index : indexes) {
        if (index >= 0 && static_cast<std::size_t>(index) < itemCount()) {
            m_ticks.set(static_cast<std::size_t>(index), ticked);
        }
    }
    showTicks();
    keepMarksSoon();
}

bool MyTableController::allShownAreTicked() const {
    const ImageBrowserView& browser = *browserOf(activeSet());
    if (browser.shownCount() == 0 || m_ticks.count() < static_cast<std::size_t>(browser.shownCount())) {
        return false;
    }
    const QList<qsizetype> shown = browser.shownIndexes();
    return std::all_of(shown.begin(), shown.end(),
                       [this](qsizetype index) { return m_ticks.isTicked(static_cast<std::size_t>(index)); });
}

void MyTableController::tickShownItems() {
    tickItems(browserOf(activeSet())->shownIndexes(), !allShownAreTicked());
}

void MyTableController::invertTicks() {
    for (const qsizetype index : browserOf(activeSet())->shownIndexes()) {
        const auto at = static_cast<std::size_t>(index);
        m_ticks.set(at, !m_ticks.isTicked(at));
    }
    showTicks();
    keepMarksSoon();
}

void MyTableController::saveTicked() {
    saveItems(m_ticks.all());
}

// How many and how much, and what the buttons would do now.
void MyTableController::showTicks() {
    std::uint64_t bytes = 0;
    for (const qsizetype index : m_ticks.all()) {
        bytes += m_looks->facets().bytesOf(static_cast<std::size_t>(index));
    }
    const std::size_t count = m_ticks.count();
    const QString words = count == 0 ? QString()
                                     : tr("%1 of %2 ticked, %3")
                                           .arg(numberForPeople(count), numberForPeople(itemCount()),
                                                sizeForPeople(bytes, bytes < 10'000'000 ? 1 : 0));
    const bool some = browserOf(activeSet())->shownCount() > 0;
    const bool untick = allShownAreTicked();
    for (QLabel* label : {ticksLabel, ticksLabel_Sig}) {
        label->setText(words);
    }
    for (QPushButton* button : {tickShownButton, tickShownButton_Sig}) {
        button->setEnabled(some);
        button->setText(untick ? tr("Untic&k Shown") : tr("Tic&k Shown"));
        button->setAccessibleName(untick ? tr("Untick all that is shown")
                                         : tr("Tick all that is shown for saving"));
    }
    for (QPushButton* button : {invertTicksButton, invertTicksButton_Sig}) {
        button->setEnabled(some);
    }
    for (QPushButton* button : {saveTickedButton, saveTickedButton_Sig}) {
        button->setVisible(count > 0);
        button->setText(tr("Sa&ve Ticked (%1)…").arg(numberForPeople(count)));
    }
    browserOf(activeSet())->viewport()->update();
}

}  // namespace vantor
