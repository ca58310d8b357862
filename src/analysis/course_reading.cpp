#include "course_reading.h"

#include <charconv>
#include <cmath>

#include "course_conversion.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar::analysis {

namespace {

// Scratch rows: a seed whose code is none of the quadrants, so its direction is
// its angle, sets the running direction exactly; the row read; a tangent probe
// that takes the running direction the row hands on.
constexpr int kSeed = 0, kRow = 1, kProbe = 2;

// A number beyond double range reads as NaN in the leg; here it moves nothing.
double finite(double v) { return std::isfinite(v) ? v : 0.0; }

} // namespace

double CourseReading::north() const { return -length * sine; }
double CourseReading::east() const { return length * cosine; }

RowReader::RowReader() : m_scratch(std::make_unique<CourseTable>())
{
    m_scratch->at(kSeed, ColNS) = "X";
    m_scratch->at(kProbe, ColDistance) = "1";
    m_scratch->highest = 1;
}

RowReader::~RowReader() = default;

CourseReading RowReader::read(const RowCells &cells, float runningBefore)
{
    load(cells);
    return convert(runningBefore);
}

void RowReader::load(const RowCells &cells)
{
    m_loaded = cells;
    for (int c = 0; c < CourseTable::kColumns; ++c)
        m_scratch->at(kRow, c + 1) = cells[c];
}

CourseReading RowReader::readChanged(float runningBefore, int column, const Cell &cell, int column2, const Cell &cell2)
{
    CourseTable &t = *m_scratch;
    t.at(kRow, column) = cell;
    if (column2 != 0)
        t.at(kRow, column2) = cell2;
    const CourseReading r = convert(runningBefore);
    t.at(kRow, column) = m_loaded[column - 1];
    if (column2 != 0)
        t.at(kRow, column2) = m_loaded[column2 - 1];
    return r;
}

CourseReading RowReader::convert(float runningBefore)
{
    CourseTable &t = *m_scratch;
    t.at(kSeed, ColDeg) = Cell(double(runningBefore));
    t.highest = 1;
    try {
        convertCourses(t, m_legs, [](const std::string &) {});
    } catch (const VbError &) {
        // An overflowing cell: the plotter stops its computation; here the row moves nothing.
        CourseReading none;
        none.runningAfter = runningBefore;
        return none;
    }
    const Leg &leg = m_legs[kRow];
    CourseReading r;
    r.direction = leg.directionValue();
    r.cosine = leg.cosine;
    r.sine = leg.sine;
    r.radius = finite(leg.radius);
    r.right = leg.side == CurveSide::Right;
    r.tag = leg.tag;
    if (r.radius == 0.0) {
        r.length = finite(leg.distance);
        r.arc = r.length;
    } else {
        r.length = finite(leg.chord);
        r.arc = finite(leg.distance) != 0.0 ? finite(leg.distance) : r.length;
    }
    r.runningAfter = m_legs[kProbe].directionValue();
    return r;
}

RowCells rowCells(const CourseTable &table, int row)
{
    RowCells cells;
    for (int c = 0; c < CourseTable::kColumns; ++c)
        cells[c] = table.at(row, c + 1);
    return cells;
}

std::vector<RowReading> readRows(const CourseTable &table, RowReader &reader)
{
    const int highest = std::min<int>(table.highest, CourseTable::kMaxHighest);
    std::vector<RowReading> rows;
    rows.reserve(highest + 2);
    float running = 0.0f;
    for (int i = 0; i <= highest + 1; ++i) {
        const RowCells cells = rowCells(table, i);
        RowReading r;
        r.runningBefore = running;
        r.course = reader.read(cells, running);
        // Read once more after a different course: what moves with it follows it.
        const CourseReading turned = reader.read(cells, running + 1.0f);
        r.directionFollows = turned.direction != r.course.direction;
        r.runningFollows = turned.runningAfter != r.course.runningAfter;
        for (const Cell &c : cells)
            r.hasContent = r.hasContent || !c.isEmpty();
        running = r.course.runningAfter;
        rows.push_back(std::move(r));
    }
    return rows;
}

std::string cellText(const Cell &cell)
{
    if (!cell.isNumber())
        return cell.text();
    char buf[40];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, cell.number());
    return ec == std::errc() ? std::string(buf, end) : std::string();
}

double textValue(const std::string &text)
{
    try {
        return leadingNumber(text);
    } catch (const VbError &) {
        return 0.0;
    }
}

std::string trimmed(const std::string &text) { return std::string(trimBlanks(text)); }

} // namespace quilmar::analysis
