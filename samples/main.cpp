// vantor-sample-card: makes the sample card, to try the program on and to test it with.
#include <QCommandLineParser>
#include <QGuiApplication>
#include <QSaveFile>
#include <cstdio>
#include <optional>
#include <stdexcept>

#include "samples/Card.h"

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUse = 2;

// A file that leaves nothing behind when it cannot be written whole. Opened before the card is made, so that
// a path that cannot be written to costs nothing.
class Output {
  public:
    explicit Output(const QString& path) : m_file(path) {
        if (!m_file.open(QIODevice::WriteOnly))
            fail();
    }
    void write(const QByteArray& bytes) {
        if (m_file.write(bytes) != bytes.size() || !m_file.commit())
            fail();
    }

  private:
    [[noreturn]] void fail() const {
        throw std::runtime_error((m_file.fileName() + ": " + m_file.errorString()).toStdString());
    }

    QSaveFile m_file;
};

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument("image", "The card's image.", "OUTPUT.img");
    parser.addOption({"list", "The list of what is on it.", "OUTPUT.tsv"});
    if (!parser.parse(QGuiApplication::arguments()) || parser.positionalArguments().size() != 1) {
        std::fputs("usage: vantor-sample-card OUTPUT.img [--list OUTPUT.tsv]\n", stderr);
        return kWrongUse;
    }
    try {
        std::optional<Output> list;
        if (parser.isSet("list"))
            list.emplace(parser.value("list"));
        Output image(parser.positionalArguments().at(0));
        const vantor::samples::SampleCard card =
            vantor::samples::buildSampleCard(vantor::samples::cardContents());
        if (list)
            list->write(card.list);
        image.write(card.image);
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "vantor-sample-card: %s\n", error.what());
        return kFailed;
    }
    return kDone;
}
