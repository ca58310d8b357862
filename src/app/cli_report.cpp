// quilmar report: open a map file as the window does, then run Calculate Gap,
// Calculate Perimeter, Calculate Acres and Calculate Hectares in that order.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <charconv>
#include <cmath>

#include "cli_options.h"
#include "recording_prompter.h"
#include "vb_math.h"

namespace quilmar {

namespace {

QString qs(const std::string &s) { return QString::fromUtf8(s.data(), qsizetype(s.size())); }

// A single carried into JSON by its shortest decimal text, so 28.6479f is
// written 28.6479 and not with the digits of its double widening.
QJsonValue singleJson(float v)
{
    if (!std::isfinite(v))
        return QJsonValue();
    char buf[32];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, v);
    double d = 0.0;
    std::from_chars(buf, end, d);
    return d;
}

// A leg's length; null for a number beyond range.
QJsonValue lengthJson(double v) { return std::isfinite(v) ? QJsonValue(v) : QJsonValue(); }

QJsonValue groundPoint(PointF p, float scaleFactor)
{
    if (scaleFactor == 0.0f)
        return QJsonArray{QJsonValue(), QJsonValue()};
    return QJsonArray{singleJson(float(p.x / double(scaleFactor))), singleJson(float(p.y / double(scaleFactor)))};
}

struct CommandRecord {
    const char *name;
    std::string acresbox;
    std::vector<std::string> messages;
};

QJsonArray legsJson(const Engine &engine)
{
    QJsonArray legs;
    const LegTable &table = engine.legs();
    for (size_t row = 0; row < table.size(); ++row) {
        const Leg &leg = table[row];
        QJsonObject o;
        o["row"] = int(row);
        o["course"] = leg.course;
        o["direction"] = leg.direction ? singleJson(*leg.direction) : QJsonValue();
        o["distance"] = lengthJson(leg.distance);
        o["chord"] = lengthJson(leg.chord);
        o["radius"] = lengthJson(leg.radius);
        // The L/R code and the tag as typed, from the table the legs came from.
        o["lr"] = leg.cellsRead ? qs(engine.table().at(int(row), ColLR).text()) : QString();
        o["tag"] = leg.cellsRead ? qs(engine.table().at(int(row), ColTag).text()) : QString();
        legs.append(o);
    }
    return legs;
}

} // namespace

namespace {

int usageError(const std::string &problem, CommandIo &io)
{
    io.err += "quilmar report: " + problem + "\n" + usageText();
    return 2;
}

int report(const MapArguments &raw, CommandIo &io)
{
    std::string &out = io.out;
    std::string &err = io.err;
    MapCommandOptions options;
    if (std::string problem = checkMapOptions(raw, options); !problem.empty())
        return usageError(problem, io);
    RecordingPrompter prompter;
    Engine engine(prompter);
    engine.setCanvasSize(options.canvasWidth, options.canvasHeight);

    std::vector<CommandRecord> records;
    const OpenOutcome opened = engine.openMapFile(options.file, options.overrides);
    records.push_back({"open", engine.acresbox(), prompter.take()});
    if (!opened.ok()) {
        for (const std::string &m : records.back().messages)
            err += m + "\n";
        if (records.back().messages.empty())
            err += opened.reason + "\n";
        return 1;
    }
    const float scaleFactor = engine.scaleFactor();
    const std::string autoscale = engine.autoscalebox();
    const PointF pob = engine.state().pob;
    const PointF end = engine.state().pen;
    // The legs as the open computed them; only the JSON shows them.
    const QJsonArray legs = options.json ? legsJson(engine) : QJsonArray();
    const int highest = engine.table().highest;

    engine.mnuGap_Click();
    records.push_back({"gap", engine.acresbox(), prompter.take()});
    engine.mnuPeri_Click();
    records.push_back({"perimeter", engine.acresbox(), prompter.take()});
    engine.mnuAcres_Click();
    records.push_back({"acres", engine.acresbox(), prompter.take()});
    engine.mnuHectares_Click();
    records.push_back({"hectares", engine.acresbox(), prompter.take()});

    if (!options.json) {
        for (const CommandRecord &r : records) {
            for (const std::string &m : r.messages)
                out += "! " + m + "\n";
            out += r.acresbox + "\n";
        }
        return 0;
    }
    QJsonObject commands;
    for (const CommandRecord &r : records) {
        QJsonArray messages;
        for (const std::string &m : r.messages)
            messages.append(qs(m));
        commands[r.name] = QJsonObject{{"acresbox", qs(r.acresbox)}, {"messages", messages}};
    }
    QJsonObject root;
    root["file"] = qs(options.file);
    root["units"] = unitsName(engine.units());
    root["scale"] = qs(engine.scaleText());
    root["canvas"] = QJsonArray{double(options.canvasWidth), double(options.canvasHeight)};
    root["highest"] = highest;
    root["scale_factor"] = singleJson(scaleFactor);
    root["autoscale"] = qs(autoscale);
    root["description"] = qs(engine.description());
    root["legs"] = legs;
    root["pob"] = groundPoint(pob, scaleFactor);
    root["end"] = groundPoint(end, scaleFactor);
    root["commands"] = commands;
    out += QJsonDocument(root).toJson(QJsonDocument::Indented).toStdString();
    return 0;
}

} // namespace

Command setupReport(CLI::App &app)
{
    auto raw = std::make_shared<MapArguments>();
    Command command;
    addMapOptions(app, *raw, {"--json", "--scale", "--units", "--canvas"}, command);
    command.usageError = usageError;
    command.run = [raw](CommandIo &io) { return report(*raw, io); };
    return command;
}

} // namespace quilmar
