#include "cli_options.h"

#include "cli_commands.h"
#include "map_file.h"

#include <algorithm>
#include <charconv>

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

} // namespace

std::string usageText()
{
    return "usage:\n"
           "  quilmar report [--json] [--scale TEXT] [--units feet|meters|other] [--canvas WxH] FILE.map\n"
           "  quilmar plot [--scale TEXT] [--units feet|meters|other] [--canvas WxH] -o OUT.png|OUT.svg FILE.map\n"
           "  quilmar sample N [-o OUT.map]\n"
           "  quilmar calc [--json] NAME ANSWER\n"
           "  quilmar convert FROM FILE.map [-o OUT.map]\n";
}

int emitMapFile(const std::string &command, const std::string &bytes, const std::string &output, std::string &out,
                std::string &err)
{
    if (output.empty()) {
        out += bytes;
        return 0;
    }
    std::string problem;
    if (!writeMapFile(output, bytes, &problem)) {
        err += "quilmar " + command + ": cannot write " + output + ": " + problem + "\n";
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

std::string parseMapOptions(const std::vector<std::string> &args, const std::vector<std::string> &allowed,
                            MapCommandOptions &options)
{
    auto takes = [&](const std::string &flag) { return std::find(allowed.begin(), allowed.end(), flag) != allowed.end(); };
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string &a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--json" && takes(a)) {
            options.json = true;
        } else if (a == "--scale" && takes(a)) {
            if (!hasValue)
                return "--scale needs a scale text";
            options.overrides.scaleText = args[++i];
        } else if (a == "--units" && takes(a)) {
            if (!hasValue)
                return "--units needs feet, meters or other";
            const std::string &u = args[++i];
            if (u == "feet")
                options.overrides.units = Units::Feet;
            else if (u == "meters")
                options.overrides.units = Units::Meters;
            else if (u == "other")
                options.overrides.units = Units::Other;
            else
                return "--units must be feet, meters or other, not \"" + u + "\"";
        } else if (a == "--canvas" && takes(a)) {
            if (!hasValue)
                return "--canvas needs WIDTHxHEIGHT in twips";
            const std::string &c = args[++i];
            const size_t x = c.find('x');
            if (x == std::string::npos || !parseTwips(std::string_view(c).substr(0, x), options.canvasWidth) ||
                !parseTwips(std::string_view(c).substr(x + 1), options.canvasHeight))
                return "--canvas must be WIDTHxHEIGHT in whole twips, e.g. 7200x4800, not \"" + c + "\"";
        } else if (a == "-o" && takes(a)) {
            if (!hasValue)
                return "-o needs a file name";
            options.output = args[++i];
        } else if (a.size() > 1 && a[0] == '-') {
            return "unknown option " + a;
        } else if (options.file.empty()) {
            options.file = a;
        } else {
            return "only one map file can be given";
        }
    }
    if (options.file.empty())
        return "no map file given";
    return {};
}

} // namespace quilmar
