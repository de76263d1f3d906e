#pragma once

#include "cli/arr/Csv.h"

#include <string>

namespace lumora {

enum class ArrAction { Show, ToCsv, FromCsv };

/// `lumora arr`, as it was given.
struct ArrRequest {
    ArrAction action = ArrAction::Show;
    std::string input;
    std::string output;             ///< to-csv: empty for standard output
    ArrClass as = ArrClass::Matrix; ///< from-csv
    bool all = false;               ///< show
    bool force = false;
    bool json = false;
};

/// `lumora arr`: answers the exit status, 1 if the file could not be done. UsageError where the
/// result would be the input.
int RunArr(const ArrRequest& request);

} // namespace lumora
