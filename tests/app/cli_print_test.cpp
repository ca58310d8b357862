// The printout flags of quilmar plot.

#include <gtest/gtest.h>

#include "cli.h"
#include "cli_print.h"

using namespace quilmar;

TEST(CliPrint, OptionListsTurnOnWhatTheyName)
{
    struct Case {
        const char *list;
        PrintOptions expected;
        bool good;
    };
    const Case cases[] = {
        {"", {0, 0, 0, 0, 0}, true},
        {"reference-points,reference-list,description,frame,balance-gap", {1, 1, 1, 1, 1}, true},
        {"balance-gap", {0, 0, 0, 0, 1}, true},
        {"description,,frame", {0, 0, 1, 1, 0}, true},
        {"reference-points,colour", {}, false},
    };
    for (const Case &c : cases) {
        PrintOptions o;
        const std::string problem = parsePrintOptionList(c.list, o);
        EXPECT_EQ(problem.empty(), c.good) << c.list;
        const auto flags = [](const PrintOptions &p) {
            return std::vector<int>{p.referencePoints, p.referenceList, p.propertyDescription, p.frames, p.balanceGap};
        };
        if (c.good)
            EXPECT_EQ(flags(o), flags(c.expected)) << c.list;
    }
}

TEST(CliPrint, FlagsThatDoNotGoTogetherAreRefused)
{
    struct Case {
        Args args;
        const char *problem; ///< part of the message
        int status;
    };
    const Case cases[] = {
        {{"--page", "--data"}, "give --page or --data, not both", 2},
        {{"--data", "--options", "frame"}, "--options goes with --page", 2},
        {{"--options", "frame"}, "--options goes with --page", 2},
        {{"--paper", "a4"}, "--paper goes with --page or --data", 2},
        {{"--data", "--paper", "legal"}, "--paper must be letter or a4", 2},
        {{"--page", "--options", "frame,bogus"}, "unknown print option \"bogus\"", 2},
        {{"--page"}, "give the printout with -o OUT.pdf", 1},
    };
    for (const Case &c : cases) {
        Args args{"plot"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        if (std::string(c.problem).find("-o OUT.pdf") == std::string::npos)
            args.insert(args.end(), {"-o", "x.pdf"});
        args.push_back("/no/such.map");
        CommandIo io;
        EXPECT_EQ(runCommandLine(args, io), c.status) << c.problem;
        EXPECT_NE(io.err.find(c.problem), std::string::npos) << io.err;
    }
    CommandIo missing;
    EXPECT_EQ(runCommandLine({"plot", "--page", "-o", "x.pdf", "/no/such.map", "--options"}, missing), 2);
    EXPECT_NE(missing.err.find("--options needs a list"), std::string::npos) << missing.err;
    // Good flags get as far as the map file.
    CommandIo io;
    EXPECT_EQ(runCommandLine({"plot", "--page", "--options", "", "--paper", "a4", "-o", "x.pdf", "/no/such.map"}, io), 1);
    EXPECT_NE(io.err.find("cannot read the map file"), std::string::npos) << io.err;
}
