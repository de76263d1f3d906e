#include "platform/FaultText.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
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

bool IsShortage(int error_code)
{
    return error_code == EMFILE || error_code == ENFILE || error_code == EAGAIN ||
           error_code == ENOMEM;
}

std::string Advice(int error_code)
{
    switch (error_code) {
    case EMFILE:
        return "; work on fewer files side by side, or raise the limit on open files (ulimit -n)";
    case ENFILE:
        return "; all programs together have too many files open: end some and run it again";
    case EAGAIN:
        return "; too many processes are running: end some, or raise the limit on them (ulimit "
               "-u), and run it again";
    case ENOMEM:
        return "; end other programs and run it again";
    case ENOSPC:
    case EDQUOT:
        return "; make room and run it again";
    case EIO:
        return "; check the disk and run it again";
    default:
        return {};
    }
}

} // namespace lumora
