// The desktop's look as its portal and its palette tell it, and changes while the program runs.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>

#include "tests/support/PrivateBus.h"
#include "window/widgets/DesktopLook.h"

namespace vantor {
namespace {

// Answers as the desktop's portal does, from a thread of its own.
class StandInPortal : public QDBusVirtualObject {
  public:
    StandInPortal(const QString& address, uint scheme)
        : m_bus(QDBusConnection::connectToBus(address, QStringLiteral("portal"))), m_scheme(scheme) {
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this);
        moveToThread(&m_thread);
        m_thread.start();
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    ~StandInPortal() override {
        m_thread.quit();
        m_thread.wait();
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != u"Read" ||
            message.arguments() !=
                QVariantList{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme")}) {
            return false;
        }
        message.setDelayedReply(true);
        // Wrapped twice, as the portal of today does.
        const QVariant inner = QVariant::fromValue(QDBusVariant(m_scheme));
        connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
        return true;
    }
    QString introspect(const QString&) const override { return {}; }

  private:
    QDBusConnection m_bus;
    const uint m_scheme;
    QThread m_thread;
};

class DesktopLooks : public ::testing::Test {
  protected:
    DesktopLooks() : client(QDBusConnection::connectToBus(bus.address(), QStringLiteral("client"))) {}
    ~DesktopLooks() override {
        QDBusConnection::disconnectFromBus(QStringLiteral("client"));
        setLook(*qApp, Look::Light);
    }
    void SetUp() override {
        if (!bus.isRunning()) {
            GTEST_SKIP() << "no dbus-daemon is installed";
        }
    }
    // As the portal's signal does.
    static void change(DesktopLook& look, uint scheme, const QString& key = QStringLiteral("color-scheme")) {
        ASSERT_TRUE(QMetaObject::invokeMethod(
            &look, "settingChanged", Q_ARG(QString, QStringLiteral("org.freedesktop.appearance")),
            Q_ARG(QString, key), Q_ARG(QDBusVariant, QDBusVariant(scheme))));
    }

    test::PrivateBus bus;
    QDBusConnection client;
};

TEST_F(DesktopLooks, ThePortalTells_AndItsChangesAreFollowed) {
    const StandInPortal portal(bus.address(), 1);
    DesktopLook look(*qApp, client);
    EXPECT_EQ(currentLook(), Look::Dark);
    change(look, 2);
    EXPECT_EQ(currentLook(), Look::Light);
    change(look, 1);
    EXPECT_EQ(currentLook(), Look::Dark);
    change(look, 0);
    EXPECT_EQ(currentLook(), Look::Light) << "without a preference the palette counts";
}

TEST_F(DesktopLooks, OtherSettingsAreNoLook) {
    const StandInPortal portal(bus.address(), 2);
    DesktopLook look(*qApp, client);
    change(look, 1, QStringLiteral("contrast"));
    EXPECT_EQ(currentLook(), Look::Light);
}

TEST_F(DesktopLooks, WithoutAPortal_ThePaletteTells) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Midlight, QColor(40, 40, 40));
    QApplication::setPalette(palette);
    const DesktopLook look(*qApp, client);
    EXPECT_EQ(currentLook(), Look::Dark);
}

TEST_F(DesktopLooks, WithoutABus_ItIsLight) {
    const DesktopLook look(*qApp, QDBusConnection(QStringLiteral("no such bus")));
    EXPECT_EQ(currentLook(), Look::Light);
}

}  // namespace
}  // namespace vantor
