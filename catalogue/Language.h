// The language that the program speaks: that of the desktop, or the one it was asked for.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <optional>

namespace vantor {

// The program's own language, in which its texts are written.
inline const QString kOwnLanguage = QStringLiteral("en");

// The languages there are texts for in the resources folder, as "de" or "pt_BR", sorted; kOwnLanguage is
// among them always.
QStringList languagesIn(const QString& resourcesFolder);

// The one of `there` that serves who wants `wanted`, the dearest first, as "de-AT" or "pt_BR"; kOwnLanguage
// when none does. One of another country does, one in another script does not.
QString languageFor(const QStringList& wanted, const QStringList& there);

// What is left of a command line without `--language X` or `--language=X`, and X, the last of them; nothing
// when it is not there. An option without its value stays.
struct AskedLanguage {
    QStringList rest;
    std::optional<QString> language;
};
AskedLanguage takeLanguage(const QStringList& arguments);

// Speaks the language that was asked for, or else the desktop's, from now on: texts, the toolkit's own texts,
// numbers and dates. Before anything is shown and before there are other threads. Gives a sentence for the
// user when there is no such language; then it is the desktop's.
std::optional<QString> speak(const std::optional<QString>& asked, const QString& resourcesFolder);

// By whose customs the program's texts write numbers and dates. Any thread.
const QLocale& localeOfTexts();

}  // namespace vantor
