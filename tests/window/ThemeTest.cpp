// Whether what is written can be read, in both looks.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QToolButton>
#include <cmath>

#include "window/widgets/Theme.h"

namespace vantor {
namespace {

// Of the guidelines for text of ordinary size (WCAG 2, 1.4.3); lines and signs need less (1.4.11).
constexpr double kLeastForText = 4.5;
constexpr double kLeastForSigns = 3;

double linear(double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

class Looks : public ::testing::TestWithParam<Look> {
  protected:
    Looks() { setLook(*qApp, GetParam()); }
    ~Looks() override { setLook(*qApp, Look::Light); }
};

std::string nameOf(const ::testing::TestParamInfo<Look>& look) {
    return look.param == Look::Dark ? "Dark" : "Light";
}

INSTANTIATE_TEST_SUITE_P(Both, Looks, ::testing::Values(Look::Light, Look::Dark), nameOf);

TEST(Contrast, IsMeasuredAsTheGuidelinesSay) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST_P(Looks, TextStandsOutFromEveryGround) {
    const QColor grounds[] = {commonBackground(), theme::kCard, theme::kOtherRow, theme::kAccentWash};
    for (const QColor& ground : grounds) {
        for (const QColor ink : {QColor(theme::kInk), QColor(theme::kQuietInk), QColor(theme::kLink)}) {
            EXPECT_GE(contrast(ink, ground), kLeastForText)
                << ink.name().toStdString() << " on " << ground.name().toStdString();
        }
    }
    for (const QColor ground : {QColor(theme::kAccent), QColor(theme::kDone), QColor(theme::kToolTip)}) {
        EXPECT_GE(contrast(Qt::white, ground), kLeastForText) << ground.name().toStdString();
    }
}

TEST_P(Looks, WhatIsDrawnStandsOut) {
    for (const QColor ground : {commonBackground(), QColor(theme::kCard)}) {
        for (const QColor line : {QColor(theme::kAccent), QColor(theme::kDone)}) {
            EXPECT_GE(contrast(line, ground), kLeastForSigns) << line.name().toStdString();
        }
    }
}

TEST_P(Looks, ThePaletteCanBeReadToo) {
    const QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::PlaceholderText, QPalette::Base},      {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Base},
    };
    for (const auto& [ink, ground] : pairs) {
        EXPECT_GE(contrast(palette.color(ink), palette.color(ground)), kLeastForText)
            << ink << " on " << ground;
    }
}

// Rule by rule, but for those of lines; what has no ground of its own lies on a card or on the window. What
// is disabled need not stand out.
TEST_P(Looks, EveryRuleOfTheSheetCanBeRead) {
    static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));
    static const QRegularExpression ink(QStringLiteral("(?:^|[; ])(?:selection-)?color: *(#[0-9a-f]{6})"));
    static const QRegularExpression ground(
        QStringLiteral("(?:background|selection-background-color): *(#[0-9a-f]{6})"));
    int read = 0;
    for (auto rules = rule.globalMatch(qApp->styleSheet()); rules.hasNext();) {
        const QRegularExpressionMatch match = rules.next();
        const QString colour = ink.match(match.captured(2)).captured(1);
        if (colour.isEmpty() || match.captured(1).contains(QLatin1String(":disabled")) ||
            match.captured(1).contains(QLatin1String("role=\"rule\""))) {
            continue;
        }
        ++read;
        const QString own = ground.match(match.captured(2)).captured(1);
        const QList<QColor> grounds =
            own.isEmpty() ? QList<QColor>{commonBackground(), theme::kCard} : QList<QColor>{QColor(own)};
        for (const QColor& behind : grounds) {
            EXPECT_GE(contrast(QColor(colour), behind), kLeastForText) << match.captured(0).toStdString();
        }
    }
    EXPECT_GE(read, 10);
}

TEST(Theme, TheDarkSheetHasNoColourOfTheLightOne) {
    QFile file(QStringLiteral(":/style.qss"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression colours(QStringLiteral("[a-z-]+\\s*:[^:;{}]*?#[0-9a-f]{3,8}"));
    const QString sheet = QString::fromUtf8(file.readAll());
    const QString dark = sheetInLook(sheet, Look::Dark);
    EXPECT_EQ(sheetInLook(sheet, Look::Light), sheet);
    auto before = colours.globalMatch(sheet), after = colours.globalMatch(dark);
    int count = 0;
    for (; before.hasNext() && after.hasNext(); ++count) {
        const QString light = before.next().captured(0);
        if (!light.contains(QLatin1String("color: #ffffff"))) {  // text on an accent
            EXPECT_NE(after.next().captured(0), light);
        } else {
            after.next();
        }
    }
    EXPECT_EQ(before.hasNext(), after.hasNext());
    EXPECT_GT(count, 50);
    for (const char* icon : {"down", "grip-vertical", "grip-horizontal"}) {
        EXPECT_FALSE(dark.contains(QStringLiteral("/%1.svg").arg(QLatin1String(icon)))) << icon;
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/icons/%1-dark.svg").arg(QLatin1String(icon)))) << icon;
    }
}

TEST(Theme, AChangeOfTheLook_ReachesWindowsThatAreOpen) {
    QWidget window;
    setCommonBackground(&window);
    EXPECT_EQ(window.palette().color(QPalette::Window), QColor(241, 244, 250));
    setLook(*qApp, Look::Dark);
    EXPECT_EQ(window.palette().color(QPalette::Window), commonBackground());
    EXPECT_LT(commonBackground().lightness(), 64);
    EXPECT_LT(QApplication::palette().color(QPalette::Base).lightness(), 64);
    setLook(*qApp, Look::Light);
    EXPECT_EQ(window.palette().color(QPalette::Window), QColor(241, 244, 250));
}

// The colour of most of what is drawn.
QColor inkOf(const QIcon& icon) {
    const QImage image = icon.pixmap(64, 64).toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255) {
                ++counts[image.pixel(x, y)];
            }
        }
    }
    QRgb most = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        most = counts.value(most) < count.value() ? count.key() : most;
    }
    return QColor(most);
}

TEST_P(Looks, IconsStandOut) {
    for (const char* const name :
         {"help", "refresh", "play", "pause", "sound-on", "sound-off", "down", "stop"}) {
        EXPECT_GE(contrast(inkOf(ownIcon(QLatin1String(name))), theme::kCard), kLeastForSigns) << name;
    }
}

TEST(Theme, AnIconThatIsShown_ChangesWithTheLook) {
    const QIcon icon = ownIcon(QStringLiteral("help"));
    const QColor light = inkOf(icon);
    setLook(*qApp, Look::Dark);
    const QColor dark = inkOf(icon);
    setLook(*qApp, Look::Light);
    EXPECT_GT(dark.lightness(), light.lightness() + 80);
    const QImage faint = icon.pixmap({64, 64}, 1.0, QIcon::Disabled).toImage();
    EXPECT_NE(faint, icon.pixmap({64, 64}, 1.0, QIcon::Normal).toImage());
}

TEST(Theme, ButtonsGetTheIconsThatTheyName) {
    QWidget root;
    auto* const named = new QToolButton(&root);
    auto* const plain = new QToolButton(&root);
    named->setProperty("ownIcon", QStringLiteral("help"));
    dressIcons(&root);
    EXPECT_EQ(inkOf(named->icon()), inkOf(ownIcon(QStringLiteral("help"))));
    EXPECT_TRUE(plain->icon().isNull());
}

}  // namespace
}  // namespace vantor
