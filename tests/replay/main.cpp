// scan_replay: the engine over an image file with the faults and stops of a test case, printed as --list-json
// does.
//
// --test-stop PASS:INDEX            the stop request stands when that pass is about to read the sector
// --test-read-fault SECTOR:always|K every read, or the first K reads, of the sector fail
// --test-seek-fail                  the repositioning after a failed read fails
//
// With VANTOR_REPLAY_AHEAD in the environment the image is read ahead and screened in small windows, which
// changes nothing that is printed.
#include <QCoreApplication>
#include <QJsonDocument>
#include <cstdio>

#include "catalogue/NumberText.h"
#include "cli/CliSession.h"
#include "cli/Options.h"
#include "media/ImageFile.h"
#include "media/ImageParts.h"
#include "media/RawDevice.h"
#include "tests/support/HookedReader.h"
#include "tests/support/ReadAheadMedium.h"

namespace vantor {
namespace {

struct Hooks {
    std::set<std::uint64_t> always;
    std::map<std::uint64_t, int> transient;
    bool seekAfterFailureFails = false;
    QString stopPass;
    std::uint64_t stopIndex = 0;
};

// Takes the hooks out of the arguments and leaves the rest for the command's own options.
Hooks takeHooks(QStringList& arguments) {
    Hooks hooks;
    QStringList rest;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == u"--test-seek-fail") {
            hooks.seekAfterFailureFails = true;
        } else if (argument == u"--test-stop" && i + 1 < arguments.size()) {
            const QStringList parts = arguments.at(++i).split(u':');
            hooks.stopPass = parts.value(0);
            hooks.stopIndex = static_cast<std::uint64_t>(textToInt64(parts.value(1)));
        } else if (argument == u"--test-read-fault" && i + 1 < arguments.size()) {
            const QStringList parts = arguments.at(++i).split(u':');
            const auto sector = static_cast<std::uint64_t>(textToInt64(parts.value(0)));
            if (parts.value(1) == u"always") {
                hooks.always.insert(sector);
            } else {
                hooks.transient[sector] = textToInt32(parts.value(1));
            }
        } else {
            rest.append(argument);
        }
    }
    arguments = rest;
    return hooks;
}

// The first opening is the general pass's, the second the thorough one's; those after the scan are checksum
// copies, for which transient faults are over.
class ReplayOpener {
  public:
    ReplayOpener(CliSession& session, QString image, Hooks hooks)
        : m_session(session), m_image(std::move(image)), m_hooks(std::move(hooks)) {}

    void scanIsOver() { m_scanOver = true; }

    std::unique_ptr<SectorReader> open() {
        const QString pass = m_openings++ == 0 ? QStringLiteral("GEN") : QStringLiteral("THD");
        auto reader = m_scanOver || !m_ahead ? openBeside() : openAhead();
        if (reader && !m_scanOver && pass == m_hooks.stopPass) {
            requestStopAt(*reader);
        }
        return reader;
    }

  private:
    std::unique_ptr<HookedReader> openBeside() {
        auto inner = openMedium(m_image);
        if (!inner) {
            return nullptr;
        }
        return std::make_unique<HookedReader>(
            std::move(inner), m_scanOver ? ReadFaults{&m_hooks.always, nullptr, false} : faults(),
            HookedReader::Screen::Kept);
    }

    std::unique_ptr<HookedReader> openAhead() {
        auto image = ImageFile::open(HeldImage().open(imageParts(m_image)));
        return image ? openReadAhead(std::move(image), faults()) : nullptr;
    }

    ReadFaults faults() { return {&m_hooks.always, &m_hooks.transient, m_hooks.seekAfterFailureFails}; }

    void requestStopAt(HookedReader& reader) {
        const std::uint64_t start = m_session.start_sector;
        if (m_hooks.stopIndex < start || m_hooks.stopIndex >= m_session.end_sector) {
            return;
        }
        if (m_hooks.stopIndex == start) {
            m_session.stop_now = 1;
            return;
        }
        // The request made while the sector before is read is seen before the sector itself.
        reader.beforeRead([this, last = m_hooks.stopIndex - start - 1](std::uint64_t reads) {
            if (reads == last) {
                m_session.stop_now = 1;
            }
        });
    }

    CliSession& m_session;
    QString m_image;
    Hooks m_hooks;
    const bool m_ahead = qEnvironmentVariableIsSet("VANTOR_REPLAY_AHEAD");
    int m_openings = 0;
    bool m_scanOver = false;
};

int replay(QStringList arguments) {
    Hooks hooks = takeHooks(arguments);
    const ParsedOptions parsed = parseOptions(arguments);
    if (parsed.exitCode) {
        std::fprintf(stderr, "%s\n", qPrintable(parsed.message));
        return *parsed.exitCode;
    }
    const CliOptions& options = parsed.options;
    const auto facts = probeMedium(options.medium);
    CliSession session(options, facts ? facts->sectors : 0);
    ReplayOpener opener(session, options.medium, std::move(hooks));
    session.setMediumOpener([&opener](const QString&) { return opener.open(); });
    session.loadCatalogues(options.catalogueFolder);
    if (options.types) {
        session.chooseTypes(*options.types);
    } else if (options.mode != kPhotoMode) {
        session.chooseAllTypes();
    }
    session.run();
    opener.scanIsOver();
    session.forEachJsonLine([](const QJsonObject& line) {
        std::printf("%s\n", QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    });
    return 0;
}

}  // namespace
}  // namespace vantor

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return vantor::replay(QCoreApplication::arguments().mid(1));
}
