// A whole recovery by a screen reader alone: from the started program to saved files, over the accessibility
// bus.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

#include "tests/window/ReaderBus.h"

namespace vantor {
namespace {

class ReaderBusTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(bus.isConnected());
        environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
        // A dialog may close between two questions about it, which is no news.
        environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("qt.accessibility.*=false"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QStringLiteral(VANTOR_PROGRAM), {QStringLiteral(VANTOR_SAMPLE_CARD)});
        ASSERT_TRUE(program.waitForStarted());
        ASSERT_TRUE(until([this] {
            const auto found = bus.program(program.processId());
            root = found.value_or(BusNode{});
            return found.has_value();
        }));
    }
    void TearDown() override {
        program.kill();
        program.waitForFinished();
    }

    static bool until(const std::function<bool()>& holds) {
        constexpr int kPatience = 60'000;  // of a busy machine
        return QTest::qWaitFor(holds, kPatience);
    }
    std::optional<BusNode> waitForName(const QString& name, const QString& role = {}) {
        std::optional<BusNode> node;
        until([&] { return (node = bus.find(root, name, role)).has_value(); });
        EXPECT_TRUE(node.has_value())
            << "no " << role.toStdString() << " is called " << name.toStdString() << " among\n"
            << bus.shown(root).join(u'\n').toStdString();
        return node;
    }
    void press(const QString& name) {
        const auto node = waitForName(name, QStringLiteral("push button"));
        ASSERT_TRUE(node.has_value());
        ASSERT_TRUE(bus.act(*node, QStringLiteral("Press"))) << name.toStdString();
    }

    QSet<QByteArray> checksumsOfSavedFiles() const {
        QSet<QByteArray> sums;
        QDirIterator files(destination.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QCryptographicHash sum(QCryptographicHash::Sha256);
            if (file.open(QIODevice::ReadOnly) && sum.addData(&file)) {
                sums.insert(sum.result().toHex());
            }
        }
        return sums;
    }
    // Checksums of the files of a type that lie on the card in one piece.
    static QList<QByteArray> listedFiles(const QByteArray& type) {
        QList<QByteArray> sums;
        QFile list(QStringLiteral(VANTOR_SAMPLE_LIST));
        EXPECT_TRUE(list.open(QIODevice::ReadOnly));
        for (const QByteArray& line : list.readAll().split('\n')) {
            const QList<QByteArray> fields = line.split('\t');
            if (fields.value(1) == type && fields.value(5).startsWith("in one piece")) {
                sums.append(fields.value(4));
            }
        }
        return sums;
    }

    ReaderBus bus;
    BusNode root;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QTemporaryDir settings;
    QTemporaryDir destination;
};

struct Recovery {
    QString mode;
    QStringList screens;  // told by a name on each, between the choice of medium and the search
    QString outcome;
};

class ReaderBusRecovery : public ReaderBusTest, public ::testing::WithParamInterface<Recovery> {};

TEST_P(ReaderBusRecovery, FromTheMediumToSavedFiles) {
    const auto mode = waitForName(GetParam().mode, QStringLiteral("radio button"));
    ASSERT_TRUE(mode && bus.act(*mode, QStringLiteral("Toggle")));
    press(QStringLiteral("Next"));
    for (const QString& screen : GetParam().screens) {
        ASSERT_TRUE(waitForName(screen));
        press(QStringLiteral("Next"));
    }
    press(QStringLiteral("OK"));  // of the panel at the search's end
    press(QStringLiteral("Save all found items"));
    press(QStringLiteral("Continue"));  // of the request for a destination
    const auto folder = waitForName(QStringLiteral("Directory:"), QStringLiteral("text"));
    ASSERT_TRUE(folder && bus.write(*folder, destination.path()));
    press(QStringLiteral("Choose"));
    press(QStringLiteral("OK"));  // of the summary
    EXPECT_TRUE(waitForName(GetParam().outcome));

    const QSet<QByteArray> saved = checksumsOfSavedFiles();
    const QList<QByteArray> listed = listedFiles(GetParam().mode == QStringLiteral("Video") ? "MP4" : "JPG");
    EXPECT_FALSE(listed.isEmpty());
    for (const QByteArray& file : listed) {
        EXPECT_TRUE(saved.contains(file)) << file.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Modes, ReaderBusRecovery,
    ::testing::Values(Recovery{"Photo", {"Searching criteria"}, "70 of 70 saved"},
                      Recovery{"Video", {"Searching criteria", "File types"}, "18 of 18 saved"},
                      Recovery{"Raw file", {"Searching criteria", "File types"}, "222 of 225 saved"}));

}  // namespace
}  // namespace vantor

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
