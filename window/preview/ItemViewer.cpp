// What the viewer shows, and how it covers the window.
#include "window/preview/ItemViewer.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>

#include "window/preview/MovieView.h"
#include "window/preview/ZoomPicture.h"

namespace vantor {

void ItemViewer::open() {
    coverAll();
    show();
    raise();
    setFocus();
}

void ItemViewer::leave() {
    if (!isVisible()) {
        return;
    }
    if (m_fullScreen) {
        toggleFullScreen();
    }
    setMovie(nullptr);
    m_picture->begin({}, {});
    hide();
    emit left();
}

void ItemViewer::escape() {
    if (m_fullScreen) {
        toggleFullScreen();
    } else {
        leave();
    }
}

void ItemViewer::begin(const QString& title, const QString& place, const QImage& standIn, QSize full) {
    setMovie(nullptr);
    m_title->setText(title);
    m_picture->setAccessibleName(tr("Picture of %1").arg(title));
    setPlace(place);
    setNote({});
    m_mayBeLarger = false;
    m_picture->begin(standIn, full);
}

void ItemViewer::setPlace(const QString& place) {
    m_placeLabel->setText(place);
}

void ItemViewer::setPicture(const QImage& picture, QSize full, bool mayBeLarger) {
    m_mayBeLarger = mayBeLarger;
    m_picture->sharpen(picture, full);
}

void ItemViewer::setMovie(std::unique_ptr<Movie> movie) {
    m_movie->setMovie(std::move(movie));
    const bool plays = m_movie->movie() != nullptr;
    m_stage->setCurrentWidget(plays ? static_cast<QWidget*>(m_movie) : m_picture);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{m_smaller, m_zoomLabel, m_larger, m_fit, m_actual}) {
        widget->setVisible(!plays);
    }
}

void ItemViewer::setFacts(const QList<ViewerFact>& facts) {
    if (facts == m_facts) {
        return;
    }
    m_facts = facts;
    QString text;
    QStringList spoken;
    for (const ViewerFact& fact : facts) {
        text += QStringLiteral(
                    "<p style='margin-top:0;margin-bottom:10px'>"
                    "<span style='color:#b6c0d0'>%1</span><br>%2</p>")
                    .arg(fact.name.toHtmlEscaped(), fact.value.toHtmlEscaped());
        spoken << QStringLiteral("%1: %2").arg(fact.name, fact.value);
    }
    m_factsText->setText(text);
    m_factsText->setAccessibleName(spoken.join(QStringLiteral(", ")));
    setAccessibleDescription(m_factsText->accessibleName());
}

void ItemViewer::setNote(const QString& note) {
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

void ItemViewer::setTicked(bool ticked) {
    m_tickButton->setChecked(ticked);
    m_tickButton->setText(ticked ? tr("Ticked") : tr("Tick"));
}

void ItemViewer::setSteps(bool back, bool on) {
    m_back->setEnabled(back);
    m_on->setEnabled(on);
}

QSize ItemViewer::stageSize() const {
    return m_stage->size() * devicePixelRatioF();
}

void ItemViewer::showZoom() {
    m_zoomLabel->setText(tr("%1 %").arg(qRound(m_picture->scale() * 100)));
    m_fit->setChecked(m_picture->isFitted());
    m_actual->setChecked(qFuzzyCompare(m_picture->scale(), 1.0));
    if (m_picture->wantsMore() || (m_mayBeLarger && !m_picture->isFitted())) {
        emit morePixelsWanted();
    }
}

void ItemViewer::toggleFullScreen() {
    m_fullScreen = !m_fullScreen;
    window()->setWindowState(window()->windowState().setFlag(Qt::WindowFullScreen, m_fullScreen));
    showFullScreenState();
}

// On a full screen there is the picture and nothing else.
void ItemViewer::showFullScreenState() {
    m_head->setVisible(!m_fullScreen);
    m_factsPane->setVisible(!m_fullScreen && m_factsButton->isChecked());
    setFocus();
}

void ItemViewer::showFacts() {
    m_factsButton->setChecked(true);
}

void ItemViewer::coverAll() {
    setGeometry(m_over->rect());
}

// What the keys of the window below would do does not happen behind a viewer.
bool ItemViewer::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->modifiers().testFlag(Qt::AltModifier) || key->key() == Qt::Key_Return ||
            key->key() == Qt::Key_Enter || key->key() == Qt::Key_F5) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

bool ItemViewer::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_over && event->type() == QEvent::Resize) {
        coverAll();
    }
    return QWidget::eventFilter(watched, event);
}

// In a ring: what lies below is not to be reached.
bool ItemViewer::focusNextPrevChild(bool next) {
    QWidget* const from = window()->focusWidget() != nullptr ? window()->focusWidget() : this;
    for (QWidget* to = next ? from->nextInFocusChain() : from->previousInFocusChain(); to != from;
         to = next ? to->nextInFocusChain() : to->previousInFocusChain()) {
        if (isAncestorOf(to) && to->isVisible() && to->isEnabled() &&
            (to->focusPolicy() & Qt::TabFocus) != 0) {
            to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return true;
}

// No shortcut: where a button has the keyboard, Space presses it.
void ItemViewer::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        m_movie->togglePlaying();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ItemViewer::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), QColor(kGround));
}

}  // namespace vantor
