#pragma once
// The words a deed uses, as tables: units of length and their factors, number
// words, the phrases that give a description its structure, and the usual
// damage a scanner does to words. The reader looks words up here; it holds no
// word lists of its own.

#include <optional>
#include <string_view>

namespace quilmar::deedtext {

/// A unit of length. factorToFeet is the program's own factor (a vara is
/// 2.7777778 feet, a metre 3.281). Units outside the program's table have
/// known = false: a call in one of them is flagged, never converted.
struct UnitInfo {
    std::string_view name;  ///< canonical name for messages: "chain", "arpent"
    double factorToFeet = 0;
    bool metric = false;
    bool known = true;
};

/// The unit that the lower-case word @p word names ("chains", "ch", "lks",
/// "poles", "perch", "varas", "ft", "metres", "m", "arpents"...), if any.
/// "in" is not included (it is a unit only after feet; the reader decides).
std::optional<UnitInfo> unitNamed(std::string_view word);
/// The unit of feet and of inches, for the marks ' and " after a number.
UnitInfo feetUnit();
UnitInfo inchUnit();

/// Value of a number word: "one" 1 ... "nineteen" 19, "twenty" 20 ... "ninety"
/// 90; "hundred" 100 and "thousand" 1000 multiply. -1 for any other word.
int numberWordValue(std::string_view word);
/// Denominator of a fraction word: "half" 2, "halves" 2, "third" 3, "quarter"
/// 4, "fourth" 4, "eighth" 8, "tenth" 10, "hundredth" 100 (plural forms too);
/// 0 for any other word.
int fractionWordDenominator(std::string_view word);

/// The word a scanner or a hurried typist made of a deed word: "chams" ->
/// "chains", "hnks" -> "links", "thenee" -> "thence". Returns @p word itself
/// when it is not a known slip.
std::string_view repairedWord(std::string_view word);

/// Words that introduce a call: "thence", "then".
bool isThenceWord(std::string_view word);
/// Approximate directions: "northerly", "Southeastwardly", "westward"...
bool isApproximateDirection(std::string_view word);
/// Nouns after which a direction word describes a side, not a course: the
/// "east" of "the east line", "north" of "North Carolina".
bool isSideNoun(std::string_view word);
/// Words after which a number is a label, not a length: section, lot, block,
/// book, page, township, range, tract...
bool isLabelWord(std::string_view word);
/// Words after which a length is a width or a depth, not a course: "wide",
/// "road", "easement", "deep"...
bool isWidthNoun(std::string_view word);
/// Words after which a length in inches is the size of a marker: "pipe", "pin"...
bool isMarkerNoun(std::string_view word);
/// Words that end the useful part of a call: a witness tree ("from which",
/// "whence", "bears"), an area ("containing"), a record call ("record").
bool isCallCutWord(std::string_view word);
/// Area units: "acres", "ac", "hectares", "square"... A number before one is an
/// area, not a length.
bool isAreaWord(std::string_view word);

} // namespace quilmar::deedtext
