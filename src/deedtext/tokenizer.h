#pragma once
// The first pass of the deed reader: text to tokens. Numbers (with decimals,
// thousands commas, fractions "1/2", "½", mixed numbers "60 1/4", and number
// words "six and one half", "one hundred twenty-five"), words (lower case,
// scanner slips repaired, "P.O.B." joined to "pob"), the marks of degrees,
// minutes and seconds (° ' " and their typographic and scanned stand-ins) and
// punctuation. Every token keeps the byte span it was read from.

#include <string>
#include <string_view>
#include <vector>

#include "deed_text.h"

namespace quilmar::deedtext {

enum class TokKind {
    Number,    ///< value holds the number
    Word,      ///< word holds the lower-case, repaired word
    Degree,    ///< ° º ˚, or "?" standing for one
    Minute,    ///< ' ′ ’ ‘ ` ´
    Second,    ///< " ″ ” “ or ''
    Period,
    Comma,
    Semicolon,
    Colon,
    LParen,    ///< ( [ {
    RParen,    ///< ) ] }
    Hyphen,    ///< - – —
    Equals,
    Lost,      ///< a scanned digit that cannot be read: "2?°", U+FFFD
    Other,
};

struct Token {
    TokKind kind = TokKind::Other;
    Span span;
    std::string word;
    double value = 0;
    bool fraction = false;      ///< a number below one written as a fraction: "1/2", "½", "one half"
    bool fromWords = false;     ///< the number was written in words
    bool disagree = false;      ///< words and figures given together do not agree
    bool spaceBefore = false;   ///< blank or line break right before the token
    bool lineStart = false;     ///< first token of its line
    bool isWord(std::string_view w) const { return kind == TokKind::Word && word == w; }
};

/// Splits @p text into tokens. Never fails: a byte that is not valid UTF-8 is
/// read as its Windows-1252 character; characters without meaning here become
/// Other tokens.
std::vector<Token> tokenize(std::string_view text);

} // namespace quilmar::deedtext
