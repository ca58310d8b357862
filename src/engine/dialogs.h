#pragma once
// Everything the window asks the user, as one narrow interface: message boxes
// and questions (inherited from Prompter, which the engine uses), the input box
// and the file chooser. The window answers with Qt dialogs; tests answer from a
// queue and record what was asked (ScriptedDialogs). A dialog never reaches
// into the engine; it only returns values.

#include <optional>
#include <string>

#include "prompter.h"

namespace quilmar {

enum class FileMode { Open, Save };

class Dialogs : public Prompter {
public:
    /// An input box. @returns the text typed (UTF-8), or nothing on Cancel.
    virtual std::optional<std::string> inputBox(const std::string &prompt, const std::string &title,
                                                const std::string &initial = {}) = 0;

    /// The open or save file dialog.
    /// @param filter  classic "description|pattern" form, e.g. "Map data(*.map)|*.map"
    /// @param folder  starting folder (UTF-8)
    /// @returns the chosen path (UTF-8), or nothing when cancelled. The save
    ///          dialog does not ask about overwriting: the caller does.
    virtual std::optional<std::string> fileName(FileMode mode, const std::string &filter,
                                                const std::string &folder) = 0;

    /// A message box with OK only.
    void message(const std::string &text, Icon icon) { ask(text, kTitle, Buttons::Ok, icon); }
    /// A question with the window's default title.
    Answer question(const std::string &text, Buttons buttons, Icon icon) { return ask(text, kTitle, buttons, icon); }
};

} // namespace quilmar
