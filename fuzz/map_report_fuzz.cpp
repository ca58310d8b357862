// Fuzz target: any bytes as a map file, then the whole report sequence (open,
// Calculate Gap, Perimeter, Acres, Hectares) as `quilmar report` runs it. Every
// message box is answered OK; no input may crash, hang or leak.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine.h"

namespace {

class SilentPrompter : public quilmar::Prompter {
public:
    quilmar::Answer ask(const std::string &, const std::string &, quilmar::Buttons, quilmar::Icon) override
    {
        return quilmar::Answer::Ok;
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // The bytes go through the same reading as a file the engine opens by
    // path; a fresh engine for each input, as for each `quilmar report`.
    SilentPrompter prompter;
    quilmar::Engine engine(prompter);
    if (!engine.openMapBytes(std::string_view(reinterpret_cast<const char *>(data), size)).ok())
        return 0;
    engine.mnuGap_Click();
    engine.mnuPeri_Click();
    engine.mnuAcres_Click();
    engine.mnuHectares_Click();
    return 0;
}
