// The files of translations against the sources, each text against its English, and the compiled files by
// their plural forms.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <map>

#include "catalogue/Language.h"
#include "results/SizeForPeople.h"

namespace vantor {
namespace {

const QStringList kAll = {"de", "es", "fr", "it", "ja", "nl", "pl", "pt_BR", "zh_CN"};

struct Text {
    QString context, source, remark, state;
    bool plural = false;
    QStringList translations;

    QString place() const { return context + u'\n' + source + u'\n' + remark; }
};

void PrintTo(const Text& text, std::ostream* out) {
    *out << qPrintable(text.context + QStringLiteral(": ") + text.source);
}

std::vector<Text> textsOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    std::vector<Text> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            texts.push_back({});
            texts.back().context = context;
            texts.back().plural = xml.attributes().value(QLatin1String("numerus")) == u"yes";
        } else if (xml.name() == u"source") {
            texts.back().source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            texts.back().remark = xml.readElementText();
        } else if (xml.name() == u"translation") {
            texts.back().state = xml.attributes().value(QLatin1String("type")).toString();
            if (!texts.back().plural) {
                texts.back().translations = {xml.readElementText()};
            }
        } else if (xml.name() == u"numerusform") {
            texts.back().translations << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path + QStringLiteral(": ") + xml.errorString());
    return texts;
}

QString fileOf(const QString& language) {
    return QStringLiteral(VANTOR_SOURCE_DIR "/resources/languages/vantor_%1.ts").arg(language);
}

// %1, %n and the like, sorted; a sign of per cent is none.
QStringList placesIn(const QString& text) {
    static const QRegularExpression place(QStringLiteral("%L?[0-9n]+"));
    QStringList places;
    for (auto match = place.globalMatch(text); match.hasNext();) {
        places << match.next().captured();
    }
    places.sort();
    return places;
}

bool hasShortcut(const QString& text) {
    static const QRegularExpression key(QStringLiteral("(?<!&)&(?![& ])"));
    return key.match(text).hasMatch();
}

QString spaceBefore(const QString& text) {
    qsizetype end = 0;
    while (end < text.size() && text.at(end).isSpace()) {
        ++end;
    }
    return text.left(end);
}

QString whatIsWrong(const Text& text, const QString& translation) {
    if (translation.trimmed().isEmpty()) {
        return QStringLiteral("nothing");
    }
    QStringList here = placesIn(translation), there = placesIn(text.source);
    if (here != there) {
        return QStringLiteral("other places than ") + there.join(u' ');
    }
    if (hasShortcut(translation) != hasShortcut(text.source)) {
        return QStringLiteral("another key");
    }
    if (translation.count(u'\n') != text.source.count(u'\n') ||
        spaceBefore(translation) != spaceBefore(text.source)) {
        return QStringLiteral("other lines");
    }
    if (translation.contains(u'\t') != text.source.contains(u'\t')) {
        return QStringLiteral("other tabs");
    }
    if (translation.count(u';') < text.source.count(QStringLiteral(";;")) * 2) {
        return QStringLiteral("other filters of files");
    }
    return {};
}

class LanguageFiles : public ::testing::TestWithParam<QString> {};

TEST_P(LanguageFiles, AgreeWithTheirSources) {
    int wrong = 0;
    for (const Text& text : textsOf(fileOf(GetParam()))) {
        if (text.state == u"unfinished") {
            continue;
        }
        for (const QString& translation : text.translations) {
            const QString what = whatIsWrong(text, translation);
            EXPECT_TRUE(what.isEmpty()) << qPrintable(what) << " in " << qPrintable(translation) << " for "
                                        << qPrintable(text.source);
            wrong += what.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST_P(LanguageFiles, HaveNoTextThatIsGone) {
    for (const Text& text : textsOf(fileOf(GetParam()))) {
        EXPECT_TRUE(text.state.isEmpty() || text.state == u"unfinished")
            << ::testing::PrintToString(text) << ": " << qPrintable(text.state);
    }
}

TEST_P(LanguageFiles, AreWhole) {
    int lacking = 0;
    for (const Text& text : textsOf(fileOf(GetParam()))) {
        lacking += text.state == u"unfinished" ? 1 : 0;
    }
    RecordProperty("lacking", lacking);
    EXPECT_EQ(lacking, 0) << "scripts/translations list " << qPrintable(GetParam()) << " names them";
}

INSTANTIATE_TEST_SUITE_P(All, LanguageFiles, ::testing::ValuesIn(kAll.begin(), kAll.end()),
                         [](const auto& each) { return each.param.toStdString(); });

TEST(LanguageFilesOfTheTree, AreThoseThatAreKnown) {
    QStringList files =
        QDir(QStringLiteral(VANTOR_SOURCE_DIR "/resources/languages")).entryList({QStringLiteral("*.ts")});
    QStringList known;
    for (const QString& language : kAll) {
        known << QStringLiteral("vantor_%1.ts").arg(language);
    }
    EXPECT_EQ(files, known);
}

// The sources, read anew, say the same texts as the files.
TEST(LanguageFilesOfTheTree, HoldEveryTextOfTheSources) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vantor_de.ts"));
    QStringList arguments{QStringLiteral("-silent"),        QStringLiteral("-locations"),
                          QStringLiteral("none"),           QStringLiteral("-extensions"),
                          QStringLiteral("cpp,h,ui"),       QStringLiteral("-I"),
                          QStringLiteral(VANTOR_SOURCE_DIR)};
    for (const QString& room : QStringLiteral(VANTOR_ROOMS).split(u' ')) {
        arguments << QStringLiteral(VANTOR_SOURCE_DIR "/") + room;
    }
    arguments << QStringLiteral("-ts") << path;
    ASSERT_EQ(QProcess::execute(QStringLiteral(VANTOR_LUPDATE), arguments), 0);
    std::map<QString, bool> said;
    for (const Text& text : textsOf(path)) {
        said[text.place()] = text.plural;
    }
    ASSERT_GT(said.size(), 500U);
    for (const QString& language : kAll) {
        std::map<QString, bool> held;
        for (const Text& text : textsOf(fileOf(language))) {
            held[text.place()] = text.plural;
        }
        for (const auto& [place, plural] : said) {
            EXPECT_TRUE(held.contains(place)) << qPrintable(language) << " lacks " << qPrintable(place)
                                              << "; build the target update-languages";
        }
        EXPECT_EQ(held, said) << qPrintable(language);
        if (held != said) {
            break;
        }
    }
}

class CompiledFiles : public ::testing::Test {
  protected:
    QString said(const QString& language, const char* context, const char* text, int number = -1) {
        QTranslator texts;
        EXPECT_TRUE(texts.load(QStringLiteral("vantor_") + language,
                               QStringLiteral(VANTOR_BINARY_DIR "/share/vantor-recovery/languages")));
        return texts.translate(context, text, nullptr, number);
    }
};

TEST_F(CompiledFiles, AreTheLanguagesOfTheProgram) {
    QStringList all = kAll;
    all << QStringLiteral("en");
    all.sort();
    EXPECT_EQ(languagesIn(QStringLiteral(VANTOR_BINARY_DIR "/share/vantor-recovery")), all);
}

TEST_F(CompiledFiles, SayWhatTheirLanguageSays) {
    EXPECT_EQ(said("de", "RangeScreen", "Entire Disk"), QStringLiteral("Ganzer Datenträger"));
    EXPECT_EQ(said("de", "QObject", "%1 files found", 1), QStringLiteral("%1 Datei gefunden"));
    EXPECT_EQ(said("de", "QObject", "%1 files found", 2), QStringLiteral("%1 Dateien gefunden"));
}

// Three forms, chosen by the last digits.
TEST_F(CompiledFiles, CountInPolish) {
    const auto files = [this](std::uint64_t number) {
        return said("pl", "QObject", "%1 files found", pluralOf(number));
    };
    const QString one = QStringLiteral("Znaleziono %1 plik"), few = QStringLiteral("Znaleziono %1 pliki"),
                  many = QStringLiteral("Znaleziono %1 plików");
    EXPECT_EQ(files(1), one);
    EXPECT_EQ(files(2), few);
    EXPECT_EQ(files(5), many);
    EXPECT_EQ(files(12), many);
    EXPECT_EQ(files(22), few);
    EXPECT_EQ(files(21), many);
    EXPECT_EQ(files(3'000'000'022), few) << "beyond the numbers that the toolkit takes";
    EXPECT_EQ(files(3'000'000'012), many);
    EXPECT_EQ(files(3'000'000'001), many);
}

}  // namespace
}  // namespace vantor
