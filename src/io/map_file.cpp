// Saving a map file: building its bytes, writing them safely, naming the file.

#include "map_file.h"

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
    namespace fs = std::filesystem;
    const auto fail = [&](const std::string &reason) {
        if (error)
            *error = "Cannot write " + path + ": " + reason;
        return false;
    };
    if (path.empty())
        return fail("no file name");

    std::error_code ec;
    fs::path target = pathFromUtf8(path);
    if (fs::is_symlink(target, ec)) {
        const fs::path resolved = fs::weakly_canonical(target, ec);
        if (!ec)
            target = resolved;
    }
    const fs::file_status old = fs::status(target, ec);
    if (fs::is_directory(old))
        return fail("it is a folder");
    // Replacing by rename would get past a read-only file; refuse as a plain write would.
    // Opening for append checks this without changing the old content.
    if (fs::exists(old) && !std::ofstream(target, std::ios::binary | std::ios::app))
        return fail("the file is read-only or locked");

    // A fresh name beside the target, so the final rename stays on one file system.
    std::mt19937 random{std::random_device{}()};
    fs::path temp;
    do {
        temp = target;
        temp += ".~" + std::to_string(random() % 1000000u) + ".tmp";
    } while (fs::exists(temp, ec));

    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out)
            return fail("the file cannot be created");
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.close();
        if (out.fail()) {
            fs::remove(temp, ec);
            return fail("the data could not be written (disk full?)");
        }
    }
    if (fs::exists(old))
        fs::permissions(temp, old.permissions(), ec); // best effort only
    fs::rename(temp, target, ec);
    if (ec) {
        const std::string reason = ec.message();
        fs::remove(temp, ec);
        return fail(reason);
    }
    return true;
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
