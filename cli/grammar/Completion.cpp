#include "cli/grammar/Completion.h"

#include <algorithm>

namespace lumora {

namespace {

using Words = std::vector<std::string>;

Offers WordOffers(Words words)
{
    return {Offers::Kind::Words, std::move(words)};
}

Offers OffersForValue(const Option& option)
{
    const auto* text = std::get_if<TextValue>(&option.value);
    return text ? text->offers : Offers{};
}

Offers OffersIn(const Command& command, const std::string& before, const std::string& word)
{
    for (const Option& option : command.options)
        if (before == option.name && !std::holds_alternative<FlagValue>(option.value))
            return OffersForValue(option);
    if (word.starts_with('-')) {
        Words options;
        for (const Option& option : command.options)
            options.push_back(option.name);
        options.emplace_back(kHelpOption);
        return WordOffers(std::move(options));
    }
    if (before == command.name && !command.names.first.empty())
        return WordOffers(command.names.first);
    return {Offers::Kind::Files};
}

} // namespace

Offers OffersFor(const std::vector<Command>& commands, const std::vector<std::string>& words)
{
    if (words.empty()) return {};
    const auto last = words.end() - 1;
    for (auto word = words.begin(); word != last; ++word) {
        if (*word == kHelpWord) return WordOffers(NamesOf(commands));
        const auto command = std::find_if(commands.begin(), commands.end(),
                                          [&](const Command& each) { return each.name == *word; });
        if (command != commands.end()) return OffersIn(*command, *(last - 1), *last);
    }
    Words all = NamesOf(commands);
    all.insert(all.end(), {kHelpWord, kHelpOption, kVersionOption});
    return WordOffers(std::move(all));
}

std::string OffersText(const Offers& offers)
{
    std::string text;
    switch (offers.kind) {
    case Offers::Kind::Nothing:
        text = "nothing\n";
        break;
    case Offers::Kind::Words:
        text = "words\n";
        break;
    case Offers::Kind::Files:
        text = "files\n";
        break;
    case Offers::Kind::Folders:
        text = "folders\n";
        break;
    }
    for (const std::string& word : offers.words)
        text += word + "\n";
    return text;
}

} // namespace lumora
