// The printout flags of quilmar plot.

#include <gtest/gtest.h>

#include "cli.h"
#include "cli_print.h"

using namespace quilmar;

TEST(CliPrint, OptionListsTurnOnWhatTheyName)
{
    // flags: points, list, description, frame, balance gap; none: refused
    const struct { const char *list; std::vector<int> flags; } cases[] = {
        {"", {0, 0, 0, 0, 0}}, {"reference-points,reference-list,description,frame,balance-gap", {1, 1, 1, 1, 1}},
        {"balance-gap", {0, 0, 0, 0, 1}}, {"description,,frame", {0, 0, 1, 1, 0}}, {"reference-points,colour", {}},
    };
    for (const auto &c : cases) {
        PrintOptions o;
        EXPECT_EQ(parsePrintOptionList(c.list, o).empty(), !c.flags.empty()) << c.list;
        if (!c.flags.empty()) {
            EXPECT_EQ((std::vector<int>{o.referencePoints, o.referenceList, o.propertyDescription, o.frames, o.balanceGap}),
                      c.flags) << c.list;
        }
    }
}

TEST(CliPrint, FlagsThatDoNotGoTogetherAreRefused)
{
    const struct { Args args; const char *problem; int status; } cases[] = { // problem: part of the message
        {{"--page", "--data", "-o", "x.pdf", "/no/such.map"}, "give --page or --data, not both", 2},
        {{"--data", "--options", "frame", "-o", "x.pdf", "/no/such.map"}, "--options goes with --page", 2},
        {{"--options", "frame", "-o", "x.pdf", "/no/such.map"}, "--options goes with --page", 2},
        {{"--paper", "a4", "-o", "x.pdf", "/no/such.map"}, "--paper goes with --page or --data", 2},
        {{"--data", "--paper", "legal", "-o", "x.pdf", "/no/such.map"}, "--paper must be letter or a4", 2},
        {{"--page", "--options", "frame,bogus", "-o", "x.pdf", "/no/such.map"}, "unknown print option \"bogus\"", 2},
        {{"--page", "/no/such.map"}, "give the printout with -o OUT.pdf", 1},
        {{"--page", "-o", "x.pdf", "/no/such.map", "--options"}, "--options needs a list", 2},
        // Good flags get as far as the map file.
        {{"--page", "--options", "", "--paper", "a4", "-o", "x.pdf", "/no/such.map"}, "cannot read the map file", 1},
    };
    for (const auto &c : cases) {
        Args args{"plot"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        CommandIo io;
        EXPECT_EQ(runCommandLine(args, io), c.status) << c.problem;
        EXPECT_NE(io.err.find(c.problem), std::string::npos) << io.err;
    }
}
