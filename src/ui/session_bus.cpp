#include "session_bus.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace quilmar {

std::optional<std::string> addressWithoutAutolaunch(const char *address, const char *runtimeDir,
                                                    const char *launcher)
{
    if (address && *address)
        return std::nullopt;
    if (runtimeDir && *runtimeDir) {
        struct stat info {};
        const std::string socket = std::string(runtimeDir) + "/bus";
        if (stat(socket.c_str(), &info) == 0 && S_ISSOCK(info.st_mode))
            return std::nullopt;
    }
    if (access(launcher, X_OK) == 0)
        return std::nullopt;
    // An address of no known kind: connecting fails at once, as the doomed
    // autolaunch would have failed, without the fork.
    return std::string("disabled:");
}

void avoidBusAutolaunch()
{
    if (const auto address =
            addressWithoutAutolaunch(std::getenv("DBUS_SESSION_BUS_ADDRESS"), std::getenv("XDG_RUNTIME_DIR")))
        setenv("DBUS_SESSION_BUS_ADDRESS", address->c_str(), 1);
}

} // namespace quilmar
