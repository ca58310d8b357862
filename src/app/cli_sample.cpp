// quilmar sample: a demo sample written as "Save As..." would write it right
// after loading it with Feet and the "Standard" scale.

#include <charconv>

#include "cli_commands.h"
#include "cli_options.h"
#include "engine.h"
#include "map_file.h"
#include "recording_prompter.h"

namespace quilmar {

int runSampleCommand(const Args &args, std::string &out, std::string &err)
{
    int n = 0;
    std::string output;
    bool haveNumber = false;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "-o" && i + 1 < args.size()) {
            output = args[++i];
        } else if (!haveNumber) {
            const std::string &a = args[i];
            auto [ptr, ec] = std::from_chars(a.data(), a.data() + a.size(), n);
            if (ec != std::errc() || ptr != a.data() + a.size() || n < 1 || n > 6) {
                err += "quilmar sample: the sample number must be 1 to 6, not \"" + a + "\"\n";
                return 1;
            }
            haveNumber = true;
        } else {
            err += "quilmar sample: unexpected argument \"" + args[i] + "\"\n" + usageText();
            return 1;
        }
    }
    if (!haveNumber) {
        err += "quilmar sample: which sample? (1 to 6)\n" + usageText();
        return 1;
    }
    RecordingPrompter prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setScaleText("Standard");
    engine.loadDemoSample(n);
    return emitMapFile("sample", engine.mapFileBytes(), output, out, err);
}

} // namespace quilmar
