// Fuzz target: any bytes as a map file, then the whole report sequence (open,
// Calculate Gap, Perimeter, Acres, Hectares) as `quilmar report` runs it. Every
// message box is answered OK; no input may crash, hang or leak.

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <unistd.h>

#include "engine.h"

namespace {

class SilentPrompter : public quilmar::Prompter {
public:
    quilmar::Answer ask(const std::string &, const std::string &, quilmar::Buttons, quilmar::Icon) override
    {
        return quilmar::Answer::Ok;
    }
};

// One file per fuzzing process, rewritten for every input: the engine opens
// maps by path, exactly as the window and the command line do.
const std::string &scratchPath()
{
    static const std::string path = "/tmp/quilmar_fuzz_" + std::to_string(getpid()) + ".map";
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    {
        std::ofstream file(scratchPath(), std::ios::binary | std::ios::trunc);
        file.write(reinterpret_cast<const char *>(data), static_cast<std::streamsize>(size));
    }
    SilentPrompter prompter;
    quilmar::Engine engine(prompter);
    if (!engine.openMapFile(scratchPath()).ok())
        return 0;
    engine.mnuGap_Click();
    engine.mnuPeri_Click();
    engine.mnuAcres_Click();
    engine.mnuHectares_Click();
    return 0;
}
