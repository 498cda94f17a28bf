// Searches that are remembered: what is asked for, kept of each, and marked again. GoingOn.cpp goes on with
// them.
#include <QCheckBox>
#include <QGroupBox>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "media/MediumTargets.h"
#include "results/RecoveryMode.h"
#include "window/MyTableController.h"
#include "window/keeping/KeepingBox.h"
#include "window/keeping/KeptSearchBar.h"
#include "window/widgets/Alerts.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kMarksSettleMilliseconds = 1000;
constexpr std::chrono::milliseconds kLookForCardAgain{250};

}  // namespace

void MyTableController::setUpKeeping() {
    m_memory = std::make_unique<SearchMemory>(m_parts.stateFolder);
    m_keptBar = new KeptSearchBar(body);
    bodyLayout->insertWidget(bodyLayout->indexOf(mediaScreen), m_keptBar);
    m_keptBar->hide();
    // One card with a line for each thing that may be wanted of a search.
    m_searchOptions = new QGroupBox(tr("Search options"), body);
    m_searchOptions->setObjectName(QStringLiteral("searchOptions"));
    bodyLayout->insertWidget(bodyLayout->indexOf(thoroughBox), m_searchOptions);
    m_keepingBox = new KeepingBox(m_searchOptions);
    auto* const options = new QVBoxLayout(m_searchOptions);
    options->setContentsMargins(0, theme::kUnit, 0, theme::kUnit);
    options->setSpacing(KeepingBox::kOptionGap);
    options->addWidget(thoroughBox);
    options->addWidget(m_keepingBox);
    thoroughBox->setMinimumHeight(m_keepingBox->lineHeight());
    // The room that is left stays below.
    bodyLayout->setStretchFactor(m_searchOptions, 1);
    bodyLayout->setAlignment(m_searchOptions, Qt::AlignTop);
    m_keepingBox->hide();
    m_goOnButton = new QPushButton(tr("&Go On"), searchEndBar);
    m_goOnButton->setObjectName(QStringLiteral("goOnButton"));
    m_goOnButton->setAccessibleName(tr("Go on with the search"));
    m_goOnButton->setToolTip(tr("Search the rest of the medium; what was read is not searched again"));
    searchEndLayout->addWidget(m_goOnButton);
    const std::pair<QWidget*, QWidget*> order[] = {
        {openImageButton, m_keptBar->goOnButton},
        {m_keptBar->goOnButton, m_keptBar->lookButton},
        {m_keptBar->lookButton, m_keptBar->forgetButton},
        {_Thro_Mode_Chk, m_keepingBox->rememberBox},
        {m_keepingBox->rememberBox, m_keepingBox->copyBox},
        {m_keepingBox->copyBox, m_keepingBox->copyPlaceButton},
        {tryBadSectorsButton, m_goOnButton},
    };
    for (const auto& [first, second] : order) {
        QWidget::setTabOrder(first, second);
    }
    connect(m_goOnButton, &QPushButton::clicked, this, &MyTableController::goOn);
    m_cardBackLater.setSingleShot(true);
    m_cardBackLater.setInterval(kLookForCardAgain);
    connect(&m_cardBackLater, &QTimer::timeout, this, &MyTableController::goOnWithCardPutBack);
    connect(m_keptBar->goOnButton, &QPushButton::clicked, this, [this] { goOnWithKept(false); });
    connect(m_keptBar->lookButton, &QPushButton::clicked, this, [this] { goOnWithKept(true); });
    connect(m_keptBar->forgetButton, &QPushButton::clicked, this, [this] {
        m_memory->forgetLast();
        showKeeping();
        homeOfScreen()->setFocus();
    });
    connect(m_keepingBox->copyPlaceButton, &QPushButton::clicked, this, &MyTableController::chooseCopyPlace);
    connect(m_keepingBox->copyBox, &QCheckBox::clicked, this, [this](bool wanted) {
        m_keepingBox->copyBox->setChecked(wanted &&
                                          (!m_keepingBox->copyPath().isEmpty() || chooseCopyPlace()));
    });
    connect(m_desk.get(), &SavingDesk::marksChanged, this, &MyTableController::keepMarks);
    m_marksChanged.setSingleShot(true);
    m_marksChanged.setInterval(kMarksSettleMilliseconds);
    connect(&m_marksChanged, &QTimer::timeout, this, &MyTableController::keepMarks);
}

// The offer on the first screen, the boxes on the one of the range.
void MyTableController::showKeeping() {
    const bool onRange = screen_counter == 1;
    m_keepingBox->offer(onRange && m_memory->hasFolder(), onRange && m_parts.openSource);
    if (onRange) {
        m_keepingBox->setReplaces(m_memory->last() != nullptr);
    }
    m_searchOptions->setVisible(!thoroughBox->isHidden() || !m_keepingBox->isHidden());
    // Explanations begin below one another.
    const int tick = _Thro_Mode_Chk->sizeHint().width() + thoroughLayout->spacing();
    thoroughLabel->setMinimumWidth(m_keepingBox->copyBox->sizeHint().width() - tick);
    if (screen_counter != 0) {
        m_memory->letGo();
    }
    const SearchRecord* const last = screen_counter == 0 ? m_memory->last() : nullptr;
    m_keptBar->setVisible(last != nullptr);
    if (last != nullptr) {
        m_keptBar->offer(*last);
    }
}

SearchWishes MyTableController::wishesOfNow() const {
    const auto set = static_cast<std::size_t>(activeSet());
    const RangeControls& range = m_inputs.range[set];
    SearchWishes wishes;
    wishes.mode = Recovery_MODE;
    wishes.thorough = m_inputs.thorough[set];
    wishes.entire = range.entireDisk == 1;
    if (!wishes.entire) {
        wishes.start = range.startText;
        wishes.end = range.endText;
    }
    if (wishes.mode != kPhotoMode) {
        QStringList left;
        for (const FileTypeRow& row : nsCheckedListDataObject) {
            (isTicked(row) ? wishes.types : left) << row[QStringLiteral("Extension")].toString();
        }
        for (const QString& type : left) {
            wishes.types.removeAll(type);
        }
        wishes.types.removeDuplicates();
        if (left.isEmpty()) {
            wishes.types.clear();  // all there are
        }
    }
    wishes.catalogueSum = catalogueSum();
    return wishes;
}

QString MyTableController::pathOfMedium(const QString& identifier) const {
    const auto targets = m_parts.media->targets();
    const auto target = targets ? targets->find(identifier) : std::nullopt;
    return target ? target->path : identifier;
}

// Before every search.
void MyTableController::keepThisSearch() {
    const bool goesOn = m_goingOn.has_value();
    SearchRecord record = std::exchange(m_goingOn, std::nullopt).value_or(SearchRecord());
    const SearchWishes wishes = wishesOfNow();
    stopBefore(goesOn && m_onlyLook ? std::optional(record.reached) : std::nullopt);
    if (goesOn && record.wishes != wishes) {
        runAlert({QStringLiteral("\n") + tr("The search begins anew."),
                  tr("It was begun with other lists of signatures than this version of the program has.")},
                 window);
        record = SearchRecord();
    }
    bool remember = m_keepingBox->rememberBox->isChecked();
    if (remember && m_parts.isOnMedium && m_parts.isOnMedium(m_memory->folder(), devicePath())) {
        tellFailure(
            tr("This search is not remembered."),
            tr("Your home folder lies on the medium that is to be searched; writing there would overwrite "
               "what is still to be found."),
            window);
        remember = false;
    }
    const RangeControls& range = m_inputs.range[static_cast<std::size_t>(activeSet())];
    record.wishes = wishes;
    record.medium = pathOfMedium(range.diskIdentifier);
    record.sectors = _sectors_val->text().toULongLong();
    const QString name = (Recovery_MODE == kPhotoMode ? _vol_name_val : _vol_name_val_Sig)->text();
    record.notes.name = name.isEmpty() ? range.diskIdentifier : name;
    record.notes.copy = m_copyPath;
    if (goesOn) {
        // Numbers run on from search to search, and this is the one before.
        GND_Image_number = record.notes.generalNumber;
        THD_Image_number = record.notes.thoroughNumber;
    }
    record.notes.generalNumber = GND_Image_number;
    record.notes.thoroughNumber = THD_Image_number;
    m_savedBefore = record.notes.saved;
    m_tickedBefore = record.notes.ticked;
    m_selectedBefore = record.notes.selected;
    keepSearch(m_memory->begin(std::move(record), remember, [this] { return itemCount(); }));
}

namespace {

// The places among them that are listed, which they lose.
std::vector<std::uint64_t> takeListed(std::vector<std::uint64_t>& places, std::size_t count) {
    const auto end =
        std::find_if(places.begin(), places.end(), [count](std::uint64_t place) { return place >= count; });
    std::vector<std::uint64_t> listed(places.begin(), end);
    places.erase(places.begin(), end);
    return listed;
}

std::vector<std::uint64_t> withPlaces(const QList<qsizetype>& indexes,
                                      const std::vector<std::uint64_t>& notListed) {
    std::vector<std::uint64_t> places(indexes.begin(), indexes.end());
    places.insert(places.end(), notListed.begin(), notListed.end());
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

}  // namespace

// What was saved, ticked and selected in the search that is gone on with is so again as soon as it is listed
// again.
void MyTableController::markAsBefore() {
    const std::size_t count = itemCount();
    if (const auto saved = takeListed(m_savedBefore, count); !saved.empty()) {
        m_desk->markSaved(saved);
    }
    if (const auto ticked = takeListed(m_tickedBefore, count); !ticked.empty()) {
        tickItems({ticked.begin(), ticked.end()}, true);
    }
    // All at once, unless the user has selected something else meanwhile; the browser has to list them, too.
    ImageBrowserView* const browser = browserOf(activeSet());
    if (!m_selectedBefore.empty() &&
        m_selectedBefore.back() < static_cast<std::uint64_t>(browser->listedCount())) {
        if (browser->selectedCount() == 0) {
            browser->selectIndexes({m_selectedBefore.begin(), m_selectedBefore.end()});
        }
        m_selectedBefore.clear();
    }
}

// A file is not written for each of many clicks.
void MyTableController::keepMarksSoon() {
    m_marksChanged.start();
}

void MyTableController::keepMarks() {
    m_marksChanged.stop();
    const std::vector<std::uint64_t> saved = m_desk->marks().savedPlaces();
    m_memory->setMarks(withPlaces({saved.begin(), saved.end()}, m_savedBefore),
                       withPlaces(m_ticks.all(), m_tickedBefore),
                       withPlaces(browserOf(activeSet())->selectionIndexes(), m_selectedBefore));
    writeKeptSearch();
}

SearchRecord MyTableController::recordOfNow() {
    if (m_marksChanged.isActive()) {
        keepMarks();
    }
    return m_memory->keeper()->record(refusals());
}

// While a search runs, it does so itself.
void MyTableController::writeKeptSearch() {
    if (m_memory->keeper() && !scanRunning()) {
        m_memory->keeper()->write(refusals());
    }
}

// At the end of a search, whose thread waits for the user or is gone.
void MyTableController::keepSearchEnd() {
    if (!m_memory->keeper()) {
        return;
    }
    m_memory->setEnded(searchEnd().outcome == PassOutcome::Completed && !searchEnd().brokenOff());
    m_memory->keeper()->write(refusals());
}

}  // namespace vantor
