#pragma once
// An engine in feet on the default 7200 x 4800 canvas, drawn from rows written
// as the user types them, with every message recorded; shared by the engine's
// test files.

#include <initializer_list>
#include <string>
#include <vector>

#include "engine.h"
#include "table_builder.h"

namespace quilmar::test {

/// Records each message and answers Ok.
class Recorder : public Prompter {
public:
    Answer ask(const std::string &text, const std::string &, Buttons, Icon) override
    {
        messages.push_back(text);
        return Answer::Ok;
    }
    std::vector<std::string> messages;
};

/// The table drawn once at @p scale, with @p description as the heading.
struct DrawnEngine {
    Recorder prompter;
    Engine engine{prompter};
    DrawnEngine(std::initializer_list<Row> rows, const char *scale = "Standard", const char *description = "")
        : DrawnEngine(std::vector<Row>(rows), scale, description)
    {
    }
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
