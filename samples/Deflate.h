// A deflate compressor of our own, because a library's output changes with its version.
#pragma once

#include <QByteArray>

namespace vantor::samples {

// Raw deflate data (RFC 1951): one block with the fixed Huffman codes.
QByteArray deflate(const QByteArray& bytes);
// The same with the header and checksum of zlib (RFC 1950).
QByteArray zlibStream(const QByteArray& bytes);
// The same as a gzip file (RFC 1952) that names its content; its time stamp is unset.
QByteArray gzipFile(const QByteArray& bytes, const QByteArray& name);

}  // namespace vantor::samples
