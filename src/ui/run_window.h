#pragma once
// Starting the window from the `quilmar` program.

#include <string>

namespace quilmar {

class Dialogs;
class Plotter;

/// At start-up: when the recovery file @p path of a session that ended without
/// a clean exit exists, asks whether to restore it; Yes restores it into
/// @p window, No removes it. @returns true when restored.
bool offerRecovery(Plotter &window, Dialogs &dialogs, const std::string &path);

/// Runs the Plotter window until it closes, with the map file @p file opened
/// first when it is not empty (unless a crashed session was restored instead),
/// keeping the session's recovery file current. @returns the exit status.
int runWindow(int &argc, char **argv, const std::string &file);

} // namespace quilmar
