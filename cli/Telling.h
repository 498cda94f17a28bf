// What the command says of a search that has ended.
#pragma once

#include <QString>

#include "cli/CliMedium.h"
#include "cli/CliSession.h"
#include "cli/Options.h"
#include "media/MediumCopy.h"
#include "saving/RecoveryReport.h"

namespace vantor {

// A line for the user on the standard error.
void complain(const QString& text);

// All that there is to say of the search, its list and report included; the exit code.
int tell(CliSession& session, const CliOptions& options, const CliMedium& medium, const ReportHead& head);

// False after saying that the copy could not be written to its end.
bool tellCopy(const MediumCopy& copy, const CliOptions& options);

}  // namespace vantor
