// Parsing without recursion, since the text comes from outside.
#include "media/PropertyList.h"

#include <QDateTime>
#include <QString>
#include <QVariantList>
#include <QXmlStreamReader>
#include <vector>

namespace vantor {

namespace {

constexpr std::size_t kMostLevels = 64;

// A container whose end has not come yet.
struct Open {
    bool isDictionary = false;
    QVariantMap dictionary;
    QVariantList array;
    std::optional<QString> key;  // of the value that is to come
};

class Parser {
  public:
    explicit Parser(const QByteArray& xml) : m_reader(xml) {}

    std::optional<QVariantMap> parse() {
        if (!m_reader.readNextStartElement() || m_reader.name() != u"plist") {
            return std::nullopt;
        }
        while (!m_reader.atEnd()) {
            const auto token = m_reader.readNext();
            const bool fine = token == QXmlStreamReader::StartElement ? begin()
                              : token == QXmlStreamReader::EndElement ? end()
                                                                      : true;
            if (!fine) {
                return std::nullopt;
            }
        }
        if (m_reader.hasError() || !m_result || m_result->userType() != QMetaType::QVariantMap) {
            return std::nullopt;
        }
        return m_result->toMap();
    }

  private:
    bool begin() {
        const QString tag = m_reader.name().toString();
        if (tag == u"dict" || tag == u"array") {
            if (m_open.size() == kMostLevels) {
                return false;
            }
            m_open.push_back({tag == u"dict", {}, {}, {}});
            return true;
        }
        const QString text = m_reader.readElementText();
        if (tag == u"key") {
            const bool expected = !m_open.empty() && m_open.back().isDictionary && !m_open.back().key;
            if (expected) {
                m_open.back().key = text;
            }
            return expected;
        }
        const std::optional<QVariant> value = scalar(tag, text);
        return value && take(*value);
    }

    bool end() {
        if (m_reader.name() == u"plist") {
            return true;
        }
        Open done = std::move(m_open.back());  // begin() saw it, and the reader checks the nesting
        m_open.pop_back();
        if (done.key) {
            return false;
        }
        return take(done.isDictionary ? QVariant(done.dictionary) : QVariant(done.array));
    }

    bool take(const QVariant& value) {
        if (m_open.empty()) {
            const bool first = !m_result;
            m_result = value;
            return first;
        }
        Open& into = m_open.back();
        if (!into.isDictionary) {
            into.array.append(value);
            return true;
        }
        if (!into.key) {
            return false;
        }
        into.dictionary[*into.key] = value;
        into.key.reset();
        return true;
    }

    static std::optional<QVariant> scalar(const QString& tag, const QString& text) {
        if (tag == u"string") {
            return text;
        }
        if (tag == u"true" || tag == u"false") {
            return tag == u"true";
        }
        if (tag == u"integer") {
            return integer(text.trimmed());
        }
        if (tag == u"real") {
            bool isNumber = false;
            const double number = text.trimmed().toDouble(&isNumber);
            return isNumber ? std::optional<QVariant>(number) : std::nullopt;
        }
        if (tag == u"date") {
            return QVariant(QDateTime::fromString(text.trimmed(), Qt::ISODate));
        }
        if (tag == u"data") {
            return QVariant(QByteArray::fromBase64(text.simplified().remove(u' ').toLatin1()));
        }
        return std::nullopt;
    }

    static std::optional<QVariant> integer(const QString& text) {
        bool isNumber = false;
        const qlonglong number = text.toLongLong(&isNumber, 0);
        if (isNumber) {
            return QVariant(number);
        }
        const qulonglong large = text.toULongLong(&isNumber, 0);
        return isNumber ? std::optional(QVariant(large)) : std::nullopt;
    }

    QXmlStreamReader m_reader;
    std::vector<Open> m_open;
    std::optional<QVariant> m_result;
};

}  // namespace

std::optional<QVariantMap> parsePropertyList(const QByteArray& xml) {
    return Parser(xml).parse();
}

}  // namespace vantor
