#include "cli/terminal/HelpText.h"

#include <utility>

namespace lumora {

const char kPitchFooter[] = R"(
IN is any sound file with one or two channels; what is not a plain 8- or 16-bit
WAVE file is converted first. OUT is a 16-bit WAVE file, at most 10 ms shorter.

  lumora pitch song.wav higher.wav --tones +1/8
  lumora pitch *.flac --out-dir lower --tones -2-3/8 --jobs 4)";

const char kDeclipFooter[] = R"(
IN is any sound file with one or two channels; what is not a plain 8- or 16-bit
WAVE file is converted first. OUT is a WAVE file of as many bits. Stretches over
0.8 of full scale are rebuilt from the sound around them.

  lumora declip hot.wav mended.wav --keep-length --plot mended.png
  lumora declip *.flac --out-dir mended --jobs 4)";

const char kArrFooter[] = R"(
FILE is a matrix file (.arr), CSV a table of comma-separated cells in UTF-8.

  lumora arr show keys.arr
  lumora arr to-csv keys.arr keys.csv
  lumora arr from-csv keys.csv new.arr --as string)";

HelpText::HelpText()
{
    column_width(24);
}

std::string HelpText::make_usage(const CLI::App* app, std::string) const
{
    if (app->get_name() == "pitch")
        return "Usage: lumora pitch IN OUT SETTING [OPTIONS]\n"
               "       lumora pitch IN... --out-dir DIR SETTING [OPTIONS]\n";
    if (app->get_name() == "declip")
        return "Usage: lumora declip IN OUT [OPTIONS]\n"
               "       lumora declip IN... --out-dir DIR [OPTIONS]\n";
    if (app->get_name() == "info") return "Usage: lumora info FILE... [OPTIONS]\n";
    if (app->get_name() == "arr")
        return "Usage: lumora arr show FILE [OPTIONS]\n"
               "       lumora arr to-csv FILE [CSV] [OPTIONS]\n"
               "       lumora arr from-csv CSV FILE --as CLASS [OPTIONS]\n";
    return "Usage: lumora pitch | declip | info | arr | help ...\n";
}

std::string HelpText::make_help(const CLI::App* app, std::string name,
                                CLI::AppFormatMode mode) const
{
    std::string text = CLI::Formatter::make_help(app, std::move(name), mode);
    for (std::size_t gap = 0; (gap = text.find("\n\n\n")) != std::string::npos;)
        text.erase(gap, 1);
    if (text.ends_with("\n\n")) text.pop_back();
    return text;
}

} // namespace lumora
