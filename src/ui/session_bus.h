#pragma once
// The desktop's message bus (D-Bus), which the window uses to reach screen
// readers. Where the session has no bus, libdbus tries to start one on the
// first connection ("autolaunch"): it forks the whole program to run
// dbus-launch. Where dbus-launch is not installed that attempt can only fail,
// and it is the most expensive step of the window's start-up: the fork copies
// the program's page tables, and every page the program writes afterwards
// faults once more. The window skips an attempt that cannot succeed; where
// dbus-launch is installed, or the session has its bus, nothing changes.

#include <optional>
#include <string>

namespace quilmar {

/// Where libdbus starts a bus from.
inline constexpr const char *kBusLauncher = "/usr/bin/dbus-launch";

/// The bus address that spares a doomed autolaunch, or nothing where the
/// session has a bus or one can be started: @p address is
/// DBUS_SESSION_BUS_ADDRESS and @p runtimeDir XDG_RUNTIME_DIR (null when
/// unset), whose socket "bus" is the session's bus where there is one.
std::optional<std::string> addressWithoutAutolaunch(const char *address, const char *runtimeDir,
                                                    const char *launcher = kBusLauncher);

/// Applies addressWithoutAutolaunch to this process's environment. Call first
/// thing, before any thread starts and before the QApplication.
void avoidBusAutolaunch();

} // namespace quilmar
