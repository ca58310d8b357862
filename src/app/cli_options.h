#pragma once
// The options shared by the map subcommands (report, plot), parsed from the
// arguments into a plain struct.

#include <optional>
#include <string>
#include <vector>

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

/// Parses @p args (after the subcommand). @p allowed lists the flags this
/// subcommand takes among "--json", "--scale", "--units", "--canvas", "-o".
/// @returns an error text, or "" when the arguments are good
std::string parseMapOptions(const std::vector<std::string> &args, const std::vector<std::string> &allowed,
                            MapCommandOptions &options);

/// Sends map file @p bytes to @p output, or to standard output (@p out) when no
/// -o was given. A write failure is told on @p err under the subcommand's name.
/// @returns the exit status: 0, or 1 when the file could not be written
int emitMapFile(const std::string &command, const std::string &bytes, const std::string &output, std::string &out,
                std::string &err);

/// "feet", "meters" or "other" for a unit option.
const char *unitsName(Units units);

} // namespace quilmar
