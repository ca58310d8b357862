#pragma once
// What the window needs to know before it is built: where the program lives,
// which settings file it reads, where Quick Backup writes, and the user's
// measurement system.

#include <string>

#include "settings_file.h"

namespace quilmar {

struct StartupOptions {
    std::string programFolder; ///< ends with "/"; the file dialogs start here
    std::string settingsPath;  ///< program folder + program name + ".ini"
    /// Folder of "backup.map": the program folder, or the user's data folder
    /// when the program folder is not writable. Ends with "/".
    std::string backupFolder;
    bool englishMeasure = false; ///< the locale measures in United States units
    SettingsValues settings;
};

/// The options for the running program at @p programPath (UTF-8), reading its
/// settings file and the locale's measurement system.
StartupOptions startupOptionsFor(const std::string &programPath);

/// Options for a program folder @p folder without reading the locale (tests).
StartupOptions startupOptionsIn(const std::string &folder, const std::string &programName, bool englishMeasure);

} // namespace quilmar
