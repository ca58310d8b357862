// Opening a map file: reading its course lines and description, and taking
// the unit and scale back out of the description.

#include <algorithm>
#include <fstream>

#include "cp1252.h"
#include "map_file.h"
#include "safe_file.h"
#include "utf8_path.h"

namespace quilmar {

namespace {

namespace fs = std::filesystem;

MapFileRow splitCourseLine(std::string_view line)
{
    MapFileRow row;
    std::size_t start = 0;
    for (std::size_t k = 0; k < row.size(); ++k) {
        const std::size_t tab = line.find('\t', start);
        row[k] = cp1252ToUtf8(line.substr(start, tab - start));
        if (tab == std::string_view::npos)
            break; // the fields a short line lacks stay empty
        start = tab + 1;
    }
    return row;
}

// Walks the file line by line as the open command does: course lines up to the
// first line that begins with "~", then everything after it as the description.
void takeApart(std::string_view bytes, MapReadResult &result)
{
    std::string description;
    std::size_t pos = 0;
    while (pos < bytes.size()) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", pos), bytes.size());
        const std::string_view line = bytes.substr(pos, end - pos);
        pos = end;
        if (pos < bytes.size())
            pos += (bytes[pos] == '\r' && pos + 1 < bytes.size() && bytes[pos + 1] == '\n') ? 2 : 1;

        if (result.reachedDescription) {
            description += "\r\n";
            description += line;
        } else if (!line.empty() && line.front() == '~') {
            result.reachedDescription = true;
            description = line.substr(1);
        } else if (result.rows.size() < static_cast<std::size_t>(CourseTable::kRows)) {
            result.rows.push_back(splitCourseLine(line));
        } else {
            ++result.droppedRows; // the table has no row for it
        }
    }
    result.description = cp1252ToUtf8(description);
}

MapReadResult failed(std::string message)
{
    MapReadResult result;
    result.status = MapReadStatus::Failed;
    result.message = std::move(message);
    return result;
}

} // namespace

std::string fileNotFoundMessage(const std::string &name)
{
    return "File " + name + " not found.";
}

MapReadResult readMapFile(const std::string &path)
{
    std::string bytes;
    const FileOutcome read = readFileLimited(path, kMaxMapFileBytes, bytes);
    if (read.problem == FileProblem::NotFound) {
        // A missing folder is the classic "Path not found", which has no message.
        std::error_code ec;
        const fs::path folder = pathFromUtf8(path).parent_path();
        if (!folder.empty() && !fs::is_directory(folder, ec))
            return failed("Cannot read " + path + ": the folder does not exist.");
        MapReadResult result;
        result.status = MapReadStatus::NotFound;
        result.message = fileNotFoundMessage(path);
        return result;
    }
    if (!read.ok)
        return failed(read.error);
    return readMapBytes(bytes);
}

MapReadResult readMapBytes(std::string_view bytes)
{
    MapReadResult result;
    result.status = MapReadStatus::Ok;
    takeApart(bytes, result);
    return result;
}

TailSplit splitTail(const std::string &text)
{
    TailSplit split;
    const std::size_t p = text.find(kTailMarker);
    if (p == std::string::npos) {
        split.description = text;
        return split;
    }
    split.found = true;
    split.description = text.substr(0, p);
    split.scale.clear();
    std::size_t unitAt = p + kTailMarker.size();
    if (unitAt < text.size()) {
        const auto lead = static_cast<unsigned char>(text[unitAt]);
        split.unit = lead < 0x80 ? static_cast<char>(lead) : '?';
        ++unitAt;
        // The scale starts after the whole character, so it stays valid UTF-8.
        while (lead >= 0x80 && unitAt < text.size()
               && (static_cast<unsigned char>(text[unitAt]) & 0xC0) == 0x80)
            ++unitAt;
        split.scale = text.substr(unitAt);
    }
    return split;
}

void storeRows(const std::vector<MapFileRow> &rows, CourseTable &table)
{
    const std::size_t count = std::min(rows.size(), static_cast<std::size_t>(CourseTable::kRows));
    for (std::size_t r = 0; r < count; ++r) {
        for (std::size_t k = 0; k < rows[r].size(); ++k)
            table.at(static_cast<int>(r), static_cast<int>(k) + 1) = Cell(rows[r][k]);
    }
}

} // namespace quilmar
