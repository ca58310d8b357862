#pragma once
// Runs `quilmar NAME args...` in the test's own process and keeps its status
// and what it wrote; shared by the command-line test files.

#include <string>

#include "cli.h"

namespace quilmar::test {

struct CommandRun { int status; std::string out, err; };

inline CommandRun runCli(const char *name, Args args)
{
    args.insert(args.begin(), name);
    CommandIo io;
    const int status = runCommandLine(args, io);
    return {status, io.out, io.err};
}

} // namespace quilmar::test
