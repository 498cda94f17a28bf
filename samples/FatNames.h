// The directory entries that give a FAT file its short name and, where that does not do, its long one.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace vantor::samples {

// Whether a name fits the short form as it stands: eight characters, a dot, three, in upper case.
bool isShortName(const QString& name);

// The eleven bytes of the short form ("README  TXT"); of a name that does not fit, "README~1TXT" with
// `number`.
QByteArray shortNameOf(const QString& name, int number);

// The 32-byte long-name entries in the order they are stored, last part first.
std::vector<QByteArray> longNameEntries(const QString& name, const QByteArray& shortName);

}  // namespace vantor::samples
