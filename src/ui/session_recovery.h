#pragma once
// Nothing typed is lost to a crash or a kill: while the window runs, the
// session (table, heading, unit and scale, as the map file holds them) is
// written to a recovery file a few seconds after it changes, through the one
// safe writer. A clean exit removes the file; a start that finds it asks
// whether to restore it.

#include <functional>
#include <string>

#include <QObject>
#include <QTimer>

namespace quilmar {

class SessionRecovery : public QObject {
    Q_OBJECT
public:
    /// How often the session is compared with what was last written.
    static constexpr int kIntervalMs = 2000;

    /// @param path      the recovery file (UTF-8); empty turns recovery off
    /// @param snapshot  the session as map file bytes ("Save As..." bytes)
    SessionRecovery(std::string path, std::function<std::string()> snapshot, QObject *parent = nullptr);

    /// Takes the session as it is now as already safe and starts watching.
    void start();
    /// Writes the session when it differs from what was last written or taken
    /// at start. @returns true when the file was written.
    bool saveIfChanged();
    /// The clean exit: stops watching and removes the recovery file.
    void discard();

    const std::string &path() const { return m_path; }

private:
    std::string m_path;
    std::function<std::string()> m_snapshot;
    std::string m_lastWritten;
    QTimer m_timer;
};

/// The recovery file of this user: "recovery.map" in the application's data
/// folder (created if missing). Empty when there is no such folder.
std::string defaultRecoveryPath();

} // namespace quilmar
