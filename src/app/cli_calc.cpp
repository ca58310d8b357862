// quilmar calc and quilmar convert: the Conversions menu without the window.
// The only file of the calculators' command line that uses Qt (for JSON).

#include "cli_calc.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>
#include <optional>
#include <string_view>

#include "curve_calculator.h"
#include "cli_options.h"
#include "engine.h"
#include "global_conversion.h"
#include "map_file.h"
#include "reciprocal_angle.h"
#include "recording_prompter.h"
#include "unit_converter.h"
#include "vb_math.h"

namespace quilmar {

namespace {

using Run = std::function<CalcResult(std::string_view)>;

std::optional<Run> calculatorByName(std::string_view name)
{
    struct Named {
        const char *name;
        UnitConverter converter;
    };
    static const Named converters[] = {
        {"chains", UnitConverter::Chains},
        {"links", UnitConverter::Links},
        {"rods", UnitConverter::Rods},
        {"perches", UnitConverter::Perches},
        {"furlongs", UnitConverter::Furlongs},
        {"varas", UnitConverter::Varas},
        {"yards", UnitConverter::Yards},
        {"feet2meters", UnitConverter::FeetToMeters},
        {"meters2feet", UnitConverter::MetersToFeet},
    };
    for (const Named &n : converters)
        if (name == n.name)
            return [c = n.converter](std::string_view a) { return runConverter(c, a); };
    if (name == "arc")
        return [](std::string_view a) { return runCurveCalculator(CurveCalculator::Arc, a); };
    if (name == "chord")
        return [](std::string_view a) { return runCurveCalculator(CurveCalculator::Chord, a); };
    if (name == "angle")
        return [](std::string_view a) { return runCurveCalculator(CurveCalculator::Angle, a); };
    if (name == "tangent")
        return [](std::string_view a) { return runCurveCalculator(CurveCalculator::Tangent, a); };
    if (name == "reciprocal")
        return [](std::string_view a) { return reciprocalAngle(a); };
    return std::nullopt;
}

std::optional<GlobalConversion> conversionByName(std::string_view name)
{
    if (name == "meters")
        return GlobalConversion::toFeet(0);
    if (name == "chains" || name == "links")
        return GlobalConversion::toFeet(1);
    if (name == "rods" || name == "perches")
        return GlobalConversion::toFeet(2);
    if (name == "furlongs")
        return GlobalConversion::toFeet(3);
    if (name == "varas")
        return GlobalConversion::toFeet(4);
    if (name == "yards")
        return GlobalConversion::toFeet(5);
    if (name == "feet")
        return GlobalConversion::feetToMeters();
    return std::nullopt;
}

const char *const kCalcUsage =
    "usage: quilmar calc [--json] NAME ANSWER\n"
    "  NAME: chains, links, rods, perches, furlongs, varas, yards, feet2meters, meters2feet,\n"
    "        arc, chord, angle, tangent, reciprocal\n"
    "  ANSWER: the whole answer as one argument, e.g. \"150.35 250.50\"\n";

const char *const kConvertUsage =
    "usage: quilmar convert FROM FILE.map [-o OUT.map]\n"
    "  FROM: meters, chains (links), rods (perches), furlongs, varas, yards: to feet; feet: to meters\n";

QString qs(const std::string &s) { return QString::fromUtf8(s.data(), qsizetype(s.size())); }

QJsonValue optionalText(const std::optional<std::string> &text)
{
    return text ? QJsonValue(qs(*text)) : QJsonValue(QJsonValue::Null);
}

} // namespace

int runCalcCommand(const std::vector<std::string> &args, std::string &out, std::string &err)
{
    size_t first = 0;
    const bool json = !args.empty() && args[0] == "--json";
    if (json)
        first = 1;
    if (args.size() - first != 2) {
        err += kCalcUsage;
        return 1;
    }
    const std::optional<Run> run = calculatorByName(args[first]);
    if (!run) {
        err += "quilmar calc: unknown calculator \"" + args[first] + "\"\n" + kCalcUsage;
        return 1;
    }
    const CalcResult result = (*run)(args[first + 1]);
    const int status = result.messages.empty() ? 0 : 2;

    if (json) {
        QJsonArray messages;
        for (const std::string &m : result.messages)
            messages.append(qs(m));
        QJsonObject o;
        o["acresbox"] = optionalText(result.acresbox);
        o["clipboard"] = optionalText(result.clipboard);
        o["messages"] = messages;
        out += QJsonDocument(o).toJson(QJsonDocument::Compact).toStdString() + "\n";
        return status;
    }
    if (result.acresbox)
        out += *result.acresbox + "\n";
    for (const std::string &m : result.messages)
        err += m + "\n";
    return status;
}

int runConvertCommand(const std::vector<std::string> &args, std::string &out, std::string &err)
{
    std::vector<std::string> positional;
    std::string output;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "-o" && i + 1 < args.size())
            output = args[++i];
        else
            positional.push_back(args[i]);
    }
    if (positional.size() != 2) {
        err += kConvertUsage;
        return 1;
    }
    const std::optional<GlobalConversion> conversion = conversionByName(positional[0]);
    if (!conversion) {
        err += "quilmar convert: unknown unit \"" + positional[0] + "\"\n" + kConvertUsage;
        return 1;
    }
    const std::string &input = positional[1];

    RecordingPrompter prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setScaleText("Standard");
    if (const OpenOutcome opened = engine.openMapFile(input); !opened.ok()) {
        err += "quilmar convert: " +
               (opened.status == MapReadStatus::NotFound ? opened.reason : "cannot read " + input + ": " + opened.reason) +
               "\n";
        return 1;
    }
    // Messages of the drawing that follows an open do not concern the conversion.
    prompter.take();
    try {
        engine.metrix_Click(conversion->apply(engine.editTable()));
    } catch (const VbError &e) {
        err += "quilmar convert: " + e.description() + "\n";
        return 2;
    }
    return emitMapFile("convert", engine.mapFileBytes(), output, out, err);
}

} // namespace quilmar
