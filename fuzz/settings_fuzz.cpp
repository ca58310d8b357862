// Fuzz target: any bytes as the settings file, read as start-up reads it (the
// file reader hands its bytes to the same parsing), and the scale list taken
// apart into the scale box's items.

#include <cstddef>
#include <cstdint>
#include <string>

#include "settings_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    const quilmar::SettingsValues values = quilmar::readSettingsText(bytes);
    quilmar::scaleItems(values.scales);
    quilmar::scaleItems(bytes);
    return 0;
}
