#pragma once

#include "base/Messages.h"

#include <string>
#include <vector>

namespace lumora {

/// Keeps what the library shows while it lives, for the command to say in its own way.
class QuietMessages : public MessageBoxPort {
public:
    MessageAnswer Show(const std::string& text, const std::string& caption, MessageButtons buttons,
                       MessageIcon icon) override;

    bool Empty() const { return bodies_.empty(); }
    /// The first message without its title, as one line; empty if there was none.
    std::string First() const { return Empty() ? std::string{} : bodies_.front(); }

private:
    std::vector<std::string> bodies_;
    MessageBoxScope scope_{*this};
};

} // namespace lumora
