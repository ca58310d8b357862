// The one table of subcommands and the one parser that runs them.

#include "cli.h"

#include <cstring>

#include "cli_commands.h"

namespace quilmar {

namespace {

struct Subcommand {
    const char *name;
    const char *synopsis; ///< after "quilmar ", for the usage text
    const char *summary;  ///< one line for --help
    Command (*setup)(CLI::App &app);
};

const Subcommand kSubcommands[] = {
    {"report", "report [--json] [--scale TEXT] [--units feet|meters|other] [--canvas WxH] FILE.map",
     "Open a map file, then Calculate Gap, Perimeter, Acres and Hectares", setupReport},
    {"plot",
     "plot [--scale TEXT] [--units feet|meters|other] [--canvas WxH] -o OUT.png|OUT.svg FILE.map\n"
     "  quilmar plot --page [--options LIST] [--paper letter|a4] [--scale TEXT] [--units U] -o OUT.pdf FILE.map\n"
     "  quilmar plot --data [--paper letter|a4] -o OUT.pdf FILE.map",
     "Draw the map canvas as the window shows it after opening a file, or print the map page or the data to a PDF",
     setupPlot},
    {"closure", "closure [--json] FILE.map",
     "Closure report: misclosure, precision, compass and transit adjustments, the likely bad call", setupClosure},
    {"sample", "sample N [-o OUT.map]", "Write demo sample N (1 to 6) as a map file", setupSample},
    {"calc", "calc [--json] NAME ANSWER", "Run a converter or calculator of the Conversions menu", setupCalc},
    {"convert", "convert FROM FILE.map [-o OUT.map]", "Convert a whole map file to feet (or metres)", setupConvert},
    {"import", "import [--units feet|meters] [--json] DEED.txt|- [-o OUT.map]",
     "Read a deed's legal description into course rows and write the map file", setupImport},
};

// The option name a CLI11 error message starts with ("--scale: 1 required ...").
std::string optionOf(const CLI::Error &e)
{
    const char *colon = std::strchr(e.what(), ':');
    return colon ? std::string(e.what(), colon) : std::string();
}

int runSubcommand(const Subcommand &sub, const Args &args, CommandIo &io)
{
    CLI::App app(sub.summary, std::string("quilmar ") + sub.name);
    // Unknown options and surplus arguments are the subcommand's to word.
    app.allow_extras();
    Command command = sub.setup(app);
    try {
        std::vector<std::string> reversed(args.rbegin(), args.rend());
        app.parse(reversed);
    } catch (const CLI::CallForHelp &) {
        io.out += app.help();
        return 0;
    } catch (const CLI::ArgumentMismatch &e) {
        const auto need = command.needs.find(optionOf(e));
        return command.usageError(need != command.needs.end() ? need->second : e.what(), io);
    } catch (const CLI::ParseError &e) {
        return command.usageError(e.what(), io);
    }
    return command.run(io);
}

} // namespace

bool isSubcommandName(const std::string &word)
{
    for (const Subcommand &sub : kSubcommands)
        if (word == sub.name)
            return true;
    return false;
}

std::string usageText()
{
    std::string text = "usage:\n  quilmar [FILE.map]    (the window)\n";
    for (const Subcommand &sub : kSubcommands)
        text += std::string("  quilmar ") + sub.synopsis + "\n";
    return text;
}

int runCommandLine(const Args &args, CommandIo &io)
{
    if (args.empty() || args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
        io.out += usageText();
        return 0;
    }
    for (const Subcommand &sub : kSubcommands)
        if (args[0] == sub.name)
            return runSubcommand(sub, Args(args.begin() + 1, args.end()), io);
    io.err += "quilmar: unknown command \"" + args[0] + "\"\n" + usageText();
    return 1;
}

} // namespace quilmar
