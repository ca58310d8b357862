// Fuzz target: any bytes as the settings file, read as start-up reads it, and
// the scale list taken apart into the scale box's items.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <unistd.h>

#include "settings_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::string path = "/tmp/quilmar_fuzz_" + std::to_string(getpid()) + ".ini";
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    {
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file << bytes;
    }
    const quilmar::SettingsValues values = quilmar::readSettings(path);
    quilmar::scaleItems(values.scales);
    quilmar::scaleItems(bytes);
    return 0;
}
