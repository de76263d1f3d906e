#include "cli/grammar/CommandLine.h"

#include "cli/terminal/UsageError.h"
#include "cli/terminal/Wording.h"

// The most expensive header of the house, and included here alone.
#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace lumora {

namespace {

constexpr char kHelpNames[] = "-h,--help";
constexpr char kHelpText[] = "Print this help";

/// Help with a usage line that says how a command tells its words apart.
class HelpText : public CLI::Formatter {
public:
    explicit HelpText(const std::vector<Command>& commands) : commands_(commands)
    {
        column_width(24);
    }

    std::string make_usage(const CLI::App* app, std::string) const override
    {
        std::string text;
        for (const Command& command : commands_)
            if (command.name == app->get_name())
                for (const std::string& line : command.usage)
                    text += Head(text) + command.name + " " + line + "\n";
        if (!text.empty()) return text;
        for (const Command& command : commands_)
            text += command.name + " | ";
        return Head("") + text + kHelpWord + " ...\n";
    }

    /// One blank line between paragraphs, none at the end.
    std::string make_help(const CLI::App* app, std::string name,
                          CLI::AppFormatMode mode) const override
    {
        std::string text = CLI::Formatter::make_help(app, std::move(name), mode);
        for (std::size_t gap = 0; (gap = text.find("\n\n\n")) != std::string::npos;)
            text.erase(gap, 1);
        if (text.ends_with("\n\n")) text.pop_back();
        return text;
    }

private:
    static std::string Head(const std::string& lines_before)
    {
        return lines_before.empty() ? "Usage: lumora " : "       lumora ";
    }

    const std::vector<Command>& commands_;
};

/// The commands in the words of the parser, and the way back into their fields.
class Parser {
public:
    explicit Parser(const std::vector<Command>& commands) : commands_(commands)
    {
        // The commands take the formatter over when they are added.
        app_.formatter(std::make_shared<HelpText>(commands));
        for (const Command& command : commands)
            parsers_.push_back(app_.add_subcommand(command.name, command.text));
        help_ = app_.add_subcommand(kHelpWord, "Explain a command");
        app_.set_version_flag(kVersionOption, "lumora " LUMORA_VERSION, "Print the version");
        app_.set_help_flag(kHelpNames, kHelpText);
        app_.require_subcommand(1);
        app_.footer("\nlumora help COMMAND and the man page tell more.");
        for (std::size_t k = 0; k < commands.size(); ++k)
            Declare(*parsers_[k], commands[k]);
        help_
            ->add_option("COMMAND", topic_,
                         "The command to explain: " + Listed(NamesOf(commands), "or"))
            ->type_name("");
    }

    Asked Read(std::vector<std::string> words, std::vector<std::string> plain_names)
    {
        std::reverse(words.begin(), words.end()); // the parser takes them from the back
        try {
            app_.parse(std::move(words));
        } catch (const CLI::CallForHelp&) {
            return {nullptr, app_.help()}; // of the command that was met, if any
        } catch (const CLI::CallForVersion& version) {
            return {nullptr, version.what() + std::string("\n")};
        } catch (const CLI::RequiredError&) {
            std::vector<std::string> all = NamesOf(commands_);
            all.emplace_back(kHelpWord);
            throw UsageError("say what to do: lumora " + Listed(all, "or"));
        } catch (const CLI::ParseError& error) {
            throw UsageError(error.what());
        }
        for (std::size_t k = 0; k < commands_.size(); ++k) {
            if (!*parsers_[k]) continue;
            TakeTexts(*parsers_[k], commands_[k]);
            std::vector<std::string>& names = *commands_[k].names.field;
            names.insert(names.end(), std::make_move_iterator(plain_names.begin()),
                         std::make_move_iterator(plain_names.end()));
            return {&commands_[k]};
        }
        return {nullptr, Help()};
    }

private:
    static void Declare(CLI::App& parser, const Command& command)
    {
        for (const Option& option : command.options) {
            CLI::Option* declared = std::visit(
                [&](const auto& value) { return Add(parser, option, value); }, option.value);
            if (!option.heading.empty()) declared->group(option.heading);
        }
        parser.add_option(command.names.name, *command.names.field, command.names.text)
            ->type_name("");
        parser.set_help_flag(kHelpNames, kHelpText);
        parser.footer(command.footer);
    }

    static CLI::Option* Add(CLI::App& parser, const Option& option, const FlagValue& value)
    {
        return parser.add_flag(option.name, *value.field, option.text);
    }
    /// Its field is filled in the end: the parser would take an empty text for none.
    static CLI::Option* Add(CLI::App& parser, const Option& option, const TextValue& value)
    {
        return parser.add_option(option.name)
            ->description(option.text)
            ->type_name(value.unit)
            ->expected(1);
    }
    static CLI::Option* Add(CLI::App& parser, const Option& option, const NumberValue& value)
    {
        return parser.add_option(option.name, *value.field, option.text)
            ->type_name(value.unit)
            ->check(CLI::Range(value.least, value.most).description(""));
    }

    static void TakeTexts(const CLI::App& parser, const Command& command)
    {
        for (const Option& option : command.options) {
            const auto* text = std::get_if<TextValue>(&option.value);
            if (text && parser.count(option.name) != 0)
                *text->field = parser.get_option(option.name)->results().front();
        }
    }

    std::string Help()
    {
        app_.clear(); // a parser that has met a command explains only that one
        if (topic_.empty()) return app_.help();
        for (std::size_t k = 0; k < commands_.size(); ++k)
            if (topic_ == commands_[k].name) return parsers_[k]->help();
        throw UsageError("there is no command " + topic_ + "; there are " +
                         Listed(NamesOf(commands_), "and"));
    }

    CLI::App app_{"Changes the pitch of recorded music in fine steps; its length stays.", "lumora"};
    const std::vector<Command>& commands_;
    std::vector<CLI::App*> parsers_; ///< of the commands, in their order
    CLI::App* help_ = nullptr;
    std::string topic_;
};

/// The parser takes "[a,b]" for a list and "++" for the end of a command; with "./" ahead they are
/// files of that name.
void ProtectNames(std::vector<std::string>& words)
{
    for (std::string& word : words)
        if (word == "++" || (word.starts_with('[') && word.ends_with(']'))) word.insert(0, "./");
}

} // namespace

Asked ReadCommandLine(const std::vector<Command>& commands, std::vector<std::string> words)
{
    // What follows "--" is the name of a file, whatever it looks like.
    const auto mark = std::find(words.begin(), words.end(), "--");
    std::vector<std::string> plain_names;
    if (mark != words.end()) {
        plain_names.assign(mark + 1, words.end());
        words.erase(mark, words.end());
    }
    ProtectNames(words);
    return Parser(commands).Read(std::move(words), std::move(plain_names));
}

} // namespace lumora
