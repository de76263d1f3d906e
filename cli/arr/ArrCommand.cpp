#include "cli/arr/ArrCommand.h"

#include "cli/arr/ArrRun.h"
#include "cli/terminal/UsageError.h"
#include "cli/terminal/Wording.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace lumora {

namespace {

constexpr char kArrFooter[] = R"(
FILE is a matrix file (.arr), CSV a table of comma-separated cells in UTF-8.

  lumora arr show keys.arr
  lumora arr to-csv keys.arr keys.csv
  lumora arr from-csv keys.csv new.arr --as string)";

/// What can be done, and how many files it takes.
struct ActionWord {
    const char* name;
    ArrAction action;
    std::size_t least_files;
    std::size_t most_files;
    const char* too_few;
    const char* too_many;
};

constexpr ActionWord kActions[] = {
    {"show", ArrAction::Show, 1, 1, "name a matrix file", "too many names"},
    {"to-csv", ArrAction::ToCsv, 1, 2, "name a matrix file", "too many names"},
    {"from-csv", ArrAction::FromCsv, 2, 2, "name a table and the matrix file to make of it",
     "name a table and the matrix file to make of it"},
};

struct ClassWord {
    const char* name;
    ArrClass value;
};

constexpr ClassWord kClasses[] = {{"matrix", ArrClass::Matrix},
                                  {"long", ArrClass::Long},
                                  {"string", ArrClass::String},
                                  {"complex", ArrClass::Complex}};

template <class Word, std::size_t n> std::vector<std::string> WordsOf(const Word (&table)[n])
{
    std::vector<std::string> words;
    for (const Word& each : table)
        words.emplace_back(each.name);
    return words;
}

/// The line of the table with this name; nullptr if there is none.
template <class Word, std::size_t n>
const Word* Named(const Word (&table)[n], const std::string& name)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [&](const Word& each) { return name == each.name; });
    return found == std::end(table) ? nullptr : found;
}

/// The line as it was given.
struct ArrWords {
    std::vector<std::string> names;
    std::optional<std::string> class_name;
    ArrRequest request; ///< its flags
};

ArrClass ClassIn(const ArrWords& words)
{
    if (const ClassWord* known = Named(kClasses, words.class_name.value_or("")))
        return known->value;
    throw UsageError("say what to make of the table: --as " + Listed(WordsOf(kClasses), "or"));
}

ArrRequest RequestOf(const ArrWords& words)
{
    const ActionWord* action = Named(kActions, words.names.empty() ? "" : words.names.front());
    if (!action) throw UsageError("say what to do: lumora arr " + Listed(WordsOf(kActions), "or"));
    const std::size_t files = words.names.size() - 1;
    if (files < action->least_files) throw UsageError(action->too_few);
    if (files > action->most_files) throw UsageError(action->too_many);
    ArrRequest request = words.request;
    request.action = action->action;
    request.input = words.names[1];
    if (files == 2) request.output = words.names[2];
    if (request.action == ArrAction::FromCsv) request.as = ClassIn(words);
    if (request.action == ArrAction::ToCsv && request.json && request.output.empty())
        throw UsageError("with --json the table needs a file of its own: name it");
    return request;
}

} // namespace

Command ArrCommand()
{
    const auto words = std::make_shared<ArrWords>();
    const std::vector<std::string> actions = WordsOf(kActions);
    const std::vector<std::string> classes = WordsOf(kClasses);
    return {
        .name = "arr",
        .text = "Show matrix files, and turn them into tables and back",
        .usage = {"show FILE [OPTIONS]", "to-csv FILE [CSV] [OPTIONS]",
                  "from-csv CSV FILE --as CLASS [OPTIONS]"},
        .names = {"ACTION", Listed(actions, "or") + ", and its files", &words->names, actions},
        .options = {{"--as", "What from-csv makes: " + Listed(classes, "or"),
                     TextValue{&words->class_name, "CLASS", {Offers::Kind::Words, classes}}},
                    {"--all", "Show a large table as a whole", FlagValue{&words->request.all}},
                    {"--force", "Replace a file that exists already",
                     FlagValue{&words->request.force}},
                    {"--json", "Print the answer as JSON", FlagValue{&words->request.json}}},
        .footer = kArrFooter,
        .run = [words] { return RunArr(RequestOf(*words)); },
    };
}

} // namespace lumora
