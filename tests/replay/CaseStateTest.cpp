// What a session knows after each of the collected scan cases: hand-overs, rows, counters, marks and texts.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "catalogue/NumberText.h"
#include "tests/support/ReadAheadMedium.h"
#include "tests/support/TestSession.h"

namespace vantor {
namespace {

// An image beyond this is not read into memory.
constexpr qint64 kLargestImage = qint64{64} * 1024 * 1024;

QDir casesFolder() {
    return QDir(QStringLiteral(VANTOR_SOURCE_DIR "/../shared/cases/cases"));
}

QJsonObject readJson(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

ScriptedMedium mediumOf(const QString& imagePath, const QJsonObject& faults) {
    QFile image(imagePath);
    const QByteArray bytes = image.open(QIODevice::ReadOnly) ? image.readAll() : QByteArray();
    ScriptedMedium medium(static_cast<std::size_t>(bytes.size()) / kSectorBytes);
    for (std::size_t sector = 0; sector < medium.bytes.size(); ++sector) {
        medium.put(sector, {bytes.constData() + sector * kSectorBytes, kSectorBytes});
    }
    const QJsonObject reads = faults[QStringLiteral("read")].toObject();
    for (auto fault = reads.begin(); fault != reads.end(); ++fault) {
        const auto sector = static_cast<std::uint64_t>(textToInt64(fault.key()));
        if (fault.value().isString()) {
            medium.badForEver.insert(sector);
        } else {
            medium.badTimes[sector] = fault.value().toInt();
        }
    }
    medium.seekAfterFailureFails = faults.contains(QStringLiteral("seek_fails"));
    return medium;
}

// How the sectors come to the scan.
enum class Reading { OneByOne, Ahead };

// A run of one case: its choices made, its stop request set up.
class CaseRun {
  public:
    CaseRun(const QString& folder, const QJsonObject& params, Reading reading)
        : m_params(params),
          m_reading(reading),
          m_medium(
              mediumOf(folder + QStringLiteral("/image.bin"), params[QStringLiteral("faults")].toObject())),
          session(m_medium) {
        session.loadCatalogues(folder + QStringLiteral("/catalogue"));
        session.thorough = params[QStringLiteral("thorough")].toBool();
        if (const QJsonArray range = params[QStringLiteral("range")].toArray(); !range.isEmpty()) {
            session.setRange(static_cast<std::uint64_t>(range[0].toInteger()),
                             static_cast<std::uint64_t>(range[1].toInteger()));
        }
        session.setMediumOpener([this](const QString&) { return open(); });
        m_medium.beforeRead = [this](std::uint64_t) {
            if (inStoppedPass() && session.for_index + 1 == stopIndex()) {
                session.stop_now = 1;
            }
        };
    }

    void run() {
        const QString mode = m_params[QStringLiteral("mode")].toString();
        if (mode == u"photo") {
            session.Photo_Rec_Thread();
            return;
        }
        Recovery_MODE = mode == u"video" ? kVideoMode : kRawFileMode;
        session.buildFileTypeList();
        if (m_params[QStringLiteral("types")].isArray()) {
            const QJsonArray types = m_params[QStringLiteral("types")].toArray();
            for (FileTypeRow& row : session.nsCheckedListDataObject) {
                row[QStringLiteral("State")] =
                    types.contains(row.value(QStringLiteral("Extension")).toString());
            }
        }
        session.cutCataloguesToTickedTypes();
        session.Raw_File_Rec_Thread();
    }

  private:
    std::unique_ptr<SectorReader> open() {
        ++m_openings;
        if (!m_params[QStringLiteral("image_exists")].toBool()) {
            return nullptr;
        }
        if (inStoppedPass() && session.start_sector == stopIndex()) {
            session.stop_now = 1;
        }
        if (m_reading == Reading::Ahead) {
            return openReadAhead(m_medium);
        }
        return std::make_unique<ScriptedReader>(m_medium);
    }

    bool inStoppedPass() const {
        const QString pass = m_params[QStringLiteral("stop_pass")].toString();
        return pass == (m_openings == 1 ? u"GEN" : u"THD");
    }
    std::uint64_t stopIndex() const {
        return static_cast<std::uint64_t>(m_params[QStringLiteral("stop_index")].toInteger(-1));
    }

    QJsonObject m_params;
    Reading m_reading;
    ScriptedMedium m_medium;
    int m_openings = 0;

  public:
    TestSession session;
};

QStringList handOversExpected(const QJsonArray& calls, bool photo) {
    QStringList lines;
    for (const QJsonValue& call : calls) {
        QString line =
            call[u"pass"].toString() + ' ' + call[u"name"].toString() + ' ' + call[u"uid"].toString() + ' ';
        line +=
            photo ? QString::number(call[u"bytes"].toInteger()) : QString::number(call[u"end"].toInteger());
        const QJsonValue first = call[photo ? u"first_sector" : u"start"];
        lines.append(line + ' ' + QString::number(first.toInteger()));
    }
    return lines;
}

QStringList handOversMade(const TestSession& session, bool photo) {
    QStringList lines;
    for (const HandedOver& item : session.handedOver) {
        const std::uint64_t third = photo ? (item.end - item.first) * kSectorBytes : item.end;
        lines.append(
            QStringLiteral("%1 %2 %3 %4 %5").arg(item.pass, item.name, item.uid).arg(third).arg(item.first));
    }
    return lines;
}

QString asText(const QJsonArray& array) {
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QJsonArray rowsOf(const TestSession& session) {
    QJsonArray rows;
    for (const ResultRow& row : session.resultRows()) {
        QJsonObject object;
        for (auto field = row.begin(); field != row.end(); ++field) {
            object[field.key()] = field.value();
        }
        rows.append(object);
    }
    return rows;
}

QString outcomeText(PassOutcome outcome) {
    static const std::map<PassOutcome, QString> texts = {
        {PassOutcome::Completed, "completed"},
        {PassOutcome::Stopped, "stopped"},
        {PassOutcome::ReadError, "read-error"},
        {PassOutcome::OpenError, "open-error"},
    };
    const auto found = texts.find(outcome);
    return found == texts.end() ? QStringLiteral("none") : found->second;
}

void expectFinalState(const TestSession& session, const QJsonObject& expected) {
    const auto number = [&](const char* key) {
        return static_cast<std::uint64_t>(expected[QLatin1String(key)].toInteger(-1));
    };
    EXPECT_EQ(session.for_index, number("for_index"));
    EXPECT_EQ(session.start_sector, number("start_sector"));
    EXPECT_EQ(session.end_sector, number("end_sector"));
    EXPECT_EQ(session.total_sector, number("total_sector"));
    EXPECT_EQ(session.GND_Image_number, number("GND_Image_number"));
    EXPECT_EQ(session.THD_Image_number, number("THD_Image_number"));
    EXPECT_EQ(session.addedItemCount(), number("added_count"));
    EXPECT_EQ(static_cast<std::uint64_t>(session.stop_now), number("stop_now"));
    EXPECT_EQ(static_cast<std::uint64_t>(session.stop_screen_already_show),
              number("stop_screen_already_show"));
    EXPECT_EQ(static_cast<std::uint64_t>(session.endPanels), number("final_screens"));
    EXPECT_EQ(static_cast<std::uint64_t>(session.log.contains(QStringLiteral("timer invalidated"))),
              number("timer_invalidated"));
    EXPECT_EQ(static_cast<std::uint64_t>(session.MultiHeader_Array.size() / 7), number("open_items_left"));
    QJsonArray scrolls;
    for (const qsizetype index : session.scrolls) {
        scrolls.append(static_cast<qint64>(index));
    }
    EXPECT_EQ(asText(scrolls), asText(expected[QStringLiteral("scrolls")].toArray()));
    EXPECT_EQ(asText(QJsonArray::fromVariantList(session.Fol_Cnt_Array)),
              asText(expected[QStringLiteral("Fol_Cnt_Array")].toArray()));
    QStringList labels = session.sectorLabels;
    labels.removeDuplicates();
    EXPECT_EQ(asText(QJsonArray::fromStringList(labels)),
              asText(expected[QStringLiteral("label")].toArray()));
}

class ScanCases : public testing::TestWithParam<Reading> {};

}  // namespace

TEST_P(ScanCases, LeaveTheSessionAsExpected) {
    const QStringList names = casesFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    if (names.isEmpty()) {
        GTEST_SKIP() << "no cases here";
    }
    int checked = 0;
    const std::uint64_t passedOverBefore = HookedReader::passedOver();
    for (const QString& name : names) {
        const QString folder = casesFolder().filePath(name);
        if (QFile::exists(folder + QStringLiteral("/image.recipe.json")) ||
            QFile(folder + QStringLiteral("/image.bin")).size() > kLargestImage) {
            continue;
        }
        const QJsonObject params = readJson(folder + QStringLiteral("/params.json"));
        const QJsonObject expected =
            readJson(folder + QStringLiteral("/expected.json"))[QStringLiteral("internal")].toObject();
        SCOPED_TRACE(name.toStdString() + " " + params[QStringLiteral("title")].toString().toStdString());
        ASSERT_FALSE(expected.isEmpty());

        CaseRun run(folder, params, GetParam());
        run.run();
        const bool photo = params[QStringLiteral("mode")].toString() == u"photo";
        EXPECT_EQ(
            handOversMade(run.session, photo).join('\n').toStdString(),
            handOversExpected(expected[QStringLiteral("calls")].toArray(), photo).join('\n').toStdString());
        EXPECT_EQ(run.session.alerts.join('|').toStdString(),
                  QJsonDocument(expected[QStringLiteral("alerts")].toArray())
                      .toVariant()
                      .toStringList()
                      .join('|')
                      .toStdString());
        const QJsonArray outcomes = expected[QStringLiteral("outcomes")].toArray();
        EXPECT_EQ(outcomeText(run.session.lastOutcome()), outcomes.last().toString());
        EXPECT_EQ(asText(rowsOf(run.session)).toStdString(),
                  asText(expected[QStringLiteral("result_rows")].toArray()).toStdString());
        expectFinalState(run.session, expected[QStringLiteral("final")].toObject());
        ++checked;
    }
    EXPECT_GT(checked, 0);
    EXPECT_EQ(HookedReader::passedOver() > passedOverBefore, GetParam() == Reading::Ahead)
        << "whether the cases get to the screen";
}

INSTANTIATE_TEST_SUITE_P(Readings, ScanCases, testing::Values(Reading::OneByOne, Reading::Ahead),
                         [](const auto& reading) {
                             return std::string(reading.param == Reading::Ahead ? "ReadAhead" : "OneByOne");
                         });

}  // namespace vantor
