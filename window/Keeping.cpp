// Searches that are gone on with: after a stop, and at the next start of the program where they are
// remembered.
#include <QCheckBox>
#include <QFileInfo>
#include <QFrame>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "media/MediumTargets.h"
#include "results/RecoveryMode.h"
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/keeping/KeepingBox.h"
#include "window/keeping/KeptSearchBar.h"
#include "window/widgets/Alerts.h"
#include "window/widgets/AskingTurn.h"
#include "window/widgets/Sheet.h"

namespace vantor {

namespace {

constexpr int kMarksSettleMilliseconds = 1000;
// A card that answers at once is known before anybody could read what is said meanwhile.
constexpr std::chrono::milliseconds kUnnoticed{400};
constexpr std::chrono::milliseconds kLookForCardAgain{250};

}  // namespace

void MyTableController::setUpKeeping() {
    m_searchMemory = std::make_unique<SearchMemory>(m_parts.stateFolder);
    m_keptBar = new KeptSearchBar(body);
    bodyLayout->insertWidget(bodyLayout->indexOf(mediaScreen), m_keptBar);
    m_keptBar->hide();
    // One card with a line for each thing that may be wanted of a search.
    m_searchOptions = new QFrame(body);
    m_searchOptions->setObjectName(QStringLiteral("searchOptions"));
    m_searchOptions->setProperty("role", QStringLiteral("card"));
    bodyLayout->insertWidget(bodyLayout->indexOf(thoroughBox), m_searchOptions);
    m_keepingBox = new KeepingBox(m_searchOptions);
    auto* const options = new QVBoxLayout(m_searchOptions);
    options->setContentsMargins(0, 0, 0, 0);
    options->setSpacing(0);
    options->addWidget(thoroughBox);
    options->addWidget(m_keepingBox);
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
        m_searchMemory->forgetLast();
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
    m_keepingBox->offer(onRange && m_searchMemory->hasFolder(), onRange && m_parts.openSource);
    m_searchOptions->setVisible(!thoroughBox->isHidden() || !m_keepingBox->isHidden());
    // Explanations begin below one another.
    const int tick = _Thro_Mode_Chk->sizeHint().width() + thoroughLayout->spacing();
    thoroughLabel->setMinimumWidth(m_keepingBox->copyBox->sizeHint().width() - tick);
    if (screen_counter != 0) {
        m_searchMemory->letGo();
    }
    const SearchRecord* const last = screen_counter == 0 ? m_searchMemory->last() : nullptr;
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
    if (remember && m_parts.isOnMedium && m_parts.isOnMedium(m_searchMemory->folder(), devicePath())) {
        runAlert(
            {QStringLiteral("\n") + tr("This search is not remembered."),
             tr("Your home folder lies on the medium that is to be searched; writing there would overwrite "
                "what is still to be found.")},
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
    keepSearch(m_searchMemory->begin(std::move(record), remember, [this] { return itemCount(); }));
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
    // All at once, unless the user has selected something else meanwhile.
    if (!m_selectedBefore.empty() && m_selectedBefore.back() < count) {
        ImageBrowserView* const browser = browserOf(activeSet());
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
    m_searchMemory->setMarks(withPlaces({saved.begin(), saved.end()}, m_savedBefore),
                             withPlaces(m_ticks.all(), m_tickedBefore),
                             withPlaces(browserOf(activeSet())->selectionIndexes(), m_selectedBefore));
    writeKeptSearch();
}

SearchRecord MyTableController::recordOfNow() {
    if (m_marksChanged.isActive()) {
        keepMarks();
    }
    return m_searchMemory->keeper()->record(refusals());
}

// While a search runs, it does so itself.
void MyTableController::writeKeptSearch() {
    if (m_searchMemory->keeper() && !scanRunning()) {
        m_searchMemory->keeper()->write(refusals());
    }
}

// At the end of a search, whose thread waits for the user or is gone.
void MyTableController::keepSearchEnd() {
    if (!m_searchMemory->keeper()) {
        return;
    }
    m_searchMemory->setEnded(searchEnd().outcome == PassOutcome::Completed && !searchEnd().brokenOff());
    m_searchMemory->keeper()->write(refusals());
}

// Begins anew, with what is known: names, numbers and order are those of a search that nobody stopped.
void MyTableController::goOn() {
    if (scanShown() || session || !m_searchMemory->keeper()) {
        return;
    }
    SearchRecord record = recordOfNow();
    // The list is emptied only when there is something to go on with.
    const Likeness likeness = likenessOf(_disk_identifier->text(), record);
    if (m_ending) {
        return;
    }
    if (likeness != Likeness::Same) {
        runAlert({QStringLiteral("\n") + tr("The search cannot go on."),
                  likeness == Likeness::Another
                      ? tr("This is not the medium that was searched. Put the right one in "
                           "and try again.")
                      : tr("The medium cannot be opened. Put it back in and try again.")},
                 window);
        return;
    }
    goOnWith(std::move(record));
}

// The card is back that was taken out in the middle of a search: it goes on by itself, and nothing is said of
// any other card. What the user has before him is finished first, such as the alert that the card is gone.
void MyTableController::goOnWithCardPutBack() {
    if (m_ending || !onScanScreen() || !m_searchMemory->keeper()) {
        return;
    }
    if (scanShown() || session || m_desk->isRunning() || AskingTurn::isTaken()) {
        m_cardBackLater.start();
        return;
    }
    if (!searchEnd().mediumGone || !searchEnd().canGoOn()) {
        return;
    }
    SearchRecord record = recordOfNow();
    if (likenessOf(_disk_identifier->text(), record) == Likeness::Same && !m_ending) {
        goOnWith(std::move(record));
    }
}

void MyTableController::goOnWith(SearchRecord record) {
    m_goingOn = std::move(record);
    m_onlyLook = false;
    if (Recovery_MODE == kPhotoMode) {
        backToRange();
        nextFromRange();
    } else {
        backToFileTypes();
        nextFromFileTypes();
    }
    m_goingOn.reset();
    showWhereWeAre();
}

void MyTableController::goOnWithKept(bool onlyLook) {
    if (m_searchMemory->last() == nullptr) {
        showKeeping();
        return;
    }
    const SearchRecord kept = *m_searchMemory->last();
    if (!chooseMediumOf(kept)) {
        return;
    }
    const SearchWishes& wishes = kept.wishes;
    m_keepingBox->rememberBox->setChecked(true);
    m_goingOn = kept;
    m_onlyLook = onlyLook && !kept.notes.ended && !isReadToItsEnd(kept);
    setMode(wishes.mode);
    nextFromMedia();
    if (!wishes.entire) {
        RangePanel& panel = activeRange();
        panel.chooseSectorRange();
        panel.field(RangeField::Start)->setText(wishes.start);
        panel.field(RangeField::End)->setText(wishes.end);
    }
    if (wishes.mode == kPhotoMode) {
        _Thro_Mode_Chk->setChecked(wishes.thorough);
    }
    const QString& copy = kept.notes.copy;
    const QString medium = pathOfMedium(_disk_identifier->text());
    const bool copyWanted = !copy.isEmpty() && m_parts.openSource &&
                            QFileInfo(copy).canonicalFilePath() != QFileInfo(medium).canonicalFilePath();
    if (copyWanted && !acceptCopyPlace(copy)) {
        m_goingOn.reset();  // without its copy only if the user wants that
        showWhereWeAre();
        return;
    }
    nextFromRange();
    if (wishes.mode != kPhotoMode && screen_counter == 2) {
        _Thro_Mode_Chk_SIG->setChecked(wishes.thorough);
        for (FileTypeRow& row : nsCheckedListDataObject) {
            row[QStringLiteral("State")] =
                wishes.types.isEmpty() || wishes.types.contains(row[QStringLiteral("Extension")].toString());
        }
        fileTypeRowsChanged();
        nextFromFileTypes();
    }
    m_goingOn.reset();
    showWhereWeAre();
}

// Whether the medium behind the row is the one of the search. Reads some of its sectors.
MyTableController::Likeness MyTableController::likenessOf(const QString& identifier,
                                                          const SearchRecord& record) {
    const auto found = std::make_shared<Likeness>(Likeness::CannotBeOpened);
    session = true;
    {
        const SheetSession sheet(LoadDisk_Window, controlPanel, exitButton, kUnnoticed);
        runBeside([found, open = m_parts.openMedium, identifier, samples = record.samples] {
            const auto medium = open ? open(QStringLiteral("/dev/r") + identifier) : nullptr;
            if (medium) {
                *found = holdsSamples(*medium, samples) ? Likeness::Same : Likeness::Another;
            }
        });
    }
    session = false;
    return m_ending ? Likeness::CannotBeOpened : *found;
}

// The identifiers of the listed media of its size, where it was first.
QStringList MyTableController::mediaLike(const SearchRecord& record) const {
    QStringList candidates;
    for (const auto& medium : nsMutaryOfDataObject) {
        if (medium && medium->nsStrSectors.toULongLong() == record.sectors) {
            const QString& identifier = medium->nsStrDiskIdentifier;
            candidates.insert(pathOfMedium(identifier) == record.medium ? 0 : candidates.size(), identifier);
        }
    }
    return candidates;
}

// Selects the medium in the list; false after saying why it cannot be had.
bool MyTableController::chooseMediumOf(const SearchRecord& record) {
    const QString what =
        QStringLiteral("“%1”, %2").arg(record.notes.name, sizeForPeople(record.sectors * kSectorBytes));
    if (QFileInfo(record.medium).isFile()) {
        openImages({record.medium});
    }
    QStringList candidates = mediaLike(record);
    if (candidates.isEmpty() && QFileInfo(record.notes.copy).isFile()) {
        openImages({record.notes.copy});
        candidates = mediaLike(record);
    }
    QString trouble = tr("The medium of this search is not there.");
    QString advice = tr("It was %1. Put it in, or open its image, and try again.").arg(what);
    for (const QString& identifier : candidates) {
        const Likeness likeness = likenessOf(identifier, record);
        if (m_ending) {
            return false;
        }
        if (likeness == Likeness::Same) {
            selectMedium(identifier);
            return true;
        }
        if (likeness == Likeness::Another) {
            trouble = tr("This is not the medium that was searched.");
            advice = tr("It holds something else than %1 did. Put the right one in and try again.").arg(what);
        } else {
            trouble = tr("The medium of this search cannot be opened.");
            advice = m_parts.whyNotOpened ? m_parts.whyNotOpened() : QString();
        }
    }
    runAlert({QStringLiteral("\n") + trouble, advice}, window);
    return false;
}

}  // namespace vantor
