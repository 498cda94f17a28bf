// The controls of what can be played, each reached by mouse and keyboard.
#include "window/preview/MovieControls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QToolButton>
#include <algorithm>
#include <limits>

#include "results/ItemWords.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kStepMs = 1000;
constexpr int kPageMs = 10000;
constexpr int kLoudest = 100;

// A click beside the handle means that place, not a page in its direction.
class PlaceSlider : public QSlider {
  public:
    using QSlider::QSlider;

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRect handle =
            style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
        if (event->button() == Qt::LeftButton && !handle.contains(event->position().toPoint())) {
            setValue(QStyle::sliderValueFromPosition(minimum(), maximum(),
                                                     qRound(event->position().x()) - handle.width() / 2,
                                                     width() - handle.width(), option.upsideDown));
        }
        QSlider::mousePressEvent(event);
    }
};

QToolButton* makeButton(QWidget* parent, const char* name) {
    auto* button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setIconSize({2 * theme::kUnit, 2 * theme::kUnit});
    return button;
}

void setMeaning(QToolButton* button, const QString& icon, const QString& text) {
    button->setIcon(ownIcon(icon));
    button->setToolTip(text);
    button->setAccessibleName(text);
}

}  // namespace

MovieControls::MovieControls(QWidget* parent)
    : QWidget(parent),
      m_play(makeButton(this, "moviePlay")),
      m_position(new PlaceSlider(Qt::Horizontal, this)),
      m_times(new QLabel(this)),
      m_mute(makeButton(this, "movieMute")),
      m_volume(new QSlider(Qt::Horizontal, this)) {
    m_position->setObjectName(QStringLiteral("moviePosition"));
    m_position->setAccessibleName(tr("Position"));
    m_position->setSingleStep(kStepMs);
    m_position->setPageStep(kPageMs);
    m_times->setObjectName(QStringLiteral("movieTimes"));
    m_times->setAccessibleName(tr("Time played and length"));
    setMeaning(m_play, QStringLiteral("play"), tr("Play (Space)"));
    setMeaning(m_mute, QStringLiteral("sound-on"), tr("Sound off"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(theme::kUnit / 2);
    row->addWidget(m_play);
    row->addWidget(m_position, 1);
    row->addWidget(m_times);
    row->addWidget(m_mute);
    row->addWidget(m_volume);
    m_volume->setObjectName(QStringLiteral("movieVolume"));
    m_volume->setAccessibleName(tr("Volume"));
    m_volume->setToolTip(tr("Volume"));
    m_volume->setRange(0, kLoudest);
    m_volume->setPageStep(kLoudest / 10);
    m_volume->setValue(kLoudest);
    m_volume->setFixedWidth(10 * theme::kUnit);
    m_volume->hide();
    connect(m_play, &QToolButton::clicked, this, &MovieControls::togglePlaying);
    connect(m_mute, &QToolButton::clicked, this, [this] {
        m_movie->setMuted(!m_movie->isMuted());
        showProgress();
    });
    connect(m_volume, &QSlider::valueChanged, this, [this](int volume) {
        if (m_movie) {
            m_movie->setVolume(static_cast<double>(volume) / kLoudest);
        }
    });
    connect(m_position, &QSlider::valueChanged, this, [this](int timeMs) {
        m_movie->seek(timeMs);
        showPosition(timeMs);
    });
    hide();
}

MovieControls::~MovieControls() = default;

void MovieControls::setMovie(std::unique_ptr<Movie> movie) {
    m_movie = std::move(movie);
    setVisible(m_movie != nullptr);
    if (!m_movie) {
        return;
    }
    const std::int64_t length = m_movie->durationMs();
    m_times->setMinimumWidth(0);
    {
        const QSignalBlocker blocker(m_position);
        m_position->setRange(
            0, static_cast<int>(std::clamp<std::int64_t>(length, 0, std::numeric_limits<int>::max())));
    }
    m_position->setEnabled(length > 0);
    m_mute->setVisible(m_movie->hasSound());
    m_volume->setVisible(m_roomy && m_movie->hasSound());
    m_movie->setVolume(static_cast<double>(m_volume->value()) / kLoudest);  // as the last one's
    // The widest text there will be, so that the slider keeps its length.
    showPosition(length);
    m_times->setMinimumWidth(m_times->sizeHint().width());
    m_movie->onProgress = [this] { showProgress(); };
    showProgress();
}

void MovieControls::togglePlaying() {
    if (!m_movie) {
        return;
    }
    if (m_movie->rate() != 0) {
        m_movie->stop();
    } else {
        m_movie->play();
    }
    showProgress();
}

void MovieControls::setRoomy() {
    m_roomy = true;
    setAttribute(Qt::WA_StyledBackground);
    layout()->setContentsMargins(theme::kUnit / 2, theme::kUnit / 2, theme::kUnit, theme::kUnit / 2);
}

void MovieControls::seekBy(std::int64_t timeMs) {
    if (m_movie && m_movie->durationMs() > 0) {
        m_movie->seek(m_movie->positionMs() + timeMs);
        showProgress();
    }
}

void MovieControls::showProgress() {
    const bool playing = m_movie->rate() != 0, muted = m_movie->isMuted();
    setMeaning(m_play, playing ? QStringLiteral("pause") : QStringLiteral("play"),
               playing ? tr("Pause (Space)") : tr("Play (Space)"));
    setMeaning(m_mute, muted ? QStringLiteral("sound-off") : QStringLiteral("sound-on"),
               muted ? tr("Sound on") : tr("Sound off"));
    showPosition(m_movie->positionMs());
    emit changed();
}

void MovieControls::showPosition(std::int64_t timeMs) {
    // A handle that somebody holds stays in the hand.
    if (!m_position->isSliderDown()) {
        const QSignalBlocker blocker(m_position);
        m_position->setValue(static_cast<int>(std::clamp<std::int64_t>(timeMs, 0, m_position->maximum())));
    }
    const std::int64_t length = m_movie->durationMs();
    m_times->setText(length > 0 ? tr("%1 / %2").arg(timeText(timeMs), timeText(length)) : timeText(timeMs));
}

}  // namespace vantor
