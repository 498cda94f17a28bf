// The command in other languages.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tests/cli/CommandRun.h"

namespace vantor {
namespace {

const QString kCommand = QStringLiteral(VANTOR_CLI);

TEST(LanguageOfTheCommand, IsTheOneAskedFor) {
    EXPECT_TRUE(runCommand({"--language", "de", "--help"}).out.contains("Diese Hilfe zeigen."));
    EXPECT_TRUE(runCommand({"--language=de", "--nonsense"}).err.contains("Versuchen Sie --help."));
}

TEST(LanguageOfTheCommand, IsThatOfTheDesktop) {
    const auto help = [](const char* desktop) {
        return runCommand({"--help"}, kCommand, QString::fromLatin1(desktop)).out;
    };
    EXPECT_TRUE(help("de_AT.UTF-8").contains("Diese Hilfe zeigen."));
    EXPECT_TRUE(help("C").contains("Show this help."));
    EXPECT_TRUE(help("en_US.UTF-8").contains("Show this help."));
    EXPECT_TRUE(help("xx_XX.UTF-8").contains("Show this help."));
    qputenv("LANGUAGE", "de");
    EXPECT_TRUE(help("fr_FR.UTF-8").contains("Diese Hilfe zeigen."));
    EXPECT_TRUE(help("C.UTF-8").contains("Show this help.")) << "C is no language";
    qunsetenv("LANGUAGE");
}

TEST(LanguageOfTheCommand, ThatIsNoneIsRefused) {
    const CommandRun run = runCommand({"--language", "klingon", "--help"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(
        run.err,
        "vantor-recovery-cli: The program does not speak “klingon”. It speaks de, en, es, fr, it, ja, nl, "
        "pl, pt_BR, zh_CN.\n");
}

// What is for programs is the same in every language, numbers for people are not.
TEST(LanguageOfTheCommand, ChangesNothingForPrograms) {
    const QStringList arguments{"--mode", "rawfile", "--range", "0:2000", QStringLiteral(VANTOR_SAMPLE_CARD)};
    const CommandRun german = runCommand(QStringList{"--list-json", "--language", "de"} + arguments);
    const CommandRun english = runCommand(QStringList{"--list-json"} + arguments);
    EXPECT_EQ(german.out, english.out);
    EXPECT_EQ(german.exitCode, 0);
    EXPECT_FALSE(german.out.isEmpty());
    const CommandRun types =
        runCommand({"--list-types", "--mode", "rawfile", "--list-json", "--language=de"});
    EXPECT_TRUE(types.out.contains("Office documents"));
    EXPECT_TRUE(
        runCommand({"--list-types", "--mode", "rawfile", "--language=de"}).out.contains("Office-Dokumente"));
}

}  // namespace
}  // namespace vantor
