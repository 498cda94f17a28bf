// How a search ended, beside its results, and what empty lists say.
#include <algorithm>

#include "decode/ErasedCardCheck.h"
#include "media/OpenRefusal.h"
#include "results/SizeForPeople.h"
#include "saving/SaveSummary.h"
#include "window/MyTableController.h"
#include "window/browser/EmptyWords.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

// "12 s", "3 min 20 s", "2 h 5 min".
QString durationForPeople(qint64 seconds) {
    constexpr qint64 kMinute = 60, kHour = 3600;
    if (seconds < kMinute) {
        return QObject::tr("%1 s").arg(seconds);
    }
    return seconds < kHour ? QObject::tr("%1 min %2 s").arg(seconds / kMinute).arg(seconds % kMinute)
                           : QObject::tr("%1 h %2 min").arg(seconds / kHour).arg(seconds % kHour / kMinute);
}

}  // namespace

void MyTableController::showSearchEnd() {
    const SearchEnd& end = searchEnd();
    QStringList sentences{searchEndHeadline(end), searchEndAdvice(end)};
    if (end.outcome == PassOutcome::OpenError && m_parts.whyNotOpened) {
        sentences << m_parts.whyNotOpened();
    }
    const bool written = m_parts.wasWrittenTo && m_parts.wasWrittenTo(devicePath());
    if (written) {
        sentences << wordsForWrittenTo();
    }
    if (cardIsUnread()) {
        sentences << unreadCardWords();
    }
    if (m_readsAsErased && itemCount() == 0) {
        sentences << erasedCardWords();
    }
    if (m_memory->keeper() && !m_memory->keeper()->error().isEmpty()) {
        sentences << tr("The search could not be remembered: %1.").arg(m_memory->keeper()->error());
    }
    sentences.removeAll(QString());
    searchEndLabel->setText(sentences.join(u' '));
    const QString picture = end.isFlawless() && !written ? QStringLiteral("ok") : QStringLiteral("info");
    const int edge = searchEndIcon->minimumWidth();
    searchEndIcon->setPixmap(ownIcon(picture).pixmap(edge, edge));
    tryBadSectorsButton->setVisible(end.unreadable != 0);
    m_goOnButton->setVisible(end.canGoOn() && onScanScreen());
    searchEndBar->setVisible(!sentences.isEmpty());
    showSearchSum();
}

// "810 photos, 875 MB, 12 s, all complete", as far as it is known.
void MyTableController::showSearchSum() {
    const auto found = static_cast<std::uint64_t>(itemCount());
    QStringList parts;
    const FoundFacets& facets = m_looks->facets();
    if (m_searchEnded && found > 0 && facets.size() == found) {
        parts << (activeSet() == ControlSet::Sig ? countOfItems(found)
                  : found == 1                   ? tr("1 photo")
                               : tr("%1 photos", nullptr, pluralOf(found)).arg(numberForPeople(found)));
        if (m_looks->allExamined()) {
            parts << sizeForPeople(facets.bytes(), 0);
        }
        if (m_searchMilliseconds > 0) {
            parts << durationForPeople(std::max<qint64>(1, m_searchMilliseconds / 1000));
        }
        if (m_looks->allComplete()) {
            parts << tr("all complete");
        }
    }
    searchSumLabel->setText(parts.join(QStringLiteral(", ")));
    offerMending();
}

std::unique_ptr<SectorReader> MyTableController::openForSearch(const QString& device) {
    if (!m_parts.openMedium) {
        return nullptr;
    }
    auto reader = m_parts.openMedium(device);
    if (!reader || !m_mayBeErased.exchange(false)) {
        return reader;
    }
    if (looksErased(*reader, reader->mediumSectors())) {
        later([this] { showThatItWasErased(); });
    }
    return reader->seek(0) ? std::move(reader) : m_parts.openMedium(device);
}

// In plain words, and nobody is held up: who likes may let it go on.
void MyTableController::showThatItWasErased() {
    m_readsAsErased = true;
    searchEndLabel->setText(erasedCardWords() + u' ' + tr("Press Stop, or let the search go on."));
    const int edge = searchEndIcon->minimumWidth();
    searchEndIcon->setPixmap(ownIcon(QStringLiteral("info")).pixmap(edge, edge));
    tryBadSectorsButton->hide();
    m_goOnButton->hide();
    searchSumLabel->clear();
    searchEndBar->show();
}

// From now on previews, badges and saving ask the medium for them as if for the first time.
void MyTableController::tryBadSectorsAgain() {
    forgetRefusals();
    beginLooks();
    tryBadSectorsButton->hide();
}

// A search that took long has an end that somebody waits for elsewhere.
void MyTableController::tellWhoLooksElsewhere() {
    if (m_parts.notify && !window->isActiveWindow() && m_clock.elapsed() >= m_parts.longSearch.count()) {
        m_parts.notify(searchEndHeadline(searchEnd()), countOfItems(itemCount()));
    }
}

PanelWords MyTableController::endPanelWords(const PanelWords& drawn) const {
    const SearchEnd& end = searchEnd();
    PanelWords words;
    words.picture = end.isFlawless() ? QStringLiteral("ok") : QStringLiteral("info");
    words.heading = searchEndHeadline(end);
    const EmptyWords empty = nothingFound(searchWish(), end);
    words.text = itemCount() > 0 ? drawn.text : empty.title + QStringLiteral(". ") + empty.advice;
    if (const QString advice = searchEndAdvice(end); !advice.isEmpty() && itemCount() > 0) {
        words.text += QStringLiteral("\n\n") + advice;
    }
    return words;
}

SearchWish MyTableController::searchWish() const {
    const ControlSet set = activeSet();
    SearchWish wish;
    wish.photo = set == ControlSet::Photo;
    wish.entireDisk = m_inputs.range[static_cast<std::size_t>(set)].entireDisk == 1;
    wish.allTypes =
        wish.photo || std::all_of(nsCheckedListDataObject.cbegin(), nsCheckedListDataObject.cend(), isTicked);
    wish.thorough = !wish.photo || m_inputs.thorough[static_cast<std::size_t>(set)];
    return wish;
}

// Whatever the list is empty of: a search that goes on, one that has ended, or a choice of what to show.
void MyTableController::showEmptyResults() {
    const ControlSet set = activeSet();
    ImageBrowserView* const browser = browserOf(set);
    const bool photo = set == ControlSet::Photo;
    const std::size_t found = itemCount();
    EmptyWords words;
    if (found > 0 && browser->shownCount() == 0) {
        words = nothingShown(
            found, {!m_looks->showsEveryKind(), !m_looks->shownType().isEmpty(), m_looks->isPicked()});
    } else if (m_searchEnded) {
        words = nothingFound(searchWish(), searchEnd());
    } else {
        words = nothingYet(photo);
    }
    browser->setEmptyState(ownIcon(photo ? QStringLiteral("mode-photo") : QStringLiteral("mode-files")),
                           words.title, words.advice);
    const bool onlyFound = foundTypesOnly->isChecked() && !resultRows().isEmpty();
    idSigTableView->setEmptyState({}, onlyFound ? tr("None found") : tr("No types"),
                                  onlyFound ? tr("Nothing of the types that you ticked was found.")
                                            : tr("Go back and tick the types to search for."));
}

}  // namespace vantor
