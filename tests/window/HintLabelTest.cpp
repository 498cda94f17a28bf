// The sign of a hint stands beside its first words, whatever the font and the room.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QTest>

#include "window/widgets/HintLabel.h"

namespace vantor {
namespace {

constexpr int kPatienceMs = 60'000;  // beyond which a test fails rather than waits

// The middle of the rows in which something is painted between two columns; -1 where nothing is.
int middleOfInk(const QImage& picture, int left, int right) {
    int first = -1, last = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = left; x < right; ++x) {
            if (picture.pixelColor(x, y) != Qt::white) {
                first = first < 0 ? y : first;
                last = y;
            }
        }
    }
    return first < 0 ? -1 : (first + last) / 2;
}

QImage painted(HintLabel& label) {
    QImage picture(label.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    label.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

// What is painted of a widget.
class PaintedRegion : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion region;
};

}  // namespace

TEST(HintLabel, SignStandsBesideTheFirstWords) {
    for (const char* text :
         {"To select another disk", "\nTo select another disk", "\n\nTo select another disk"}) {
        for (const int pixels : {10, 12, 16, 24}) {
            for (const int spare : {-10, 0, 30}) {
                SCOPED_TRACE(testing::Message() << text << ", font " << pixels << ", spare " << spare);
                HintLabel label;
                QFont font = label.font();
                font.setPixelSize(pixels);
                label.setFont(font);
                label.setTextFormat(Qt::PlainText);
                label.setWordWrap(true);
                label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
                label.setText(QString::fromLatin1(text));
                label.resize(700, label.heightForWidth(700) + spare);
                const QImage picture = painted(label);
                const int sign = middleOfInk(picture, 0, 20);
                const int words = middleOfInk(picture, 24, 700);
                ASSERT_GE(sign, 0);
                EXPECT_NEAR(sign, words, 4);
            }
        }
    }
}

TEST(HintLabel, SignIsWhole_AlsoBesideManySmallLines) {
    const auto heightOfSign = [](const char* text) {
        HintLabel label;
        QFont font = label.font();
        font.setPixelSize(10);
        label.setFont(font);
        label.setWordWrap(true);
        label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label.setText(QString::fromLatin1(text));
        label.resize(200, label.heightForWidth(200));
        const QImage picture = painted(label);
        int rows = 0;
        for (int y = 0; y < picture.height(); ++y) {
            rows += middleOfInk(picture.copy(0, y, 20, 1), 0, 20) == 0 ? 1 : 0;
        }
        return rows;
    };
    EXPECT_EQ(heightOfSign("one\ntwo\nthree\nfour"), heightOfSign("one"));
}

TEST(HintLabel, SignMovesWithTheWords) {
    HintLabel label;
    label.setTextFormat(Qt::PlainText);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label.setText(QStringLiteral("one\ntwo\nthree"));
    label.resize(300, 80);
    label.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&label, kPatienceMs));
    QApplication::processEvents();
    PaintedRegion painted;
    label.installEventFilter(&painted);
    label.setText(QStringLiteral("\none"));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return painted.region.subtracted(QRect(20, 0, 280, 80)) == QRegion(0, 0, 20, 80); },
        kPatienceMs));
}

}  // namespace vantor
