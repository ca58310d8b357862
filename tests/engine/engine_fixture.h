#pragma once
// An engine in feet on the default 7200 x 4800 canvas, drawn from rows written
// as the user types them, with every message recorded; and the rows the
// engine's test files write most. Shared by the engine's test files.

#include <initializer_list>
#include <vector>

#include "engine.h"
#include "scripted_dialogs.h"
#include "table_builder.h"

namespace quilmar::test {

/// A row of nothing but the tag @p tag ("B", "C", "N").
inline Row tagRow(const char *tag) { return {"", "", "", "", "", "", "", "", "", tag}; }
/// A straight course due @p way ("N", "E", "S", "W") over @p distance.
inline Row straight(const char *way, const char *distance) { return {way, "", "", "", "", distance, "", "", "", ""}; }

/// The table drawn once at @p scale, with @p description as the heading; the
/// messages are the texts of `prompter.asked`.
struct DrawnEngine {
    ScriptedDialogs prompter;
    Engine engine{prompter};
    DrawnEngine(std::initializer_list<Row> rows, const char *scale = "Standard", const char *description = "")
        : DrawnEngine(std::vector<Row>(rows), scale, description) {}
    explicit DrawnEngine(const std::vector<Row> &rows, const char *scale = "Standard", const char *description = "")
    {
        engine.metrix_Click(Units::Feet);
        engine.setScaleText(scale);
        engine.setDescription(description);
        engine.editTable() = makeTable(rows);
        engine.redraw();
    }
};

} // namespace quilmar::test
