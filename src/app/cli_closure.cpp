// quilmar closure: the analysis of each lot's misclosure, adjustments and likely
// bad calls, as text or as JSON for other programs.

#include "cli_closure.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <ostream>
#include <sstream>
#include <vector>

#include "closure_report.h"
#include "cli.h"
#include "cli_commands.h"
#include "engine.h"
#include "ground_units.h"
#include "lot_gap_text.h"
#include "recording_prompter.h"
#include "report_texts.h"

namespace quilmar {

namespace {

using namespace analysis;

QString qs(std::string_view s) { return QString::fromUtf8(s.data(), qsizetype(s.size())); }

QJsonValue optionalJson(const std::optional<double> &v) { return v ? QJsonValue(*v) : QJsonValue(); }

QJsonObject gapJson(const Gap &g)
{
    return {{"distance", g.distance}, {"bearing", qs(g.bearing)}, {"north", g.north}, {"east", g.east}};
}

QJsonArray adjustmentJson(const Adjustment &a)
{
    QJsonArray calls;
    for (const AdjustedCall &c : a.calls)
        calls.append(QJsonObject{{"row", c.row},
                                 {"north", c.north},
                                 {"east", c.east},
                                 {"bearing", qs(c.bearing)},
                                 {"distance", c.distance},
                                 {"arc", optionalJson(c.arc)},
                                 {"bearing_change", c.bearingChange},
                                 {"distance_change", c.distanceChange},
                                 {"curve", c.curve}});
    return calls;
}

std::string padRight(std::string s, size_t width)
{
    // Count characters, not bytes, so the degree sign does not shift the columns.
    size_t chars = 0;
    for (unsigned char c : s)
        chars += (c & 0xC0) != 0x80;
    if (chars < width)
        s.append(width - chars, ' ');
    return s;
}

std::string padLeft(const std::string &s, size_t width)
{
    return s.size() < width ? std::string(width - s.size(), ' ') + s : s;
}

// "(better than 1:5,000 and 1:10,000; worse than 1:15,000 and 1:20,000)"
std::string classComparison(const std::optional<double> &precision)
{
    std::vector<std::string> reached, missed;
    for (int c : kPrecisionClasses)
        (!precision || *precision >= c ? reached : missed).push_back("1:" + groupedNumber(c, 0));
    auto join = [](const std::vector<std::string> &names) {
        std::string list;
        for (size_t i = 0; i < names.size(); ++i)
            list += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
        return list;
    };
    const std::string better = join(reached), worse = join(missed);
    if (better.empty())
        return "(worse than " + worse + ")";
    if (worse.empty())
        return "(better than " + better + ")";
    return "(better than " + better + "; worse than " + worse + ")";
}

void writeAdjustment(std::ostream &out, const char *title, const Adjustment &a, Units units)
{
    out << "  " << title << ", adjusted area " << areaText(a.area, units) << "\n";
    out << "     Row  " << padRight("North", 16) << padRight("East", 16) << padRight("Bearing", 17)
        << padRight("Distance", 13) << "Change\n";
    for (const AdjustedCall &c : a.calls) {
        out << padLeft(std::to_string(c.row + 1), 8) << "  " << padRight(groupedNumber(c.north, 3), 16)
            << padRight(groupedNumber(c.east, 3), 16) << padRight(c.bearing, 17) << padRight(groupedNumber(c.distance, 3), 13)
            << signedNumber(c.bearingChange, 0) << "\"  " << signedNumber(c.distanceChange, 3)
            << (c.curve ? "  (chord)" : "") << "\n";
    }
}

void writeText(std::ostream &out, const std::string &file, const ClosureReport &report, Units units)
{
    out << "Closure report for " << file << " (rows numbered from 1, as the entry grid shows them)\n";
    if (report.lots.empty())
        out << "\nNo lot has a course to analyse.\n";
    int n = 0;
    for (const LotReport &lot : report.lots) {
        out << "\nLot " << ++n << ": rows " << lot.firstRow + 1 << " to " << lot.lastRow + 1;
        if (lot.pobRow >= 0)
            out << ", point of beginning after row " << lot.pobRow + 1;
        if (lot.closeRow >= 0)
            out << ", closed by row " << lot.closeRow + 1;
        out << "\n";
        if (lot.gap.distance == 0.0)
            out << "  Misclosure        none: the figure closes exactly\n";
        else
            out << "  Misclosure        " << groupedNumber(lot.gap.distance, 3) << ", closing bearing " << lot.gap.bearing
                << " (north error " << signedNumber(lot.gap.north, 3) << ", east error "
                << signedNumber(lot.gap.east, 3) << ")\n";
        if (!lot.programGap.empty())
            out << "  Plotter's gap     " << lot.programGap << "\n";
        out << "  Perimeter         " << groupedNumber(lot.perimeter, 3) << "\n";
        out << "  Precision         " << precisionText(lot.precision) << " " << classComparison(lot.precision) << "\n"
            << "                    (commonly cited ratios, for comparison only; not a finding of compliance)\n";
        for (const Note &note : lot.notes)
            out << "  Note: row " << note.row + 1 << ": " << note.text << "\n";
        writeAdjustment(out, "Compass (Bowditch) rule", lot.compass, units);
        writeAdjustment(out, "Transit rule", lot.transit, units);
        if (!lot.suggestions.empty()) {
            out << "  Likely bad calls, best first:\n";
            int k = 0;
            for (const Suggestion &s : lot.suggestions) {
                out << "    " << ++k << ". " << kindName(s.kind) << ": ";
                if (s.kind == BlunderKind::Omitted)
                    out << "insert before row " << s.row + 1 << " ";
                else
                    out << "row " << s.row + 1 << " reads ";
                out << callText(s.cells) << "; gap " << groupedNumber(s.gap.distance, 3) << ", " << precisionText(s.precision)
                    << "\n";
            }
        }
    }
}

std::string jsonText(const ClosureReport &report)
{
    QJsonArray lots;
    for (const LotReport &lot : report.lots) {
        QJsonArray suggestions;
        for (const Suggestion &s : lot.suggestions) {
            QJsonArray cells;
            for (const std::string &c : s.cells)
                cells.append(qs(c));
            suggestions.append(QJsonObject{{"row", s.row},
                                           {"kind", qs(kindName(s.kind))},
                                           {"cells", cells},
                                           {"gap", gapJson(s.gap)},
                                           {"precision", optionalJson(s.precision)}});
        }
        QJsonArray classes;
        for (int c : kPrecisionClasses)
            classes.append(QJsonObject{{"ratio", c},
                                       {"name", qs("1:" + groupedNumber(c, 0))},
                                       {"reached", !lot.precision || *lot.precision >= c}});
        QJsonArray notes;
        for (const Note &note : lot.notes)
            notes.append(QJsonObject{{"row", note.row}, {"text", qs(note.text)}});
        lots.append(QJsonObject{{"first_row", lot.firstRow},
                                {"last_row", lot.lastRow},
                                {"pob_row", lot.pobRow >= 0 ? QJsonValue(lot.pobRow) : QJsonValue()},
                                {"close_row", lot.closeRow >= 0 ? QJsonValue(lot.closeRow) : QJsonValue()},
                                {"pob", QJsonObject{{"north", lot.pobNorth}, {"east", lot.pobEast}}},
                                {"gap", gapJson(lot.gap)},
                                {"program_gap", qs(lot.programGap)},
                                {"perimeter", lot.perimeter},
                                {"precision", optionalJson(lot.precision)},
                                {"classes", classes},
                                {"compass", adjustmentJson(lot.compass)},
                                {"compass_area", lot.compass.area},
                                {"transit", adjustmentJson(lot.transit)},
                                {"transit_area", lot.transit.area},
                                {"suggestions", suggestions},
                                {"notes", notes}});
    }
    return QJsonDocument(QJsonObject{{"lots", lots}}).toJson(QJsonDocument::Indented).toStdString();
}

} // namespace

int runClosure(const ClosureOptions &options, std::ostream &out, std::ostream &err)
{
    RecordingPrompter prompter;
    Engine engine(prompter);
    const OpenOutcome opened = engine.openMapFile(options.file);
    if (!opened.ok()) {
        const std::vector<std::string> messages = prompter.take();
        for (const std::string &m : messages)
            err << m << "\n";
        if (messages.empty())
            err << opened.reason << "\n";
        return 1;
    }
    prompter.take();
    ClosureSettings settings;
    if (engine.units() == Units::Meters)
        settings.chainLength = groundUnitFactor(GroundUnit::Chains).feet / groundUnitFactor(GroundUnit::Meters).feet;
    // The plotter's gap of each lot is computed on the engine's own table, so the
    // analysis reads a copy that stays as the file gave it.
    const auto table = std::make_unique<const CourseTable>(engine.table());
    const ClosureReport report = analyseClosure(
        *table, [&engine](int lastRow) { return gapTextThrough(engine, lastRow); }, settings);
    if (options.json)
        out << jsonText(report);
    else
        writeText(out, options.file, report, engine.units());
    return 0;
}

Command setupClosure(CLI::App &app)
{
    struct Arguments {
        bool json = false;
        std::vector<std::string> files;
    };
    auto raw = std::make_shared<Arguments>();
    app.add_flag("--json", raw->json, "Print one JSON object: each lot's gap, adjustments and suggestions");
    app.add_option("file", raw->files, "The map file (*.map)");
    Command command;
    command.usageError = [](const std::string &problem, CommandIo &io) {
        io.err += "quilmar closure: " + problem + "\n" + usageText();
        return 2;
    };
    command.run = [raw, &app, usageError = command.usageError](CommandIo &io) {
        std::vector<std::string> files = raw->files;
        for (const std::string &extra : app.remaining()) {
            if (extra.size() > 1 && extra[0] == '-')
                return usageError("unknown option " + extra, io);
            files.push_back(extra);
        }
        if (files.empty())
            return usageError("no map file given", io);
        if (files.size() > 1)
            return usageError("only one map file can be given", io);
        std::ostringstream out, err;
        const int status = runClosure({raw->json, files.front()}, out, err);
        io.out += out.str();
        io.err += err.str();
        return status;
    };
    return command;
}

} // namespace quilmar
