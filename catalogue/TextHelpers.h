// Small string helpers in the platform's own terms, on the ground floor so that every room may use them.
#pragma once

#include <QString>

namespace vantor {

// Lengths and indices count UTF-16 units; none of these fails, and any thread may call them.

// The first `count` units; a negative count is 0, a count beyond the end gives the string itself.
QString Left_Str_substringToIndex(const QString& string, qint32 count);

// The last `count` units; a negative count is 0, a count beyond the length gives the string itself.
QString Right_Str_substringFromIndex(const QString& string, qint32 count);

// The units from `index` to the end; an index beyond the length gives "".
QString Read_Str_FromIndex(const QString& string, quint32 index);

// The units before `index`; an index beyond the length gives "" (unlike Left_Str_substringToIndex).
QString Read_Str_Upto_Index(const QString& string, quint32 index);

// The string without white space and line breaks at both ends.
QString Trim_Str(const QString& string);

// True when the text occurs in the string, letter for letter; an empty text never occurs.
bool Find_Str(const QString& string, const QString& text);

// A silenced logging hook: it accepts a message and does nothing.
void Show_NSLog_Message(const QString& message);

}  // namespace vantor
