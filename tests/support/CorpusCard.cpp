// Writing the cards and keeping the account.
#include "tests/support/CorpusCard.h"

#include <gtest/gtest.h>

#include <QFile>
#include <cstdio>

#include "saving/Sha256.h"
#include "tests/formats/CorpusExceptions.h"

namespace vantor::test {

namespace {

constexpr qsizetype kSector = 512;
constexpr qsizetype kTailBytes = 200 * kSector;

QByteArray tailBytes(Tail tail, std::uint64_t seed) {
    if (tail == Tail::Zeros) {
        return QByteArray(kTailBytes, '\0');
    }
    if (tail != Tail::Noise) {
        return {};
    }
    const Bytes bytes = noise(kTailBytes, static_cast<std::uint32_t>(seed));
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

// Six minutes each: to look at every picture takes longer than all else that is on a card.
bool isLongMovie(const CorpusFile& file) {
    return file.path.find("__long_") != std::string::npos;
}

}  // namespace

const char* nameOf(Tail tail) {
    static const char* const kNames[] = {"Noise", "Zeros", "TheNextFile", "TheMediumsEnd"};
    return kNames[static_cast<int>(tail)];
}

void readReport(const QString& path, ReportedItems& items) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        // No name here holds a comma or a quote.
        const QList<QByteArray> fields = lines[i].split(',');
        if (fields.size() > 8) {
            items.insert({fields[3].toULongLong(), {fields[6], fields[7]}});
        }
    }
}

CorpusCards::CorpusCards() : m_folder(corpusRoot()) {
    if (m_folder.empty()) {
        return;
    }
    for (const CorpusFile& file : corpusFiles(m_folder)) {
        if (!file.hostile) {
            m_files.push_back(file);
        }
    }
}

Placed CorpusCards::writeFile(const CorpusFile& file, std::uint64_t sector, const Write& write) const {
    const Bytes bytes = readFile(m_folder / file.path);
    QByteArray sectors(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    const QByteArray sum = Sha256::of(sectors).toHex();
    sectors.append((kSector - sectors.size() % kSector) % kSector, '\0');
    write(sectors);
    return {&file, sector, sum};
}

std::vector<Placed> CorpusCards::writeAll(Tail tail, const Write& write) const {
    std::vector<Placed> placed;
    std::uint64_t sector = 0;
    const auto counted = [&](const QByteArray& sectors) {
        sector += static_cast<std::uint64_t>(sectors.size() / kSector);
        write(sectors);
    };
    counted(QByteArray(kSector, '\0'));
    for (const CorpusFile& file : m_files) {
        if (tail == Tail::Noise || !isLongMovie(file)) {
            placed.push_back(writeFile(file, sector, counted));
            counted(tailBytes(tail, sector));
        }
    }
    return placed;
}

Placed CorpusCards::writeAtEnd(const CorpusFile& file, const Write& write) const {
    write(QByteArray(kSector, '\0'));
    return writeFile(file, 1, write);
}

void CorpusAccount::count(const Placed& placed, const ReportedItems& items) {
    Line& line = m_lines[placed.file->extension];
    ++line.placed;
    const auto [begin, end] = items.equal_range(placed.sector);
    const Exception* const exception = exceptionFor(placed.file->path);
    const auto note = [&](std::string_view otherwise) {
        const auto name = placed.file->path.substr(placed.file->path.rfind('/') + 1);
        m_reasons[name] = exception != nullptr ? exception->reason : otherwise;
    };
    if (begin == end) {
        note("nothing at its beginning tells its type: not found");
        return;
    }
    ++line.listed;
    bool exact = false, said = false;
    for (auto item = begin; item != end; ++item) {
        exact = exact || item->second.sha256 == placed.sha256;
        said = said || item->second.soundness == "complete";
    }
    if (!exact) {
        note("without a reason that is known");
    }
    line.exact += exact ? 1 : 0;
    line.wrongWhole += !exact && said ? 1 : 0;
    const bool isBroken = exception != nullptr && exception->expect == Expect::CutOff;
    line.wrongBroken += exact && !said && !isBroken ? 1 : 0;
    line.listedExceptions += !exact && exception != nullptr ? 1 : 0;
    if (exception == nullptr) {
        EXPECT_TRUE(exact) << placed.file->path << " at sector " << placed.sector;
        EXPECT_TRUE(said) << placed.file->path << " is whole and was not said to be";
    }
}

int CorpusAccount::listed() const {
    int listed = 0;
    for (const auto& [name, line] : m_lines) {
        listed += line.listed;
    }
    return listed;
}

void CorpusAccount::print(const char* title) const {
    std::printf(
        "| %s | tried | found | byte-exact | said complete, was not | said broken, was not | known "
        "exceptions |\n|---|---|---|---|---|---|---|\n",
        title);
    const auto row = [](const std::string& name, const Line& line) {
        std::printf("| %s | %d | %d | %d | %d | %d | %d |\n", name.c_str(), line.placed, line.listed,
                    line.exact, line.wrongWhole, line.wrongBroken, line.listedExceptions);
    };
    Line all;
    for (const auto& [name, line] : m_lines) {
        row(name, line);
        all.placed += line.placed;
        all.listed += line.listed;
        all.exact += line.exact;
        all.wrongWhole += line.wrongWhole;
        all.wrongBroken += line.wrongBroken;
        all.listedExceptions += line.listedExceptions;
    }
    row("**all**", all);
    std::printf("\n| file that does not always come back to the byte | why |\n|---|---|\n");
    for (const auto& [name, reason] : m_reasons) {
        std::printf("| %s | %s |\n", name.c_str(), reason.c_str());
    }
}

}  // namespace vantor::test
