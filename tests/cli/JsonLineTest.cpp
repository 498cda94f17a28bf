// Names that somebody wrote on a card to speak to the terminal.
#include <gtest/gtest.h>

#include <QJsonDocument>

#include "cli/JsonLine.h"

namespace vantor {

TEST(JsonLine, SaysNothingToATerminal_AndMeansTheSame) {
    QString name;
    for (char16_t c = 1; c < 0x180; ++c) {
        name += QChar(c);
    }
    const QJsonObject object{{name, name}, {"n", 7}};
    const QByteArray line = jsonLine(object);
    for (const QChar c : QString::fromUtf8(line)) {
        EXPECT_NE(c.category(), QChar::Other_Control) << static_cast<int>(c.unicode());
    }
    EXPECT_TRUE(line.contains("\\u007f\\u0080\\u0081"));
    EXPECT_TRUE(line.contains("\\u009f\xc2\xa0")) << "a blank that does not break is no control";
    EXPECT_EQ(QJsonDocument::fromJson(line).object(), object);
}

}  // namespace vantor
