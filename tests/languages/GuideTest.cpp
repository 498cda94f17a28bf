// The guide and the manual pages of other languages have every part of the English ones.
#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <string>
#include <tuple>
#include <vector>

namespace vantor {
namespace {

// What the expression finds in a file of the sources, in order.
std::vector<std::string> partsOf(const char* path, const char* expression) {
    QFile file(QStringLiteral(VANTOR_SOURCE_DIR "/") + QLatin1String(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    const QString text = QString::fromUtf8(file.readAll());
    std::vector<std::string> parts;
    for (const auto& match :
         QRegularExpression(QLatin1String(expression), QRegularExpression::MultilineOption)
             .globalMatch(text)) {
        parts.push_back(match.captured(0).toStdString());
    }
    return parts;
}

TEST(Guide, InGerman_HasEveryPartOfTheEnglish) {
    static const char* const kParts = "<(h1|h2|p|li|tr|img src=\"[^\"]*\")\\b";
    const auto english = partsOf("resources/help/guide.html", kParts);
    ASSERT_GT(english.size(), 40U);
    EXPECT_EQ(partsOf("resources/help/guide_de.html", kParts), english);
}

TEST(Manual, InGerman_HasEveryPartAndOptionOfTheEnglish) {
    for (const auto& [english, german, parts] :
         {std::tuple("packaging/man/vantor-recovery-cli.1.in", "packaging/man/de/vantor-recovery-cli.1.in",
                     "^\\.(SH|PP|TP\\n\\.BR? \\S+)"),
          std::tuple("packaging/man/vantor-recovery.1.in", "packaging/man/de/vantor-recovery.1.in",
                     "^\\.(SH|PP|TP)")}) {
        const auto all = partsOf(english, parts);
        ASSERT_GT(all.size(), 10U) << english;
        EXPECT_EQ(partsOf(german, parts), all);
    }
}

}  // namespace
}  // namespace vantor
