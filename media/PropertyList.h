// Property lists in their XML form, as macOS tools print them.
#pragma once

#include <QByteArray>
#include <QVariantMap>
#include <optional>

namespace vantor {

// The dictionary that the list is; nothing when the text is malformed, nested deeper than 64 levels, or no
// dictionary. Integers become qint64, or quint64 where they need it; data QByteArray; date QDateTime. Public
// source of the form: the document type "-//Apple//DTD PLIST 1.0//EN".
std::optional<QVariantMap> parsePropertyList(const QByteArray& xml);

}  // namespace vantor
