// Catalogue records as tests write them down.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <initializer_list>

#include "catalogue/CatalogueFile.h"

namespace vantor {

// One record of a catalogue as a test writes it.
struct TestRecord {
    const char* extension;
    const char* header;
    const char* offset = "1";
    const char* size = "1048576";
};

inline QStringList recordsOf(std::initializer_list<TestRecord> records) {
    QByteArray text;
    for (const TestRecord& record : records) {
        text += QByteArray("Extension : ") + record.extension + "\nSize : " + record.size +
                "\nHeader :" + record.header + "\nOffset : " + record.offset +
                "\nReserved : 0\nDescription : " + record.extension + " file\n";
    }
    QStringList array;
    appendCatalogueText(text, array);
    return array;
}

}  // namespace vantor
