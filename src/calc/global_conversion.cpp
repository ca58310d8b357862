#include "global_conversion.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "typed_number.h"
#include "vb_math.h"

namespace quilmar {

namespace {

struct ToFeet {
    const char *unitText;
    GroundUnit unit;
};

const std::array<ToFeet, 6> kToFeet{{
    {" Meters ", GroundUnit::Meters},
    {" Chains/Links (e.g. 250 Chains, 5 Links = 250.05) ", GroundUnit::Chains},
    {" Rods or Perches ", GroundUnit::Rods},
    {" Furlongs ", GroundUnit::Furlongs},
    {" Varas ", GroundUnit::Varas},
    {" Yards ", GroundUnit::Yards},
}};

double cellValue(const Cell &cell)
{
    if (cell.isNumber())
        return cell.number();
    const std::optional<double> v = typedNumber(cell.text());
    if (!v)
        throw VbError::typeMismatch();
    return *v;
}

} // namespace

GlobalConversion GlobalConversion::toFeet(int index)
{
    if (index < 0 || index >= static_cast<int>(kToFeet.size()))
        throw std::out_of_range("global conversion index must be 0 to 5");
    const ToFeet &t = kToFeet[static_cast<size_t>(index)];
    return GlobalConversion(t.unitText, groundUnitFactor(t.unit).feet, false);
}

GlobalConversion GlobalConversion::feetToMeters()
{
    return GlobalConversion(" Feet ", groundUnitFactor(GroundUnit::Meters).feet, true);
}

std::string GlobalConversion::question() const
{
    return std::string("This function will convert the entire table from") + std::string(m_unitText) +
           (m_toMeters ? "to Meters.  OK to proceed?" : "to Feet.  OK to proceed?");
}

Units GlobalConversion::apply(CourseTable &table) const
{
    const int lastRow = std::min(table.highest + 1, CourseTable::kRows - 1);
    for (int row = 0; row <= lastRow; ++row) {
        for (int col : {ColDistance, ColChord, ColRadius}) {
            Cell &cell = table.at(row, col);
            if (cell.isEmpty())
                continue;
            const double v = cellValue(cell);
            const double converted = m_toMeters ? dbl(v / m_factor) : dbl(v * m_factor);
            cell = Cell(roundEven(dbl(converted * 100)) / 100);
        }
    }
    return m_toMeters ? Units::Meters : Units::Feet;
}

} // namespace quilmar
