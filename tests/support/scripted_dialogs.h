#pragma once
// Dialogs for tests: every question is answered from a queue (OK/Yes when the
// queue is empty, so a forgotten answer shows up as a recorded question rather
// than a hang), and every box is recorded with its text, buttons and icon.

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "closure_session.h"
#include "dialogs.h"
#include "recording_surface.h"

namespace quilmar {

/// One step the scripted closure report takes: apply suggestion `suggestion`
/// of lot `lot`, or undo.
struct ClosureStep { enum Kind { Apply, Undo } kind = Apply; std::size_t lot = 0, suggestion = 0; };

struct AskedBox { std::string text; Buttons buttons; Icon icon; };

class ScriptedDialogs : public Dialogs {
public:
    std::deque<Answer> answers;
    std::deque<std::optional<std::string>> inputs;
    std::deque<std::optional<std::string>> files;
    std::vector<AskedBox> asked;
    std::vector<std::string> prompts; ///< input boxes and file dialogs, in order
    std::vector<std::string> titles;  ///< titles of the input boxes, in order
    /// Answers of the print dialog: false cancels; true (also when empty) prints.
    std::deque<bool> printAnswers;
    int copies = 1;                   ///< the copies the print dialog "chooses"
    std::vector<std::string> printJobs; ///< print and preview jobs, "print NAME" / "preview NAME"
    /// Answers of the paste dialog: nothing cancels (also when empty).
    std::deque<std::optional<std::vector<PastedRow>>> pastes;
    std::vector<std::string> pasteTexts; ///< the texts the paste dialog was given
    RecordingSurface printed;         ///< what the last printout painted
    int printedPages = 0;             ///< sheets of the last printout (1 + its "newPage" calls)

    Answer ask(const std::string &text, const std::string &, Buttons buttons, Icon icon) override
    {
        asked.push_back({text, buttons, icon});
        return take(answers, buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel ? Answer::Yes : Answer::Ok);
    }
    std::optional<std::string> inputBox(const std::string &prompt, const std::string &title, const std::string &) override
    {
        prompts.push_back(prompt);
        titles.push_back(title);
        return take(inputs);
    }
    std::optional<std::string> fileName(FileMode, const std::string &filter, const std::string &) override
    {
        prompts.push_back(filter);
        return take(files);
    }
    bool print(const std::string &jobName, const Printout &printout) override
    {
        printJobs.push_back("print " + jobName);
        const bool ok = take(printAnswers, true);
        if (ok)
            paint(printout, copies);
        return ok;
    }
    void preview(const std::string &jobName, const Printout &printout) override
    {
        printJobs.push_back("preview " + jobName);
        paint(printout, 1);
    }
    /// The steps the next closure report takes, in order; it then closes.
    std::vector<ClosureStep> closureSteps;
    int closureReports = 0;            ///< closure reports opened
    std::vector<bool> closureResults;  ///< what each step returned
    void closureReport(ClosureSession &session) override
    {
        ++closureReports;
        for (const ClosureStep &step : closureSteps)
            closureResults.push_back(step.kind == ClosureStep::Apply ? session.apply(step.lot, step.suggestion)
                                                                     : session.undo());
        closureSteps.clear();
    }

    std::optional<std::vector<PastedRow>> pasteDeedText(const std::string &text) override
    {
        pasteTexts.push_back(text);
        return take(pastes);
    }
    /// The texts of the boxes shown so far; clears the record.
    std::vector<std::string> texts()
    {
        std::vector<std::string> out;
        for (const AskedBox &b : asked)
            out.push_back(b.text);
        asked.clear();
        return out;
    }

private:
    // A Letter sheet less a quarter inch all round.
    void paint(const Printout &printout, int n)
    {
        printed = RecordingSurface();
        printedPages = 1;
        PrintSheet sheet{printed, 11520.0f, 15120.0f, n, [this] { printed.newPage(); }};
        printout(sheet);
        for (const std::string &call : printed.calls())
            printedPages += call == "newPage";
    }
    /// The next scripted answer, or @p fallback when the script has run out.
    template <class T> static T take(std::deque<T> &q, T fallback = T{})
    {
        if (q.empty())
            return fallback;
        T v = q.front();
        q.pop_front();
        return v;
    }
};

} // namespace quilmar
