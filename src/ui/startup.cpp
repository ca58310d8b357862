#include "startup.h"

#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace quilmar {

namespace {

std::string withSlash(std::string folder)
{
    if (folder.empty() || folder.back() != '/')
        folder += '/';
    return folder;
}

// Quick Backup goes beside the program; a system-wide installation cannot
// write there, so the user's data folder takes it.
std::string backupFolderFor(const std::string &programFolder)
{
    if (::access(programFolder.c_str(), W_OK) == 0)
        return programFolder;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(data);
    return withSlash(data.toStdString());
}

} // namespace

StartupOptions startupOptionsIn(const std::string &folder, const std::string &programName, bool englishMeasure)
{
    StartupOptions o;
    o.programFolder = withSlash(folder);
    o.settingsPath = o.programFolder + programName + ".ini";
    o.backupFolder = backupFolderFor(o.programFolder);
    o.englishMeasure = englishMeasure;
    o.settings = readSettings(o.settingsPath);
    return o;
}

StartupOptions startupOptionsFor(const std::string &programPath)
{
    const QFileInfo info(QString::fromStdString(programPath));
    const QLocale::MeasurementSystem m = QLocale().measurementSystem();
    // The regional measure is "1" (English units) for the United States system
    // only; the British one counts as metric, as every other.
    const bool english = m == QLocale::ImperialUSSystem;
    return startupOptionsIn(info.absolutePath().toStdString(), info.completeBaseName().toStdString(), english);
}

} // namespace quilmar
