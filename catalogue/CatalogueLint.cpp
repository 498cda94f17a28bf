// The checks behind the catalogue lint; they know the loader's rules and those of the header match.
#include "catalogue/CatalogueLint.h"

#include <QHash>
#include <algorithm>

#include "catalogue/CatalogueFile.h"
#include "catalogue/NumberText.h"
#include "catalogue/SignatureRecord.h"

namespace vantor {

namespace {

constexpr int kSectorBytes = 512;
constexpr const char* kFieldNames[] = {"extension", "size", "header", "offset", "reserved", "description"};

struct ValueLine {
    int number = 0;
    CatalogueLine text;
};

// A record as the match sees it.
struct Signature {
    int line = 0;  // of the header
    QString extension;
    QByteArray header;
    qint64 start = 0;  // byte in the sector
    bool narrowSearch = false;
    QString offset;
};

class Linter {
  public:
    explicit Linter(CatalogueUse use) : m_use(use) {}

    QList<LintFinding> run(const QByteArray& utf8) {
        if (!QByteArrayView(utf8).isValidUtf8()) {
            report(firstBrokenLine(utf8), QStringLiteral("the file is not UTF-8 and will load as empty"));
            return m_findings;
        }
        checkRecords(valueLines(utf8));
        std::stable_sort(m_findings.begin(), m_findings.end(),
                         [](const LintFinding& a, const LintFinding& b) { return a.line < b.line; });
        return m_findings;
    }

  private:
    void report(int line, const QString& what) { m_findings.append({line, what}); }

    static int firstBrokenLine(const QByteArray& utf8) {
        int number = 0;
        for (const QByteArray& line : utf8.split('\n')) {
            ++number;
            if (!QByteArrayView(line).isValidUtf8()) {
                break;
            }
        }
        return number;
    }

    static QList<ValueLine> valueLines(const QByteArray& utf8) {
        QList<ValueLine> lines;
        int number = 0;
        for (const QByteArray& bytes : utf8.split('\n')) {
            ++number;
            ValueLine line{number, {}};
            if (parseCatalogueLine(QString::fromUtf8(bytes), line.text)) {
                lines.append(line);
            }
        }
        return lines;
    }

    void checkRecords(const QList<ValueLine>& lines) {
        for (qsizetype first = 0; first < lines.size(); first += kValueLinesPerRecord) {
            const QList<ValueLine> record = lines.mid(first, kValueLinesPerRecord);
            if (record.size() < kValueLinesPerRecord) {
                report(record.first().number,
                       QStringLiteral("the last record has %1 value lines instead of 6").arg(record.size()));
                return;
            }
            checkRecord(record);
        }
    }

    void checkRecord(const QList<ValueLine>& record) {
        bool headerInPlace = true;
        for (qsizetype field = 0; field < record.size(); ++field) {
            const ValueLine& line = record.at(field);
            if (line.text.isHeader != (field == Header_Hex)) {
                headerInPlace = false;
                report(line.number,
                       field == Header_Hex
                           ? QStringLiteral("the third value line of a record must be \"Header :\"")
                           : QStringLiteral("a header line stands as value line %1 of its record; a "
                                            "line is missing or too many above")
                                 .arg(field + 1));
            }
            checkDot(line, static_cast<RecordField>(field));
        }
        if (headerInPlace) {
            checkMatch(record);
        }
    }

    void checkDot(const ValueLine& line, RecordField field) {
        // The leading dot of an extension is what turns ".jpg" into JPG.
        const bool wanted = field == Ext_Name && line.text.rawValue.lastIndexOf(u'.') == 0;
        if (line.text.rawValue.contains(u'.') && !wanted) {
            report(line.number, QStringLiteral("a dot cuts the %1 to \"%2\"")
                                    .arg(QLatin1String(kFieldNames[field]), line.text.value));
        }
    }

    void checkMatch(const QList<ValueLine>& record) {
        const ValueLine& header = record.at(Header_Hex);
        const ValueLine& offset = record.at(Header_Offset);
        const ValueLine& size = record.at(Max_File_Size);
        if (record.at(Ext_Name).text.value.isEmpty()) {
            report(record.at(Ext_Name).number, QStringLiteral("the extension is empty"));
        }
        if (!isDecimal(size.text.value) || textToInt64(size.text.value) <= 0) {
            report(size.number, QStringLiteral("the size \"%1\" is no positive number").arg(size.text.value));
        }
        const QString why = whyItNeverMatches(header.text, offset.text.value);
        if (!why.isEmpty()) {
            report(header.number, QStringLiteral("the header can never match: ") + why);
            return;
        }
        checkShadow(signatureOf(record));
    }

    static bool isDecimal(const QString& text) {
        return !text.isEmpty() &&
               std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    }

    static QString whyItNeverMatches(const CatalogueLine& header, const QString& offset) {
        static const auto isHex = [](QChar c) {
            return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
        };
        const qint64 bytes = header.value.size() / 2;
        if (bytes == 0) {
            return QStringLiteral("it has no whole byte");
        }
        if (!std::all_of(header.value.begin(), header.value.end(), isHex)) {
            return QStringLiteral("it has characters that are no hexadecimal digits");
        }
        if (header.value.size() % 2 != 0) {
            return QStringLiteral("its last digit is half a byte");
        }
        if (HexText::hex2int(header.rawValue.left(2)) != HexText::hex2int(header.value.left(2))) {
            return QStringLiteral("its first byte is taken before the dot");
        }
        if (header.value.count(u'0') == header.value.size()) {
            return QStringLiteral("sectors of zeros are not searched for bytes that are all zero");
        }
        if (offset == u"nn") {
            return bytes > kSectorBytes ? QStringLiteral("it is longer than a sector") : QString();
        }
        const qint64 position = isDecimal(offset) ? textToInt64(offset) : 0;
        if (position < 1) {
            return QStringLiteral("the offset \"%1\" is neither a number from 1 on nor \"nn\"").arg(offset);
        }
        if (position > kLastNumericOffset) {
            return QStringLiteral("the offset is beyond %1").arg(kLastNumericOffset);
        }
        if (position - 1 + bytes > kSectorBytes) {
            return QStringLiteral("it ends beyond the sector");
        }
        return {};
    }

    static Signature signatureOf(const QList<ValueLine>& record) {
        const QString offset = record.at(Header_Offset).text.value;
        return {record.at(Header_Hex).number,
                record.at(Ext_Name).text.value,
                QByteArray::fromHex(record.at(Header_Hex).text.value.toLatin1()),
                offset == u"nn" ? 0 : textToInt64(offset) - 1,
                offset == u"nn",
                offset};
    }

    // An earlier record shadows this one when its bytes are part of this one's at the same place in the
    // sector.
    void checkShadow(const Signature& signature) {
        for (const Signature& earlier : std::as_const(m_signatures)) {
            const qint64 into = earlier.start - signature.start;
            const bool samePlace = !signature.narrowSearch || (earlier.narrowSearch && into == 0);
            const bool opensToo = m_use == CatalogueUse::Selectable && earlier.offset == signature.offset;
            if (samePlace && !opensToo && into >= 0 &&
                signature.header.mid(into).startsWith(earlier.header)) {
                report(
                    signature.line,
                    QStringLiteral("the record of %1 is never reached: that of %2 at line %3 matches first")
                        .arg(signature.extension, earlier.extension)
                        .arg(earlier.line));
                break;
            }
        }
        m_signatures.append(signature);
    }

    CatalogueUse m_use;
    QList<LintFinding> m_findings;
    QList<Signature> m_signatures;
};

}  // namespace

QList<LintFinding> lintCatalogue(const QByteArray& utf8, CatalogueUse use) {
    return Linter(use).run(utf8);
}

}  // namespace vantor
