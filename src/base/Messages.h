#pragma once

#include <string>

namespace lumora {

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageAnswer { Ok, Cancel, Yes, No };

/// How low routines talk to the user. The program installs one for its kind of screen; until
/// then messages go to standard error and are answered with OK.
class MessageBoxPort {
public:
    virtual ~MessageBoxPort() = default;

    /// Shows the box and waits for the answer. An empty caption asks for the program's own name.
    virtual MessageAnswer Show(const std::string& text, const std::string& caption,
                               MessageButtons buttons, MessageIcon icon) = 0;
};

/// The port in use.
MessageBoxPort& MessageBox();

/// Puts a port in use for as long as it lives, then the one before it. The port must outlive it.
class MessageBoxScope {
public:
    explicit MessageBoxScope(MessageBoxPort& port);
    ~MessageBoxScope();
    MessageBoxScope(const MessageBoxScope&) = delete;
    MessageBoxScope& operator=(const MessageBoxScope&) = delete;

private:
    MessageBoxPort* before_;
};

/// The three joined forms have rules of hyphens of different lengths.
inline constexpr int kFileErrorRule = 36;
inline constexpr int kTitledRule = 27;
inline constexpr int kShortTitledRule = 22;

/// Numeric core: one OK button, no icon, the default caption.
void ShowPlainMessage(const std::string& text);

/// Numeric core: title, CR LF, `rule` hyphens, CR LF, body; OK and Cancel, exclamation icon.
MessageAnswer ShowTitledMessage(const std::string& title, const std::string& body,
                                int rule = kTitledRule);

/// File layer: title, CR LF, 36 hyphens, CR LF, text; one OK button, no icon.
void ShowFileError(const std::string& title, const std::string& text);

} // namespace lumora
