#include "cli_import.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <vector>
#include <sstream>

#include "cli_commands.h"
#include "course_table.h"
#include "deed_text.h"
#include "map_file.h"

namespace quilmar {

namespace {

std::string jsonString(std::string_view s)
{
    std::string out = "\"";
    for (const char c : s) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", static_cast<unsigned char>(c));
                out += buf;
            } else {
                out += c;
            }
        }
    }
    return out + "\"";
}

/// Line and column of byte offsets, from one scan of the text.
class LineIndex {
public:
    explicit LineIndex(std::string_view text) : m_text(text)
    {
        m_starts.push_back(0);
        for (size_t i = 0; i < text.size(); ++i)
            if (text[i] == '\n' || (text[i] == '\r' && (i + 1 >= text.size() || text[i + 1] != '\n')))
                m_starts.push_back(i + 1);
    }
    deedtext::LineColumn at(size_t offset) const
    {
        const auto it = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
        const size_t line = size_t(it - m_starts.begin());
        const size_t start = m_starts[line - 1];
        return {line, deedtext::lineColumnOf(m_text.substr(start), offset - start).column};
    }

private:
    std::string_view m_text;
    std::vector<size_t> m_starts;
};

void writeJson(std::ostream &out, std::string_view text, const deedtext::DeedImport &deed, bool metric)
{
    const LineIndex lines(text);
    auto place = [&](deedtext::Span s) {
        const auto lc = lines.at(s.begin);
        return "\"begin\": " + std::to_string(s.begin) + ", \"end\": " + std::to_string(s.end)
               + ", \"line\": " + std::to_string(lc.line) + ", \"column\": " + std::to_string(lc.column)
               + ", \"text\": " + jsonString(deedtext::quoteSpan(text, s, 200));
    };
    out << "{\n  \"units\": \"" << (metric ? "meters" : "feet") << "\",\n  \"rows\": [";
    for (size_t i = 0; i < deed.rows.size(); ++i) {
        const auto &r = deed.rows[i];
        out << (i ? ",\n" : "\n") << "    {\"cells\": [";
        for (size_t c = 0; c < r.cells.size(); ++c)
            out << (c ? ", " : "") << jsonString(r.cells[c]);
        out << "], " << place(r.span) << "}";
    }
    out << (deed.rows.empty() ? "" : "\n  ") << "],\n  \"flags\": [";
    for (size_t i = 0; i < deed.flags.size(); ++i) {
        const auto &f = deed.flags[i];
        out << (i ? ",\n" : "\n") << "    {\"severity\": \""
            << (f.severity == deedtext::Severity::Flag ? "flag" : "warning") << "\", \"reason\": "
            << jsonString(f.reason) << ", " << place(f.span) << "}";
    }
    out << (deed.flags.empty() ? "" : "\n  ") << "]\n}\n";
}

} // namespace

int runImport(const ImportOptions &options, std::istream &in, std::ostream &out, std::ostream &err)
{
    std::string text;
    if (options.input == "-") {
        text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        if (in.bad()) {
            err << "quilmar import: cannot read standard input\n";
            return 1;
        }
    } else {
        std::ifstream file(options.input, std::ios::binary);
        if (!file) {
            err << "quilmar import: cannot read " << options.input << "\n";
            return 1;
        }
        text.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        if (file.bad()) {
            err << "quilmar import: cannot read " << options.input << "\n";
            return 1;
        }
    }

    const deedtext::DeedImport deed = deedtext::parseDeedText(text);
    const bool metric = options.units.empty() ? deed.metric : options.units == "meters";
    int status = deed.anyFlagged() ? 3 : 0;

    const LineIndex lines(text);
    for (const auto &f : deed.flags) {
        if (f.severity != deedtext::Severity::Flag)
            continue;
        const auto lc = lines.at(f.span.begin);
        err << lc.line << ':' << lc.column << ": " << f.reason << ": \"" << deedtext::quoteSpan(text, f.span)
            << "\"\n";
    }

    CourseTable table;
    const size_t kept = std::min(deed.rows.size(), size_t(CourseTable::kRows));
    for (size_t r = 0; r < kept; ++r)
        for (int c = 0; c < CourseTable::kColumns; ++c)
            table.at(int(r), c + 1) = Cell(deed.rows[r].cells[size_t(c)]);
    if (deed.rows.size() > kept) {
        err << "quilmar import: " << deed.rows.size() << " rows read; the table holds " << CourseTable::kRows
            << ", the rest were left out\n";
        status = 3;
    }
    table.gethighest();
    const std::string bytes = mapFileBytes(table, "", metric ? Units::Meters : Units::Feet, "Standard");

    if (!options.output.empty()) {
        std::string problem;
        if (!writeMapFile(options.output, bytes, &problem)) {
            err << "quilmar import: cannot write " << options.output << ": " << problem << "\n";
            return 1;
        }
    }
    if (options.json)
        writeJson(out, text, deed, metric);
    else if (options.output.empty())
        out << bytes;
    return status;
}

namespace {

struct ImportArguments {
    ImportOptions options;
    std::vector<std::string> inputs;
    const CLI::App *app = nullptr;
};

int usageError(const std::string &problem, CommandIo &io)
{
    io.err += "quilmar import: " + problem + "\n" + usageText();
    return 2;
}

int import(ImportArguments &raw, CommandIo &io)
{
    std::vector<std::string> items = raw.inputs;
    for (const std::string &extra : raw.app->remaining())
        items.push_back(extra);
    for (const std::string &item : items)
        if (item.size() > 1 && item[0] == '-')
            return usageError("unknown option \"" + item + "\"", io);
    if (items.empty())
        return usageError("which deed text? (a file name, or - for standard input)", io);
    if (items.size() > 1)
        return usageError("unexpected argument \"" + items[1] + "\"", io);
    ImportOptions options = raw.options;
    if (options.units == "metres")
        options.units = "meters";
    if (!options.units.empty() && options.units != "feet" && options.units != "meters")
        return usageError("--units must be feet or meters, not \"" + options.units + "\"", io);
    options.input = items.front();
    std::ostringstream out, err;
    const int status = runImport(options, std::cin, out, err);
    io.out += out.str();
    io.err += err.str();
    return status;
}

} // namespace

Command setupImport(CLI::App &app)
{
    auto raw = std::make_shared<ImportArguments>();
    raw->app = &app;
    app.add_option("DEED", raw->inputs, "The description's text file, or - for standard input");
    app.add_option("--units", raw->options.units, "The map file's unit: feet or meters (default: from the text)");
    app.add_flag("--json", raw->options.json, "Print the rows with their source spans, and the flags");
    app.add_option("-o", raw->options.output, "The map file to write (standard output without it)");
    Command command;
    command.usageError = usageError;
    command.needs = {{"--units", "--units needs feet or meters"}, {"-o", "-o needs a file name"}};
    command.run = [raw](CommandIo &io) { return import(*raw, io); };
    return command;
}

} // namespace quilmar
