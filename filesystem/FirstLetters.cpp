#include "filesystem/FirstLetters.h"

#include <QRegularExpression>
#include <QStringList>

namespace vantor {

namespace {

// The name behind its first letter, with a nought for every digit; "" where it is none of a series: no number
// of three digits, or of fewer behind four letters or more, ends it, before one letter at most, or begins it
// as those of cameras' folders do.
QString seriesOf(const QString& name) {
    static const QRegularExpression series(
        QStringLiteral("^(?:.[A-Z0-9_-]{0,4}[0-9]{3}[A-Z]?(?:\\.[A-Z0-9]{1,3})?"
                       "|.[A-Z_-]{4,6}[0-9]{1,3}(?:\\.[A-Z0-9]{1,3})?|.[0-9]{2}[A-Z0-9_]{5})$"));
    QString rest = name.toUpper();
    if (!series.match(rest).hasMatch()) {
        return {};
    }
    rest.remove(0, 1);
    for (QChar& c : rest) {
        c = c.isDigit() ? QChar(u'0') : c;
    }
    return rest;
}

bool saysMoreThanNumbers(const QString& series) {
    return !series.section(u'.', 0, 0).remove(u'0').isEmpty();
}

// Names that the standards prescribe, and beginnings of names that all cameras of a maker write.
std::optional<QChar> standardLetterOf(const QString& name) {
    static const QStringList wholeNames{
        QStringLiteral("DCIM"),     QStringLiteral("PRIVATE"),   QStringLiteral("AVCHD"),
        QStringLiteral("BDMV"),     QStringLiteral("STREAM"),    QStringLiteral("CLIPINF"),
        QStringLiteral("PLAYLIST"), QStringLiteral("INDEX.BDM"), QStringLiteral("MOVIEOBJ.BDM"),
        QStringLiteral("MP_ROOT"),  QStringLiteral("M4ROOT"),    QStringLiteral("THMBNL"),
        QStringLiteral("AVF_INFO"), QStringLiteral("CANONMSC"),  QStringLiteral("EOSMISC")};
    static const QRegularExpression camera(QStringLiteral(
        "^_(?:(?<I>MG_|MGP)|(?<D>SC_|SC[0-9]|SCN|SCF)|(?<M>VI_)|(?<G>OPR))[0-9]{4}\\.[A-Z0-9]{3}$"));
    static const QRegularExpression numbered(
        QStringLiteral("^_(?:(?<one>[0-9]{2}[A-Z0-9_]{5})|(?<nought>[0-9]{4}\\.(?:MTS|CPI|MPL)))$"));
    for (const QString& whole : wholeNames) {
        if (whole.size() == name.size() && whole.endsWith(name.mid(1))) {
            return whole.front();
        }
    }
    const QRegularExpressionMatch photo = camera.match(name);
    for (const QChar letter : QStringLiteral("IDMG")) {
        if (!photo.captured(QString(letter)).isEmpty()) {
            return letter;
        }
    }
    // A card's folders are numbered from 100 on, its streams from 0 on, and few get as far as to the next
    // digit.
    const QRegularExpressionMatch number = numbered.match(name);
    if (!number.hasMatch()) {
        return std::nullopt;
    }
    return number.captured(QStringLiteral("one")).isEmpty() ? QChar(u'0') : QChar(u'1');
}

template <typename Key>
void note(QHash<Key, QChar>& letters, const Key& series, QChar letter) {
    const auto known = letters.constFind(series);
    const bool agrees = known == letters.constEnd() || *known == letter;
    letters.insert(series, agrees ? letter : QChar());
}

}  // namespace

void FirstLetters::learn(const QString& name, std::size_t folder) {
    const QString series = seriesOf(name);
    if (!series.isEmpty()) {
        note(m_onCard, series, name.front().toUpper());
        note(m_inFolder, {folder, series}, name.front().toUpper());
        m_taken.insert({folder, name.toUpper()});
    }
}

std::optional<QChar> FirstLetters::of(const QString& name, std::size_t folder) const {
    const QString series = seriesOf(name);
    auto told = m_inFolder.constFind({folder, series});
    std::optional<QChar> letter;
    if (told != m_inFolder.constEnd()) {
        letter = *told;
    } else if (const auto onCard = m_onCard.constFind(series);
               onCard != m_onCard.constEnd() && saysMoreThanNumbers(series)) {
        letter = *onCard;
    } else {
        letter = standardLetterOf(name.toUpper());
    }
    // Where another has the name, this one may be of another series.
    if (!letter || letter->isNull() || m_taken.contains({folder, *letter + name.mid(1).toUpper()})) {
        return std::nullopt;
    }
    const bool isSmall = name != name.toUpper() && name == name.toLower();
    return isSmall ? letter->toLower() : *letter;
}

}  // namespace vantor
