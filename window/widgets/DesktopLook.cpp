// Who is asked, and when.
#include "window/widgets/DesktopLook.h"

#include <QApplication>
#include <QDBusMessage>
#include <QEvent>

namespace vantor {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kSpace = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
// A desktop that does not answer delays the first window by no more.
constexpr int kPatienceMilliseconds = 500;
constexpr int kDarkBelow = 128;

// Portals wrap the number once or twice.
std::optional<Look> lookOf(QVariant value) {
    for (int wrappings = 0; wrappings < 3 && value.metaType() == QMetaType::fromType<QDBusVariant>();
         ++wrappings) {
        value = value.value<QDBusVariant>().variant();
    }
    switch (value.toUInt()) {
        case 1:
            return Look::Dark;
        case 2:
            return Look::Light;
        default:
            return std::nullopt;
    }
}

}  // namespace

DesktopLook::DesktopLook(QApplication& application, const QDBusConnection& bus)
    : m_application(application), m_bus(bus) {
    askPortal();
    m_application.installEventFilter(this);
    follow();
}

void DesktopLook::askPortal() {
    if (!m_bus.isConnected()) {
        return;
    }
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto question = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    question << kSpace << kKey;
    const QDBusMessage answer = m_bus.call(question, QDBus::Block, kPatienceMilliseconds);
    if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty()) {
        m_portal = lookOf(answer.arguments().constFirst());
    }
}

void DesktopLook::settingChanged(const QString& space, const QString& key, const QDBusVariant& value) {
    if (space == kSpace && key == kKey) {
        m_portal = lookOf(value.variant());
        follow();
    }
}

bool DesktopLook::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_application && event->type() == QEvent::ApplicationPaletteChange) {
        follow();
    }
    return QObject::eventFilter(watched, event);
}

// The one role of the palette that the program leaves to the desktop tells of the desktop's.
void DesktopLook::follow() {
    const bool dark = QGuiApplication::palette().color(QPalette::Midlight).lightness() < kDarkBelow;
    const Look wanted = m_portal.value_or(dark ? Look::Dark : Look::Light);
    if (wanted != currentLook() && !m_following) {
        m_following = true;
        setLook(m_application, wanted);
        m_following = false;
    }
}

}  // namespace vantor
