#include "cli/CommandLine.h"

#include "cli/terminal/HelpText.h"
#include "cli/terminal/UsageError.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iterator>
#include <memory>
#include <utility>

namespace lumora {

namespace {

constexpr std::size_t kMostJobs = 256;

/// The ways to say how far; each has its own reader, and exactly one is wanted.
struct SettingOption {
    const char* name;
    const char* unit;
    const char* text;
    PitchSetting (*read)(const std::string&);
};

constexpr SettingOption kSettings[] = {
    {"--tones", "T", "Whole tones and a fraction, -6 to 6: +1, 1/64, -2-3/8",
     PitchSetting::FromTones},
    {"--octaves", "X", "Octaves, -1 to 1", PitchSetting::FromOctaves},
    {"--cents", "C", "Cents, -1200 to 1200", PitchSetting::FromCents},
    {"--q-p", "Q", "Old pitch over new pitch, 0.5 to 2.0", PitchSetting::FromQuotient},
};

constexpr std::pair<const char*, ArrClass> kArrClasses[] = {{"matrix", ArrClass::Matrix},
                                                            {"long", ArrClass::Long},
                                                            {"string", ArrClass::String},
                                                            {"complex", ArrClass::Complex}};

/// The command line's grammar, and where its values go.
class Grammar {
public:
    Grammar()
    {
        app_.formatter(std::make_shared<HelpText>()); // the commands take it over when added
        pitch_ = app_.add_subcommand("pitch", "Change the pitch of sound files");
        declip_ = app_.add_subcommand("declip", "Rebuild over-driven stretches of sound files");
        info_ = app_.add_subcommand("info", "Tell what is in sound files");
        arr_ = app_.add_subcommand("arr", "Show matrix files, and turn them into tables and back");
        help_ = app_.add_subcommand("help", "Explain a command");
        app_.set_version_flag("--version", "lumora " LUMORA_VERSION, "Print the version");
        app_.set_help_flag("-h,--help", "Print this help");
        app_.require_subcommand(1);
        app_.footer("\nlumora help COMMAND and the man page tell more.");
        AddPitch();
        AddDeclip();
        AddInfo();
        AddArr();
        help_->add_option("COMMAND", topic_, "The command to explain: pitch, declip, info or arr")
            ->type_name("");
    }

    Request Read(std::vector<std::string> words, std::vector<std::string> plain_names)
    {
        std::reverse(words.begin(), words.end()); // the parser takes them from the back
        try {
            app_.parse(std::move(words));
        } catch (const CLI::CallForHelp&) {
            return HelpRequest{app_.help()}; // of the command that was met, if any
        } catch (const CLI::CallForVersion& version) {
            return HelpRequest{version.what() + std::string("\n")};
        } catch (const CLI::RequiredError&) {
            throw UsageError("say what to do: lumora pitch, declip, info, arr or help");
        } catch (const CLI::ParseError& error) {
            throw UsageError(error.what());
        }
        files_.insert(files_.end(), std::make_move_iterator(plain_names.begin()),
                      std::make_move_iterator(plain_names.end()));
        if (*help_) return Help();
        if (*info_) return Info();
        if (*arr_) return Arr();
        if (*declip_) return Declip();
        return Pitch();
    }

private:
    void AddPitch()
    {
        for (const SettingOption& setting : kSettings)
            pitch_->add_option(setting.name)
                ->description(setting.text)
                ->type_name(setting.unit)
                ->expected(1)
                ->group("Setting (one of them)");
        AddFilesOptions(*pitch_, pitch_request_.files);
        pitch_->footer(kPitchFooter);
    }

    void AddDeclip()
    {
        declip_->add_flag("--keep-length", declip_request_.keep_length,
                          "Put back the filter's delay: OUT as long as IN");
        declip_->add_option("--plot", declip_request_.files.picture)
            ->description("Draw the first rebuilt stretches of one IN: .png or .svg")
            ->type_name("FILE");
        AddFilesOptions(*declip_, declip_request_.files);
        declip_->footer(kDeclipFooter);
    }

    void AddFilesOptions(CLI::App& command, FilesRequest& request)
    {
        command.add_option("FILE", files_, "IN and OUT, or every IN with --out-dir")->type_name("");
        command.add_option("--out-dir", request.folder)
            ->description("Folder for the results, made if missing")
            ->type_name("DIR");
        command.add_option("--jobs", request.jobs, "Files worked on side by side (1)")
            ->type_name("N")
            ->check(CLI::Range(std::size_t{1}, kMostJobs).description(""));
        command.add_flag("--force", request.force, "Replace files that exist already");
        command.add_flag("--json", request.json, "Print the results as JSON");
        command.set_help_flag("-h,--help", "Print this help");
    }

    void AddInfo()
    {
        info_->add_option("FILE", files_, "Sound files")->type_name("");
        info_->add_flag("--json", info_request_.json, "Print the answers as JSON");
        info_->set_help_flag("-h,--help", "Print this help");
    }

    void AddArr()
    {
        arr_->add_option("ACTION", files_, "show, to-csv or from-csv, and its files")
            ->type_name("");
        arr_->add_option("--as", class_, "What from-csv makes: matrix, long, string or complex")
            ->type_name("CLASS");
        arr_->add_flag("--all", arr_request_.all, "Show a large table as a whole");
        arr_->add_flag("--force", arr_request_.force, "Replace a file that exists already");
        arr_->add_flag("--json", arr_request_.json, "Print the answer as JSON");
        arr_->set_help_flag("-h,--help", "Print this help");
        arr_->footer(kArrFooter);
    }

    Request Help()
    {
        app_.clear(); // a parser that has met a command explains only that one
        if (topic_.empty()) return HelpRequest{app_.help()};
        if (topic_ == "pitch") return HelpRequest{pitch_->help()};
        if (topic_ == "declip") return HelpRequest{declip_->help()};
        if (topic_ == "info") return HelpRequest{info_->help()};
        if (topic_ == "arr") return HelpRequest{arr_->help()};
        throw UsageError("there is no command " + topic_ +
                         "; there are pitch, declip, info and arr");
    }

    Request Info()
    {
        if (files_.empty()) throw UsageError("name the files to look at");
        info_request_.files = files_;
        return info_request_;
    }

    Request Arr()
    {
        const std::string action = files_.empty() ? "" : files_.front();
        const std::size_t names = files_.empty() ? 0 : files_.size() - 1;
        if (action != "show" && action != "to-csv" && action != "from-csv")
            throw UsageError("say what to do: lumora arr show, to-csv or from-csv");
        if (action == "from-csv" ? names != 2 : names < 1)
            throw UsageError(action == "from-csv" ? "name a table and the matrix file to make of it"
                                                  : "name a matrix file");
        if (names > (action == "show" ? 1U : 2U)) throw UsageError("too many names");
        arr_request_.input = files_[1];
        if (names == 2) arr_request_.output = files_[2];
        if (action == "show") return arr_request_;
        arr_request_.action = action == "to-csv" ? ArrAction::ToCsv : ArrAction::FromCsv;
        if (arr_request_.action == ArrAction::FromCsv) arr_request_.as = ClassNamed(class_);
        if (arr_request_.json && arr_request_.output.empty())
            throw UsageError("with --json the table needs a file of its own: name it");
        return arr_request_;
    }

    static ArrClass ClassNamed(const std::string& name)
    {
        for (const auto& [each, value] : kArrClasses)
            if (name == each) return value;
        throw UsageError("say what to make of the table: --as matrix, long, string or complex");
    }

    Request Pitch()
    {
        pitch_request_.setting = Setting();
        TakeNames(*pitch_, pitch_request_.files);
        return pitch_request_;
    }

    Request Declip()
    {
        TakeNames(*declip_, declip_request_.files);
        if (declip_->count("--plot") == 0) return declip_request_;
        declip_request_.picture_kind = KindOfPicture(declip_request_.files.picture);
        if (declip_request_.files.inputs.size() > 1)
            throw UsageError("--plot draws one input; leave it out or name one input");
        return declip_request_;
    }

    static PictureKind KindOfPicture(const std::string& name)
    {
        std::string ending = std::filesystem::path(name).extension();
        std::transform(ending.begin(), ending.end(), ending.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        if (ending == ".png") return PictureKind::Png;
        if (ending == ".svg") return PictureKind::Svg;
        throw UsageError("--plot " + name + ": the name must end in .png or .svg");
    }

    /// Tells inputs and output apart.
    void TakeNames(const CLI::App& command, FilesRequest& request)
    {
        if (command.count("--out-dir") != 0) {
            if (request.folder.empty()) throw UsageError("--out-dir needs a folder's name");
            if (files_.empty()) throw UsageError("name the files to work on");
        } else {
            if (files_.size() > 2)
                throw UsageError("several inputs need a folder for their results: --out-dir DIR");
            if (files_.size() < 2) throw UsageError("name an input and an output");
            request.output = files_.back();
            files_.pop_back();
        }
        request.inputs = files_;
    }

    PitchSetting Setting() const
    {
        const auto given = [&](const SettingOption& each) { return pitch_->count(each.name) != 0; };
        const auto chosen = std::find_if(std::begin(kSettings), std::end(kSettings), given);
        if (std::count_if(std::begin(kSettings), std::end(kSettings), given) != 1)
            throw UsageError("say how far to move the pitch, with exactly one of --tones, "
                             "--octaves, --cents and --q-p");
        return chosen->read(pitch_->get_option(chosen->name)->results().front());
    }

    CLI::App app_{"Changes the pitch of recorded music in fine steps; its length stays.", "lumora"};
    CLI::App* pitch_ = nullptr;
    CLI::App* declip_ = nullptr;
    CLI::App* info_ = nullptr;
    CLI::App* arr_ = nullptr;
    CLI::App* help_ = nullptr;
    std::vector<std::string> files_;
    std::string topic_;
    PitchRequest pitch_request_;
    DeclipRequest declip_request_;
    InfoRequest info_request_;
    ArrRequest arr_request_;
    std::string class_;
};

/// The parser takes "[a,b]" for a list and "++" for the end of a command; with "./" ahead they are
/// files of that name.
void ProtectNames(std::vector<std::string>& words)
{
    for (std::string& word : words)
        if (word == "++" || (word.starts_with('[') && word.ends_with(']'))) word.insert(0, "./");
}

} // namespace

Request ReadCommandLine(std::vector<std::string> words)
{
    // What follows "--" is the name of a file, whatever it looks like.
    const auto mark = std::find(words.begin(), words.end(), "--");
    std::vector<std::string> plain_names;
    if (mark != words.end()) {
        plain_names.assign(mark + 1, words.end());
        words.erase(mark, words.end());
    }
    ProtectNames(words);
    return Grammar().Read(std::move(words), std::move(plain_names));
}

} // namespace lumora
