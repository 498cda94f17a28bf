// The letter that deletion on FAT takes from a short name, where other names or a standard tell it.
#pragma once

#include <QChar>
#include <QHash>
#include <QSet>
#include <QString>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vantor {

// Cameras number their files: names that are alike but for their digits begin alike. Public descriptions: the
// standard for cameras' folders and files (DCF) and that for AVCHD's.
class FirstLetters {
  public:
    // A name with all its letters, and the numbers of the folder that it stands in and of its entry there;
    // those of a folder in their order.
    void learn(const QString& name, std::size_t folder, std::size_t entry);

    // The first letter of a name in which '_' stands for it; nothing where nobody tells, or two tell
    // differently. Those of the same folder are asked first.
    std::optional<QChar> of(const QString& name, std::size_t folder, std::size_t entry) const;

  private:
    struct Place {
        std::size_t entry = 0;
        std::size_t number = 0;  // in the name
        qsizetype digits = 0;
    };
    using Places = std::map<QChar, std::vector<Place>>;

    std::optional<QChar> letterOfNeighbours(const QString& name, std::size_t folder, std::size_t entry) const;

    // A null character: of several.
    QHash<QString, QChar> m_onCard;
    QHash<std::pair<std::size_t, QString>, QChar> m_inFolder;
    QHash<std::pair<std::size_t, QString>, Places> m_numbered;  // by the name without its number
    QSet<std::pair<std::size_t, QString>> m_taken;
};

}  // namespace vantor
