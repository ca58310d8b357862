#pragma once
// Starting the window from the `quilmar` program.

#include <string>

namespace quilmar {

/// Runs the Plotter window until it closes, with the map file @p file opened
/// first when it is not empty. @returns the exit status.
int runWindow(int &argc, char **argv, const std::string &file);

} // namespace quilmar
