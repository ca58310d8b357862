#include "session_recovery.h"

#include <cstdio>
#include <iostream>

#include <QDir>
#include <QStandardPaths>

#include "safe_file.h"

namespace quilmar {

SessionRecovery::SessionRecovery(std::string path, std::function<std::string()> snapshot, QObject *parent)
    : QObject(parent), m_path(std::move(path)), m_snapshot(std::move(snapshot))
{
    m_timer.setInterval(kIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &SessionRecovery::saveIfChanged);
}

void SessionRecovery::start()
{
    if (m_path.empty())
        return;
    m_lastWritten = m_snapshot();
    m_timer.start();
}

bool SessionRecovery::saveIfChanged()
{
    if (m_path.empty())
        return false;
    std::string bytes = m_snapshot();
    if (bytes == m_lastWritten)
        return false;
    const FileOutcome written = writeFileSafely(m_path, bytes);
    if (!written.ok) {
        // Not worth a message box every few seconds; the session goes on.
        std::cerr << "quilmar: the recovery file was not written: " << written.error << "\n";
        return false;
    }
    m_lastWritten = std::move(bytes);
    return true;
}

void SessionRecovery::discard()
{
    m_timer.stop();
    if (!m_path.empty())
        std::remove(m_path.c_str());
}

std::string defaultRecoveryPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return {};
    return QDir(folder).filePath(QStringLiteral("recovery.map")).toStdString();
}

} // namespace quilmar
