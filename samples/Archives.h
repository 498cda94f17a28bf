// Archives, by libarchive where it writes them.
#pragma once

#include <QByteArray>
#include <vector>

namespace vantor::samples {

struct Member {
    QByteArray name;
    QByteArray bytes;
};

// Formats and filters in libarchive's names: "ustar", "7zip", "raw"; "gzip", "xz".
QByteArray archived(const std::vector<Member>& members, const char* format, const char* filter = nullptr);

// By hand, since an office document's first member must be stored as it is and without extra fields
// ("mimetype").
QByteArray zipFile(const std::vector<Member>& members);
QByteArray cabFile(const std::vector<Member>& members);  // MS-CAB without compression
QByteArray lhaFile(const std::vector<Member>& members);  // level 0 headers, "-lh0-"

}  // namespace vantor::samples
