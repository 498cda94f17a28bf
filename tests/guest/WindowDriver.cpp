// Preloaded into the window's program: does what a file of commands says, and writes down what there is to
// see.
//
// VANTOR_DRIVER_COMMANDS  a fifo; one command a line:
//                           click NAME          the button of that object name
//                           press TEXT          the button that reads so, in whatever is modal, else anywhere
//                           row NAME N          the row of a view is selected
//                           text NAME TEXT      a field's text
//                           state               nothing but the answer
// VANTOR_DRIVER_ANSWERS   a file that gets a line of JSON for each: whether it was done, and what is in view
#include <fcntl.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QItemSelectionModel>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QSocketNotifier>
#include <algorithm>

namespace {

QString plain(QString text) {
    return text.remove(u'&');
}

template <class Part>
QList<Part*> inView() {
    QList<Part*> found;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        for (Part* const part : window->findChildren<Part*>()) {
            if (window->isVisible() && part->isVisible()) {
                found.append(part);
            }
        }
    }
    return found;
}

template <class Part>
Part* named(const QString& name) {
    const QList<Part*> parts = inView<Part>();
    const auto part =
        std::find_if(parts.begin(), parts.end(), [&](Part* p) { return p->objectName() == name; });
    return part == parts.end() ? nullptr : *part;
}

// Behind the command's own event: what it opens may not return for long.
bool clickLater(QAbstractButton* button) {
    if (button == nullptr || !button->isEnabled()) {
        return false;
    }
    QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
    return true;
}

bool press(const QString& text) {
    QWidget* const modal = QApplication::activeModalWidget();
    const QList<QAbstractButton*> buttons =
        modal != nullptr ? modal->findChildren<QAbstractButton*>() : inView<QAbstractButton>();
    for (QAbstractButton* const button : buttons) {
        if (button->isVisible() && plain(button->text()) == text) {
            return clickLater(button);
        }
    }
    return false;
}

bool selectRow(const QString& name, int row) {
    auto* const view = named<QAbstractItemView>(name);
    if (view == nullptr || view->model() == nullptr || row >= view->model()->rowCount()) {
        return false;
    }
    QMetaObject::invokeMethod(
        view, [view, row] { view->setCurrentIndex(view->model()->index(row, 0)); }, Qt::QueuedConnection);
    return true;
}

bool setText(const QString& name, const QString& text) {
    auto* const field = named<QLineEdit>(name);
    if (field != nullptr) {
        field->setText(text);
    }
    return field != nullptr;
}

bool obey(const QString& line) {
    const QString verb = line.section(u' ', 0, 0);
    const QString first = line.section(u' ', 1, 1);
    if (verb == u"click") {
        return clickLater(named<QAbstractButton>(first));
    }
    if (verb == u"press") {
        return press(line.section(u' ', 1));
    }
    if (verb == u"row") {
        return selectRow(first, line.section(u' ', 2, 2).toInt());
    }
    if (verb == u"text") {
        return setText(first, line.section(u' ', 2));
    }
    return verb == u"state";
}

QJsonObject state() {
    QJsonObject labels, buttons, views, fields;
    for (const QLabel* const label : inView<QLabel>()) {
        if (!label->text().isEmpty()) {
            labels[label->objectName() +
                   (labels.contains(label->objectName()) ? QString::number(labels.size()) : QString())] =
                label->text();
        }
    }
    for (const QAbstractButton* const button : inView<QAbstractButton>()) {
        buttons[button->objectName().isEmpty() ? plain(button->text()) : button->objectName()] =
            button->isEnabled();
    }
    for (const QAbstractItemView* const view : inView<QAbstractItemView>()) {
        views[view->objectName()] = view->model() != nullptr ? view->model()->rowCount() : 0;
    }
    for (const QLineEdit* const field : inView<QLineEdit>()) {
        fields[field->objectName()] = field->text();
    }
    QJsonObject modal;
    if (const QWidget* const widget = QApplication::activeModalWidget()) {
        QJsonArray words;
        for (const QLabel* const label : widget->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty()) {
                words.append(label->text());
            }
        }
        modal = {{QStringLiteral("name"), widget->objectName()}, {QStringLiteral("words"), words}};
    }
    return {{QStringLiteral("labels"), labels},
            {QStringLiteral("buttons"), buttons},
            {QStringLiteral("views"), views},
            {QStringLiteral("fields"), fields},
            {QStringLiteral("modal"), modal}};
}

void answer(const QByteArray& line) {
    QJsonObject told = state();
    told[QStringLiteral("done")] = obey(QString::fromUtf8(line));
    QFile file(qEnvironmentVariable("VANTOR_DRIVER_ANSWERS"));
    if (file.open(QIODevice::Append)) {
        file.write(QJsonDocument(told).toJson(QJsonDocument::Compact) + '\n');
    }
}

void listen() {
    const QByteArray path = qgetenv("VANTOR_DRIVER_COMMANDS");
    const int fd = path.isEmpty() || qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr
                       ? -1
                       : ::open(path.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(fd, QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [fd, pending = QByteArray()]() mutable {
        char bytes[4096];
        const ssize_t got = ::read(fd, bytes, sizeof(bytes));
        pending.append(bytes, std::max<ssize_t>(got, 0));
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            const QByteArray line = pending.first(end);
            pending.remove(0, end + 1);
            answer(line);
        }
    });
}

// The application is only half made when this is called.
void listenLater() {
    QMetaObject::invokeMethod(QCoreApplication::instance(), listen, Qt::QueuedConnection);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(listenLater)
