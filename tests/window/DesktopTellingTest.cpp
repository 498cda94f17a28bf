// What the desktop hears of a search, and when it hears nothing.
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>
#include <mutex>

#include "results/RecoveryMode.h"
#include "tests/support/PrivateBus.h"
#include "tests/window/WindowTest.h"
#include "window/widgets/DesktopTelling.h"

namespace vantor {
namespace {

// Keeps what a service of the desktop is asked.
class Listener : public QDBusVirtualObject {
  public:
    explicit Listener(const QString& address)
        : m_bus(QDBusConnection::connectToBus(address, QStringLiteral("listener"))) {
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/Notifications"), this);
        moveToThread(&m_thread);
        m_thread.start();
        m_bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    ~Listener() override {
        m_thread.quit();
        m_thread.wait();
        QDBusConnection::disconnectFromBus(QStringLiteral("listener"));
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        const std::lock_guard guard(m_lock);
        m_heard = message;
        return true;
    }
    QString introspect(const QString&) const override { return {}; }
    QDBusMessage heard() const {
        const std::lock_guard guard(m_lock);
        return m_heard;
    }

  private:
    QDBusConnection m_bus;
    mutable std::mutex m_lock;
    QDBusMessage m_heard;
    QThread m_thread;
};

TEST(DesktopTelling, ANotification_IsWordsAndNoMarkup) {
    const test::PrivateBus bus;
    if (!bus.isRunning()) {
        GTEST_SKIP() << "no dbus-daemon is installed";
    }
    const Listener listener(bus.address());
    notifyDesktop(QStringLiteral("Completed"), QStringLiteral("810 <b>items</b>"),
                  QDBusConnection::connectToBus(bus.address(), QStringLiteral("teller")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return listener.heard().member() == u"Notify"; },
                                static_cast<int>(std::chrono::milliseconds(kPatience).count())));
    QDBusConnection::disconnectFromBus(QStringLiteral("teller"));
    EXPECT_EQ(listener.heard().signature(), QStringLiteral("susssasa{sv}i"));
    EXPECT_EQ(listener.heard().arguments().value(3).toString(), QStringLiteral("Completed"));
    EXPECT_EQ(listener.heard().arguments().value(4).toString(),
              QStringLiteral("810 &lt;b&gt;items&lt;/b&gt;"));
}

class Telling : public WindowTest {
  protected:
    Telling() {
        parts.notify = [this](const QString& title, const QString& text) { told << title + u'/' + text; };
        parts.showTaskProgress = [this](std::optional<double> share) { shares.push_back(share); };
    }
    void lookElsewhere() {
        elsewhere.show();
        elsewhere.activateWindow();
        ASSERT_TRUE(waitFor([this] { return !controller->window->isActiveWindow(); }));
    }
    QWidget elsewhere;
    QStringList told;
    std::vector<std::optional<double>> shares;
};

TEST_F(Telling, TheEndOfALongSearch_IsToldToWhoLooksElsewhere) {
    parts.longSearch = std::chrono::milliseconds(0);
    openWithCard();
    toRange(kPhotoMode);
    lookElsewhere();
    scanToEnd();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].endsWith(QLatin1String("items"))) << told[0].toStdString();
}

TEST_F(Telling, WhoLooksOn_IsNotDisturbed) {
    parts.longSearch = std::chrono::milliseconds(0);
    openWithCard();
    toRange(kPhotoMode);
    scanToEnd();
    EXPECT_EQ(told, QStringList());
}

TEST_F(Telling, AShortSearch_IsNotWorthAWord) {
    parts.longSearch = std::chrono::hours(24);
    openWithCard();
    toRange(kPhotoMode);
    lookElsewhere();
    scanToEnd();
    EXPECT_EQ(told, QStringList());
}

TEST_F(Telling, TheTaskBarShowsProgress_AndNoneAtTheEnd) {
    openWithCard();
    toRange(kPhotoMode);
    EXPECT_TRUE(shares.empty());
    scanToEnd();
    ASSERT_GE(shares.size(), 2u);
    EXPECT_FALSE(shares.back().has_value());
    for (std::size_t i = 0; i + 1 < shares.size(); ++i) {
        if (shares[i]) {
            EXPECT_GE(*shares[i], 0);
            EXPECT_LE(*shares[i], 1);
        }
    }
    EXPECT_TRUE(shares.front().has_value());
}

}  // namespace
}  // namespace vantor
