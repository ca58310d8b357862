#pragma once
// What a converter or calculator of the Conversions menu hands back to the
// window (or the command line): the new text of the result line `Acresbox`,
// the text for the clipboard, the new text of the focused entry field, and the
// messages to show. The core never shows anything itself.

#include <optional>
#include <string>
#include <vector>

namespace quilmar {

struct CalcResult {
    std::optional<std::string> acresbox;  ///< new text of `Acresbox`; nullopt = unchanged
    std::optional<std::string> clipboard; ///< clear the clipboard and put this text on it; nullopt = untouched
    std::optional<std::string> field;     ///< new text of the focused entry field (shortcut conversions only)
    std::vector<std::string> messages;    ///< each shown in a message box with the exclamation icon and OK

    /// True when nothing is to change and nothing is to be shown.
    bool isEmpty() const { return !acresbox && !clipboard && !field && messages.empty(); }
};

} // namespace quilmar
