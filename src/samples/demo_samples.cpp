#include "demo_samples.h"

#include <stdexcept>

namespace quilmar {

namespace {

// Fields in grid order: N/S, Deg, Min, Sec, E/W, Distance, Chord, Radius, L/R, Tag.
using R = DemoRow;

// Samples 1 to 3 share their first five courses; "+" in the N/S field turns
// the running direction by the degrees given.
const std::vector<DemoRow> &commonStart()
{
    static const std::vector<DemoRow> rows{
        R{{"S", "", "", "", "", "1000", "", "", "", "B"}},
        R{{"N", "45", "", "", "E", "1000", "", "", "", ""}},
        R{{"S", "45", "", "", "E", "400", "", "", "", ""}},
        R{{"+", "20", "", "", "", "400", "", "", "", ""}},
        R{{"S", "45", "", "", "W", "1000", "", "", "", ""}},
    };
    return rows;
}

std::vector<DemoRow> withCommonStart(std::initializer_list<DemoRow> rest)
{
    std::vector<DemoRow> rows = commonStart();
    rows.insert(rows.end(), rest);
    return rows;
}

const std::array<DemoSample, 6> &samples()
{
    static const std::array<DemoSample, 6> all{
        DemoSample{
            "In this example the curves are specified using TANGENTS (not chords).  Note that the map is "
            "closed with a curve.  Practice with it.  Change it.  You can restore the original data by "
            "choosing the 'Demo Sample' in the Help menu again.",
            withCommonStart({
                R{{"", "", "", "", "", "500", "", "500", "R", ""}},
                R{{"", "", "", "", "", "100", "", "200", "R", ""}},
                R{{"", "", "", "", "", "", "", "", "L", "C"}},
            })},
        DemoSample{
            "This is a sample map.  The curves are specified with CHORDS.  Note the incremental angle "
            "entries.  Practice with it.  Change it.  You can restore the original data by choosing the "
            "'Demo Sample' in the Help menu again.",
            withCommonStart({
                R{{"N", "45", "", "", "W", "", "300", "500", "L", ""}},
                R{{"N", "45", "", "", "W", "", "300", "500", "R", ""}},
                R{{"", "", "", "", "", "", "", "", "", "C"}},
            })},
        DemoSample{
            "This is a sample map.  The curves are specified with a bearing but without cords.  Note the "
            "bearing specification in the row just before the curve (0 entry in the distance field).  "
            "Practice with it.  Change it.  You can restore the original data by choosing the 'Demo "
            "Sample' in the Help menu again.",
            withCommonStart({
                R{{"N", "45", "", "", "W", "0", "", "", "", ""}},
                R{{"", "", "", "", "", "300", "", "200", "L", ""}},
                R{{"", "", "", "", "", "", "", "", "", "C"}},
            })},
        // Cardinal directions only: the N/S field holds E, N or S and no degrees.
        DemoSample{
            "This is a sample map for two lots.  Note the 'N' tag to mark the start of the second lot.  "
            "Practice with it.  Change it.  You can restore the original data by choosing the 'Demo "
            "Sample' in the Help menu again.",
            {
                R{{"E", "", "", "", "", "1000", "", "", "", "O"}},
                R{{"N", "", "", "", "", "500", "", "", "", "B"}},
                R{{"N", "", "", "", "", "1000", "", "", "", ""}},
                R{{"E", "", "", "", "", "1000", "", "", "", ""}},
                R{{"S", "", "", "", "", "1000", "", "", "", ""}},
                R{{"", "", "", "", "", "", "", "", "", "C"}},
                R{{"", "", "", "", "", "", "", "", "", "N"}},
                R{{"E", "", "", "", "", "500", "", "", "", ""}},
                R{{"N", "", "", "", "", "400", "", "", "", ""}},
                R{{"", "", "", "", "", "", "", "", "", "C"}},
            }},
        DemoSample{
            "This is a sample map using a variety of curve entries.  Note that the 'B' beginning flag is "
            "not required here.  Practice with it.  Change it.  You can restore the original data by "
            "choosing the 'Demo Sample' in the Help menu again.",
            {
                R{{"S", "", "", "", "", "100", "", "", "", ""}},
                R{{"", "", "", "", "", "300", "", "500", "R", ""}},
                R{{"", "", "", "", "", "300", "", "500", "R", ""}},
                R{{"", "", "", "", "", "300", "", "500", "R", ""}},
                R{{"", "", "", "", "", "300", "", "500", "L", ""}},
                R{{"", "", "", "", "", "300", "", "500", "R", ""}},
                R{{"", "", "", "", "", "300", "", "500", "L", ""}},
                R{{"", "", "", "", "", "", "", "", "", "C"}},
            }},
        DemoSample{
            "This is a sample of a lot that closes from TWO sides.  Practice with it.  Change it.  You can "
            "restore the original data by choosing the 'Demo Sample' in the Help menu again.",
            {
                R{{"S", "", "", "", "", "100", "", "", "", "O"}},
                R{{"S", "45", "", "", "E", "75", "", "", "", "B"}},
                R{{"", "", "", "", "", "", "", "", "", "N"}},
                R{{"S", "45", "", "", "W", "75", "", "", "", ""}},
                R{{"", "", "", "", "", "", "", "", "", "C"}},
            }},
    };
    return all;
}

} // namespace

const DemoSample &demoSample(int n)
{
    if (n < 1 || n > 6)
        throw std::out_of_range("demo sample number must be 1 to 6");
    return samples()[static_cast<size_t>(n - 1)];
}

void loadDemoRows(const DemoSample &sample, CourseTable &table)
{
    table.erase();
    for (size_t row = 0; row < sample.rows.size() && row < CourseTable::kRows; ++row)
        for (int col = 1; col <= CourseTable::kColumns; ++col)
            table.at(static_cast<int>(row), col) = Cell(sample.rows[row].cells[static_cast<size_t>(col - 1)]);
    table.gethighest();
}

} // namespace quilmar
