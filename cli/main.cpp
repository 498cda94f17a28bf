// vantor-recovery-cli: recovery for scripts and for machines without a display.
#include <QCoreApplication>
#include <cstdio>

#include "cli/Options.h"
#include "cli/Recovery.h"
#include "decode/EvidenceHelper.h"
#include "media/PathArgument.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const vantor::ParsedOptions parsed = vantor::parseOptions(vantor::argumentsFromBytes(argc, argv));
    if (parsed.exitCode) {
        std::fprintf(*parsed.exitCode == vantor::kExitCompleted ? stdout : stderr, "%s\n",
                     qPrintable(vantor::withShownPaths(parsed.message)));
        return *parsed.exitCode;
    }
    vantor::readEvidenceInHelpers();
    return vantor::recover(parsed.options);
}
