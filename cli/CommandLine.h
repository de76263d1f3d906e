#pragma once

#include "cli/Canvas.h"
#include "cli/PitchSetting.h"

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace lumora {

/// What the commands that make sound files of sound files have in common, as it was given.
struct FilesRequest {
    std::vector<std::string> inputs; ///< at least one
    std::string output;              ///< of the one input, unless there is a folder
    std::string folder;              ///< --out-dir; empty: not given
    std::string picture;             ///< of the one input; empty: not wanted
    std::size_t jobs = 1;
    bool force = false;
    bool json = false;
};

/// `lumora pitch`, as it was given.
struct PitchRequest {
    FilesRequest files;
    PitchSetting setting;
};

/// `lumora declip`, as it was given.
struct DeclipRequest {
    FilesRequest files;
    bool keep_length = false;
    PictureKind picture_kind = PictureKind::Png;
};

/// `lumora info`, as it was given.
struct InfoRequest {
    std::vector<std::string> files; ///< at least one
    bool json = false;
};

/// `lumora arr`, as it was given.
enum class ArrAction { Show, ToCsv, FromCsv };
enum class ArrClass { Matrix, Long, String, Complex };
struct ArrRequest {
    ArrAction action = ArrAction::Show;
    std::string input;
    std::string output;             ///< to-csv: empty for standard output
    ArrClass as = ArrClass::Matrix; ///< from-csv
    bool all = false;               ///< show
    bool force = false;
    bool json = false;
};

/// Text that was asked for instead of work.
struct HelpRequest {
    std::string text;
};

using Request = std::variant<PitchRequest, DeclipRequest, InfoRequest, ArrRequest, HelpRequest>;

/// What the words behind the command's name ask for. UsageError if that cannot be told.
Request ReadCommandLine(std::vector<std::string> words);

} // namespace lumora
