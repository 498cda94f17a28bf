// Searches of the command that are kept in a file, and gone on with.
#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "cli/Options.h"
#include "scan/SearchKeeper.h"
#include "scan/SearchRecord.h"

namespace vantor {

class CliSession;
struct CliMedium;

// Makes the options those of the kept search; a medium that was named stays.
void takeWishes(const SearchRecord& kept, CliOptions& options);

// What keeps the search that is about to begin, `kept` being the one that it goes on with; null where the
// options keep none. Null and a sentence in `why` where it cannot go on: the catalogues have changed, or the
// medium is another. Reads some sectors of the medium then.
std::shared_ptr<SearchKeeper> keeperFor(const CliOptions& options, const CliSession& session,
                                        const CliMedium& medium, const std::optional<SearchRecord>& kept,
                                        QString* why);

}  // namespace vantor
