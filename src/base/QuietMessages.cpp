#include "base/QuietMessages.h"

#include "base/Text.h"

namespace lumora {

MessageAnswer QuietMessages::Show(const std::string& text, const std::string&, MessageButtons,
                                  MessageIcon)
{
    const std::size_t body = text.rfind('\n') + 1; // title, rule and body are lines of their own
    if (!first_) first_ = TrimBlanks(std::string_view(text).substr(body));
    return MessageAnswer::Ok;
}

} // namespace lumora
