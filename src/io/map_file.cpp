// Saving a map file: building its bytes, writing them safely, naming the file.

#include "map_file.h"
#include "safe_file.h"

#include <algorithm>
#include <fstream>
#include <random>

#include "cp1252.h"
#include "number_format.h"
#include "utf8_path.h"

namespace quilmar {

namespace {

std::string cellBytes(const Cell &cell)
{
    if (cell.isNumber())
        return generalNumber(cell.number());
    std::string bytes = utf8ToCp1252(cell.text());
    // The grid never lets these in; one here would shift every later cell on reading.
    std::replace_if(bytes.begin(), bytes.end(),
                    [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return bytes;
}

// Every line break of the description as CR LF, the only line end the file uses.
std::string withCrLf(const std::string &text)
{
    std::string out;
    out.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            out += "\r\n";
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            out += c;
        }
    }
    return out;
}

} // namespace

std::string mapFileBytes(const CourseTable &table, const std::string &descriptionUtf8,
                         Units units, const std::string &scaleTextUtf8)
{
    std::string out;
    const int lastRow = std::min(table.highest + 5, CourseTable::kRows - 1);
    for (int row = 0; row <= lastRow; ++row) {
        for (int col = 1; col <= CourseTable::kColumns; ++col) {
            if (col > 1)
                out += '\t';
            out += cellBytes(table.at(row, col));
        }
        out += "\r\n";
    }
    out += '~';
    out += withCrLf(utf8ToCp1252(descriptionUtf8));
    out += "\r\n";
    out += kTailMarker;
    // As the option buttons are read: Feet, else Meters, else Other.
    out += unitDigit(units);
    out += utf8ToCp1252(scaleTextUtf8);
    out += "\r\n";
    return out;
}

bool writeMapFile(const std::string &path, const std::string &bytes, std::string *error)
{
    const FileOutcome outcome = writeFileSafely(path, bytes);
    if (!outcome.ok && error)
        *error = outcome.error;
    return outcome.ok;
}

std::string withMapExtension(const std::string &chosenName)
{
    // Step back over four characters; continuation bytes belong to the one before.
    std::size_t pos = chosenName.size();
    int characters = 0;
    while (pos > 0 && characters < 4) {
        --pos;
        if ((static_cast<unsigned char>(chosenName[pos]) & 0xC0) != 0x80)
            ++characters;
    }
    if (characters == 4 && chosenName[pos] == '.')
        return chosenName;
    return chosenName + ".map";
}

} // namespace quilmar
