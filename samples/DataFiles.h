// Packed files and data of programs, each small but whole.
#pragma once

#include <QByteArray>
#include <vector>

#include "samples/Archives.h"

namespace vantor::samples {

QByteArray lz4File(const QByteArray& bytes);                    // LZ4 frame format 1.6, stored blocks
QByteArray zstdFile(const QByteArray& bytes);                   // RFC 8878, raw blocks
QByteArray lhaFile(const std::vector<ArchiveMember>& members);  // level 0 headers, "-lh0-"
QByteArray debFile(const std::vector<ArchiveMember>& members);  // deb(5) with plain tar members
QByteArray warcFile();                                          // ISO 28500, one record
QByteArray torrentFile();
QByteArray pcapFile();   // empty Ethernet packets
QByteArray npyFile();    // 256 squares
QByteArray wasmFile();   // one function
QByteArray shapeFile();  // Esri shapefile of points

}  // namespace vantor::samples
