// The layout of a signature record inside the flat catalogue arrays.
#pragma once

#include <QStringList>

namespace vantor {

// Record n of a catalogue array occupies the elements 7n to 7n+6.
inline constexpr qsizetype kRecordStride = 7;

// Positions of a record's fields, counted from its first element.
enum RecordField : qsizetype {
    Ext_Name = 0,           // type name, also the extension of found items
    Max_File_Size = 1,      // bytes, decimal text, signed 64-bit
    Header_Hex = 2,         // two digits a byte; an odd trailing digit is ignored
    Header_Offset = 3,      // "1", "nn" or a 1-based decimal byte offset
    Spare_Value = 4,        // carried, never read
    Ext_Descp = 5,          // description shown in the file-type list
    Header_First_Byte = 6,  // "0".."255", or "" when the record had no header line
};

// A numeric rule in Header_Offset is honoured up to this byte, counted from 1.
inline constexpr qint64 kLastNumericOffset = 507;

// Number of whole records in a catalogue array; an incomplete one at the end does not count.
inline qsizetype recordCount(const QStringList& array) {
    return array.size() / kRecordStride;
}

inline const QString& recordField(const QStringList& array, qsizetype record, RecordField field) {
    return array.at(record * kRecordStride + field);
}

}  // namespace vantor
