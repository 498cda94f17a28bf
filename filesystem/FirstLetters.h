// The letter that deletion on FAT takes from a short name, where other names or a standard tell it.
#pragma once

#include <QChar>
#include <QHash>
#include <QSet>
#include <QString>
#include <cstddef>
#include <optional>
#include <utility>

namespace vantor {

// Cameras number their files: names that are alike but for their digits begin alike. Public descriptions: the
// standard for cameras' folders and files (DCF) and that for AVCHD's.
class FirstLetters {
  public:
    // A name with all its letters, and the number of the folder that it stands in.
    void learn(const QString& name, std::size_t folder);

    // The first letter of a name in which '_' stands for it; nothing where nobody tells, or two tell
    // differently. Those of the same folder are asked first.
    std::optional<QChar> of(const QString& name, std::size_t folder) const;

  private:
    // A null character: of several.
    QHash<QString, QChar> m_onCard;
    QHash<std::pair<std::size_t, QString>, QChar> m_inFolder;
    QSet<std::pair<std::size_t, QString>> m_taken;
};

}  // namespace vantor
