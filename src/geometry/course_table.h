#pragma once
// The deed as typed: rows 0 to 201, one course a row, columns 1 to 10 (N/S code,
// degrees, minutes, seconds, E/W code, distance, chord, radius, L/R code, tag).
// Cells keep the text exactly as typed; numbers are read only when the traverse
// is computed.

#include <array>
#include <cstdint>

#include "cell.h"

namespace quilmar {

enum Column : int {
    ColNS = 1, ColDeg, ColMin, ColSec, ColEW, ColDistance, ColChord, ColRadius, ColLR, ColTag
};

class CourseTable {
public:
    static constexpr int kRows = 202;     ///< rows 0 to 201
    static constexpr int kColumns = 10;   ///< columns 1 to 10
    static constexpr int kDefaultHighest = 10;
    static constexpr int kMaxHighest = 200; ///< the computation caps `highest` here

    /// Cell of row 0..201, column 1..10. Out of range is a programming error.
    Cell &at(int row, int column) { return m_cells[row][column - 1]; }
    const Cell &at(int row, int column) const { return m_cells[row][column - 1]; }

    /// Every cell becomes empty; `highest` is left as it is.
    void erase();

    /// Sets `highest` to one past the last used row. Rows 0 to 3 are never looked
    /// at, deliberately: a table used only up to row 3 keeps the default 10.
    void gethighest();

    int16_t highest = kDefaultHighest;

private:
    std::array<std::array<Cell, kColumns>, kRows> m_cells{};
};

} // namespace quilmar
