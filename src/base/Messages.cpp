#include "base/Messages.h"

#include <iostream>
#include <utility>

namespace lumora {

namespace {

class StandardErrorBox : public MessageBoxPort {
public:
    MessageAnswer Show(const std::string& text, const std::string& caption, MessageButtons,
                       MessageIcon) override
    {
        if (!caption.empty()) std::cerr << caption << ": ";
        std::cerr << text << '\n';
        return MessageAnswer::Ok;
    }
};

MessageBoxPort*& Installed()
{
    static StandardErrorBox standard_error;
    static MessageBoxPort* installed = &standard_error;
    return installed;
}

std::string Joined(const std::string& title, int rule, const std::string& text)
{
    return title + "\r\n" + std::string(static_cast<std::size_t>(rule), '-') + "\r\n" + text;
}

} // namespace

MessageBoxPort& MessageBox()
{
    return *Installed();
}

MessageBoxScope::MessageBoxScope(MessageBoxPort& port) : before_(std::exchange(Installed(), &port))
{
}

MessageBoxScope::~MessageBoxScope()
{
    Installed() = before_;
}

void ShowPlainMessage(const std::string& text)
{
    MessageBox().Show(text, "", MessageButtons::Ok, MessageIcon::None);
}

MessageAnswer ShowTitledMessage(const std::string& title, const std::string& body, int rule)
{
    return MessageBox().Show(Joined(title, rule, body), "", MessageButtons::OkCancel,
                             MessageIcon::Exclamation);
}

void ShowFileError(const std::string& title, const std::string& text)
{
    MessageBox().Show(Joined(title, kFileErrorRule, text), "", MessageButtons::Ok,
                      MessageIcon::None);
}

} // namespace lumora
