#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What a command says of itself. Reading the command line, help, and what a shell offers while a
/// line is typed are all made of it.
namespace lumora {

// Words that belong to the command line itself.
inline constexpr char kHelpWord[] = "help";
inline constexpr char kHelpOption[] = "--help";
inline constexpr char kVersionOption[] = "--version";

/// What may stand in one place of the line, for a shell that completes it.
struct Offers {
    enum class Kind { Nothing, Words, Files, Folders };
    Kind kind = Kind::Nothing;
    std::vector<std::string> words = {};
};

/// True once the option is given.
struct FlagValue {
    bool* field;
};
/// The text behind the option; without a value where the option is not given.
struct TextValue {
    std::optional<std::string>* field;
    std::string unit; ///< what help calls it: "DIR"
    Offers offers = {};
};
/// A whole number from `least` to `most`; the field is left alone where the option is not given.
struct NumberValue {
    std::size_t* field;
    std::string unit;
    std::size_t least;
    std::size_t most;
};

/// An option and the field that it fills.
struct Option {
    std::string name; ///< "--out-dir"
    std::string text; ///< for help, on one line
    std::variant<FlagValue, TextValue, NumberValue> value;
    std::string heading = {}; ///< under which help lists it, if not with most others
};

/// The words of a command that are no options, in their order.
struct Names {
    std::string name; ///< what help calls them: "FILE"
    std::string text; ///< for help, on one line
    std::vector<std::string>* field = nullptr;
    std::vector<std::string> first = {}; ///< what the first is one of, if it is no file
};

struct Command {
    std::string name;
    std::string text;               ///< for help, on one line
    std::vector<std::string> usage; ///< what follows the name, a line for each way to call it
    Names names = {};
    std::vector<Option> options = {}; ///< besides --help, which all commands have
    std::string footer = {};          ///< of its help: its files, and examples
    /// The work, once the fields are filled. Answers the exit status. UsageError, before anything
    /// is touched, where the words contradict each other.
    std::function<int()> run;
};

/// The names of all commands.
inline std::vector<std::string> NamesOf(const std::vector<Command>& commands)
{
    std::vector<std::string> names;
    names.reserve(commands.size());
    for (const Command& command : commands)
        names.push_back(command.name);
    return names;
}

} // namespace lumora
