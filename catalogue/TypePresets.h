// Sets of file types that people look for together.
#pragma once

#include <QList>
#include <QSet>
#include <QString>

namespace vantor {

struct TypePreset {
    QString key;   // as it is typed: "office"
    QString name;  // as it is shown: "Office documents"
};

// In the order in which they are offered; the last one holds every type. Any thread.
QList<TypePreset> typePresets();

// In capitals; none where there is no preset of that key, or where it holds every type.
QSet<QString> typesOfPreset(const QString& key);
// Whether the type (of either case) belongs to the preset of that key; false for a key that there is none of.
bool isInPreset(const QString& key, const QString& extension);

}  // namespace vantor
