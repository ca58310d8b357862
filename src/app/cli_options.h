#pragma once
// The options shared by the map subcommands (report, plot): declared once on
// the parser, checked once into a plain struct.

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli_commands.h"
#include "engine.h"

namespace quilmar {

struct MapCommandOptions {
    bool json = false;
    OpenOverrides overrides;
    float canvasWidth = 7200.0f;  ///< twips
    float canvasHeight = 4800.0f; ///< twips
    std::string output;           ///< -o
    std::string file;             ///< the map file
};

/// The map options as typed, before checkMapOptions reads them.
struct MapArguments {
    bool json = false;
    std::string scale, units, canvas, output;
    std::vector<std::string> files;
    const CLI::App *app = nullptr;
};

/// Declares the flags of @p flags among "--json", "--scale", "--units",
/// "--canvas", "-o" (and the map file) on @p app, typed into @p raw; records in
/// @p command what each says when its value is missing.
void addMapOptions(CLI::App &app, MapArguments &raw, std::initializer_list<std::string_view> flags, Command &command);

/// Checks the typed options and reads them into @p options.
/// @returns an error text ("unknown option --x", "no map file given"...), or ""
std::string checkMapOptions(const MapArguments &raw, MapCommandOptions &options);

/// Sends map file @p bytes to @p output, or to standard output when no -o was
/// given. A write failure is told on standard error under the subcommand's name.
/// @returns the exit status: 0, or 1 when the file could not be written
int emitMapFile(const std::string &command, const std::string &bytes, const std::string &output, CommandIo &io);

/// "feet", "meters" or "other" for a unit option.
const char *unitsName(Units units);

} // namespace quilmar
