// quilmar sample: a demo sample written as "Save As..." would write it right
// after loading it with Feet and the "Standard" scale.

#include <charconv>

#include "cli_commands.h"
#include "cli_options.h"
#include "engine.h"
#include "recording_prompter.h"

namespace quilmar {

namespace {

struct SampleArguments {
    std::vector<std::string> numbers;
    std::string output;
    const CLI::App *app = nullptr;
};

int usageError(const std::string &problem, CommandIo &io)
{
    io.err += "quilmar sample: " + problem + "\n" + usageText();
    return 2;
}

int sample(const SampleArguments &raw, CommandIo &io)
{
    std::vector<std::string> items = raw.numbers;
    for (const std::string &extra : raw.app->remaining())
        items.push_back(extra);
    if (raw.output.empty() && raw.app->count("-o") > 0)
        items.push_back("-o");
    if (items.empty())
        return usageError("which sample? (1 to 6)", io);
    const std::string &a = items.front();
    int n = 0;
    auto [ptr, ec] = std::from_chars(a.data(), a.data() + a.size(), n);
    if (ec != std::errc() || ptr != a.data() + a.size() || n < 1 || n > 6) {
        io.err += "quilmar sample: the sample number must be 1 to 6, not \"" + a + "\"\n";
        return 1;
    }
    if (items.size() > 1)
        return usageError("unexpected argument \"" + items[1] + "\"", io);

    RecordingPrompter prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setScaleText("Standard");
    engine.loadDemoSample(n);
    return emitMapFile("sample", engine.mapFileBytes(), raw.output, io);
}

} // namespace

Command setupSample(CLI::App &app)
{
    auto raw = std::make_shared<SampleArguments>();
    raw->app = &app;
    app.add_option("N", raw->numbers, "The sample, 1 to 6");
    // "-o" without a file name (at the end) is read as one more argument, as it always was.
    app.add_option("-o", raw->output, "The map file to write (standard output without it)")->expected(0, 1);
    Command command;
    command.usageError = usageError;
    command.run = [raw](CommandIo &io) { return sample(*raw, io); };
    return command;
}

} // namespace quilmar
