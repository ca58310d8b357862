// quilmar calc: one converter or curve calculator of the Conversions menu run
// on one typed answer, as if ANSWER had been typed into its input box.
// Plain output: the new `Acresbox` text + "\n"; a message the window would
// show goes to standard error (text + "\n") with status 2; an answer that
// changes nothing prints nothing, status 0. --json: one object
// {"acresbox": text|null, "clipboard": text|null, "messages": [texts]} + "\n",
// status 2 when a message was shown. Status 1 with the usage for an unknown
// NAME or a wrong number of arguments.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>
#include <optional>
#include <string_view>

#include "cli_commands.h"
#include "curve_calculator.h"
#include "reciprocal_angle.h"
#include "unit_converter.h"

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

const char *const kCalcUsage =
    "usage: quilmar calc [--json] NAME ANSWER\n"
    "  NAME: chains, links, rods, perches, furlongs, varas, yards, feet2meters, meters2feet,\n"
    "        arc, chord, angle, tangent, reciprocal\n"
    "  ANSWER: the whole answer as one argument, e.g. \"150.35 250.50\"\n";


QString qs(const std::string &s) { return QString::fromUtf8(s.data(), qsizetype(s.size())); }

QJsonValue optionalText(const std::optional<std::string> &text)
{
    return text ? QJsonValue(qs(*text)) : QJsonValue(QJsonValue::Null);
}

struct CalcArguments {
    bool json = false;
    std::vector<std::string> words; ///< NAME ANSWER
    const CLI::App *app = nullptr;
};

int calcUsage(const std::string &, CommandIo &io)
{
    io.err += kCalcUsage;
    return 1;
}

int calc(const CalcArguments &raw, CommandIo &io)
{
    std::string &out = io.out;
    std::string &err = io.err;
    if (raw.words.size() != 2 || !raw.app->remaining().empty())
        return calcUsage({}, io);
    const bool json = raw.json;
    const std::optional<Run> run = calculatorByName(raw.words[0]);
    if (!run) {
        err += "quilmar calc: unknown calculator \"" + raw.words[0] + "\"\n" + kCalcUsage;
        return 1;
    }
    const CalcResult result = (*run)(raw.words[1]);
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

} // namespace

Command setupCalc(CLI::App &app)
{
    auto raw = std::make_shared<CalcArguments>();
    raw->app = &app;
    app.add_flag("--json", raw->json, "Print {\"acresbox\", \"clipboard\", \"messages\"} as JSON");
    app.add_option("words", raw->words, "NAME (chains, links, rods, perches, furlongs, varas, yards, feet2meters, "
                                        "meters2feet, arc, chord, angle, tangent, reciprocal) and the ANSWER typed "
                                        "into its input box, as one argument");
    Command command;
    command.usageError = calcUsage;
    command.run = [raw](CommandIo &io) { return calc(*raw, io); };
    return command;
}

} // namespace quilmar
