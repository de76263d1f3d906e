#pragma once

#include "cli/grammar/Grammar.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lumora::test {

/// A command that lumora does not have, with a field of every kind.
struct Toy {
    std::vector<std::string> names;
    bool loud = false;
    std::size_t times = 1;
    std::optional<std::string> tune, book, box, note;

    Command Words()
    {
        const Offers tunes = {Offers::Kind::Words, {"march", "waltz"}};
        return {
            .name = "sing",
            .text = "Sing to sound files",
            .usage = {"now SONG [OPTIONS]", "later [OPTIONS]"},
            .names = {"WHEN", "now or later, and a song", &names, {"now", "later"}},
            .options = {{"--loud", "Sing loudly", FlagValue{&loud}},
                        {"--times", "How often", NumberValue{&times, "N", 1, 9}},
                        {"--tune", "The tune", TextValue{&tune, "TUNE", tunes}, "Style"},
                        {"--book", "A song book", TextValue{&book, "FILE", {Offers::Kind::Files}}},
                        {"--box", "Its case", TextValue{&box, "DIR", {Offers::Kind::Folders}}},
                        {"--note", "The first note", TextValue{&note, "NOTE"}}},
            .footer = "\nThe toy's own footer.",
            .run = [this] { return static_cast<int>(names.size()); },
        };
    }
};

/// Another that takes nothing but files.
struct OtherToy {
    std::vector<std::string> names;

    Command Words()
    {
        return {.name = "hum",
                .text = "Hum to sound files",
                .usage = {"FILE..."},
                .names = {"FILE", "Sound files", &names},
                .run = [] { return 0; }};
    }
};

} // namespace lumora::test
