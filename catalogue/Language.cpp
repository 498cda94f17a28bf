// Files of texts lie in the resources folder; the toolkit's own lie where the toolkit says.
#include "catalogue/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QObject>
#include <QTranslator>

namespace vantor {

namespace {

const QString kFilesBegin = QStringLiteral("vantor_");
const QString kFilesEnd = QStringLiteral(".qm");

QString folderIn(const QString& resourcesFolder) {
    return resourcesFolder + QStringLiteral("/languages");
}

QLocale& chosenLocale() {
    static QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

// The desktop's own customs where it speaks the language too: those of Austria, say.
QLocale customsOf(const QString& language) {
    const QLocale desktop = QLocale::system();
    const QLocale locale(language);
    return desktop.language() == locale.language() && desktop.script() == locale.script() ? desktop : locale;
}

bool load(const QString& file, const QString& folder) {
    auto* const texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(file, folder)) {
        return QCoreApplication::installTranslator(texts);
    }
    delete texts;
    return false;
}

// A machine that was told no language, or "C", speaks none, whatever else its settings say: as everywhere,
// the first of these variables decides.
bool desktopSpeaks() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QByteArray told = qgetenv(name); !told.isEmpty()) {
            return told != "C" && told != "POSIX" && !told.startsWith("C.");
        }
    }
    return false;
}

QStringList languagesOfDesktop() {
    return desktopSpeaks() ? QLocale::system().uiLanguages() : QStringList();
}

}  // namespace

QStringList languagesIn(const QString& resourcesFolder) {
    QStringList languages{kOwnLanguage};
    const QDir folder(folderIn(resourcesFolder));
    for (const QString& file : folder.entryList({kFilesBegin + u'*' + kFilesEnd}, QDir::Files)) {
        languages << file.mid(kFilesBegin.size()).chopped(kFilesEnd.size());
    }
    languages.sort();
    return languages;
}

QString languageFor(const QStringList& wanted, const QStringList& there) {
    for (QString each : wanted) {
        each.replace(u'-', u'_');
        const auto same = std::find_if(there.cbegin(), there.cend(), [&](const QString& language) {
            return language.compare(each, Qt::CaseInsensitive) == 0;
        });
        if (same != there.cend()) {
            return *same;
        }
        const QLocale locale(each);
        const auto near = std::find_if(there.cbegin(), there.cend(), [&](const QString& language) {
            const QLocale other(language);
            return other.language() == locale.language() && other.script() == locale.script();
        });
        if (locale.language() != QLocale::C && near != there.cend()) {
            return *near;
        }
    }
    return {};
}

AskedLanguage takeLanguage(const QStringList& arguments) {
    const QString option = QStringLiteral("--language");
    AskedLanguage asked;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == u"--") {
            asked.rest << arguments.mid(i);
            break;
        }
        if (argument.startsWith(option + u'=')) {
            asked.language = argument.mid(option.size() + 1);
        } else if (argument == option && i + 1 < arguments.size()) {
            asked.language = arguments.at(++i);
        } else {
            asked.rest << argument;
        }
    }
    return asked;
}

std::optional<QString> speak(const std::optional<QString>& asked, const QString& resourcesFolder) {
    const QStringList there = languagesIn(resourcesFolder);
    const QString found = languageFor(asked ? QStringList(*asked) : languagesOfDesktop(), there);
    QString language = found;
    if (found.isEmpty()) {
        language = asked ? languageFor(languagesOfDesktop(), there) : kOwnLanguage;
    }
    if (language.isEmpty()) {
        language = kOwnLanguage;
    }
    if (language != kOwnLanguage) {
        load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        load(kFilesBegin + language, folderIn(resourcesFolder));
        chosenLocale() = customsOf(language);
        // What the toolkit writes itself.
        QLocale::setDefault(chosenLocale());
    }
    if (asked && found.isEmpty()) {
        return QObject::tr("The program does not speak “%1”. It speaks %2.")
            .arg(*asked, there.join(QStringLiteral(", ")));
    }
    return std::nullopt;
}

const QLocale& localeOfTexts() {
    return chosenLocale();
}

}  // namespace vantor
