#pragma once
// Everything the window asks the user, as one narrow interface: message boxes
// and questions (inherited from Prompter, which the engine uses), the input box
// and the file chooser. The window answers with Qt dialogs; tests answer from a
// queue and record what was asked (ScriptedDialogs). A dialog never reaches
// into the engine; it only returns values.

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "prompter.h"
#include "surface.h"

namespace quilmar {

class ClosureSession;

enum class FileMode { Open, Save };

/// The sheet a printout paints on: its surface in twips from the top-left of
/// the printable area, the printable size, the copies the user asked for, and
/// how to start the next sheet.
/// One course row as the grid holds it: the ten cells' texts, column 1 (N/S
/// code) at index 0 to column 10 (tag) at index 9.
using PastedRow = std::array<std::string, 10>;

struct PrintSheet {
    Surface &surface;
    float width = 0.0f;  ///< printable width, twips
    float height = 0.0f; ///< printable height, twips
    int copies = 1;      ///< 1 or more; the printout repeats itself, the printer prints each sheet once
    std::function<void()> newPage;
};

/// Paints a whole printout (every copy, every page) on a sheet.
using Printout = std::function<void(PrintSheet &sheet)>;

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

    /// The print dialog (no selection, no page numbers). On OK, paints
    /// @p printout on the printer or PDF file chosen there, with its copies.
    /// @returns false when the dialog was cancelled: nothing was printed.
    virtual bool print(const std::string &jobName, const Printout &printout) = 0;
    /// Qt's print preview of @p printout; nothing is printed unless the user
    /// prints from the preview.
    virtual void preview(const std::string &jobName, const Printout &printout) = 0;

    /// The closure report window over @p session: each lot's misclosure,
    /// precision, adjustments and suggestions, with Apply and Undo, which go
    /// through the session. Returns when the user closes it. The caller shows
    /// ClosureSession::kNoLots instead when the session is empty. Does nothing
    /// by default, so that dialogs without a window (the command line, the
    /// benchmarks, the fuzz targets) need nothing for it.
    virtual void closureReport(ClosureSession &session) { (void)session; }

    /// The deed-text paste dialog: @p text (UTF-8, normally the clipboard's
    /// text) is shown for editing beside the course rows read from it.
    /// @returns the rows to insert, in order, or nothing when cancelled.
    /// This default cancels without showing anything, so stand-ins without a
    /// window (command line, benchmarks, fuzzing) paste nothing.
    virtual std::optional<std::vector<PastedRow>> pasteDeedText(const std::string &text)
    {
        (void)text;
        return std::nullopt;
    }

    /// A message box with OK only.
    void message(const std::string &text, Icon icon) { ask(text, kTitle, Buttons::Ok, icon); }
    /// A question with the window's default title.
    Answer question(const std::string &text, Buttons buttons, Icon icon) { return ask(text, kTitle, buttons, icon); }
};

} // namespace quilmar
