#include "tests/support/EvidenceFiles.h"

#include <libewf.h>

#include <QDir>
#include <QFile>

namespace vantor {

namespace {

// Only as much of the last sector as there is cannot be said.
constexpr std::uint32_t kSectorBytes = 512;

bool write(libewf_handle_t* handle, QByteArray path, const QByteArray& medium, const EvidenceTerms& terms) {
    char* names[] = {path.data()};
    if (libewf_handle_open(handle, names, 1, libewf_get_access_flags_write(), nullptr) != 1 ||
        libewf_handle_set_format(handle, LIBEWF_FORMAT_ENCASE6, nullptr) != 1 ||
        libewf_handle_set_bytes_per_sector(handle, kSectorBytes, nullptr) != 1 ||
        libewf_handle_set_sectors_per_chunk(handle, kEvidenceChunkSectors, nullptr) != 1 ||
        libewf_handle_set_media_size(handle, static_cast<size64_t>(medium.size()), nullptr) != 1 ||
        libewf_handle_set_compression_values(
            handle, terms.isPacked ? LIBEWF_COMPRESSION_FAST : LIBEWF_COMPRESSION_NONE, 0, nullptr) != 1) {
        return false;
    }
    if (terms.segmentBytes != 0 &&
        libewf_handle_set_maximum_segment_size(handle, terms.segmentBytes, nullptr) != 1) {
        return false;
    }
    const SectorRun& lost = terms.notAcquired;
    if (lost.end > lost.first &&
        libewf_handle_append_acquiry_error(handle, lost.first, lost.end - lost.first, nullptr) != 1) {
        return false;
    }
    // Chunk by chunk: the writer takes more at once for one chunk.
    constexpr qsizetype kPiece = qsizetype{kEvidenceChunkSectors} * kSectorBytes;
    for (qsizetype at = 0; at < medium.size(); at += kPiece) {
        const qsizetype length = std::min(kPiece, medium.size() - at);
        if (libewf_handle_write_buffer(handle, medium.constData() + at, static_cast<std::size_t>(length),
                                       nullptr) != length) {
            return false;
        }
    }
    return libewf_handle_write_finalize(handle, nullptr) >= 0;
}

}  // namespace

QStringList writeEvidence(const QString& folder, const QString& name, const QByteArray& medium,
                          const EvidenceTerms& terms) {
    libewf_handle_t* handle = nullptr;
    bool written = libewf_handle_initialize(&handle, nullptr) == 1 &&
                   write(handle, QFile::encodeName(folder + u'/' + name), medium, terms);
    if (handle != nullptr) {
        written = libewf_handle_close(handle, nullptr) == 0 && written;
        libewf_handle_free(&handle, nullptr);
    }
    QStringList paths;
    const QDir all(folder);
    for (const QString& file : all.entryList({name + QStringLiteral(".E??")}, QDir::Files, QDir::Name)) {
        paths << all.filePath(file);
    }
    return written ? paths : QStringList();
}

}  // namespace vantor
