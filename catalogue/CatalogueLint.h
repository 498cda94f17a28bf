// Finds what is wrong in a catalogue's text, by line, for the people who write catalogues.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace vantor {

// Photo catalogues are searched whole and give one item a header. From the others the user picks types, and
// records whose headers contain one another open together; so a record there is dead only where it opens with
// no other.
enum class CatalogueUse { Photo, Selectable };

struct LintFinding {
    int line = 0;  // 1-based; the line that has to be mended
    QString what;
};

// Findings in the order of their lines: a header line that is not the third of its record, a wrong number of
// value lines, a dot that cuts a field, a field that is no number, a header that can never match, a record
// that an earlier one always beats.
QList<LintFinding> lintCatalogue(const QByteArray& utf8, CatalogueUse use);

}  // namespace vantor
