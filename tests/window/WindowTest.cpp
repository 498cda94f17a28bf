// Set-up of the window under test; the application object lives as long as the test program.
#include "tests/window/WindowTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kPollMilliseconds = 5;

class Application : public ::testing::Environment {
  public:
    void SetUp() override {
        qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit());
        m_application = std::make_unique<QApplication>(m_argc, m_argv);
        QApplication::setQuitOnLastWindowClosed(false);
        QApplication::setApplicationDisplayName(QStringLiteral("Vantor - Memory Card Recovery"));
        applyTheme(*m_application);
        if (qEnvironmentVariable("VANTOR_LOOK") == u"dark") {
            setLook(*m_application, Look::Dark);  // for pictures to look at
        }
    }
    void TearDown() override { m_application.reset(); }

  private:
    QTemporaryDir m_runtime;
    int m_argc = 1;
    char m_name[12] = "window-test";
    char* m_argv[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application;
};

[[maybe_unused]] const auto* const kApplication = ::testing::AddGlobalTestEnvironment(new Application);

SeenDialog describe(const QDialog* dialog) {
    SeenDialog seen;
    seen.name = dialog->objectName();
    if (const auto* box = qobject_cast<const QMessageBox*>(dialog)) {
        seen.name.clear();
        seen.text = box->text();
        seen.informative = box->informativeText();
        for (const QAbstractButton* button : box->buttons()) {
            seen.buttons.append(button->text());
        }
        if (box->defaultButton() != nullptr) {
            seen.defaultButton = box->defaultButton()->text();
        }
    }
    return seen;
}

}  // namespace

void ScriptedSource::add(const QString& identifier, const QString& name, quint64 sectors) {
    order.append(identifier);
    facts.insert(identifier, {{QStringLiteral("DeviceIdentifier"), identifier},
                              {QStringLiteral("VolumeName"), name},
                              {QStringLiteral("FilesystemUserVisibleName"), QStringLiteral("MS-DOS (FAT32)")},
                              {QStringLiteral("ParentWholeDisk"), QStringLiteral("sdb")},
                              {QStringLiteral("IOKitSize"), QVariant::fromValue<quint64>(sectors * 512)}});
}

DialogAnswers::DialogAnswers() {
    QObject::connect(&m_poll, &QTimer::timeout, [this] { look(); });
    m_poll.start(kPollMilliseconds);
}

void DialogAnswers::press(const QString& button) {
    m_answers.push_back([button](QDialog* dialog) { pressButton(dialog, button); });
}

void DialogAnswers::look() {
    m_handled.removeIf(
        [](const QPointer<QDialog>& known) { return known == nullptr || !known->isVisible(); });
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible() || m_handled.contains(dialog) ||
        dialog->objectName() == u"saveProgress") {
        return;
    }
    m_handled.append(dialog);
    // It may come up again before the next look.
    QObject::connect(
        dialog, &QDialog::finished, &m_poll, [this, dialog] { m_handled.removeAll(dialog); },
        Qt::SingleShotConnection);
    m_seen.push_back(describe(dialog));
    if (m_answers.empty()) {
        ++m_unexpected;
        dialog->reject();
        return;
    }
    const Answer answer = std::move(m_answers.front());
    m_answers.pop_front();
    // From within the dialog's own loop, so that the next dialog finds the timer free.
    QTimer::singleShot(0, dialog, [answer, dialog] { answer(dialog); });
}

void pressButton(QDialog* dialog, const QString& text) {
    for (auto* button : dialog->findChildren<QAbstractButton*>()) {
        if (button->text() == text && button->isVisible()) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    dialog->reject();
}

void chooseFolder(QDialog* chooser, const QString& folder) {
    auto* name = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(name, nullptr);
    name->setText(folder);
    chooser->accept();
}

WindowTest::WindowTest() {
    parts.media = source;
    parts.openMedium = [this](const QString&) -> std::unique_ptr<SectorReader> {
        if (refuseOpen) {
            return nullptr;
        }
        ++opened;
        return std::make_unique<ScriptedReader>(card);
    };
    parts.resourcesFolder = folder.path();
    parts.openDocument = [this](const QString& path) {
        documentsOpened.append(path);
        return true;
    };
    parts.terminate = [this] { ++terminations; };
    QFile::copy(QStringLiteral(VANTOR_SOURCE_DIR "/resources/NoPreview.png"),
                folder.filePath(QStringLiteral("NoPreview.png")));
}

void WindowTest::TearDown() {
    qDeleteAll(m_watches.children());
    const QString shots = qEnvironmentVariable("VANTOR_SHOTS");
    if (controller && !shots.isEmpty()) {
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        QString name =
            QString::fromLatin1(test->test_suite_name()) + u'.' + QString::fromLatin1(test->name());
        controller->window->grab().save(shots + u'/' + name.replace(u'/', u'_') + QStringLiteral(".png"));
    }
    if (controller && !controller->shutDown(kPatience)) {
        ADD_FAILURE() << "a thread of the window hangs";
        // Left behind, so that the other tests are still heard.
        [[maybe_unused]] const auto* const left = controller.release();
    }
    controller.reset();
    EXPECT_EQ(answers.unexpected(), 0) << "a dialog came up that the test does not know of";
    EXPECT_TRUE(answers.allGiven()) << "a dialog did not come up";
}

void WindowTest::open() {
    controller = std::make_unique<MyTableController>(parts);
    controller->awakeFromNib();
    // The sheet that hung over the window took the activation with it.
    settle();
    controller->window->activateWindow();
    ASSERT_TRUE(waitFor([this] { return controller->window->isActiveWindow(); }));
}

void WindowTest::openWithCard() {
    source->add(QStringLiteral("sdb1"), QStringLiteral("CANON_DC"), card.bytes.size());
    writeCatalogue("ZelExt2.dll", record("JPG", "FFD8FF", "JPEG picture"));
    writeCatalogue("ZelExt2Adv.dll", record("GIF", "474946", "GIF picture"));
    writeCatalogue("ZelVideo.dll",
                   record("MP4", "66747970", "MPEG-4 movie", "5") + record("AVI", "52494646", "AVI movie"));
    writeCatalogue("ZelVideoAdv.dll", record("FLV", "464C56", "Flash movie"));
    writeCatalogue("ZelRaw.dll", record("PDF", "25504446", "PDF document") +
                                     record("ZIP", "504B0304", "ZIP archive") +
                                     record("doc", "D0CF11E0", "Word document"));
    writeCatalogue("ZelRawAdv.dll",
                   record("TXT", "54455854", "Text") + record("PDF", "255044462D", "Other PDF"));
    card.put(4, "\xFF\xD8\xFF").put(10, "\xFF\xD8\xFF").put(20, "GIF");
    card.put(24, "%PDF-").put(28, "PK\x03\x04").put(32, "TEXT");
    card.put(40, "ftyp", 4).put(44, "RIFF").put(50, "FLV");
    open();
}

void WindowTest::click(QWidget* widget) {
    ASSERT_TRUE(widget->isVisible()) << widget->objectName().toStdString() << " is not in view";
    // A tick box may be wider than what can be clicked of it.
    const QPoint place =
        qobject_cast<QCheckBox*>(widget) != nullptr ? QPoint(8, widget->height() / 2) : QPoint();
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
}

bool WindowTest::waitFor(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    return QTest::qWaitFor(condition, static_cast<int>(patience.count()));
}

void WindowTest::when(std::function<bool()> condition, std::function<void()> action) {
    auto* const look = new QTimer(&m_watches);
    QObject::connect(look, &QTimer::timeout, look, [=] {
        if (condition()) {
            look->stop();
            action();
        }
    });
    look->start(kPollMilliseconds);
}

void WindowTest::settle() {
    constexpr int kRounds = 8;  // more than layouts and zero timers set off one another
    for (int round = 0; round < kRounds; ++round) {
        QGuiApplication::sync();
    }
}

void WindowTest::selectMedium(int row) {
    QTableView* table = controller->idTableView;
    const QRect cell = table->visualRect(table->model()->index(row, 1));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
}

void WindowTest::toRange(int mode) {
    selectMedium();
    QAbstractButton* const modes[] = {controller->_rec_mode_Photo, controller->_rec_mode_Video,
                                      controller->_rec_mode_RawFile};
    choose(modes[mode]);
    click(controller->nextButton);
}

void WindowTest::toFileTypes(int mode) {
    toRange(mode);
    click(controller->nextButton);
}

void WindowTest::scanToEnd() {
    answers.press(QCoreApplication::translate("SaveFileInfo", "OK"));  // as the language in use says it
    click(controller->nextButton);
    ASSERT_TRUE(scanEnds());
}

bool WindowTest::scanEnds(std::chrono::milliseconds patience) {
    return waitFor([this] { return answers.allGiven() && !controller->scanShown(); }, patience);
}

void WindowTest::writeCatalogue(const char* name, const QByteArray& records) {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(records);
}

QByteArray WindowTest::record(const char* extension, const char* header, const char* description,
                              const char* offset, const char* size) {
    return QByteArray("Extension : ") + extension + "\nSize : " + size + "\nHeader :" + header +
           "\nOffset : " + offset + "\nReserved : 0\nDescription : " + description + "\n";
}

}  // namespace vantor
