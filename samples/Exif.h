// The notes a camera leaves in a photo.
#pragma once

#include <QByteArray>

namespace vantor::samples {

struct ExifNotes {
    QByteArray make = "VANTOR";
    QByteArray model = "SAMPLE 100";
    QByteArray takenAt;   // "2024:06:01 10:00:00"
    int orientation = 1;  // 1 upright, 3 upside down, 6 and 8 quarter turns (Exif 2.3, tag 0x0112)
    int width = 0;
    int height = 0;
    QByteArray thumbnail;  // a small JPEG, or empty
};

// The APP1 segment (Exif 2.3, big-endian TIFF inside).
QByteArray exifSegment(const ExifNotes& notes);

}  // namespace vantor::samples
