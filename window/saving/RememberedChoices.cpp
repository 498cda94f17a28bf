// A key a choice; those of a first start are not written, so that they follow the program.
#include "window/saving/RememberedChoices.h"

#include <QSettings>

namespace vantor {

namespace {

const QString kGroup = QStringLiteral("saving/");

template <class Value>
void put(QSettings& settings, const char* name, Value value, Value usual) {
    const QString key = kGroup + QLatin1String(name);
    if (value == usual) {
        settings.remove(key);
    } else {
        settings.setValue(key, QVariant::fromValue(value));
    }
}

bool flag(const QSettings& settings, const char* name, bool usual) {
    return settings.value(kGroup + QLatin1String(name), usual).toBool();
}

// From 0 up to the last value that there is.
template <class Choice>
Choice choice(const QSettings& settings, const char* name, Choice usual, Choice last) {
    bool isNumber = false;
    const int value = settings.value(kGroup + QLatin1String(name)).toInt(&isNumber);
    return isNumber && value >= 0 && value <= static_cast<int>(last) ? static_cast<Choice>(value) : usual;
}

quint64 number(const QSettings& settings, const char* name, quint64 most) {
    bool isNumber = false;
    const quint64 value = settings.value(kGroup + QLatin1String(name)).toULongLong(&isNumber);
    return isNumber && value <= most ? value : 0;
}

}  // namespace

void rememberChoices(QSettings& settings, const SavingChoices& choices) {
    const SavingChoices usual;
    const SavePolicy& policy = choices.policy;
    put(settings, "report", choices.report, usual.report);
    put(settings, "asPublished", policy.asPublished, usual.policy.asPublished);
    put(settings, "names", static_cast<int>(policy.names), static_cast<int>(usual.policy.names));
    put(settings, "folders", static_cast<int>(policy.folders), static_cast<int>(usual.policy.folders));
    put(settings, "lostOnly", policy.lostOnly, usual.policy.lostOnly);
    put(settings, "skipDuplicates", policy.skipDuplicates, usual.policy.skipDuplicates);
    put<quint64>(settings, "minBytes", policy.minBytes, usual.policy.minBytes);
    put<quint64>(settings, "minPixels", policy.minPixels, usual.policy.minPixels);
    put(settings, "checksums", policy.checksums, usual.policy.checksums);
    put(settings, "parts", policy.parts, usual.policy.parts);
    put(settings, "skipUnsound", policy.skipUnsound, usual.policy.skipUnsound);
}

SavingChoices recalledChoices(const QSettings& settings) {
    SavingChoices choices;
    SavePolicy& policy = choices.policy;
    choices.report = flag(settings, "report", choices.report);
    policy.asPublished = flag(settings, "asPublished", policy.asPublished);
    policy.names = choice(settings, "names", policy.names, SaveNames::Found);
    policy.folders = choice(settings, "folders", policy.folders, SaveFolders::Date);
    policy.lostOnly = flag(settings, "lostOnly", policy.lostOnly);
    policy.skipDuplicates = flag(settings, "skipDuplicates", policy.skipDuplicates);
    policy.minBytes = number(settings, "minBytes", std::uint64_t{1} << 40);
    policy.minPixels = static_cast<std::uint32_t>(number(settings, "minPixels", 1'000'000));
    policy.checksums = flag(settings, "checksums", policy.checksums);
    policy.parts = flag(settings, "parts", policy.parts);
    policy.skipUnsound = flag(settings, "skipUnsound", policy.skipUnsound);
    return choices;
}

}  // namespace vantor
