#include "data_listing.h"

#include <algorithm>

#include "course_description.h"

namespace quilmar {

namespace {

// Appends @p text at 1-based @p column of the last line, starting a new line
// when the last one has passed the column already.
void tabAndPrint(std::vector<std::string> &lines, int column, const std::string &text)
{
    const size_t at = size_t(column - 1);
    if (lines.back().size() > at)
        lines.emplace_back();
    lines.back().resize(at, ' ');
    lines.back() += text;
}

std::vector<std::string> cellsAtColumns(const std::array<std::string, 10> &cells)
{
    // Every cell is tabbed to, the empty ones too: a long cell that has passed an
    // empty cell's column sends the rest of the row to a new line.
    std::vector<std::string> lines(1);
    for (size_t i = 0; i < cells.size(); ++i)
        tabAndPrint(lines, kDataColumns[i], cells[i]);
    return lines;
}

void wrapWords(std::vector<std::string> &out, const std::string &paragraph, size_t width)
{
    std::string line;
    size_t start = 0;
    while (start < paragraph.size()) {
        size_t end = paragraph.find(' ', start);
        if (end == std::string::npos)
            end = paragraph.size();
        std::string word = paragraph.substr(start, end - start);
        start = end + 1;
        if (word.empty())
            continue;
        if (!line.empty() && line.size() + 1 + word.size() > width) {
            out.push_back(line);
            line.clear();
        }
        while (word.size() > width) {
            if (!line.empty()) {
                out.push_back(line);
                line.clear();
            }
            out.push_back(word.substr(0, width));
            word.erase(0, width);
        }
        if (word.empty())
            continue;
        line += line.empty() ? word : " " + word;
    }
    out.push_back(line);
}

} // namespace

std::string dataHeadingLine()
{
    return cellsAtColumns({"NS", "Deg", "Min", "Sec", "EW", "Distance", "Chord", "Radius", "L-R", "Tag"}).front();
}

std::vector<std::string> dataRowLines(const CourseTable &table, int row)
{
    std::array<std::string, 10> cells;
    for (int column = 1; column <= CourseTable::kColumns; ++column)
        cells[size_t(column - 1)] = cellText(table.at(row, column));
    std::vector<std::string> lines = cellsAtColumns(cells);
    for (std::string &line : lines)
        while (!line.empty() && line.back() == ' ')
            line.pop_back();
    return lines;
}

std::vector<std::string> dataListingLines(const CourseTable &table, const std::string &description, int lineChars)
{
    const size_t width = size_t(std::max(1, lineChars));
    std::vector<std::string> lines{"", ""};
    size_t start = 0;
    while (start <= description.size() && !description.empty()) {
        size_t end = description.find('\n', start);
        if (end == std::string::npos)
            end = description.size();
        std::string paragraph = description.substr(start, end - start);
        if (!paragraph.empty() && paragraph.back() == '\r')
            paragraph.pop_back();
        wrapWords(lines, paragraph, width);
        start = end + 1;
    }
    lines.emplace_back();
    lines.push_back(dataHeadingLine());
    // Up to and including row `highest`: the grid raises it to the last row that
    // got the focus, which may hold a course the map already shows.
    const int last = std::min<int>(table.highest, CourseTable::kRows - 1);
    for (int row = 0; row <= last; ++row) {
        bool used = false;
        for (int column = 1; column <= CourseTable::kColumns && !used; ++column)
            used = !table.at(row, column).isEmpty();
        if (!used)
            continue;
        for (std::string &line : dataRowLines(table, row))
            lines.push_back(std::move(line));
    }
    lines.push_back("end");
    return lines;
}

} // namespace quilmar
