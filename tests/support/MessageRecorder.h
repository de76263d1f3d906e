#pragma once

#include "base/Messages.h"

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace lumora::test {

/// One box as a user would have seen it.
struct ShownMessage {
    std::string text;
    std::string caption = {};
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;

    bool operator==(const ShownMessage&) const = default;
};

inline void PrintTo(const ShownMessage& message, std::ostream* out)
{
    *out << '"' << message.text << "\" caption \"" << message.caption << "\" buttons "
         << static_cast<int>(message.buttons) << " icon " << static_cast<int>(message.icon);
}

using Shown = std::vector<ShownMessage>;

/// Takes all messages while it lives, keeps them in order and answers each as told.
class MessageRecorder : public MessageBoxPort {
public:
    explicit MessageRecorder(MessageAnswer answer = MessageAnswer::Ok) : answer_(answer) {}

    MessageAnswer Show(const std::string& text, const std::string& caption, MessageButtons buttons,
                       MessageIcon icon) override
    {
        shown.push_back({text, caption, buttons, icon});
        return answer_;
    }

    /// What has come since the last call.
    Shown Take() { return std::exchange(shown, {}); }

    Shown shown;

private:
    MessageAnswer answer_;
    MessageBoxScope scope_{*this};
};

/// The file layer's box, written out here so that a changed rule or joint is noticed.
inline ShownMessage FileError(const std::string& title, const std::string& text)
{
    return {title + "\r\n------------------------------------\r\n" + text};
}

} // namespace lumora::test
