#include "vocabulary.h"

#include "ground_units.h"

#include <array>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quilmar::deedtext {

namespace {

// The program's own factors, from its one table of ground units.
constexpr double kChain = groundUnitFactor(GroundUnit::Chains).feet;
constexpr double kLink = groundUnitFactor(GroundUnit::Links).feet;
constexpr double kRod = groundUnitFactor(GroundUnit::Rods).feet;
constexpr double kPerch = groundUnitFactor(GroundUnit::Perches).feet;
constexpr double kVara = groundUnitFactor(GroundUnit::Varas).feet;
constexpr double kYard = groundUnitFactor(GroundUnit::Yards).feet;
constexpr double kMetre = groundUnitFactor(GroundUnit::Meters).feet;

struct UnitRow {
    std::string_view word;
    UnitInfo info;
};

// Every spelling of every unit, with its factor to feet. Abbreviations that are
// also ordinary words ("in", "r", "c", "l") are left out on purpose; "p" after a
// number is a pole ("40 p."), a page number comes after its word ("p. 22").
constexpr UnitRow kUnits[] = {
    {"feet", {"foot", 1.0}}, {"foot", {"foot", 1.0}}, {"ft", {"foot", 1.0}}, {"fts", {"foot", 1.0}},
    {"inch", {"inch", 1.0 / 12.0}}, {"inches", {"inch", 1.0 / 12.0}}, {"ins", {"inch", 1.0 / 12.0}},
    {"chain", {"chain", kChain}}, {"chains", {"chain", kChain}}, {"ch", {"chain", kChain}}, {"chs", {"chain", kChain}},
    {"chns", {"chain", kChain}}, {"cha", {"chain", kChain}},
    {"link", {"link", kLink}}, {"links", {"link", kLink}}, {"lk", {"link", kLink}}, {"lks", {"link", kLink}},
    {"li", {"link", kLink}},
    {"pole", {"pole", kRod}}, {"poles", {"pole", kRod}}, {"po", {"pole", kRod}}, {"p", {"pole", kRod}}, {"pol", {"pole", kRod}}, {"pls", {"pole", kRod}},
    {"rod", {"rod", kRod}}, {"rods", {"rod", kRod}}, {"rds", {"rod", kRod}}, {"rd", {"rod", kRod}},
    {"perch", {"perch", kPerch}}, {"perches", {"perch", kPerch}}, {"per", {"perch", kPerch}}, {"prs", {"perch", kPerch}},
    {"vara", {"vara", kVara}}, {"varas", {"vara", kVara}}, {"vrs", {"vara", kVara}}, {"vs", {"vara", kVara}},
    {"metre", {"metre", kMetre, true}}, {"metres", {"metre", kMetre, true}}, {"meter", {"metre", kMetre, true}},
    {"meters", {"metre", kMetre, true}}, {"m", {"metre", kMetre, true}}, {"mtrs", {"metre", kMetre, true}},
    {"mts", {"metre", kMetre, true}}, {"mtr", {"metre", kMetre, true}}, {"metro", {"metre", kMetre, true}},
    {"metros", {"metre", kMetre, true}},
    {"yard", {"yard", kYard}}, {"yards", {"yard", kYard}}, {"yd", {"yard", kYard}}, {"yds", {"yard", kYard}},
    // Units the program has no factor for: read, named, and flagged.
    {"arpent", {"arpent", 0, false, false}}, {"arpents", {"arpent", 0, false, false}},
    {"ell", {"ell", 0, false, false}}, {"ells", {"ell", 0, false, false}},
    {"league", {"league", 0, false, false}}, {"leagues", {"league", 0, false, false}},
    {"furlong", {"furlong", 0, false, false}}, {"furlongs", {"furlong", 0, false, false}},
    {"toise", {"toise", 0, false, false}}, {"toises", {"toise", 0, false, false}},
    {"mile", {"mile", 0, false, false}}, {"miles", {"mile", 0, false, false}},
    {"cordel", {"cordel", 0, false, false}}, {"cordeles", {"cordel", 0, false, false}},
    {"pace", {"pace", 0, false, false}}, {"paces", {"pace", 0, false, false}},
    {"fathom", {"fathom", 0, false, false}}, {"fathoms", {"fathom", 0, false, false}},
    {"kilometre", {"kilometre", 0, false, false}}, {"kilometres", {"kilometre", 0, false, false}},
    {"kilometer", {"kilometre", 0, false, false}}, {"kilometers", {"kilometre", 0, false, false}},
    {"km", {"kilometre", 0, false, false}}, {"cm", {"centimetre", 0, false, false}},
};

constexpr std::pair<std::string_view, int> kNumberWords[] = {
    {"zero", 0}, {"one", 1}, {"two", 2}, {"three", 3}, {"four", 4}, {"five", 5}, {"six", 6},
    {"seven", 7}, {"eight", 8}, {"nine", 9}, {"ten", 10}, {"eleven", 11}, {"twelve", 12},
    {"thirteen", 13}, {"fourteen", 14}, {"fifteen", 15}, {"sixteen", 16}, {"seventeen", 17},
    {"eighteen", 18}, {"nineteen", 19}, {"twenty", 20}, {"thirty", 30}, {"forty", 40},
    {"fourty", 40}, {"fifty", 50}, {"sixty", 60}, {"seventy", 70}, {"eighty", 80}, {"ninety", 90},
    {"hundred", 100}, {"thousand", 1000},
};

constexpr std::pair<std::string_view, int> kFractionWords[] = {
    {"half", 2}, {"halves", 2}, {"third", 3}, {"thirds", 3}, {"quarter", 4}, {"quarters", 4},
    {"fourth", 4}, {"fourths", 4}, {"eighth", 8}, {"eighths", 8}, {"tenth", 10}, {"tenths", 10},
    {"hundredth", 100}, {"hundredths", 100},
};

// Scanner and typing slips whose meaning is certain.
constexpr std::pair<std::string_view, std::string_view> kRepairs[] = {
    {"chams", "chains"}, {"chaíns", "chains"}, {"cbains", "chains"}, {"ehains", "chains"},
    {"chalns", "chains"}, {"chians", "chains"}, {"chans", "chains"}, {"cliains", "chains"},
    {"hnks", "links"}, {"liuks", "links"}, {"linlts", "links"}, {"lınks", "links"}, {"lirks", "links"},
    {"iinks", "links"}, {"poies", "poles"}, {"polcs", "poles"}, {"pules", "poles"}, {"poleS", "poles"},
    {"perchcs", "perches"}, {"fect", "feet"}, {"fcet", "feet"}, {"feel", "feet"}, {"teet", "feet"},
    {"fet", "feet"}, {"feets", "feet"}, {"chian", "chain"}, {"chians", "chains"}, {"poels", "poles"},
    {"perchs", "perches"}, {"lnks", "links"}, {"metrs", "metres"}, {"meteres", "metres"}, {"feeet", "feet"}, {"ieet", "feet"},
    {"thenee", "thence"}, {"tbence", "thence"}, {"tlience", "thence"}, {"thencc", "thence"},
    {"thenc", "thence"}, {"thense", "thence"}, {"thcnce", "thence"}, {"theuce", "thence"},
    {"thenec", "thence"}, {"hence", "thence"}, {"tence", "thence"}, {"thnce", "thence"},
    {"degs", "degrees"}, {"degress", "degrees"}, {"dcgrees", "degrees"}, {"degreees", "degrees"},
    {"minues", "minutes"}, {"mintues", "minutes"}, {"minuets", "minutes"}, {"rninutes", "minutes"},
    {"secs", "seconds"}, {"seconos", "seconds"},
    {"begining", "beginning"}, {"beginnig", "beginning"}, {"bcginning", "beginning"},
    {"beginuing", "beginning"}, {"commencng", "commencing"},
    {"nortb", "north"}, {"soutb", "south"}, {"nortli", "north"}, {"soutli", "south"}, {"wcst", "west"},
    {"radlus", "radius"}, {"raduis", "radius"}, {"chrod", "chord"},
};

constexpr std::string_view kApproximate[] = {
    "northerly", "southerly", "easterly", "westerly", "northeasterly", "northwesterly",
    "southeasterly", "southwesterly", "northwardly", "southwardly", "eastwardly", "westwardly",
    "northeastwardly", "northwestwardly", "southeastwardly", "southwestwardly", "northward",
    "southward", "eastward", "westward", "northwards", "southwards", "eastwards", "westwards",
    "northeastward", "northwestward", "southeastward", "southwestward",
};

constexpr std::string_view kSideNouns[] = {
    "line", "lines", "side", "sides", "boundary", "boundaries", "bank", "banks", "edge", "corner", "cor", "cnr",
    "corners", "end", "half", "quarter", "margin", "face", "wall", "fork", "branch", "part",
    "portion", "right", "row", "carolina", "dakota", "virginia", "street", "st", "avenue", "ave",
    "road", "rd", "main", "lot", "lots", "most", "extremity", "terminus", "fence", "of", "one",
    "fraction", "tract", "addition", "boulevard", "blvd", "lane", "drive", "highway", "township",
    "range", "section", "face", "curb", "gutter", "shore", "water", "abutment", "point", "ridge",
    "prong", "bound", "limits", "limit", "ditch", "wing", "dimension", "feet",
};

constexpr std::string_view kLabelWords[] = {
    "section", "sec", "sections", "township", "twp", "range", "rng", "lot", "lots", "block", "blk",
    "book", "bk", "page", "pages", "pg", "pgs", "volume", "vol", "tract", "parcel", "no", "nos",
    "number", "#", "instrument", "inst", "document", "doc", "unit", "phase", "plat", "map", "sheet",
    "chapter", "cabinet", "slide", "film", "reel", "route", "highway", "hwy", "deed", "folio", "liber",
    "survey", "abstract", "grant", "patent", "year", "dated", "district", "precinct", "ward", "square",
    "sq", "sr", "us", "interstate", "article", "item", "exhibit", "schedule", "series", "docket",
    "file", "drawer", "folder", "reception", "entry", "claim", "ordinance", "code", "subdivision",
    "tax", "parcels", "pin", "apn", "id", "case", "order", "resolution", "am", "pm", "course", "call",
};

// After any length: the length is a width or a depth, not a course.
constexpr std::string_view kWidthNouns[] = {
    "wide", "width", "strip", "road", "street", "alley", "easement", "setback", "drive", "lane",
    "highway", "avenue", "way", "right", "row", "square", "high", "deep", "thick", "tall", "x", "by",
    "buffer", "utility", "drainage", "access", "ingress", "sidewalk", "walk", "private", "public",
    "county", "state", "frontage", "front", "rear", "depth",
};

// After inches: the length is the size of a marker.
constexpr std::string_view kMarkerNouns[] = {
    "pipe", "pin", "rod", "rebar", "bar", "iron", "bolt", "spike", "nail", "cap", "capped", "steel",
    "galvanized", "diameter", "dia", "od", "concrete", "stone", "marker", "monument", "crimped",
    "open", "solid", "ip", "ir", "ipf", "irf", "pvc", "post", "reinforcing", "angle", "hub", "drill",
    "copper", "aluminum", "brass", "disk", "disc", "tack", "round", "pinched", "square",
};

constexpr std::string_view kCallCut[] = {
    "whence", "witness", "witnessed", "witnesses", "containing", "contains", "contain",
    "record", "rec", "recorded", "variation", "declination", "magnetic", "formerly",
};

constexpr std::string_view kAreaWords[] = {
    "acre", "acres", "ac", "hectare", "hectares", "ha", "square", "sq", "sqft", "arpent2",
};

// The tables are looked up once per word of every call: hashed on first use.
using WordSet = std::unordered_set<std::string_view>;
template <typename Table>
WordSet setOf(const Table &table)
{
    return WordSet(std::begin(table), std::end(table));
}

// Whether @p word is in @p table, looked up in a set built on first use.
template <const auto &table> bool inTable(std::string_view word)
{
    static const WordSet words = setOf(table);
    return words.count(word) != 0;
}

template <typename Table>
auto mapOf(const Table &table)
{
    std::unordered_map<std::string_view, decltype(std::begin(table)->second)> m;
    for (const auto &row : table)
        m.emplace(row.first, row.second);
    return m;
}

} // namespace

std::optional<UnitInfo> unitNamed(std::string_view word)
{
    static const auto units = [] {
        std::unordered_map<std::string_view, UnitInfo> m;
        for (const auto &row : kUnits)
            m.emplace(row.word, row.info);
        return m;
    }();
    const auto it = units.find(word);
    return it == units.end() ? std::nullopt : std::optional<UnitInfo>(it->second);
}

UnitInfo feetUnit() { return {"foot", 1.0}; }
UnitInfo inchUnit() { return {"inch", 1.0 / 12.0}; }

int numberWordValue(std::string_view word)
{
    static const auto words = mapOf(kNumberWords);
    const auto it = words.find(word);
    return it == words.end() ? -1 : it->second;
}

int fractionWordDenominator(std::string_view word)
{
    static const auto words = mapOf(kFractionWords);
    const auto it = words.find(word);
    return it == words.end() ? 0 : it->second;
}

std::string_view repairedWord(std::string_view word)
{
    static const auto repairs = mapOf(kRepairs);
    const auto it = repairs.find(word);
    return it == repairs.end() ? word : it->second;
}

bool isThenceWord(std::string_view word) { return word == "thence" || word == "then" || word == "thenc"; }
bool isApproximateDirection(std::string_view word) { return inTable<kApproximate>(word); }
bool isSideNoun(std::string_view word) { return inTable<kSideNouns>(word); }
bool isLabelWord(std::string_view word) { return inTable<kLabelWords>(word); }
bool isWidthNoun(std::string_view word) { return inTable<kWidthNouns>(word); }
bool isMarkerNoun(std::string_view word) { return inTable<kMarkerNouns>(word); }
bool isCallCutWord(std::string_view word) { return inTable<kCallCut>(word); }
bool isAreaWord(std::string_view word) { return inTable<kAreaWords>(word); }

} // namespace quilmar::deedtext
