// Which language is chosen, and how a command line asks for one.
#include <gtest/gtest.h>

#include "catalogue/Language.h"

namespace vantor {
namespace {

const QStringList kThere = {"de", "en", "pt_BR", "zh_CN"};

TEST(LanguageFor, IsTheFirstThatIsThere) {
    EXPECT_EQ(languageFor({"de"}, kThere), QStringLiteral("de"));
    EXPECT_EQ(languageFor({"pt-BR", "de"}, kThere), QStringLiteral("pt_BR"));
    EXPECT_EQ(languageFor({"sv-SE", "sv", "de-DE", "en-US"}, kThere), QStringLiteral("de"));
    EXPECT_EQ(languageFor({"en-GB", "de-DE"}, kThere), QStringLiteral("en"));
    EXPECT_EQ(languageFor({"DE"}, kThere), QStringLiteral("de"));
}

TEST(LanguageFor, AnotherCountryDoesAndAnotherScriptDoesNot) {
    EXPECT_EQ(languageFor({"de-AT"}, kThere), QStringLiteral("de"));
    EXPECT_EQ(languageFor({"pt-PT"}, kThere), QStringLiteral("pt_BR"));
    EXPECT_EQ(languageFor({"zh-Hans-SG"}, kThere), QStringLiteral("zh_CN"));
    EXPECT_EQ(languageFor({"zh-Hant-TW"}, kThere), QString());
}

TEST(LanguageFor, WhatNobodySpeaksIsNone) {
    EXPECT_EQ(languageFor({}, kThere), QString());
    EXPECT_EQ(languageFor({"C"}, kThere), QString());
    EXPECT_EQ(languageFor({"klingon"}, kThere), QString());
    EXPECT_EQ(languageFor({""}, kThere), QString());
}

TEST(TakeLanguage, LeavesTheRestAsItIs) {
    const AskedLanguage none = takeLanguage({"a.img", "b.img"});
    EXPECT_EQ(none.rest, QStringList({"a.img", "b.img"}));
    EXPECT_FALSE(none.language);
    const AskedLanguage apart = takeLanguage({"--mode", "video", "--language", "de", "a.img"});
    EXPECT_EQ(apart.rest, QStringList({"--mode", "video", "a.img"}));
    EXPECT_EQ(apart.language, QStringLiteral("de"));
    const AskedLanguage joined = takeLanguage({"--language=pt_BR", "a.img"});
    EXPECT_EQ(joined.rest, QStringList({"a.img"}));
    EXPECT_EQ(joined.language, QStringLiteral("pt_BR"));
}

TEST(TakeLanguage, BehindTwoDashesAreFilesAlone) {
    const AskedLanguage asked = takeLanguage({"--", "--language", "de"});
    EXPECT_EQ(asked.rest, QStringList({"--", "--language", "de"}));
    EXPECT_FALSE(asked.language);
}

TEST(TakeLanguage, WithoutItsValueStays) {
    const AskedLanguage asked = takeLanguage({"a.img", "--language"});
    EXPECT_EQ(asked.rest, QStringList({"a.img", "--language"}));
    EXPECT_FALSE(asked.language);
}

// Only who asked for a language gets its customs.
TEST(LocaleOfTexts, IsThatOfTheProgramsOwnLanguageAtFirst) {
    EXPECT_EQ(localeOfTexts().toString(1234567), QStringLiteral("1,234,567"));
}

}  // namespace
}  // namespace vantor
