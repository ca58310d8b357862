#include "course_description.h"

#include <algorithm>

#include "number_format.h"
#include "number_read.h"

namespace quilmar {

std::string cellText(const Cell &cell)
{
    if (cell.isNumber()) {
        try {
            return generalNumber(cell.number());
        } catch (const VbError &) {
            return {};
        }
    }
    return cell.text();
}

namespace {

std::string field(const CourseTable &table, int row, int column)
{
    return std::string(trimBlanks(cellText(table.at(row, column))));
}

void appendWord(std::string &out, const std::string &word)
{
    if (word.empty())
        return;
    if (!out.empty())
        out += ' ';
    out += word;
}

} // namespace

std::string describeCourse(const CourseTable &table, int row)
{
    if (row < 0 || row >= CourseTable::kRows)
        return {};
    const std::string tag = field(table, row, ColTag);
    if (tag == "N")
        return "New";

    std::string text;
    appendWord(text, field(table, row, ColNS));
    if (const std::string deg = field(table, row, ColDeg); !deg.empty())
        appendWord(text, deg + "\u00b0");
    if (const std::string min = field(table, row, ColMin); !min.empty())
        appendWord(text, min + "'");
    if (const std::string sec = field(table, row, ColSec); !sec.empty())
        appendWord(text, sec + "\"");
    appendWord(text, field(table, row, ColEW));
    appendWord(text, field(table, row, ColDistance));
    if (const std::string chord = field(table, row, ColChord); !chord.empty())
        text += ", ch " + chord;
    if (const std::string radius = field(table, row, ColRadius); !radius.empty()) {
        text += ", r " + radius;
        if (const std::string lr = field(table, row, ColLR); !lr.empty())
            text += " " + lr;
    }
    if (tag == "C")
        text += text.empty() ? " Back to pob" : " Close";
    return text;
}

std::string courseDescriptionText(const CourseTable &table)
{
    std::string out;
    const int last = std::min<int>(table.highest, CourseTable::kRows);
    for (int row = 0; row < last; ++row) {
        const std::string line = describeCourse(table, row);
        if (!line.empty())
            out += line + "\r\n";
    }
    return out;
}

} // namespace quilmar
