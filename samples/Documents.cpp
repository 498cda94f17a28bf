// The documents that are text come from a table; the others have a writer each.
#include "samples/Documents.h"

#include <sqlite3.h>

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <bit>
#include <memory>
#include <stdexcept>

#include "samples/Bytes.h"

namespace vantor::samples {

namespace {

struct Place {
    const char* name;
    int photos;
};

constexpr Place kPlaces[] = {{"Harbour", 24},    {"Lavender fields", 31}, {"Alpine lake", 18},
                             {"Lighthouse", 12}, {"Old town", 44},        {"Autumn wood", 27}};

}  // namespace

const std::vector<TextDocument>& textDocuments() {
    static const std::vector<TextDocument> kDocuments = [] {
        QFile table(QStringLiteral(VANTOR_SOURCE_DIR "/samples/texts.json"));
        if (!table.open(QIODevice::ReadOnly))
            throw std::runtime_error(table.errorString().toStdString());
        std::vector<TextDocument> documents;
        for (const QJsonValue& pair : QJsonDocument::fromJson(table.readAll()).array()) {
            const QByteArray path = pair[0].toString().toUtf8();
            const QByteArray name = path.split('/').at(0);
            if (documents.empty() || documents.back().name != name)
                documents.push_back({name, {}});
            documents.back().members.push_back({path.mid(name.size() + 1), pair[1].toString().toUtf8()});
        }
        return documents;
    }();
    return kDocuments;
}

QByteArray contentOf(const TextDocument& document) {
    return document.members[0].name.isEmpty() ? document.members[0].bytes : zipFile(document.members);
}

QByteArray textNamed(const char* name) {
    for (const TextDocument& document : textDocuments()) {
        if (document.name == name)
            return contentOf(document);
    }
    throw std::runtime_error(std::string("texts.json lacks ") + name);
}

QByteArray pdfFile(const QImage& photo) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(72);
    writer.setPageMargins({});
    writer.setTitle(QStringLiteral("Holiday 2024"));
    QPainter painter(&writer);
    painter.fillRect(0, 0, 595, 100, QColor(41, 92, 158));
    painter.drawImage(QRect(57, 132, 480, 360), photo);
    for (int i = 0; i < 12; ++i) {
        const int height = 20 + i * 37 % 130;
        painter.fillRect(57 + i * 40, 722 - height, 32, height, QColor(64 + i * 15, 102, 230 - i * 15));
    }
    painter.setPen(Qt::white);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 26));
    painter.drawText(56, 60, QStringLiteral("Holiday 2024"));
    painter.setPen(QColor(51, 51, 51));
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
    painter.drawText(57, 520, QStringLiteral("A page with a photo, some text and a drawing."));
    painter.end();
    // The day of its making is that of all other files, in as many characters.
    return QString::fromLatin1(buffer.data())
        .replace(QRegularExpression(QStringLiteral("\\(D:\\d{14}")), QStringLiteral("(D:20240601100000"))
        .toLatin1();
}

QByteArray sqliteFile() {
    sqlite3* database = nullptr;
    sqlite3_open(":memory:", &database);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> owner(database, sqlite3_close);
    QByteArray statements = "CREATE TABLE places(name TEXT, photos INTEGER);";
    for (const Place& place : kPlaces)
        statements += QByteArray("INSERT INTO places VALUES('") + place.name + "'," +
                      QByteArray::number(place.photos) + ");";
    if (sqlite3_exec(database, statements.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(
        sqlite3_serialize(database, "main", &size, 0), sqlite3_free);
    return {reinterpret_cast<const char*>(bytes.get()), qsizetype(size)};
}

QByteArray dbfFile() {
    constexpr int kNameWidth = 20;
    constexpr int kNumberWidth = 4;
    Bytes out;
    out.u8(3).u8(124).u8(6).u8(1).le32(std::size(kPlaces)).le16(32 + 2 * 32 + 1);
    out.le16(1 + kNameWidth + kNumberWidth).zeros(20);
    out.field("NAME", 11).raw("C").le32(0).u8(kNameWidth).u8(0).zeros(14);
    out.field("PHOTOS", 11).raw("N").le32(0).u8(kNumberWidth).u8(0).zeros(14).u8(13);
    for (const Place& place : kPlaces)
        out.raw(" ")
            .field(place.name, kNameWidth, ' ')
            .raw(QByteArray::number(place.photos).rightJustified(kNumberWidth));
    return out.u8(0x1A);
}

QByteArray numpyFile() {
    const QByteArray facts = "{'descr': '<i4', 'fortran_order': False, 'shape': (256,), }";
    constexpr qsizetype kHeader = 118;  // with the ten bytes before, a multiple of 64
    Bytes out;
    out.raw("\x93NUMPY").u8(1).u8(0).le16(kHeader).raw(facts.leftJustified(kHeader - 1)).raw("\n");
    for (int i = 0; i < 256; ++i)
        out.le32(i * i);
    return out;
}

QByteArray shapeFile() {
    constexpr int kPoint = 1;
    constexpr int kCount = 8;
    constexpr int kRecordWords = 14;  // with its header, in words of 16 bits
    const auto bits = [](double value) { return std::bit_cast<qint64>(value); };
    Bytes out;
    out.be32(9994).zeros(20).be32(50 + kCount * kRecordWords).le32(1000).le32(kPoint);
    out.le64(bits(1)).le64(bits(1)).le64(bits(kCount)).le64(bits(2)).zeros(32);
    for (int i = 0; i < kCount; ++i)
        out.be32(i + 1).be32(kRecordWords - 4).le32(kPoint).le64(bits(1 + i)).le64(bits(1 + i % 2));
    return out;
}

QByteArray pcapFile() {
    constexpr int kEthernet = 1;
    Bytes out;
    out.le32(0xA1B2C3D4).le16(2).le16(4).le32(0).le32(0).le32(65535).le32(kEthernet);
    for (int i = 0; i < 20; ++i)
        out.le32(1717236000 + i).le32(0).le32(60).le32(60).zeros(12).be16(0x0800).zeros(46);
    return out;
}

QByteArray wasmFile() {
    // One function without parameters that gives 42, under the name "answer".
    return QByteArray::fromHex(
        "0061736D01000000 010501600001 7F 03020100 070A0106616E73776572 0000 0A06010400412A0B");
}

}  // namespace vantor::samples
