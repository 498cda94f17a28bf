// Line by line; every number is checked where it is read.
#include "media/CopyMapText.h"

#include <QObject>
#include <charconv>
#include <limits>
#include <string_view>
#include <vector>

namespace vantor {

namespace {

// Longer than any line of a map but for comments, of which nothing is kept.
constexpr std::size_t kMostLine = 256;

constexpr std::string_view kBlank = " \t\r\v\f";

std::vector<std::string_view> wordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    for (std::size_t at = line.find_first_not_of(kBlank); at != std::string_view::npos;
         at = line.find_first_not_of(kBlank, at)) {
        const std::size_t end = std::min(line.find_first_of(kBlank, at), line.size());
        words.push_back(line.substr(at, end - at));
        at = end;
    }
    return words;
}

std::optional<std::uint64_t> numberOf(std::string_view word) {
    int base = 10;
    if (word.starts_with("0x") || word.starts_with("0X")) {
        base = 16;
        word.remove_prefix(2);
    } else if (word.size() > 1 && word.front() == '0') {
        base = 8;
    }
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number, base);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    // Places in a file are signed numbers of 64 bits.
    return whole && number <= std::numeric_limits<std::int64_t>::max() ? std::optional(number) : std::nullopt;
}

bool isOneOf(std::string_view word, std::string_view characters) {
    return word.size() == 1 && characters.find(word.front()) != std::string_view::npos;
}

class Reading {
  public:
    // The word for what is wrong with the line; null when it is right.
    const char* take(std::string_view line) {
        const auto words = wordsOf(line.substr(0, line.find('#')));
        if (words.empty()) {
            return nullptr;
        }
        if (line.size() > kMostLine) {
            return QT_TRANSLATE_NOOP("QObject", "the line is too long");
        }
        return m_hasPosition ? takeRun(words) : takePosition(words);
    }

    const char* finish() const {
        return m_hasPosition ? nullptr
                             : QT_TRANSLATE_NOOP("QObject", "there is no line that tells the position");
    }

    CopyMap map() const {
        CopyMap map(m_end);
        for (const CopyRun& run : m_runs) {
            map.set(run.first, run.end, run.state);
        }
        map.position = m_position;
        return map;
    }

  private:
    const char* takePosition(const std::vector<std::string_view>& words) {
        const auto at = numberOf(words[0]);
        const auto pass = words.size() > 2 ? numberOf(words[2]) : std::optional<std::uint64_t>(1);
        if (!at || !pass || words.size() < 2 || words.size() > 3 || !isOneOf(words[1], "?*/-FG+")) {
            return QT_TRANSLATE_NOOP("QObject", "a position, one of ?*/-FG+ and a pass are expected");
        }
        m_position = {*at, words[1].front(), *pass};
        m_hasPosition = true;
        return nullptr;
    }

    const char* takeRun(const std::vector<std::string_view>& words) {
        const auto first = numberOf(words[0]);
        const auto length = words.size() == 3 ? numberOf(words[1]) : std::nullopt;
        if (!first || !length || !isOneOf(words[2], "?*/-+")) {
            return QT_TRANSLATE_NOOP("QObject", "a position, a size and one of ?*/-+ are expected");
        }
        if (*length == 0 || *length > std::numeric_limits<std::int64_t>::max() - *first) {
            return QT_TRANSLATE_NOOP("QObject", "the size cannot be");
        }
        if (!m_runs.empty() && *first != m_end) {
            return *first < m_end ? QT_TRANSLATE_NOOP("QObject", "it overlaps with the line before")
                                  : QT_TRANSLATE_NOOP("QObject", "there is a gap before it");
        }
        if (m_runs.size() + 4 > CopyMap::kMostRuns) {
            return QT_TRANSLATE_NOOP("QObject", "there are too many lines");
        }
        m_end = *first + *length;
        m_runs.push_back({*first, m_end, static_cast<CopyState>(words[2].front())});
        return nullptr;
    }

    CopyMap::Position m_position;
    bool m_hasPosition = false;
    std::vector<CopyRun> m_runs;
    std::uint64_t m_end = 0;
};

}  // namespace

std::optional<CopyMap> readCopyMap(QByteArrayView text, QString* why) {
    const auto refuse = [why](const QString& words) {
        if (why != nullptr) {
            *why = words;
        }
        return std::nullopt;
    };
    Reading reading;
    std::string_view rest(text.data(), static_cast<std::size_t>(text.size()));
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        if (const char* const wrong = reading.take(rest.substr(0, end))) {
            return refuse(QObject::tr("line %1: %2").arg(number).arg(QObject::tr(wrong)));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (const char* const wrong = reading.finish()) {
        return refuse(QObject::tr(wrong));
    }
    return reading.map();
}

QByteArray writeCopyMap(const CopyMap& map) {
    const auto hex = [](std::uint64_t number) {
        return "0x" + QByteArray::number(number, 16).toUpper().rightJustified(8, '0');
    };
    QByteArray text =
        "# Mapfile. Created by Vantor Recovery\n"
        "# current_pos  current_status  current_pass\n";
    text += hex(map.position.at) + "     " + map.position.phase + "               " +
            QByteArray::number(static_cast<qulonglong>(map.position.pass)) +
            "\n#      pos        size  status\n";
    for (std::uint64_t at = 0; at < map.bytes();) {
        const CopyRun run = map.at(at);
        text += hex(run.first) + "  " + hex(run.end - run.first) + "  " + static_cast<char>(run.state) + '\n';
        at = run.end;
    }
    return text;
}

bool claimsToBeCopyMap(QByteArrayView text) {
    return text.startsWith("# Mapfile.") || text.startsWith("# Rescue Logfile.");
}

}  // namespace vantor
