#pragma once
// The plotter's own gap text for one lot of a deed with several, for the closure
// report to set beside its own figures.

#include <string>

#include "engine.h"

namespace quilmar {

/// Runs Calculate Gap on @p engine's table cut after @p lastRow (later rows
/// emptied, an "N" tag on @p lastRow ignored, so the walk ends at that lot's end)
/// and returns what `Acresbox` then shows. The table is put back afterwards;
/// the rest of the state is as Calculate Gap leaves it. Messages shown on the
/// way go to the engine's prompter.
std::string gapTextThrough(Engine &engine, int lastRow);

} // namespace quilmar
