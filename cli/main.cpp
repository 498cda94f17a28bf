// vantor-recovery-cli: recovery for scripts and for machines without a display.
#include <QCoreApplication>
#include <cstdio>

#include "catalogue/Language.h"
#include "catalogue/ResourcesFolder.h"
#include "cli/Options.h"
#include "cli/Recovery.h"
#include "decode/EvidenceHelper.h"
#include "media/PathArgument.h"
#include "media/ProcessManners.h"

int main(int argc, char** argv) {
    vantor::settleIntoTheProcess();
    const QCoreApplication application(argc, argv);
    const vantor::AskedLanguage arguments = vantor::takeLanguage(vantor::argumentsFromBytes(argc, argv));
    // What programs read is the same everywhere.
    const bool forPrograms = arguments.rest.contains(QStringLiteral("--list-json"));
    if (const auto refusal =
            forPrograms ? std::nullopt : vantor::speak(arguments.language, vantor::resourcesFolder())) {
        std::fprintf(stderr, "vantor-recovery-cli: %s\n", qPrintable(*refusal));
        return vantor::kExitBadUsage;
    }
    vantor::endClearlyWithoutMemory(vantor::kExitDestinationTrouble);
    const vantor::ParsedOptions parsed = vantor::parseOptions(arguments.rest);
    if (parsed.exitCode) {
        std::fprintf(*parsed.exitCode == vantor::kExitCompleted ? stdout : stderr, "%s\n",
                     qPrintable(vantor::withShownPaths(parsed.message)));
        return *parsed.exitCode;
    }
    vantor::readEvidenceInHelpers();
    return vantor::recover(parsed.options);
}
