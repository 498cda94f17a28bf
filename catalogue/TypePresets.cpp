// What belongs to each set. Camera raw by the extensions that the makers' cameras write.
#include "catalogue/TypePresets.h"

#include <QHash>
#include <QObject>
#include <QStringList>

namespace vantor {

namespace {

const QString kEverything = QStringLiteral("everything");

QSet<QString> setOf(const char* extensions) {
    const QStringList list = QString::fromLatin1(extensions).split(u' ');
    return {list.cbegin(), list.cend()};
}

const QHash<QString, QSet<QString>>& contents() {
    static const QHash<QString, QSet<QString>> sets = {
        {QStringLiteral("photos"),
         setOf("ARI ARW CR2 CR3 CRW DNG GPR HEIC HEIF IIQ JPG JXL JXR KDC LFP MRW NEF ORF PEF PTX RAF "
               "RAW RW2 TIF X3F")},
        {QStringLiteral("office"),
         setOf("ABW ACCDB CWK DOC DOCX EML EPUB FODT HWP KEY LWP MBOX MDB MSG NUMBERS ODB ODF ODG ODM "
               "ODP ODS ODT ONE OTG OTH OTP OTS OTT P7M PAGES PDF PPT PPTX PST RTF SAM SLK SNB SXC SXD "
               "SXI SXM SXW VSD VSDX WK1 WK3 WK4 WPD WRI XLS XLSX XPS")},
        {QStringLiteral("phone"),
         setOf("3G2 3GP AAC AMR APK AVIF AWB CAF DNG GIF HEIC HEIF ICS JPG M4A M4V MOV MP3 MP4 OGA OGG "
               "OPUS PDF PNG QCP SQLITE VCF VNT WEBM WEBP")},
        {QStringLiteral("recorder"),
         setOf("AAC AIFF AMR AU AWB CAF DS2 DSS FLAC M4A MP2 MP3 MSV OGA OGG OPUS QCP RA RF64 SPX VOX "
               "W64 WAV WMA WV")},
    };
    return sets;
}

}  // namespace

QList<TypePreset> typePresets() {
    return {
        {QStringLiteral("photos"), QObject::tr("Photos of all cameras")},
        {QStringLiteral("office"), QObject::tr("Office documents")},
        {QStringLiteral("phone"), QObject::tr("Phone")},
        {QStringLiteral("recorder"), QObject::tr("Sound recorder")},
        {kEverything, QObject::tr("Everything")},
    };
}

QSet<QString> typesOfPreset(const QString& key) {
    return contents().value(key);
}

bool isInPreset(const QString& key, const QString& extension) {
    return key == kEverything || typesOfPreset(key).contains(extension.toUpper());
}

}  // namespace vantor
