// The files that an image lies in.
#pragma once

#include <QString>
#include <QStringList>

namespace vantor {

// The files of the image in their order: name.001, name.002 … when `path` is any of such parts and the first
// is there, and likewise the segments of an evidence image, name.E01 … name.E99, name.EAA … name.ZZZ; else
// `path` alone. A gap ends the sequence.
QStringList imageParts(const QString& path);

// The path of the first part that is missing in front of the last one that is there, or behind it where that
// one says that another follows; empty when none is, or when the path is not one of a row of parts.
QString missingPart(const QString& path);

// Whether the file is a segment of an evidence image that evidence tools call E01: of a medium, as opposed to
// single files. Source: the public notes on the Expert Witness Compression Format.
bool isEvidenceSegment(const QString& path);
bool isEvidenceSegment(int descriptor);

}  // namespace vantor
