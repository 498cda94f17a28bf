// The menu of the found items: what can be done with the one pointed at, and with those like it.
#include <QDate>
#include <QMenu>

#include "results/FoundFacets.h"
#include "results/MyImageObject.h"
#include "results/ResultRow.h"
#include "window/MyTableController.h"
#include "window/preview/ItemViewer.h"
#include "window/preview/ViewerDesk.h"

namespace vantor {

void MyTableController::showItemMenu(ImageBrowserView* browser, qsizetype index, const QPoint& place) {
    const auto item = imageBrowser_itemAtIndex(browser, index);
    if (!item || session) {
        return;
    }
    const QString type = item->fileType();
    const auto dayOfItem = [this](qsizetype at) {
        const ItemFacts facts = factsOfItem(at);
        return dayOf(facts.soundness ? &*facts.soundness : nullptr, facts.original.get());
    };
    const std::int32_t day = dayOfItem(index);  // 0 where neither the file nor the card tells
    auto* const menu = new QMenu(browser);
    menu->setObjectName(QStringLiteral("itemMenu"));
    menu->setAccessibleName(tr("What to do with the item"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setDefaultAction(menu->addAction(tr("Show &Large"), this, [this, index] { openInViewer(index); }));
    menu->addAction(tr("Show &Facts"), this, [this, index] {
        openInViewer(index);
        m_viewer->viewer()->showFacts();
    });
    menu->addSeparator();
    const QList<qsizetype> chosen = browser->selectionIndexes();
    const QList<qsizetype> ticked = chosen.contains(index) ? chosen : QList<qsizetype>{index};
    const bool untick = factsOfItem(index).ticked;
    menu->addAction(untick ? tr("&Untick for Saving") : tr("&Tick for Saving"), this,
                    [this, ticked, untick] { tickItems(ticked, !untick); });
    menu->addAction(tr("&Save Selected…"), this, &MyTableController::saveSelected);
    menu->addAction(tr("Save &As…"), this, [this, index] { saveItemAs(index); });
    menu->addSeparator();
    QAction* const sameDay = menu->addAction(
        day != 0 ? tr("Select All of &Day %1")
                       .arg(QDate(day / 10'000, day / 100 % 100, day % 100).toString(Qt::ISODate))
                 : tr("Select All of the &Day"),
        this, [this, browser, day, dayOfItem] {
            selectLike(browser, [&](qsizetype other) { return dayOfItem(other) == day; });
        });
    sameDay->setEnabled(day != 0);
    QAction* const sameType =
        menu->addAction(tr("Select All T&ype %1").arg(type), this, [this, browser, type] {
            selectLike(browser, [this, browser, type](qsizetype other) {
                const auto like = imageBrowser_itemAtIndex(browser, other);
                return like && like->fileType() == type;
            });
        });
    sameType->setEnabled(!type.isEmpty());
    menu->popup(place);
}

// Of those that are shown.
void MyTableController::selectLike(ImageBrowserView* browser,
                                   const std::function<bool(qsizetype)>& isLike) const {
    QList<qsizetype> alike;
    for (const qsizetype index : browser->shownIndexes()) {
        if (isLike(index)) {
            alike.append(index);
        }
    }
    browser->selectIndexes(alike);
}

}  // namespace vantor
