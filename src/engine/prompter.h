#pragma once
// How the engine shows a message box or asks a question. The window answers
// with real message boxes; the command line prints the text and answers by
// script; tests record what was asked.

#include <string>

namespace quilmar {

enum class Icon { None, Exclamation, Question, Stop, Information };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

class Prompter {
public:
    virtual ~Prompter() = default;
    /// Shows @p text (UTF-8) and returns the button chosen; a closed box is Cancel
    /// (or No where there is no Cancel).
    virtual Answer ask(const std::string &text, const std::string &title, Buttons buttons, Icon icon) = 0;

    /// A message box with the exclamation icon and OK.
    void exclaim(const std::string &text) { ask(text, kTitle, Buttons::Ok, Icon::Exclamation); }

    static constexpr const char *kTitle = "Quilmar Deed Plotter";
};

} // namespace quilmar
