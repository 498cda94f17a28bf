// Archives, and the office documents that are archives.
#pragma once

#include <QByteArray>
#include <vector>

namespace vantor::samples {

enum class Packing { Stored, Deflated };

struct ArchiveMember {
    QByteArray name;
    QByteArray bytes;
    Packing packing = Packing::Deflated;
};

QByteArray zipFile(const std::vector<ArchiveMember>& members);  // PKWARE APPNOTE, version 2.0
QByteArray tarFile(const std::vector<ArchiveMember>& members);  // POSIX ustar
QByteArray xzFile(const QByteArray& bytes);                     // .xz 1.0.4, LZMA2 chunks without compression
QByteArray sevenZipFile(const std::vector<ArchiveMember>& members);  // 7z 0.4, the "copy" method
QByteArray cabFile(const std::vector<ArchiveMember>& members);       // MS-CAB without compression
QByteArray arFile(const std::vector<ArchiveMember>& members);        // the common archive of Unix
QByteArray cpioFile(const std::vector<ArchiveMember>& members);      // the "newc" form

}  // namespace vantor::samples
