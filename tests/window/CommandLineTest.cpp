// Options and images of the command line.
#include <gtest/gtest.h>

#include "window/CommandLine.h"

namespace vantor {
namespace {

CommandLine startedWith(const QStringList& arguments) {
    return readCommandLine(arguments, QStringLiteral("9.8"));
}

TEST(CommandLine, ImagesAreOpened) {
    const CommandLine line = startedWith({"card.img", "/media/b.img"});
    EXPECT_EQ(line.images, QStringList({"card.img", "/media/b.img"}));
    EXPECT_FALSE(line.exitCode);
    EXPECT_EQ(startedWith({"--", "--help"}).images, QStringList("--help"));
    EXPECT_FALSE(startedWith({}).exitCode);
}

TEST(CommandLine, HelpAndVersionArePrinted_AndNoWindowOpens) {
    for (const char* option : {"-h", "--help"}) {
        const CommandLine line = startedWith({"card.img", option});
        EXPECT_EQ(line.exitCode, 0);
        EXPECT_TRUE(line.images.isEmpty());
        EXPECT_TRUE(line.message.contains(QStringLiteral("[--language CODE] [IMAGE...]")))
            << line.message.toStdString();
    }
    EXPECT_EQ(startedWith({"--version"}).message, "vantor-recovery 9.8");
    EXPECT_EQ(startedWith({"-v"}).exitCode, 0);
}

TEST(CommandLine, AnOptionThatIsNone_IsNoImage) {
    const CommandLine line = startedWith({"--nosuch"});
    EXPECT_EQ(line.exitCode, 2);
    EXPECT_TRUE(line.message.contains(QStringLiteral("nosuch")));
    EXPECT_TRUE(line.images.isEmpty());
}

}  // namespace
}  // namespace vantor
