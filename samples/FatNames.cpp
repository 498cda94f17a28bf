// Short and long names of FAT ("Long Directory Entries" of Microsoft's FAT description).
#include "samples/FatNames.h"

#include "samples/Bytes.h"

namespace vantor::samples {

namespace {

constexpr int kPartLength = 13;
constexpr int kLastPart = 0x40;
constexpr int kLongNameAttributes = 0x0F;

int checksumOf(const QByteArray& shortName) {
    int sum = 0;
    for (const char c : shortName)
        sum = (((sum & 1) << 7) + (sum >> 1) + static_cast<std::uint8_t>(c)) & 0xFF;
    return sum;
}

// One character of a part: the text, then one zero, then 0xFFFF.
std::uint64_t characterAt(const QString& name, int at) {
    if (at < name.size())
        return name[at].unicode();
    return at == name.size() ? 0 : 0xFFFF;
}

}  // namespace

bool isShortName(const QString& name) {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString stem = dot < 0 ? name : name.left(dot);
    const QString extension = dot < 0 ? QString() : name.mid(dot + 1);
    return name == name.toUpper() && !stem.contains(QLatin1Char('.')) && !name.contains(QLatin1Char(' ')) &&
           stem.size() <= 8 && extension.size() <= 3;
}

QByteArray shortNameOf(const QString& name, int number) {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    QString stem = (dot < 0 ? name : name.left(dot)).toUpper();
    const QString extension = dot < 0 ? QString() : name.mid(dot + 1).toUpper();
    if (!isShortName(name)) {
        const QString tail = QLatin1Char('~') + QString::number(number);
        stem = stem.remove(QLatin1Char(' ')).remove(QLatin1Char('.')).left(8 - tail.size()) + tail;
    }
    return stem.toLatin1().leftJustified(8, ' ') + extension.left(3).toLatin1().leftJustified(3, ' ');
}

std::vector<QByteArray> longNameEntries(const QString& name, const QByteArray& shortName) {
    std::vector<QByteArray> entries;
    const int parts = (static_cast<int>(name.size()) + kPartLength - 1) / kPartLength;
    for (int part = parts; part >= 1; --part) {
        Bytes entry;
        const int first = (part - 1) * kPartLength;
        entry.u8(static_cast<std::uint64_t>(part == parts ? part | kLastPart : part));
        for (int i = 0; i < 5; ++i)
            entry.le16(characterAt(name, first + i));
        entry.u8(kLongNameAttributes).u8(0).u8(static_cast<std::uint64_t>(checksumOf(shortName)));
        for (int i = 5; i < 11; ++i)
            entry.le16(characterAt(name, first + i));
        entry.le16(0);
        for (int i = 11; i < kPartLength; ++i)
            entry.le16(characterAt(name, first + i));
        entries.push_back(entry.bytes());
    }
    return entries;
}

}  // namespace vantor::samples
