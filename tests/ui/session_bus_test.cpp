// The session bus: the window spares only an autolaunch that cannot succeed,
// and never hides a bus that exists or one that dbus-launch could start.

#include "session_bus.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "temp_folder.h"

using namespace quilmar;

TEST(SessionBus, OnlyADoomedAutolaunchIsSpared)
{
    test::TempFolder dir;
    const std::filesystem::path socketDir = dir.path() / "socket", fileDir = dir.path() / "file";
    std::filesystem::create_directories(socketDir);
    std::filesystem::create_directories(fileDir);
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un where{};
    where.sun_family = AF_UNIX;
    const std::string socketPath = (socketDir / "bus").string();
    std::strncpy(where.sun_path, socketPath.c_str(), sizeof where.sun_path - 1);
    ASSERT_EQ(bind(fd, reinterpret_cast<const sockaddr *>(&where), sizeof where), 0);
    std::ofstream(fileDir / "bus") << "not a socket";
    const char *noLauncher = "/no/such/dbus-launch";

    const struct { const char *address, *runtimeDir, *launcher; bool spared; } cases[] = {
        {"unix:path=/run/user/1000/bus", nullptr, noLauncher, false}, // the session's own address
        {nullptr, socketDir.c_str(), noLauncher, false},              // the user bus libdbus finds itself
        {nullptr, nullptr, "/bin/sh", false},                         // a launcher that can start a bus
        {nullptr, fileDir.c_str(), noLauncher, true},                 // "bus" that is no socket
        {"", nullptr, noLauncher, true},                              // set but empty is unset
    };
    for (const auto &c : cases) {
        const auto address = addressWithoutAutolaunch(c.address, c.runtimeDir, c.launcher);
        EXPECT_EQ(address.value_or("-"), c.spared ? "disabled:" : "-")
            << (c.address ? c.address : "-") << " " << (c.runtimeDir ? c.runtimeDir : "-");
    }
    close(fd);
}
