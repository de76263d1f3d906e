#pragma once

#include "base/Messages.h"

#include <optional>
#include <string>

namespace lumora {

/// Keeps the first message that the library shows while it lives, for the command to say in its
/// own way: of a long run there may be one a region.
class QuietMessages : public MessageBoxPort {
public:
    MessageAnswer Show(const std::string& text, const std::string& caption, MessageButtons buttons,
                       MessageIcon icon) override;

    bool Empty() const { return !first_; }
    /// The first message without its title, as one line; empty if there was none.
    std::string First() const { return first_.value_or(std::string{}); }

private:
    std::optional<std::string> first_;
    MessageBoxScope scope_{*this};
};

} // namespace lumora
