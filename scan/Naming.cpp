// Names and UIDs of found items: prefix, zero-padded number, extension.
#include "catalogue/NumberText.h"
#include "scan/ScanSession.h"

namespace vantor {

namespace {

// At least five digits; larger numbers simply grow longer.
QString paddedName(const QString& prefix, std::uint64_t number, const QString& extension) {
    constexpr int kDigits = 5;
    return prefix + QString::number(number).rightJustified(kDigits, u'0') + u'.' + extension;
}

}  // namespace

QString ScanSession::Generate_File_Name(std::uint64_t number, const QString& Prefix,
                                        const QString& Extension) const {
    if (Recovery_MODE != kPhotoMode) {
        const std::lock_guard lock(m_listLock);
        const qsizetype row = rowOfType(nsSIGFileInfoDataObject, Prefix);
        if (row >= 0) {
            number = static_cast<std::uint64_t>(countOf(nsSIGFileInfoDataObject.at(row))) + 1;
        }
    }
    return paddedName(Prefix, number, Extension);
}

QString ScanSession::Generate_File_UID_Num(std::uint64_t number, bool Thoro_Hai,
                                           const QString& Extension) const {
    return paddedName(Thoro_Hai ? QStringLiteral("THD") : QStringLiteral("GND"), number, Extension);
}

}  // namespace vantor
