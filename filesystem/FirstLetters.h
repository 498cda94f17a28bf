// The letter that deletion on FAT takes from a short name, where other names or a standard tell it.
#pragma once

#include <QChar>
#include <QHash>
#include <QSet>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vantor {

// Cameras number their files: names that are alike but for their digits begin alike. Public descriptions: the
// standard for cameras' folders and files (DCF) and that for AVCHD's.
class FirstLetters {
  public:
    // Where a name stands: the numbers of its folder and of its entry there, and when its file was made or
    // changed, in seconds since 1970 (0: not known).
    struct Where {
        std::size_t folder = 0;
        std::size_t entry = 0;
        std::int64_t time = 0;
    };

    // A name with all its letters; those of a folder in the order of its entries.
    void learn(const QString& name, const Where& where);

    // The first letter of a name in which '_' stands for it; nothing where nobody tells, or two tell
    // differently. Those of the same folder are asked first.
    std::optional<QChar> of(const QString& name, const Where& where) const;

  private:
    struct Place {
        std::size_t entry = 0;
        std::size_t number = 0;  // in the name
        qsizetype digits = 0;
    };
    using Places = std::map<QChar, std::vector<Place>>;
    // When the file of each number was made; of a number that came twice the last.
    using Times = std::map<QChar, std::map<std::size_t, std::int64_t>>;

    bool takesTurns(const QString& name, const Where& where, QChar letter) const;
    std::optional<QChar> letterOfNeighbours(const QString& name, const Where& where) const;
    std::optional<QChar> letterOfTime(const QString& name, const Where& where) const;
    std::optional<QChar> letterOfRow(const QString& name, const Where& where) const;

    // A null character: of several.
    QHash<QString, QChar> m_onCard;
    QHash<std::pair<std::size_t, QString>, QChar> m_inFolder;
    QHash<std::pair<std::size_t, QString>, Places> m_numbered;  // by the name without its number
    QHash<std::pair<std::size_t, QString>, Times> m_times;      // likewise
    QSet<std::pair<std::size_t, QString>> m_taken;
};

}  // namespace vantor
