// Property lists as tools print them, and as nobody should.
#include <gtest/gtest.h>

#include <QDateTime>

#include "media/PropertyList.h"

namespace vantor::test {
namespace {

constexpr char kHead[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";

std::optional<QVariantMap> parse(const QByteArray& body) {
    return parsePropertyList(kHead + body + "\n</plist>\n");
}

TEST(PropertyList, EveryKindOfValue) {
    const auto list = parse(
        "<dict>\n\t<key>VolumeName</key>\n\t<string>Tom &amp; Ann&#8217;s &lt;card&gt;</string>"
        "<key>IOKitSize</key><integer>31914983424</integer>"
        "<key>Huge</key><integer>18446744073709551615</integer>"
        "<key>Negative</key><integer> -5 </integer>"
        "<key>Hex</key><integer>0x1F</integer>"
        "<key>Real</key><real>0.5</real>"
        "<key>Ejectable</key><true/><key>Writable</key><false/>"
        "<key>Blob</key><data>\n\tAAEC\n\tAw==\n</data>"
        "<key>When</key><date>2009-02-14T10:00:00Z</date>"
        "<key>Empty</key><string/>"
        "<key>Inner</key><dict><key>A</key><array><string>x</string><integer>1</integer><dict/></array></"
        "dict>"
        "</dict>");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->value(QStringLiteral("VolumeName")), QStringLiteral("Tom & Ann’s <card>"));
    EXPECT_EQ(list->value(QStringLiteral("IOKitSize")), 31914983424LL);
    EXPECT_EQ(list->value(QStringLiteral("Huge")).toULongLong(), 18446744073709551615ULL);
    EXPECT_EQ(list->value(QStringLiteral("Negative")), -5);
    EXPECT_EQ(list->value(QStringLiteral("Hex")), 31);
    EXPECT_EQ(list->value(QStringLiteral("Real")), 0.5);
    EXPECT_EQ(list->value(QStringLiteral("Ejectable")), true);
    EXPECT_EQ(list->value(QStringLiteral("Writable")), false);
    EXPECT_EQ(list->value(QStringLiteral("Blob")).toByteArray(), QByteArray("\0\1\2\3", 4));
    EXPECT_EQ(list->value(QStringLiteral("When")).toDateTime().toSecsSinceEpoch(), 1234605600);
    EXPECT_EQ(list->value(QStringLiteral("Empty")), QString(""));
    const QVariantList inner =
        list->value(QStringLiteral("Inner")).toMap().value(QStringLiteral("A")).toList();
    ASSERT_EQ(inner.size(), 3);
    EXPECT_EQ(inner[1], 1);
    EXPECT_TRUE(inner[2].toMap().isEmpty());
}

TEST(PropertyList, MalformedText_IsNoList) {
    const QByteArray bodies[] = {
        "",
        "<string>x</string>",
        "<array/>",
        "<dict>",
        "<dict></array>",
        "<dict><key>a</key></dict>",
        "<dict><string>x</string></dict>",
        "<dict><key>a</key><key>b</key><string>x</string></dict>",
        "<dict><key>a</key><string>x</dict>",
        "<dict><key>a</key><integer>twelve</integer></dict>",
        "<dict><key>a</key><integer>99999999999999999999</integer></dict>",
        "<dict><key>a</key><real>x</real></dict>",
        "<dict><key>a</key><banana/></dict>",
        "<dict><key>a</key><string><dict/></string></dict>",
        "<dict/><dict/>",
        "<key>a</key>",
        "\xff\xfe",
    };
    for (const QByteArray& body : bodies) {
        EXPECT_FALSE(parse(body)) << body.toStdString();
    }
    EXPECT_FALSE(parsePropertyList(""));
    EXPECT_FALSE(parsePropertyList("Could not find disk: /Volumes/x\n"));
    EXPECT_FALSE(parsePropertyList("<html><dict/></html>"));
    EXPECT_FALSE(parsePropertyList("bplist00\xd1\x01\x02"));
    EXPECT_FALSE(parsePropertyList(QByteArray(kHead) + "<dict/>"));  // cut off
}

TEST(PropertyList, CutOffAnywhere_IsNoList) {
    const QByteArray whole =
        QByteArray(kHead) + "<dict><key>a</key><array><data>AAEC</data></array></dict></plist>";
    ASSERT_TRUE(parsePropertyList(whole));
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(parsePropertyList(whole.first(length))) << length;
    }
}

TEST(PropertyList, DeepNesting_IsRefusedWithoutRecursion) {
    const auto nested = [](int levels) {
        return "<dict><key>a</key>" + QByteArray("<array>").repeated(levels) +
               QByteArray("</array>").repeated(levels) + "</dict>";
    };
    EXPECT_TRUE(parse(nested(63)));
    EXPECT_FALSE(parse(nested(64)));
    EXPECT_FALSE(parse(nested(200000)));
}

TEST(PropertyList, HugeList_IsRead) {
    QByteArray body = "<dict>";
    for (int i = 0; i < 100000; ++i) {
        body += "<key>k" + QByteArray::number(i) + "</key><string>value</string>";
    }
    const auto list = parse(body + "</dict>");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->size(), 100000);
}

TEST(PropertyList, EntitiesThatGrow_DoNotEatMemory) {
    QByteArray text = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a0 \"aaaaaaaaaa\">";
    for (int i = 1; i < 12; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ";";
        text += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    text += "]><plist><dict><key>a</key><string>&a11;</string></dict></plist>";
    EXPECT_FALSE(parsePropertyList(text));
}

}  // namespace
}  // namespace vantor::test
