#include "cli_options.h"

#include <charconv>

#include "map_file.h"
#include "number_read.h"

namespace quilmar {

namespace {

bool parseTwips(std::string_view text, float &value)
{
    long n = 0;
    auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (ec != std::errc() || ptr != text.data() + text.size() || n < 0 || n > 10000000)
        return false;
    value = float(n);
    return true;
}

// A scale the scale box could hold: a named size or a positive number of units an inch.
bool plausibleScale(const std::string &text)
{
    std::string name;
    for (char c : text)
        if (c != ' ')
            name += char(std::toupper(static_cast<unsigned char>(c)));
    return name == "MINIMUM" || name == "SMALL" || name == "STANDARD" || name == "MAXIMUM"
        || leadingNumber(text) > 0;
}

bool given(const CLI::App &app, const char *name)
{
    const CLI::Option *option = app.get_option_no_throw(name);
    return option && option->count() > 0;
}

} // namespace

void addMapOptions(CLI::App &app, MapArguments &raw, std::initializer_list<std::string_view> flags, Command &command)
{
    raw.app = &app;
    for (std::string_view flag : flags) {
        if (flag == "--json") {
            app.add_flag("--json", raw.json, "Print one JSON object with the legs, the scale and every result");
        } else if (flag == "--scale") {
            app.add_option("--scale", raw.scale, "The scale text, overriding the file's (e.g. Standard, 1200)");
            command.needs["--scale"] = "--scale needs a scale text";
        } else if (flag == "--units") {
            app.add_option("--units", raw.units, "The unit option, overriding the file's: feet, meters or other");
            command.needs["--units"] = "--units needs feet, meters or other";
        } else if (flag == "--canvas") {
            app.add_option("--canvas", raw.canvas, "The map canvas in whole twips, WIDTHxHEIGHT (default 7200x4800)");
            command.needs["--canvas"] = "--canvas needs WIDTHxHEIGHT in twips";
        } else if (flag == "-o") {
            app.add_option("-o", raw.output, "The file to write: OUT.png or OUT.svg, or OUT.pdf with --page or --data");
            command.needs["-o"] = "-o needs a file name";
        }
    }
    app.add_option("file", raw.files, "The map file (*.map)");
}

std::string checkMapOptions(const MapArguments &raw, MapCommandOptions &options)
{
    for (const std::string &extra : raw.app->remaining())
        if (extra.size() > 1 && extra[0] == '-')
            return "unknown option " + extra;
    options.json = raw.json;
    if (given(*raw.app, "--scale")) {
        if (!plausibleScale(raw.scale))
            return "--scale must be Minimum, Small, Standard, Maximum or a number above 0, not \"" + raw.scale + "\"";
        options.overrides.scaleText = raw.scale;
    }
    if (given(*raw.app, "--units")) {
        if (raw.units == "feet")
            options.overrides.units = Units::Feet;
        else if (raw.units == "meters")
            options.overrides.units = Units::Meters;
        else if (raw.units == "other")
            options.overrides.units = Units::Other;
        else
            return "--units must be feet, meters or other, not \"" + raw.units + "\"";
    }
    if (given(*raw.app, "--canvas")) {
        const std::string &c = raw.canvas;
        const size_t x = c.find('x');
        if (x == std::string::npos || !parseTwips(std::string_view(c).substr(0, x), options.canvasWidth) ||
            !parseTwips(std::string_view(c).substr(x + 1), options.canvasHeight))
            return "--canvas must be WIDTHxHEIGHT in whole twips, e.g. 7200x4800, not \"" + c + "\"";
    }
    options.output = raw.output;
    if (raw.files.size() + raw.app->remaining().size() > 1)
        return "only one map file can be given";
    if (raw.files.empty())
        return "no map file given";
    options.file = raw.files.front();
    return {};
}

int emitMapFile(const std::string &command, const std::string &bytes, const std::string &output, CommandIo &io)
{
    if (output.empty() || output == "-") {
        io.out += bytes;
        return 0;
    }
    std::string problem;
    if (!writeMapFile(output, bytes, &problem)) {
        io.err += "quilmar " + command + ": " + problem + "\n";
        return 1;
    }
    return 0;
}

const char *unitsName(Units units)
{
    switch (units) {
    case Units::Feet: return "feet";
    case Units::Meters: return "meters";
    default: return "other";
    }
}

} // namespace quilmar
