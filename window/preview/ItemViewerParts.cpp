// The viewer's parts, and the keys that work them.
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolButton>

#include "window/preview/ItemViewer.h"
#include "window/preview/MendPane.h"
#include "window/preview/MovieView.h"
#include "window/preview/ZoomPicture.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

const char* const kLooks =
    "QLabel { color: #eef1f6; background: transparent; }"
    "QLabel#viewerTitle { font-weight: 600; }"
    "QLabel#viewerPlace, QLabel#viewerZoom, QLabel#viewerNote, QLabel#viewerMendWords { color: #b6c0d0; }"
    "QToolButton { color: #eef1f6; background: transparent; border: 1px solid transparent;"
    " border-radius: 6px; padding: 4px 10px; }"
    "QToolButton:hover { background: #2b323d; }"
    "QToolButton:pressed { background: #3a4452; }"
    "QToolButton:checked { background: #2b323d; border-color: #55617a; }"
    "QToolButton:focus { border-color: #8fb4ff; }"
    "QToolButton:disabled { color: #6b7687; }"
    // Their icons and sliders are those of the desktop's look, so their ground is too.
    "vantor--MovieControls { background: palette(alternate-base); border-radius: 6px; }"
    "vantor--MovieControls QLabel { color: palette(window-text); }"
    "vantor--MovieControls QToolButton { border: 1px solid transparent; padding: 2px; }"
    "vantor--MovieControls QToolButton:hover { background: palette(mid); }"
    "QToolButton#viewerBack, QToolButton#viewerOn { font-size: 24pt; padding: 12px 8px; }"
    "QScrollArea#viewerFactsPane, QLabel#viewerFacts { background: #1e242d; border: none; }";
constexpr double kZoomStep = 1.25;
constexpr int kPush = 8 * theme::kUnit;
constexpr int kFactsWidth = 34 * theme::kUnit;
constexpr std::int64_t kSeekMs = 5000;

}  // namespace

ItemViewer::ItemViewer(QWidget* over) : QWidget(over), m_over(over) {
    setObjectName(QStringLiteral("itemViewer"));
    setAccessibleName(tr("Viewer"));
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(QLatin1String(kLooks));
    m_head = makeHead();
    auto* const stage = makeStage();
    makeFactsPane();
    auto* const middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(stage, 1);
    middle->addWidget(m_factsPane);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_head);
    all->addLayout(middle, 1);
    makeShortcuts();
    m_over->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
        // What goes on below takes the keyboard now and then.
        if (isVisible() && now != nullptr && now != this && now->window() == window() && !isAncestorOf(now)) {
            setFocus();
        }
    });
    hide();
}

QToolButton* ItemViewer::makeButton(const char* name, const QString& text, const QString& meaning) {
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(meaning);
    button->setAccessibleName(meaning);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QWidget* ItemViewer::makeHead() {
    auto* const head = new QWidget(this);
    auto* const row = new QHBoxLayout(head);
    row->setContentsMargins(theme::kUnit, theme::kUnit / 2, theme::kUnit, theme::kUnit / 2);
    const auto label = [&](const char* name) {
        auto* const made = new QLabel(head);
        made->setObjectName(QLatin1String(name));
        made->setTextFormat(Qt::PlainText);
        return made;
    };
    auto* const close = makeButton("viewerClose", tr("‹ Results"), tr("Back to the results (Escape)"));
    m_title = label("viewerTitle");
    m_placeLabel = label("viewerPlace");
    m_zoomLabel = label("viewerZoom");
    m_zoomLabel->setAlignment(Qt::AlignCenter);
    m_zoomLabel->setMinimumWidth(m_zoomLabel->fontMetrics().horizontalAdvance(QStringLiteral("1,600 %")));
    m_fit = makeButton("viewerFit", tr("Fit"), tr("Whole picture (0)"));
    m_actual = makeButton("viewerActual", tr("1:1"), tr("Actual size (1)"));
    m_smaller = makeButton("viewerSmaller", tr("−"), tr("Smaller (−)"));
    m_larger = makeButton("viewerLarger", tr("+"), tr("Larger (+)"));
    m_full = makeButton("viewerFull", tr("Full Screen"), tr("Full screen (F11)"));
    m_tickButton = makeButton("viewerTick", tr("Tick"), tr("Tick for saving (Insert, Delete)"));
    m_tickButton->setCheckable(true);
    connect(m_tickButton, &QToolButton::clicked, this, &ItemViewer::tickWanted);
    m_factsButton = makeButton("viewerFactsButton", tr("Facts"), tr("Show the facts beside it (I)"));
    m_fit->setCheckable(true);
    m_actual->setCheckable(true);
    m_factsButton->setCheckable(true);
    m_factsButton->setChecked(true);
    row->addWidget(close);
    row->addWidget(m_title);
    row->addWidget(m_placeLabel);
    row->addStretch();
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             m_tickButton, m_smaller, m_zoomLabel, m_larger, m_fit, m_actual, m_full, m_factsButton}) {
        row->addWidget(widget);
    }
    connect(close, &QToolButton::clicked, this, &ItemViewer::leave);
    connect(m_fit, &QToolButton::clicked, this, [this] {
        m_picture->fit();
        showZoom();
    });
    connect(m_actual, &QToolButton::clicked, this, [this] {
        m_picture->showActualSize();
        showZoom();
    });
    connect(m_smaller, &QToolButton::clicked, this, [this] { m_picture->zoomBy(1 / kZoomStep); });
    connect(m_larger, &QToolButton::clicked, this, [this] { m_picture->zoomBy(kZoomStep); });
    connect(m_full, &QToolButton::clicked, this, &ItemViewer::toggleFullScreen);
    connect(m_factsButton, &QToolButton::toggled, this, [this] { showFullScreenState(); });
    return head;
}

QWidget* ItemViewer::makeStage() {
    auto* const place = new QWidget(this);
    m_stage = new QStackedWidget(place);
    m_picture = new ZoomPicture(m_stage);
    m_movie = new MovieView(m_stage);
    m_movie->setObjectName(QStringLiteral("viewerMovie"));
    m_movie->setAccessibleName(tr("Movie"));
    m_movie->setFocusPolicy(Qt::NoFocus);  // its keys are the viewer's
    m_movie->setRoomy();
    m_stage->addWidget(m_picture);
    m_stage->addWidget(m_movie);
    m_note = new QLabel(place);
    m_note->setObjectName(QStringLiteral("viewerNote"));
    m_note->setAlignment(Qt::AlignCenter);
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_mend = new MendPane(place);
    m_back = makeButton("viewerBack", tr("‹"), tr("Item before this one (Left)"));
    m_on = makeButton("viewerOn", tr("›"), tr("Next item (Right)"));
    auto* const row = new QHBoxLayout;
    row->addWidget(m_back);
    row->addWidget(m_stage, 1);
    row->addWidget(m_on);
    auto* const column = new QVBoxLayout(place);
    column->setContentsMargins(theme::kUnit, 0, theme::kUnit, theme::kUnit);
    column->addLayout(row, 1);
    column->addWidget(m_note);
    column->addWidget(m_mend);
    connect(m_back, &QToolButton::clicked, this, [this] { emit stepWanted(-1); });
    connect(m_on, &QToolButton::clicked, this, [this] { emit stepWanted(1); });
    connect(m_picture, &ZoomPicture::zoomChanged, this, &ItemViewer::showZoom);
    return place;
}

void ItemViewer::makeFactsPane() {
    m_factsText = new QLabel(this);
    m_factsText->setObjectName(QStringLiteral("viewerFacts"));
    m_factsText->setTextFormat(Qt::RichText);
    m_factsText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_factsText->setWordWrap(true);
    m_factsText->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_factsText->setContentsMargins(2 * theme::kUnit, theme::kUnit, 2 * theme::kUnit, theme::kUnit);
    m_factsPane = new QScrollArea(this);
    m_factsPane->setObjectName(QStringLiteral("viewerFactsPane"));
    m_factsPane->setAccessibleName(tr("Facts"));
    m_factsPane->setWidget(m_factsText);
    m_factsPane->setWidgetResizable(true);
    m_factsPane->setFixedWidth(kFactsWidth);
    m_factsPane->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ItemViewer::makeShortcuts() {
    const auto on = [this](const QKeySequence& keys, auto&& action) {
        auto* const shortcut = new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    const auto step = [this](int steps) { return [this, steps] { emit stepWanted(steps); }; };
    on(Qt::Key_Left, step(-1));
    on(Qt::Key_Right, step(1));
    on(Qt::Key_PageUp, step(-1));
    on(Qt::Key_PageDown, step(1));
    on(Qt::Key_Home, [this] { emit endWanted(false); });
    on(Qt::Key_End, [this] { emit endWanted(true); });
    on(Qt::Key_Escape, [this] { escape(); });
    on(Qt::Key_F11, [this] { toggleFullScreen(); });
    on(Qt::Key_B, [this] { m_mend->turn(); });
    on(Qt::Key_Insert, [this] { emit tickWanted(true); });
    on(Qt::Key_Delete, [this] { emit tickWanted(false); });
    on(Qt::Key_I, [this] { m_factsButton->toggle(); });
    on(Qt::Key_0, [this] { m_picture->fit(); });
    on(Qt::Key_1, [this] { m_picture->showActualSize(); });
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Plus)}) {
        on(keys, [this] { m_picture->zoomBy(kZoomStep); });
    }
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Minus), QKeySequence(Qt::CTRL | Qt::Key_Minus)}) {
        on(keys, [this] { m_picture->zoomBy(1 / kZoomStep); });
    }
    on(Qt::SHIFT | Qt::Key_Left, [this] { moveWithin(-1); });
    on(Qt::SHIFT | Qt::Key_Right, [this] { moveWithin(1); });
    on(Qt::SHIFT | Qt::Key_Up, [this] { m_picture->push({0, kPush}); });
    on(Qt::SHIFT | Qt::Key_Down, [this] { m_picture->push({0, -kPush}); });
}

void ItemViewer::moveWithin(int direction) {
    if (m_movie->movie() != nullptr) {
        m_movie->seekBy(direction * kSeekMs);
    } else {
        m_picture->push({static_cast<double>(-direction * kPush), 0});
    }
}

}  // namespace vantor
