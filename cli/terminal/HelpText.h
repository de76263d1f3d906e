#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace lumora {

// What stands at the foot of a command's help: its files, and examples.
extern const char kPitchFooter[];
extern const char kDeclipFooter[];
extern const char kArrFooter[];

/// The help of each command with a usage line that says how the files are told apart.
class HelpText : public CLI::Formatter {
public:
    HelpText();

    std::string make_usage(const CLI::App* app, std::string name) const override;
    /// One blank line between paragraphs, none at the end.
    std::string make_help(const CLI::App* app, std::string name,
                          CLI::AppFormatMode mode) const override;
};

} // namespace lumora
