#pragma once
// Looking things up in what a RecordingSurface recorded; shared by the test
// folders that print.

#include <algorithm>
#include <string>
#include <vector>

#include "recording_surface.h"

namespace quilmar::test {

/// The recorded calls that hold @p part anywhere.
inline std::vector<std::string> callsContaining(const RecordingSurface &s, const std::string &part)
{
    std::vector<std::string> out;
    for (const std::string &c : s.calls())
        if (c.find(part) != std::string::npos)
            out.push_back(c);
    return out;
}

/// The recorded calls that begin with @p prefix.
inline std::vector<std::string> callsStarting(const RecordingSurface &s, const std::string &prefix)
{
    std::vector<std::string> out;
    for (const std::string &c : s.calls())
        if (c.rfind(prefix, 0) == 0)
            out.push_back(c);
    return out;
}

/// How many recorded calls are exactly @p call.
inline long countOf(const RecordingSurface &s, const std::string &call)
{
    return std::count(s.calls().begin(), s.calls().end(), call);
}

} // namespace quilmar::test
