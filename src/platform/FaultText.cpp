#include "platform/FaultText.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace lumora {

std::string NameText(const std::string& name)
{
    std::string text = name;
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return std::iscntrl(static_cast<unsigned char>(c)) != 0; }, '?');
    return text;
}

std::string SystemText(int error_code)
{
    std::string text = std::strerror(error_code);
    text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    return text;
}

} // namespace lumora
