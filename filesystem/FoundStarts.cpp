#include "filesystem/FoundStarts.h"

#include <QHash>
#include <QStringList>

namespace vantor {

namespace {

// The kind of a file by its name's ending: the first of those whose files begin alike.
QString kindOf(const QString& ending) {
    static const QHash<QString, QString> kinds = [] {
        const QList<QStringList> alike{
            {"jpg", "jpeg", "jpe", "thm", "mpo", "jps", "jfif"},
            {"tif", "tiff", "nef", "nrw", "dng", "arw", "sr2", "srf", "cr2", "pef", "srw",
             "kdc", "dcr",  "3fr", "iiq", "erf", "mef", "mos", "gpr", "rw2", "orf"},
            {"mp4", "mov", "m4v", "qt", "3gp", "3g2", "m4a", "f4v", "heic", "heif", "avif", "cr3", "lrv",
             "insv"},
            {"avi", "wav", "webp", "ani"},
            {"mts", "m2ts", "m2t", "ts", "tod"},
            {"mpg", "mpeg", "vob", "mod", "dat"},
            {"mkv", "webm", "mka"},
            {"wmv", "wma", "asf"},
            {"zip", "docx", "xlsx", "pptx", "odt", "ods", "odp", "epub", "jar", "apk"},
            {"doc", "xls", "ppt", "msg"},
        };
        QHash<QString, QString> made;
        for (const QStringList& kind : alike) {
            for (const QString& one : kind) {
                made.insert(one, kind.first());
            }
        }
        return made;
    }();
    const QString small = ending.toLower();
    return kinds.value(small, small);
}

QString kindOfName(const QString& name) {
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : kindOf(name.mid(dot + 1));
}

}  // namespace

FoundStarts::FoundStarts(const std::vector<FoundStart>& found) {
    for (const FoundStart& start : found) {
        const QString kind = kindOf(start.extension);
        if (!kind.isEmpty() && m_kinds.emplace(start.sector, kind).second) {
            m_places[kind.toStdString()].push_back(start.sector);
        }
    }
}

bool FoundStarts::isAt(std::uint64_t sector, const QString& name) const {
    const auto kind = m_kinds.find(sector);
    return kind != m_kinds.end() && kind->second == kindOfName(name);
}

std::vector<std::uint64_t> FoundStarts::ofKind(const QString& name, std::size_t most) const {
    const auto places = m_places.find(kindOfName(name).toStdString());
    if (places == m_places.end()) {
        return {};
    }
    const std::size_t step = places->second.size() / most + 1;
    std::vector<std::uint64_t> spread;
    for (std::size_t i = 0; i < places->second.size(); i += step) {
        spread.push_back(places->second[i]);
    }
    return spread;
}

}  // namespace vantor
