// TIFF directories: values of up to four bytes stand in their field, longer ones behind the directory.
#include "samples/Tiff.h"

namespace vantor::samples {

namespace {

int unitOf(FieldType type) {
    if (type == kShort)
        return 2;
    return type == kLong || type == kRational || type == kSignedRational ? 4 : 1;
}

qsizetype bytesOf(const Field& field) {
    return unitOf(field.type) * qsizetype(field.values.size());
}

void put(QByteArray& out, Order order, qint64 value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        out.append(char(value >> 8 * (order == Order::Little ? i : bytes - 1 - i)));
}

}  // namespace

std::vector<qint64> characters(const QByteArray& text, bool isClosed) {
    std::vector<qint64> values(text.begin(), text.end());
    if (isClosed)
        values.push_back(0);
    return values;
}

QByteArray tiffHeader(Order order) {
    QByteArray out = order == Order::Little ? "II" : "MM";
    put(out, order, 42, 2);
    put(out, order, 8, 4);
    return out;
}

qsizetype directoryBytes(const std::vector<Field>& fields) {
    qsizetype size = 2 + 12 * qsizetype(fields.size()) + 4;
    for (const Field& field : fields)
        size += bytesOf(field) > 4 ? (bytesOf(field) + 1) / 2 * 2 : 0;
    return size;
}

QByteArray directory(Order order, const std::vector<Field>& fields, qsizetype at, qsizetype next) {
    QByteArray table;
    QByteArray behind;
    const qsizetype behindAt = at + 2 + 12 * qsizetype(fields.size()) + 4;
    put(table, order, qint64(fields.size()), 2);
    for (const Field& field : fields) {
        const bool isRational = field.type == kRational || field.type == kSignedRational;
        put(table, order, field.tag, 2);
        put(table, order, field.type, 2);
        put(table, order, qint64(field.values.size()) / (isRational ? 2 : 1), 4);
        QByteArray values;
        for (const qint64 value : field.values)
            put(values, order, value, unitOf(field.type));
        if (values.size() <= 4) {
            table += values.leftJustified(4, '\0');
            continue;
        }
        put(table, order, behindAt + behind.size(), 4);
        behind += values.leftJustified((values.size() + 1) / 2 * 2, '\0');
    }
    put(table, order, next, 4);
    return table + behind;
}

}  // namespace vantor::samples
