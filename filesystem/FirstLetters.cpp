#include "filesystem/FirstLetters.h"

#include <QStringList>
#include <algorithm>
#include <iterator>
#include <numeric>

namespace vantor {

namespace {

constexpr qsizetype kShortStem = 8;
constexpr qsizetype kShortExtension = 3;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isLetter(QChar c) {
    return c >= u'A' && c <= u'Z';
}

// The name behind its first letter, with a nought for every digit; "" where it is none of a series: no number
// of three digits, or of fewer behind four letters or more, ends it, before one letter at most, or begins it
// as those of cameras' folders do.
QString seriesOf(const QString& name) {
    const qsizetype dot = name.indexOf(u'.');
    const qsizetype stem = dot < 0 ? name.size() : dot;
    if (stem < 2 || stem > kShortStem || (dot >= 0 && name.size() - dot - 1 > kShortExtension)) {
        return {};
    }
    QString rest = name.mid(1).toUpper();
    const qsizetype length = stem - 1;
    qsizetype end = length - (isLetter(rest[length - 1]) ? 1 : 0);
    qsizetype digits = 0;
    while (digits < end && isDigit(rest[end - 1 - digits])) {
        ++digits;
    }
    const qsizetype letters = std::count_if(rest.begin(), rest.begin() + length,
                                            [](QChar c) { return isLetter(c) || c == u'_' || c == u'-'; });
    const bool isWordAndNumber = digits >= 1 && letters >= 4 && letters + digits == length;
    const bool isFolder = dot < 0 && stem == kShortStem && isDigit(rest[0]) && isDigit(rest[1]);
    if (digits < 3 && !isWordAndNumber && !isFolder) {
        return {};
    }
    for (QChar& c : rest) {
        c = isDigit(c) ? QChar(u'0') : c;
    }
    return rest;
}

struct Numbered {
    QString rest;  // the name without its first letter and the number that ends its stem, or follows that
    std::size_t number = 0;
    qsizetype digits = 0;
};

std::optional<Numbered> numberedOf(const QString& name) {
    const qsizetype dot = name.indexOf(u'.');
    const qsizetype stem = dot < 0 ? name.size() : dot;
    const bool isShort = stem <= kShortStem && (dot < 0 || name.size() - dot - 1 <= kShortExtension);
    qsizetype digits = 0;
    while (isShort && digits + 1 < stem && isDigit(name[stem - 1 - digits])) {
        ++digits;
    }
    qsizetype at = stem - digits;
    if (isShort && digits == 0 && (isDigit(name.front()) || name.front() == u'_')) {
        at = 1;
        while (at + digits < stem && isDigit(name[at + digits])) {
            ++digits;
        }
    }
    if (digits == 0) {
        return std::nullopt;
    }
    const QString number = name.mid(at, digits);
    return Numbered{(name.mid(1, at - 1) + u'#' + name.mid(at + digits)).toUpper(), number.toUInt(), digits};
}

bool saysMoreThanNumbers(const QString& series) {
    return !series.section(u'.', 0, 0).remove(u'0').isEmpty();
}

// Names that the standards prescribe.
std::optional<QChar> letterOfStandardName(const QString& name) {
    static const QStringList names{
        QStringLiteral("DCIM"),     QStringLiteral("PRIVATE"),   QStringLiteral("AVCHD"),
        QStringLiteral("BDMV"),     QStringLiteral("STREAM"),    QStringLiteral("CLIPINF"),
        QStringLiteral("PLAYLIST"), QStringLiteral("INDEX.BDM"), QStringLiteral("MOVIEOBJ.BDM"),
        QStringLiteral("MP_ROOT"),  QStringLiteral("M4ROOT"),    QStringLiteral("THMBNL"),
        QStringLiteral("AVF_INFO"), QStringLiteral("CANONMSC"),  QStringLiteral("EOSMISC")};
    const QString rest = name.mid(1).toUpper();
    const auto found = std::find_if(names.begin(), names.end(), [&](const QString& whole) {
        return whole.size() == rest.size() + 1 && whole.endsWith(rest);
    });
    return found == names.end() ? std::nullopt : std::optional(found->front());
}

// Beginnings of names that all cameras of a maker write, and numbers that the standards prescribe.
std::optional<QChar> letterOfStandardSeries(const QString& series) {
    static const QHash<QString, QChar> cameras{{QStringLiteral("MG_"), u'I'}, {QStringLiteral("MGP"), u'I'},
                                               {QStringLiteral("SC_"), u'D'}, {QStringLiteral("SC0"), u'D'},
                                               {QStringLiteral("SCN"), u'D'}, {QStringLiteral("SCF"), u'D'},
                                               {QStringLiteral("VI_"), u'M'}, {QStringLiteral("OPR"), u'G'}};
    static const QStringList streams{QStringLiteral("0000.MTS"), QStringLiteral("0000.CPI"),
                                     QStringLiteral("0000.MPL")};
    // A card's folders are numbered from 100 on, its streams from 0 on, and few get as far as to the next
    // digit.
    if (streams.contains(series)) {
        return u'0';
    }
    if (series.size() == kShortStem - 1 && !series.contains(u'.') && series.startsWith(u"00")) {
        return u'1';
    }
    const auto camera = cameras.constFind(series.left(3));
    const bool isPhoto = series.indexOf(u"0000.") == 3 && series.size() == 8 + kShortExtension;
    return isPhoto && camera != cameras.constEnd() ? std::optional(*camera) : std::nullopt;
}

template <typename Key>
void note(QHash<Key, QChar>& letters, const Key& series, QChar letter) {
    const auto known = letters.constFind(series);
    const bool agrees = known == letters.constEnd() || *known == letter;
    letters.insert(series, agrees ? letter : QChar());
}

}  // namespace

void FirstLetters::learn(const QString& name, const Where& where) {
    const QString series = seriesOf(name);
    const auto numbered = numberedOf(name);
    if (series.isEmpty() && !numbered) {
        return;
    }
    const QChar letter = name.front().toUpper();
    m_taken.insert({where.folder, name.toUpper()});
    if (!series.isEmpty()) {
        note(m_onCard, series, letter);
        note(m_inFolder, {where.folder, series}, letter);
    }
    if (numbered) {
        const std::pair key(where.folder, numbered->rest);
        m_numbered[key][letter].push_back({where.entry, numbered->number, numbered->digits});
        if (where.time != 0) {
            m_times[key][letter][numbered->number] = where.time;
        }
    }
}

// Files that were written one after another stand so in their folder: the number fits between those before
// and behind it of one letter, with an entry for each between them, and into no row of another letter's.
// Where the number is nearly all of the name there may be no other entry among them.
std::optional<QChar> FirstLetters::letterOfNeighbours(const QString& name, const Where& where) const {
    const auto own = numberedOf(name);
    const auto known = own ? m_numbered.constFind({where.folder, own->rest}) : m_numbered.constEnd();
    if (known == m_numbered.constEnd()) {
        return std::nullopt;
    }
    const bool isWeak = seriesOf(name).isEmpty();
    const auto follows = [&](const Place& before, const Place& after, QChar letter) {
        const bool sameLength = before.digits == after.digits || isLetter(letter);
        const bool rises = sameLength && before.number < after.number;
        const std::size_t entries = after.entry - before.entry;
        return rises &&
               (isWeak ? entries == after.number - before.number : entries >= after.number - before.number);
    };
    const Place here{where.entry, own->number, own->digits};
    std::optional<QChar> told;
    for (const auto& [letter, places] : *known) {
        const auto behind = std::upper_bound(places.begin(), places.end(), where.entry,
                                             [](std::size_t at, const Place& one) { return at < one.entry; });
        const bool isFirst = behind == places.begin();
        const bool isLast = behind == places.end();
        if ((!isFirst && !follows(*std::prev(behind), here, letter)) ||
            (!isLast && !follows(here, *behind, letter))) {
            continue;
        }
        if (isFirst || isLast || told) {
            return std::nullopt;
        }
        told = letter;
    }
    return told;
}

// Of several series in a folder only one has its numbers rise with the time through this one too.
std::optional<QChar> FirstLetters::letterOfTime(const QString& name, const Where& where) const {
    constexpr std::size_t kLeastOfSeries = 3;
    const auto own = numberedOf(name);
    const auto known = own ? m_times.constFind({where.folder, own->rest}) : m_times.constEnd();
    if (known == m_times.constEnd() || where.time == 0 || seriesOf(name).isEmpty()) {
        return std::nullopt;
    }
    std::optional<QChar> told;
    for (const auto& [letter, times] : *known) {
        const auto next = times.lower_bound(own->number);
        const bool isLate = next != times.end() && next->second < where.time;
        const bool isEarly = next != times.begin() && std::prev(next)->second > where.time;
        if (isLate || isEarly) {
            continue;
        }
        if (told || times.size() < kLeastOfSeries) {
            return std::nullopt;
        }
        told = letter;
    }
    return told;
}

// Numbers that rise with each entry: those of the next entries known have the same distance from their
// entries as this one, and two of them, or not far off, stand beside each other, so that it is no series that
// takes turns with another.
std::optional<QChar> FirstLetters::letterOfRow(const QString& name, const Where& where) const {
    constexpr std::size_t kLeastOfRow = 3;
    constexpr std::size_t kLookedAt = 16;
    const auto own = numberedOf(name);
    const auto known = own ? m_numbered.constFind({where.folder, own->rest}) : m_numbered.constEnd();
    if (known == m_numbered.constEnd()) {
        return std::nullopt;
    }
    std::optional<QChar> told;
    for (const auto& [letter, places] : *known) {
        const auto behind = std::upper_bound(places.begin(), places.end(), where.entry,
                                             [](std::size_t at, const Place& one) { return at < one.entry; });
        const auto before = static_cast<std::size_t>(behind - places.begin());
        const std::size_t from = before - std::min(before, kLookedAt);
        const std::size_t to = std::min(places.size(), before + kLookedAt);
        bool isOne = to - from >= kLeastOfRow;
        bool isDense = false;
        bool didFit = false;
        for (std::size_t at = from; at < to && isOne; ++at) {
            const bool sameLength = places[at].digits == own->digits || isLetter(letter);
            const bool fits = sameLength && places[at].number - own->number == places[at].entry - where.entry;
            const bool isNext = at + kLeastOfRow >= before && at < before + kLeastOfRow;
            isOne = fits || !isNext;
            isDense = isDense || (fits && didFit && places[at].entry == places[at - 1].entry + 1);
            didFit = fits;
        }
        if (!isOne || !isDense) {
            continue;
        }
        if (told) {
            return std::nullopt;
        }
        told = letter;
    }
    return told;
}

// Whether another letter's names stand between those of this one, as where a front and a rear camera count
// together and all that one of them wrote is gone: the numbers known are all a step apart, and this one is
// not.
bool FirstLetters::takesTurns(const QString& name, const Where& where, QChar letter) const {
    const auto own = numberedOf(name);
    const auto known = own ? m_numbered.constFind({where.folder, own->rest}) : m_numbered.constEnd();
    if (!isLetter(letter) || known == m_numbered.constEnd() || !known->contains(letter)) {
        return false;
    }
    const std::vector<Place>& places = known->at(letter);
    const auto away = [](std::size_t a, std::size_t b) { return a > b ? a - b : b - a; };
    std::size_t step = 0;
    for (const Place& place : places) {
        step = std::gcd(step, away(place.number, places.front().number));
    }
    return step > 1 && away(own->number, places.front().number) % step != 0;
}

std::optional<QChar> FirstLetters::of(const QString& name, const Where& where) const {
    const QString series = seriesOf(name);
    auto toldHere = m_inFolder.constFind({where.folder, series});
    std::optional<QChar> letter;
    if (toldHere != m_inFolder.constEnd()) {
        letter = *toldHere;
    } else if (const auto onCard = m_onCard.constFind(series);
               onCard != m_onCard.constEnd() && saysMoreThanNumbers(series)) {
        letter = *onCard;
    } else {
        letter = series.isEmpty() ? letterOfStandardName(name) : letterOfStandardSeries(series);
    }
    if (!letter || letter->isNull()) {
        letter = letterOfNeighbours(name, where);
    }
    if (letter && !saysMoreThanNumbers(series) && takesTurns(name, where, *letter)) {
        return std::nullopt;
    }
    if (!letter) {
        letter = letterOfTime(name, where);
        letter = letter ? letter : letterOfRow(name, where);
    }
    // Where another has the name, this one may be of another series.
    if (!letter || m_taken.contains({where.folder, *letter + name.mid(1).toUpper()})) {
        return std::nullopt;
    }
    const bool isSmall = name != name.toUpper() && name == name.toLower();
    return isSmall ? letter->toLower() : *letter;
}

}  // namespace vantor
