#include "tokenizer.h"

#include <cmath>
#include <cstdint>

#include "vocabulary.h"

namespace quilmar::deedtext {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isAlpha(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
char lower(char c) { return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c; }
// Letters a scanner gives for a digit: l and I for one, O and o for zero.
bool isDigitLookalike(char c) { return c == 'l' || c == 'I' || c == 'O' || c == 'o'; }
char lookalikeDigit(char c) { return (c == 'l' || c == 'I') ? '1' : '0'; }

/// A byte that is no part of UTF-8, read as Windows-1252 (the text of a deed
/// saved by an older Windows editor: ° as B0, ½ as BD, ’ as 92), or
/// 0xFFFFFFFF for a byte without meaning here.
uint32_t windows1252(unsigned char b)
{
    switch (b) {
    case 0x91: return 0x2018;
    case 0x92: return 0x2019;
    case 0x93: return 0x201C;
    case 0x94: return 0x201D;
    case 0x96: return 0x2013;
    case 0x97: return 0x2014;
    default: return b >= 0xA0 ? b : 0xFFFFFFFF;
    }
}

/// Decodes one UTF-8 character at @p i; @p length receives its byte count (1
/// for an invalid byte, which decodes as its Windows-1252 character).
uint32_t decode(std::string_view s, size_t i, size_t &length)
{
    const auto b0 = static_cast<unsigned char>(s[i]);
    length = 1;
    if (b0 < 0x80)
        return b0;
    int extra = 0;
    uint32_t cp = 0;
    if ((b0 & 0xE0) == 0xC0) { extra = 1; cp = b0 & 0x1F; }
    else if ((b0 & 0xF0) == 0xE0) { extra = 2; cp = b0 & 0x0F; }
    else if ((b0 & 0xF8) == 0xF0) { extra = 3; cp = b0 & 0x07; }
    else return windows1252(b0);
    if (i + extra >= s.size())
        return windows1252(b0);
    for (int k = 1; k <= extra; ++k) {
        const auto b = static_cast<unsigned char>(s[i + k]);
        if ((b & 0xC0) != 0x80)
            return windows1252(b0);
        cp = (cp << 6) | (b & 0x3F);
    }
    length = size_t(extra) + 1;
    return cp;
}

bool isBlank(uint32_t cp) { return cp == ' ' || cp == '\t' || cp == 0xA0 || cp == '\f' || cp == '\v' || cp == 0x2009 || cp == 0x202F; }

double vulgarFraction(uint32_t cp)
{
    switch (cp) {
    case 0xBD: return 0.5;
    case 0xBC: return 0.25;
    case 0xBE: return 0.75;
    case 0x2153: return 1.0 / 3.0;
    case 0x2154: return 2.0 / 3.0;
    case 0x215B: return 0.125;
    case 0x215C: return 0.375;
    case 0x215D: return 0.625;
    case 0x215E: return 0.875;
    default: return -1;
    }
}

class Lexer {
public:
    explicit Lexer(std::string_view text) : m_s(text) { m_out.reserve(text.size() / 4 + 16); }

    std::vector<Token> run()
    {
        while (m_i < m_s.size())
            step();
        return std::move(m_out);
    }

private:
    void push(TokKind kind, size_t begin, size_t end)
    {
        Token t;
        t.kind = kind;
        t.span = {begin, end};
        t.spaceBefore = m_space;
        t.lineStart = m_lineStart;
        m_space = false;
        m_lineStart = false;
        m_out.push_back(std::move(t));
    }

    char at(size_t i) const { return i < m_s.size() ? m_s[i] : '\0'; }

    /// Where a run of digits and the capital-letter look-alikes (l, I, O) that
    /// starts at @p i ends, when nothing alphabetic follows it: "1OO feet",
    /// "lO E", "OO." read as numbers; "Ill." or "OIL" do not (see callers).
    /// Returns @p i when the run runs on into a word.
    size_t lookalikeRunEnd(size_t i) const
    {
        size_t j = i;
        while (isDigit(at(j)) || (isDigitLookalike(at(j)) && at(j) != 'o'))
            ++j;
        return isAlpha(at(j)) ? i : j;
    }

    /// A number that a scanner wrote wholly in letters: at least two of them
    /// with an O among them ("lO", "IO"), or one right before a degree sign
    /// ("O°"). Runs of I and l alone are Roman numerals and abbreviations
    /// ("Tract II", "Ill.") and stay words.
    bool lettersAsNumber(size_t i) const
    {
        const size_t end = lookalikeRunEnd(i);
        if (end == i)
            return false;
        bool zero = false;
        for (size_t k = i; k < end; ++k)
            zero = zero || m_s[k] == 'O' || isDigit(m_s[k]);
        if (end - i >= 2)
            return zero;
        return at(end) == '\xC2' && at(end + 1) == '\xB0';
    }

    /// A small "o" at @p i right after digits that stands for the degree sign:
    /// not followed by a letter, and not a zero inside a number ("1o0") unless
    /// minutes follow ("45o30'").
    bool smallDegree(size_t i) const
    {
        if (isAlpha(at(i + 1)))
            return false;
        if (!isDigit(at(i + 1)))
            return true;
        size_t j = i + 1;
        while (isDigit(at(j)))
            ++j;
        return at(j) == '\'' || (at(j) == '\xE2' && at(j + 1) == '\x80');
    }

    /// A zero scanned for the letter O at the start of a short word: "0F",
    /// "0N", "0R" ("POINT 0F BEGINNING"). Other words after a zero stay a
    /// number and its unit ("0ft").
    bool zeroForLetterO(size_t i) const
    {
        if (at(i) != '0' || (i > 0 && (isAlpha(at(i - 1)) || isDigit(at(i - 1)) || at(i - 1) == '.')))
            return false;
        size_t j = i + 1;
        std::string rest;
        while (isAlpha(at(j)) && rest.size() < 4)
            rest += lower(at(j++));
        if (isAlpha(at(j)) || isDigit(at(j)))
            return false;
        return rest == "f" || rest == "n" || rest == "r" || rest == "ne" || rest == "ver";
    }

    /// A hyphen at @p i that ends a line, with a lower-case letter opening the next.
    bool hyphenatedBreak(size_t i) const
    {
        size_t j = i + 1;
        while (at(j) == ' ' || at(j) == '\t')
            ++j;
        if (at(j) != '\n' && at(j) != '\r')
            return false;
        while (at(j) == '\r' || at(j) == '\n' || at(j) == ' ' || at(j) == '\t')
            ++j;
        return at(j) >= 'a' && at(j) <= 'z';
    }

    void step()
    {
        const char c = m_s[m_i];
        if (c == '\n' || c == '\r') {
            m_space = m_lineStart = true;
            ++m_i;
            return;
        }
        const char prev = m_i > 0 ? m_s[m_i - 1] : ' ';
        if (zeroForLetterO(m_i))
            return word();
        if (isDigit(c)
            || (isDigitLookalike(c) && c != 'o' && !isAlpha(prev) && (isDigit(at(m_i + 1)) || lettersAsNumber(m_i))))
            return number();
        if (isAlpha(c))
            return word();
        size_t len = 1;
        const uint32_t cp = decode(m_s, m_i, len);
        const size_t begin = m_i;
        m_i += len;
        if (isBlank(cp)) {
            m_space = true;
            return;
        }
        if (const double f = vulgarFraction(cp); f >= 0) {
            // "18½": the fraction joins the whole number right before it.
            if (!m_out.empty() && m_out.back().kind == TokKind::Number && !m_out.back().fraction
                && m_out.back().span.end == begin && m_out.back().value == std::floor(m_out.back().value)) {
                m_out.back().value += f;
                m_out.back().span.end = m_i;
                return;
            }
            push(TokKind::Number, begin, m_i);
            m_out.back().value = f;
            m_out.back().fraction = true;
            return;
        }
        switch (cp) {
        case 0xB0: case 0xBA: case 0x2DA: return push(TokKind::Degree, begin, m_i);
        case '\'': case 0x2032: case 0x2019: case 0x2018: case '`': case 0xB4:
            // An apostrophe inside a word ("Brown's") belongs to the word.
            if (begin > 0 && isAlpha(m_s[begin - 1]) && isAlpha(at(m_i)) && !m_out.empty()
                && m_out.back().kind == TokKind::Word && m_out.back().span.end == begin) {
                m_glue = true;
                return;
            }
            if (!m_out.empty() && m_out.back().kind == TokKind::Minute && m_out.back().span.end == begin) {
                m_out.back().kind = TokKind::Second; // '' written for "
                m_out.back().span.end = m_i;
                return;
            }
            return push(TokKind::Minute, begin, m_i);
        case '"': case 0x2033: case 0x201D: case 0x201C: return push(TokKind::Second, begin, m_i);
        case '.': return push(TokKind::Period, begin, m_i);
        case ',': return push(TokKind::Comma, begin, m_i);
        case ';': return push(TokKind::Semicolon, begin, m_i);
        case ':': return push(TokKind::Colon, begin, m_i);
        case '(': case '[': case '{': return push(TokKind::LParen, begin, m_i);
        case ')': case ']': case '}': return push(TokKind::RParen, begin, m_i);
        case '-': case 0x2013: case 0x2014: case 0x2010: case 0x2212: return push(TokKind::Hyphen, begin, m_i);
        case '=': return push(TokKind::Equals, begin, m_i);
        case '&':
            push(TokKind::Word, begin, m_i);
            m_out.back().word = "and";
            return;
        case '#':
            push(TokKind::Word, begin, m_i);
            m_out.back().word = "#";
            return;
        case 0x394: case 0x3B4: // Δ δ
            push(TokKind::Word, begin, m_i);
            m_out.back().word = "delta";
            return;
        case 0xFFFD: return push(TokKind::Lost, begin, m_i);
        case '?': return question(begin);
        case '*':
            // "45*30'": a typed stand-in for the degree sign between digits.
            if (begin > 0 && isDigit(m_s[begin - 1]) && (isDigit(at(m_i)) || (at(m_i) == ' ' && isDigit(at(m_i + 1)))))
                return push(TokKind::Degree, begin, m_i);
            return push(TokKind::Other, begin, m_i);
        default: return push(TokKind::Other, begin, m_i);
        }
    }

    // A "?" right after digits is a scanned degree sign when a number or a
    // direction letter follows ("45?30'", "N 45? E"); next to another mark it
    // stands for a lost digit ("2?°").
    void question(size_t begin)
    {
        const bool afterDigit = begin > 0 && isDigit(m_s[begin - 1]);
        const char next = at(m_i);
        size_t j = m_i;
        while (at(j) == ' ')
            ++j;
        const char after = at(j);
        const bool directionNext = (after == 'E' || after == 'W' || after == 'e' || after == 'w')
                                   && !isAlpha(at(j + 1));
        if (afterDigit && (isDigit(next) || (j > m_i && (isDigit(after) || directionNext))
                           || (j == m_i && directionNext)))
            return push(TokKind::Degree, begin, m_i);
        if (afterDigit || isDigit(next))
            return push(TokKind::Lost, begin, m_i);
        push(TokKind::Other, begin, m_i);
    }

    void number()
    {
        const size_t begin = m_i;
        std::string digits;
        auto takeDigits = [&] {
            while (m_i < m_s.size()) {
                const char c = m_s[m_i];
                if (isDigit(c)) {
                    digits += c;
                    ++m_i;
                } else if (c == 'o' && !digits.empty() && smallDegree(m_i)) {
                    // A typed small "o" after the degrees stands for the degree sign: "N 45o 30' E".
                    break;
                } else if (isDigitLookalike(c) && !digits.empty()
                           && ((digits.back() != '.'
                                && (isDigit(at(m_i + 1)) || (isDigitLookalike(at(m_i + 1)) && isDigit(at(m_i + 2)))
                                    || !isAlpha(at(m_i + 1))))
                               || (c != 'o' && lookalikeRunEnd(m_i) != m_i))) {
                    digits += lookalikeDigit(c);
                    ++m_i;
                } else if (isDigitLookalike(c) && digits.empty()) {
                    digits += lookalikeDigit(c);
                    ++m_i;
                } else {
                    break;
                }
            }
        };
        takeDigits();
        // Thousands commas: "1,234.5"; a comma followed by other than three digits is punctuation.
        while (at(m_i) == ',' && isDigit(at(m_i + 1)) && isDigit(at(m_i + 2)) && isDigit(at(m_i + 3))
               && !isDigit(at(m_i + 4)) && digits.size() <= 3 + 0 && at(m_i + 4) != '/') {
            ++m_i;
            takeDigits();
            if (digits.size() > 12)
                break;
        }
        // "100,50 m": a decimal comma, as metric descriptions write it.
        if (at(m_i) == ',' && isDigit(at(m_i + 1)) && digits.find('.') == std::string::npos) {
            size_t j = m_i + 1;
            while (isDigit(at(j)))
                ++j;
            size_t k = j;
            while (at(k) == ' ')
                ++k;
            const bool metre = (at(k) == 'm' || at(k) == 'M') && !isAlpha(at(k + 1));
            const bool metreWord = (at(k) == 'm' || at(k) == 'M') && (at(k + 1) == 'e' || at(k + 1) == 'E');
            if ((metre || metreWord) && j - m_i - 1 != 3) {
                digits += '.';
                digits.append(m_s.substr(m_i + 1, j - m_i - 1));
                m_i = j;
            }
        }
        if (at(m_i) == '.'
            && (isDigit(at(m_i + 1)) || (at(m_i + 1) != 'o' && isDigitLookalike(at(m_i + 1)) && lookalikeRunEnd(m_i + 1) != m_i + 1))) {
            digits += '.';
            ++m_i;
            takeDigits();
        }
        double value = std::strtod(digits.c_str(), nullptr);
        bool fraction = false;
        // "1/2", "50/100": a whole number over a whole number.
        if (at(m_i) == '/' && isDigit(at(m_i + 1)) && digits.find('.') == std::string::npos) {
            size_t j = m_i + 1;
            std::string den;
            while (j < m_s.size() && isDigit(m_s[j]) && den.size() < 9)
                den += m_s[j++];
            const double d = std::strtod(den.c_str(), nullptr);
            if (d > 0) {
                value /= d;
                fraction = true;
                m_i = j;
            }
        }
        push(TokKind::Number, begin, m_i);
        m_out.back().value = value;
        m_out.back().fraction = fraction;
        if (at(m_i) == 'o' && smallDegree(m_i)) {
            push(TokKind::Degree, m_i, m_i + 1);
            ++m_i;
        }
    }

    void word()
    {
        const size_t begin = m_i;
        std::string w;
        while (m_i < m_s.size()) {
            const char c = m_s[m_i];
            if (isAlpha(c)) {
                w += lower(c);
                ++m_i;
            } else if (c == '-' && hyphenatedBreak(m_i)) {
                // "begin-" at a line's end and "ning" on the next: one word.
                ++m_i;
                while (at(m_i) == '\r' || at(m_i) == '\n' || at(m_i) == ' ' || at(m_i) == '\t')
                    ++m_i;
            } else if (c == '0' && (!w.empty() || m_i == begin) && !isDigit(at(m_i + 1))
                       && !(w.size() == 1 && (w == "n" || w == "s" || w == "e" || w == "w"))) {
                w += 'o'; // zero scanned for the letter O: "T0", "P0INT"
                ++m_i;
            } else {
                break;
            }
        }
        // "BROWN'S": the apostrophe was glued; join the tail onto the word before.
        if (m_glue && !m_out.empty() && m_out.back().kind == TokKind::Word) {
            m_glue = false;
            m_out.back().word += w;
            m_out.back().span.end = m_i;
            return;
        }
        m_glue = false;
        // "TH." is thence, except as the ending of an ordinal ("5th").
        const bool ordinal = !m_out.empty() && m_out.back().kind == TokKind::Number && m_out.back().span.end == begin;
        if ((w == "th" || w == "thce" || w == "thc") && !ordinal)
            w = "thence";
        push(TokKind::Word, begin, m_i);
        m_out.back().word = std::string(repairedWord(w));
    }

    std::string_view m_s;
    size_t m_i = 0;
    bool m_space = false;
    bool m_lineStart = true;
    bool m_glue = false;
    std::vector<Token> m_out;
};

bool adjacent(const Token &a, const Token &b) { return a.span.end == b.span.begin; }

/// Writes tokens back into the vector they are read from, behind the reader.
class TokenWriter {
public:
    explicit TokenWriter(std::vector<Token> &t) : m_t(t) {}
    void push_back(Token &&token)
    {
        if (&m_t[m_n] != &token)
            m_t[m_n] = std::move(token);
        ++m_n;
    }
    bool empty() const { return m_n == 0; }
    size_t size() const { return m_n; }
    Token &back() { return m_t[m_n - 1]; }
    Token &operator[](size_t i) { return m_t[i]; }
    void pop_back() { --m_n; }
    void finish() { m_t.resize(m_n); }

private:
    std::vector<Token> &m_t;
    size_t m_n = 0;
};

// "P.O.B.", "T.P.O.B.", "N.E." written as single letters with points: one word.
void joinInitials(std::vector<Token> &t)
{
    // Compacted in place: the write position never passes the read position.
    TokenWriter out(t);
    for (size_t i = 0; i < t.size();) {
        if (t[i].kind == TokKind::Word && t[i].word.size() == 1) {
            std::string w = t[i].word;
            size_t j = i + 1;
            size_t end = t[i].span.end;
            while (j + 1 < t.size() && t[j].kind == TokKind::Period && adjacent(t[j - 1], t[j])
                   && adjacent(t[j], t[j + 1]) && t[j + 1].kind == TokKind::Word && t[j + 1].word.size() == 1) {
                w += t[j + 1].word;
                end = t[j + 1].span.end;
                j += 2;
            }
            if (w.size() >= 2) {
                Token joined = t[i];
                joined.word = w;
                joined.span.end = end;
                // The closing point belongs to the abbreviation.
                if (j < t.size() && t[j].kind == TokKind::Period && adjacent(t[j - 1], t[j])) {
                    joined.span.end = t[j].span.end;
                    ++j;
                }
                out.push_back(std::move(joined));
                i = j;
                continue;
            }
        }
        out.push_back(std::move(t[i]));
        ++i;
    }
    out.finish();
}

bool isNumberWord(const Token &t) { return t.kind == TokKind::Word && numberWordValue(t.word) >= 0; }

// Reads a fraction in words at @p i ("one half", "a half", "three quarters",
// "one-fourth"); @returns the value and sets @p next, or -1.
double fractionWords(const std::vector<Token> &t, size_t i, size_t &next)
{
    if (i >= t.size())
        return -1;
    double numerator = -1;
    if (t[i].isWord("a") || t[i].isWord("an"))
        numerator = 1;
    else if (t[i].kind == TokKind::Word && numberWordValue(t[i].word) > 0 && numberWordValue(t[i].word) < 100)
        numerator = numberWordValue(t[i].word);
    if (numerator < 0)
        return -1;
    size_t j = i + 1;
    if (j < t.size() && t[j].kind == TokKind::Hyphen)
        ++j;
    if (j >= t.size() || t[j].kind != TokKind::Word)
        return -1;
    const int den = fractionWordDenominator(t[j].word);
    if (den == 0)
        return -1;
    next = j + 1;
    return numerator / den;
}

// Number words to numbers: "one hundred and twenty-five", "thirty and a half",
// "six and one half", "sixty-two and 50/100".
void joinNumberWords(std::vector<Token> &t)
{
    // Compacted in place: the write position never passes the read position.
    TokenWriter out(t);
    // The fraction @p f in words from t[i] up to t[end - 1] becomes one number token.
    auto pushFraction = [&](size_t i, double f, size_t end) {
        Token n = t[i];
        n.kind = TokKind::Number;
        n.value = f;
        n.fraction = n.fromWords = true;
        n.span.end = t[end - 1].span.end;
        out.push_back(std::move(n));
    };
    for (size_t i = 0; i < t.size();) {
        size_t fracNext = 0;
        if (!isNumberWord(t[i])) {
            // A fraction alone: "one half", "a quarter".
            const double f = (t[i].kind == TokKind::Word && !t[i].isWord("a") && !t[i].isWord("an"))
                                 ? fractionWords(t, i, fracNext) : -1;
            if (f >= 0) {
                pushFraction(i, f, fracNext);
                i = fracNext;
                continue;
            }
            out.push_back(std::move(t[i]));
            ++i;
            continue;
        }
        if (const double f = fractionWords(t, i, fracNext); f >= 0) {
            pushFraction(i, f, fracNext);
            i = fracNext;
            continue;
        }
        double total = 0, current = 0;
        size_t j = i, last = i;
        bool any = false;
        while (j < t.size()) {
            if (isNumberWord(t[j])) {
                const int v = numberWordValue(t[j].word);
                if (v == 100)
                    current = (current == 0 ? 1 : current) * 100;
                else if (v == 1000) {
                    total += (current == 0 ? 1 : current) * 1000;
                    current = 0;
                } else {
                    current += v;
                }
                any = true;
                last = j;
                ++j;
                continue;
            }
            // "twenty-five", "one hundred and twenty": joiners between number words.
            if (any && j + 1 < t.size() && isNumberWord(t[j + 1]) && numberWordValue(t[j + 1].word) < 100
                && (t[j].kind == TokKind::Hyphen || t[j].isWord("and"))) {
                if (fractionWords(t, j + 1, fracNext) >= 0)
                    break;
                ++j;
                continue;
            }
            break;
        }
        Token n = t[i];
        n.kind = TokKind::Number;
        n.fromWords = true;
        n.value = total + current;
        n.span.end = t[last].span.end;
        j = last + 1;
        // "... and a half", "... and one-quarter", "... and 50/100".
        if (j + 1 < t.size() && t[j].isWord("and")) {
            if (const double f = fractionWords(t, j + 1, fracNext); f >= 0) {
                n.value += f;
                n.span.end = t[fracNext - 1].span.end;
                j = fracNext;
            } else if (t[j + 1].kind == TokKind::Number && t[j + 1].fraction) {
                n.value += t[j + 1].value;
                n.span.end = t[j + 1].span.end;
                j += 2;
            }
        }
        out.push_back(std::move(n));
        i = j;
    }
    out.finish();
}

// "60 1/4", "45-1/2", "62 and 1/2": a whole number and a fraction after it.
// "ninety-five (95)": a number in words with its figures; the pair becomes one
// number, marked when the two disagree.
void joinMixedNumbers(std::vector<Token> &t)
{
    // Compacted in place: the write position never passes the read position.
    TokenWriter out(t);
    for (size_t i = 0; i < t.size(); ++i) {
        if (!out.empty() && t[i].kind == TokKind::Number && t[i].fraction) {
            Token &prev = out.back();
            if (prev.kind == TokKind::Number && !prev.fraction && prev.value == std::floor(prev.value)
                && !prev.fromWords) {
                prev.value += t[i].value;
                prev.span.end = t[i].span.end;
                continue;
            }
            if (out.size() >= 2 && (prev.kind == TokKind::Hyphen || prev.isWord("and"))
                && out[out.size() - 2].kind == TokKind::Number && !out[out.size() - 2].fraction
                && out[out.size() - 2].value == std::floor(out[out.size() - 2].value)
                && (prev.kind != TokKind::Hyphen || (adjacent(out[out.size() - 2], prev) && adjacent(prev, t[i])))) {
                out.pop_back();
                out.back().value += t[i].value;
                out.back().span.end = t[i].span.end;
                continue;
            }
        }
        if (!out.empty() && t[i].kind == TokKind::LParen && i + 2 < t.size() && t[i + 1].kind == TokKind::Number
            && t[i + 2].kind == TokKind::RParen && out.back().kind == TokKind::Number
            && out.back().fromWords != t[i + 1].fromWords) {
            Token &prev = out.back();
            if (std::fabs(prev.value - t[i + 1].value) > 1e-9)
                prev.disagree = true;
            prev.span.end = t[i + 2].span.end;
            i += 2;
            continue;
        }
        out.push_back(std::move(t[i]));
    }
    out.finish();
}

} // namespace

std::vector<Token> tokenize(std::string_view text)
{
    std::vector<Token> tokens = Lexer(text).run();
    joinInitials(tokens);
    joinNumberWords(tokens);
    joinMixedNumbers(tokens);
    return tokens;
}

} // namespace quilmar::deedtext
