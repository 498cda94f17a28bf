// What the sheet says once all is saved and movies are looked into.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <thread>

#include "results/MyImageObject.h"
#include "saving/SaveJob.h"
#include "saving/SavedContents.h"
#include "tests/repair/Movies.h"
#include "tests/support/Gate.h"
#include "tests/support/ScriptedMedium.h"
#include "window/saving/SavingSheet.h"

namespace vantor {
namespace {

QDialog* visibleSheet() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"saveProgress" && widget->isVisible()) {
            return qobject_cast<QDialog*>(widget);
        }
    }
    return nullptr;
}

TEST(SavingSheet, WhileMoviesAreLookedInto_SaysSo_AndCancelEndsThatAlone) {
    constexpr std::uint64_t kSectors = 20;
    ScriptedMedium medium(2 * kSectors);
    SaveRequest request;
    const QTemporaryDir folder;
    for (unsigned place = 0; place < 2; ++place) {
        const QByteArray movie = test::makeMovie(test::plainPictures(20), false, place).bytes;
        std::memcpy(medium.bytes[place * kSectors].data(), movie.constData(),
                    static_cast<std::size_t>(movie.size()));
        const QString name = QStringLiteral("%1.MOV").arg(place + 1);
        std::shared_ptr<MyImageObject> item = MyImageObject::initWithImage_data({}, name, name);
        const SectorRun run{place * kSectors, (place + 1) * kSectors};
        item->setOrigin(QStringLiteral("MOV"), {{run}, false}, run);
        request.items.push_back({place, item});
    }
    request.openMedium = [&medium] { return std::make_unique<ScriptedReader>(medium); };
    request.destination = folder.path();
    const auto saver = std::make_shared<const ItemSaver>(folder.path());
    request.saver = saver;
    Gate gate;
    int decoded = 0;
    *saver->contents() = SavedContents([&, pass = gate.passage()](int, const StopRequest& stop) {
        if (++decoded == 2) {
            pass();
        }
        return !stop();
    });
    const auto job = std::make_shared<SaveJob>(std::move(request));
    QString heading, file, facts;
    int bar = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        QDialog* const sheet = visibleSheet();
        if (sheet == nullptr || !gate.someoneWaits() || !heading.isEmpty()) {
            return;
        }
        const QString says = sheet->findChild<QLabel*>(QStringLiteral("saveHeading"))->text();
        if (says != QStringLiteral("Checking the content of 2 of 2")) {
            return;  // the sheet looks at the job now and then
        }
        heading = says;
        file = sheet->findChild<QLabel*>(QStringLiteral("saveFileLabel"))->text();
        facts = sheet->findChild<QLabel*>(QStringLiteral("saveFactsLabel"))->text();
        bar = sheet->findChild<QProgressBar*>(QStringLiteral("saveBar"))->value();
        sheet->findChild<QPushButton*>(QStringLiteral("cancelButton"))->click();
        gate.open();
    });
    look.start(5);
    std::thread work([job] { job->run(); });
    SavingSheet(nullptr, job).run([] { return false; });
    work.join();
    EXPECT_EQ(heading, QStringLiteral("Checking the content of 2 of 2"));
    EXPECT_EQ(file, QStringLiteral("2.MOV"));
    EXPECT_TRUE(facts.startsWith(QStringLiteral("Nothing more is read from the medium.")))
        << qPrintable(facts);
    EXPECT_EQ(bar, 500);
    EXPECT_FALSE(job->isCancelled());
    EXPECT_EQ(job->report().tally.saved, 2U);
    EXPECT_EQ(job->report().tally.complete, 1U);
    EXPECT_EQ(job->report().tally.unchecked, 1U);
}

}  // namespace
}  // namespace vantor
