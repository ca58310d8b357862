// quilmar convert FROM FILE.map [-o OUT.map]: the Global Conversion of a whole
// map file. Opens FILE.map as "Open File..." does, runs the conversion FROM
// (meters, chains or links, rods or perches, furlongs, varas, yards: to feet;
// feet: to metres) as if the question were answered Yes, selects the unit it
// selects, and writes the map file that "Save As..." would write: to OUT.map,
// or to standard output. As with the window, opening keeps the line break
// before the tail line in the description, so the description gains one
// trailing line break.
// Status 0 on success; 1 with a reason for bad arguments or a file that cannot
// be read or written; 2 with the fault's text (e.g. "Type mismatch") when a
// cell is not a number, and then nothing is written.

#include <optional>
#include <string_view>

#include "cli_commands.h"
#include "cli_options.h"
#include "engine.h"
#include "global_conversion.h"
#include "recording_prompter.h"
#include "vb_math.h"

namespace quilmar {

namespace {

std::optional<GlobalConversion> conversionByName(std::string_view name)
{
    if (name == "meters")
        return GlobalConversion::toFeet(0);
    if (name == "chains" || name == "links")
        return GlobalConversion::toFeet(1);
    if (name == "rods" || name == "perches")
        return GlobalConversion::toFeet(2);
    if (name == "furlongs")
        return GlobalConversion::toFeet(3);
    if (name == "varas")
        return GlobalConversion::toFeet(4);
    if (name == "yards")
        return GlobalConversion::toFeet(5);
    if (name == "feet")
        return GlobalConversion::feetToMeters();
    return std::nullopt;
}

const char *const kConvertUsage =
    "usage: quilmar convert FROM FILE.map [-o OUT.map]\n"
    "  FROM: meters, chains (links), rods (perches), furlongs, varas, yards: to feet; feet: to meters\n";

struct ConvertArguments {
    std::vector<std::string> words; ///< FROM FILE.map
    std::string output;
    const CLI::App *app = nullptr;
};

int convertUsage(const std::string &, CommandIo &io)
{
    io.err += kConvertUsage;
    return 1;
}

int convert(const ConvertArguments &raw, CommandIo &io)
{
    if (raw.words.size() != 2 || !raw.app->remaining().empty())
        return convertUsage({}, io);
    const std::optional<GlobalConversion> conversion = conversionByName(raw.words[0]);
    if (!conversion) {
        io.err += "quilmar convert: unknown unit \"" + raw.words[0] + "\"\n" + kConvertUsage;
        return 1;
    }
    const std::string &input = raw.words[1];

    RecordingPrompter prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setScaleText("Standard");
    if (const OpenOutcome opened = engine.openMapFile(input); !opened.ok()) {
        io.err += "quilmar convert: " + opened.reason + "\n";
        return 1;
    }
    // Messages of the drawing that follows an open do not concern the conversion.
    prompter.take();
    try {
        engine.metrix_Click(conversion->apply(engine.editTable()));
    } catch (const VbError &e) {
        io.err += "quilmar convert: " + e.description() + "\n";
        return 2;
    }
    return emitMapFile("convert", engine.mapFileBytes(), raw.output, io);
}

} // namespace

Command setupConvert(CLI::App &app)
{
    auto raw = std::make_shared<ConvertArguments>();
    raw->app = &app;
    app.add_option("words", raw->words, "FROM (meters, chains, links, rods, perches, furlongs, varas, yards; feet "
                                        "for feet to meters) and FILE.map");
    app.add_option("-o", raw->output, "The map file to write (standard output without it)");
    Command command;
    command.needs["-o"] = "-o";
    command.usageError = convertUsage;
    command.run = [raw](CommandIo &io) { return convert(*raw, io); };
    return command;
}

} // namespace quilmar
