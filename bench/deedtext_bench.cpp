// The deed-text reader: a 100-call description (target under 1 ms) and a
// megabyte of description text (target under 1 s, memory linear in its size).

#include <benchmark/benchmark.h>

#include <string>

#include "deed_text.h"

namespace {

std::string hundredCalls()
{
    std::string text = "Commencing at the northwest corner of Section 12; thence S 0°12'30\" E 330.00 feet to the "
                       "point of beginning; ";
    const char *calls[] = {
        "thence N 45°30'15\" E 100.50 feet to an iron pin, from which a red oak bears S 15 W 8 links; ",
        "thence South twenty degrees East one hundred and twelve poles to a stake; ",
        "thence along a curve to the right having a radius of 500.00 feet, an arc length of 157.08 feet, a chord "
        "bearing of S 81°00'00\" E and a chord distance of 156.43 feet; ",
        "thence S 71½ W 12 chains 25 links to two small pines (record S 71 W 12.30 chains); ",
        "thence N 89°45' W 50' 3\" along the north line of Lot 14; ",
    };
    for (int i = 0; i < 99; ++i)
        text += calls[i % 5];
    text += "thence N 10 E 200 feet to the point of beginning, containing 12.5 acres.";
    return text;
}

void BM_DeedText100Calls(benchmark::State &state)
{
    const std::string text = hundredCalls();
    for (auto _ : state)
        benchmark::DoNotOptimize(quilmar::deedtext::parseDeedText(text));
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(text.size()));
}
BENCHMARK(BM_DeedText100Calls)->Unit(benchmark::kMicrosecond);

void BM_DeedTextMegabyte(benchmark::State &state)
{
    const std::string calls = hundredCalls();
    std::string text;
    while (text.size() < 1'000'000)
        text += calls + "\n\nPARCEL 2:\n";
    for (auto _ : state)
        benchmark::DoNotOptimize(quilmar::deedtext::parseDeedText(text));
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(text.size()));
}
BENCHMARK(BM_DeedTextMegabyte)->Unit(benchmark::kMillisecond);

} // namespace
