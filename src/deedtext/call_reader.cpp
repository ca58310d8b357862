#include "call_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "vocabulary.h"
#include "number_text.h"

namespace quilmar::deedtext {

namespace {

constexpr double kPi = 3.14159265;

bool isNS(std::string_view w) { return w == "n" || w == "s" || w == "north" || w == "south"; }
bool isEW(std::string_view w) { return w == "e" || w == "w" || w == "east" || w == "west"; }
bool isDegreeWord(std::string_view w) { return w == "degrees" || w == "degree" || w == "deg" || w == "d" || w == "dg"; }
bool isMinuteWord(std::string_view w) { return w == "minutes" || w == "minute" || w == "min" || w == "mins" || w == "m"; }
// Short words that may stand between two direction letters in plain prose ("N of E").
bool isSmallWord(std::string_view w)
{
    return w == "of" || w == "and" || w == "to" || w == "by" || w == "on" || w == "in" || w == "at" || w == "the"
           || w == "or" || w == "a" || w == "an" || w == "is" || w == "as" || w == "for" || w == "due";
}
bool isSecondWord(std::string_view w) { return w == "seconds" || w == "second" || w == "sec" || w == "secs"; }

bool isRecordMarker(std::string_view w) { return w == "record" || w == "rec" || w == "deed" || w == "plat"; }

/// "S 12°08' W record", "record S 12°08' W": a bearing that the deed marks as
/// the record one, beside the measured one that the call follows. When the
/// N/S word at @p i opens one (tokens before @p end), returns one past its last
/// token, marker included, and sets @p from to its first; otherwise returns 0.
size_t recordBearingEnd(const std::vector<Token> &t, size_t i, size_t begin, size_t end, size_t &from)
{
    auto wordAt = [&](size_t k) -> std::string_view {
        return k >= begin && k < end && t[k].kind == TokKind::Word ? std::string_view(t[k].word) : std::string_view();
    };
    if (!isNS(wordAt(i)))
        return 0;
    size_t k = i + 1;
    bool number = false;
    while (k < end
           && (t[k].kind == TokKind::Number || t[k].kind == TokKind::Degree || t[k].kind == TokKind::Minute
               || t[k].kind == TokKind::Second || t[k].kind == TokKind::Hyphen || t[k].kind == TokKind::Period
               || isDegreeWord(wordAt(k)) || isMinuteWord(wordAt(k)) || isSecondWord(wordAt(k)))) {
        number = number || t[k].kind == TokKind::Number;
        ++k;
    }
    if (!number || !isEW(wordAt(k)))
        return 0;
    size_t after = k + 1;
    while (after < end && (t[after].kind == TokKind::Comma || t[after].kind == TokKind::Period
                           || t[after].kind == TokKind::LParen))
        ++after;
    if (isRecordMarker(wordAt(after))) {
        from = i;
        return after + 1;
    }
    size_t before = i;
    while (before > begin && (t[before - 1].kind == TokKind::Comma || t[before - 1].kind == TokKind::Period
                              || t[before - 1].kind == TokKind::Colon))
        --before;
    if (before > begin && isRecordMarker(wordAt(before - 1))) {
        from = before - 1;
        return k + 1;
    }
    return 0;
}

/// The tokens of one call with what the reader has set aside.
class CallReader {
public:
    CallReader(const std::vector<Token> &t, size_t begin, size_t end, const CallContext &context)
        : m_t(t), m_begin(begin), m_end(end), m_context(context), m_active(end - begin, true),
          m_used(end - begin, false)
    {
    }

    Call read();

private:
    // ---- token access -------------------------------------------------
    bool in(size_t i) const { return i >= m_begin && i < m_end; }
    bool active(size_t i) const { return in(i) && m_active[i - m_begin] && !m_used[i - m_begin]; }
    void use(size_t from, size_t to)
    {
        for (size_t i = from; i < to && i < m_end; ++i)
            if (i >= m_begin)
                m_used[i - m_begin] = true;
    }
    std::string_view word(size_t i) const
    {
        return in(i) && m_t[i].kind == TokKind::Word ? std::string_view(m_t[i].word) : std::string_view();
    }
    /// The word at @p i while it is still free to read; "" otherwise.
    std::string_view activeWord(size_t i) const { return active(i) ? word(i) : std::string_view(); }
    bool isKind(size_t i, TokKind k) const { return in(i) && m_t[i].kind == k; }
    bool isPunct(size_t i) const
    {
        return isKind(i, TokKind::Period) || isKind(i, TokKind::Comma) || isKind(i, TokKind::Colon);
    }
    size_t skipPunct(size_t i) const
    {
        while (in(i) && (isPunct(i) || !m_active[i - m_begin]))
            ++i;
        return i;
    }
    /// The previous active token before @p i that is not punctuation, or npos.
    size_t prevWordIndex(size_t i) const
    {
        while (i > m_begin) {
            --i;
            if (m_active[i - m_begin] && !isPunct(i) && !isKind(i, TokKind::Hyphen))
                return i;
        }
        return std::string::npos;
    }
    std::string_view prevWord(size_t i) const
    {
        const size_t p = prevWordIndex(i);
        return p == std::string::npos ? std::string_view() : word(p);
    }
    bool wordBefore(size_t i, std::initializer_list<std::string_view> words, int within) const
    {
        size_t k = i;
        for (int n = 0; n < within && k > m_begin; ++n) {
            --k;
            for (auto w : words)
                if (word(k) == w)
                    return true;
        }
        return false;
    }

    // "the beginning of a curve", "point of a non-tangent circular curve", "P.C. of
    // a curve": the curve word at @p i names where the next call starts. Only
    // articles and the curve's adjectives may stand between "of" and the word.
    bool startsCurveHere(size_t i) const
    {
        static constexpr std::string_view kBetween[] = {"a",     "an",        "the",      "said",     "non",
                                                        "tangent", "nontangent", "circular", "compound", "reverse",
                                                        "reversing", "simple",  "horizontal"};
        size_t k = i;
        while (k > m_begin) {
            --k;
            if (isKind(k, TokKind::Hyphen) || !m_active[k - m_begin])
                continue;
            const std::string_view w = word(k);
            if (std::find(std::begin(kBetween), std::end(kBetween), w) != std::end(kBetween))
                continue;
            // "to a point on a curve" names where the curve begins too
            if (w == "on" && prevWord(k) == "point")
                return true;
            if (w != "of")
                return false;
            const std::string_view b = prevWord(k);
            // "point of curvature of a curve": the curvature word names the same point
            return b == "beginning" || b == "point" || b == "pc" || b == "begin" || b == "curvature" || b == "pcc"
                   || b == "prc";
        }
        return false;
    }

    // ---- passes ---------------------------------------------------------
    void setAside();
    void markLabels();
    bool findCurveWord();

    struct Angle {
        double deg = 0, min = 0, sec = 0;
        bool hasDeg = false, hasMin = false, hasSec = false;
        bool lost = false;
        size_t end = 0;
    };
    std::optional<Angle> readAngle(size_t i, bool allowBareTrail) const;
    std::optional<Direction> angleToQuadrant(char ns, char ew, const Angle &a, std::string &problem) const;
    std::optional<Direction> azimuthToQuadrant(const Angle &a, std::string &problem) const;

    struct Found {
        Direction direction;
        std::string problem;
        size_t begin = 0, end = 0;
    };
    std::optional<Found> directionAt(size_t i);
    /// The points between the eight main ones: "NNE", "north-northeast"; and
    /// "north-east" written with a hyphen. "south-easterly" is approximate.
    std::optional<Found> compassPointAt(size_t i) const;
    /// Whether the token at @p k may follow a cardinal word that gives a due
    /// course ("East 210 feet", "North along", "West, 50 feet"), rather than a
    /// name ("West Elm Street").
    bool cardinalFollower(size_t k) const
    {
        if (!in(k) || m_t[k].kind != TokKind::Word)
            return true;
        static constexpr std::string_view kFollowers[] = {
            "along", "with", "by", "parallel", "on", "to", "and", "thence", "binding", "through", "across",
            "crossing", "a", "an", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten",
            "at", "for", "in", "into", "over", "up", "down", "continuing", "passing", "about", "approximately",
            "distance", "following", "leaving", "still", "further", "then", "between", "upon", "said", "the",
            "from", "more", "feet", "poles", "chains", "rods", "perches", "varas", "until", "toward", "towards"};
        const std::string_view w = m_t[k].word;
        for (auto f : kFollowers)
            if (w == f)
                return true;
        return m_t[k].fromWords;
    }

    struct FoundLength {
        Length length;
        std::string problem;
        std::string warning;
        size_t begin = 0, end = 0;
        bool bare = false;
        bool feature = false;
        bool inAll = false;
        bool size = false;
    };
    std::optional<FoundLength> lengthAt(size_t i, bool allowBare);
    std::optional<FoundLength> lengthAfter(size_t i, int within, bool allowBare);

    void readStraight(Call &call);
    void readCurve(Call &call);
    void readNextCurve(Call &call);
    void takeLengths(Call &call, size_t afterDirection);
    char sideWord(size_t from, size_t to) const;

    const std::vector<Token> &m_t;
    size_t m_begin, m_end;
    const CallContext &m_context;
    std::vector<bool> m_active; ///< false: set aside (parentheses, witness trees, labels...)
    std::vector<bool> m_used;   ///< taken by a direction or a length already
    size_t m_witnessCut = std::string::npos;
    bool m_curve = false;
    size_t m_nextCurveAt = std::string::npos; ///< "beginning of a curve" inside a straight call
};

void CallReader::setAside()
{
    // Parentheses and brackets: record calls, widths, remarks. A curve's data
    // are often given in parentheses and stay, unless they are a record call.
    int depth = 0;
    bool recordParen = false;
    for (size_t i = m_begin; i < m_end; ++i) {
        if (m_t[i].kind == TokKind::LParen) {
            ++depth;
            const std::string_view w = word(i + 1);
            recordParen = !m_curve || w == "record" || w == "rec" || w == "deed" || w == "plat" || w == "called"
                          || w == "formerly" || w == "per" || w == "r" || w == "d" || w == "m" || w == "by";
            if (m_curve && w == "r" && isKind(i + 2, TokKind::Equals))
                recordParen = false;
            if (m_curve && w == "d" && isKind(i + 2, TokKind::Equals))
                recordParen = false;
            m_active[i - m_begin] = false;
            continue;
        }
        if (m_t[i].kind == TokKind::RParen) {
            depth = depth > 0 ? depth - 1 : 0;
            m_active[i - m_begin] = false;
            continue;
        }
        if (depth > 0 && recordParen)
            m_active[i - m_begin] = false;
    }
    // "S 12°10'05\" W measured, S 12°08' W record, 100 feet": the record
    // bearing beside the measured one is no part of the course.
    bool bearingBefore = false;
    for (size_t i = m_begin; i < m_end; ++i) {
        if (!m_active[i - m_begin] || !isNS(word(i)))
            continue;
        size_t from = i;
        const size_t to = bearingBefore ? recordBearingEnd(m_t, i, m_begin, m_end, from) : 0;
        for (size_t k = from; k < to; ++k)
            m_active[k - m_begin] = false;
        bearingBefore = true;
    }
    // The rest of the call after a witness tree, an area, a record call or a
    // magnetic note is not part of the course.
    for (size_t i = m_begin; i < m_end; ++i) {
        const std::string_view w = word(i);
        if (w.empty() || !m_active[i - m_begin])
            continue;
        bool cut = false, witness = false;
        if ((w == "from" && (word(i + 1) == "which" || word(i + 1) == "whence")) || w == "whence" || w == "witness"
            || w == "witnessed" || w == "witnesses") {
            cut = witness = true;
        } else if (w == "bears" || w == "bore" || w == "bearing" || w == "brs" || w == "bs") {
            const bool keyed = wordBefore(i, {"chord", "radius", "radial", "center", "centre", "line", "course",
                                              "tangent", "which", "a", "on", "of", "with", "the", "cb", "its"},
                                          6);
            if (!keyed) {
                cut = true;
                witness = w != "bearing";
            if (w == "brs" || w == "bs")
                cut = witness = true;
            }
            if (w == "bearing" && !keyed)
                cut = false;
        } else if (w == "record" || w == "rec") {
            const size_t n = i + 1 < m_end && isKind(i + 1, TokKind::Period) ? i + 2 : i + 1;
            cut = isKind(n, TokKind::Number) || isKind(n, TokKind::Colon) || isNS(word(n)) || isEW(word(n))
                  || word(n) == "call" || word(n) == "bearing" || word(n) == "distance" || word(n) == "being";
        } else if (isCallCutWord(w) && w != "record" && w != "rec") {
            cut = true;
        } else if (w == "basis" || (w == "based" && (word(i + 1) == "on" || word(i + 1) == "upon"))) {
            cut = true;
        }
        if (cut) {
            for (size_t k = i; k < m_end; ++k)
                m_active[k - m_begin] = false;
            if (witness)
                m_witnessCut = i;
            break;
        }
    }
}

void CallReader::markLabels()
{
    for (size_t i = m_begin; i < m_end; ++i) {
        if (m_t[i].kind != TokKind::Number || !m_active[i - m_begin])
            continue;
        // Lot 5, Section 12, Book 3 page 40, No. 7
        size_t p = i;
        bool label = false;
        while (p > m_begin) {
            --p;
            const std::string_view w = word(p);
            if (isKind(p, TokKind::Period) || isKind(p, TokKind::Colon) || w == "no" || w == "#" || w == "number"
                || w == "nos")
                continue;
            label = isLabelWord(w);
            break;
        }
        // "3rd", "5th": ordinals name streets and corners.
        const std::string_view next = word(i + 1);
        if (in(i + 1) && m_t[i + 1].span.begin == m_t[i].span.end
            && (next == "st" || next == "nd" || next == "rd" || next == "th"))
            label = true;
        if (isAreaWord(next))
            label = true;
        // "12 x 10 x 8": the size of a stone.
        if (next == "x" || word(prevWordIndex(i)) == "x" || next == "by")
            label = true;
        // "said lot 33 feet": a number with a unit is a length after all.
        if (label && p + 1 == i && (unitNamed(next) || isKind(i + 1, TokKind::Minute)) && !isAreaWord(next))
            label = false;
        // "Course 1:", "Call 2:" and "1." or "2)" at the start of a line number a list of calls.
        if (isKind(i + 1, TokKind::Colon) && (word(p) == "course" || word(p) == "call" || word(p) == "line"))
            label = true;
        if (m_t[i].lineStart && (isKind(i + 1, TokKind::Period) || isKind(i + 1, TokKind::RParen)))
            label = true;
        if (label)
            m_active[i - m_begin] = false;
    }
}

bool CallReader::findCurveWord()
{
    bool curve = false;
    for (size_t i = m_begin; i < m_end; ++i) {
        const std::string_view w = word(i);
        if (w == "curve" || w == "arc" || w == "curves" || w == "curving" || w == "curved") {
            // "to the beginning of a curve", "point of curvature": a straight call
            // that ends where a curve starts.
            if (startsCurveHere(i)) {
                if (m_nextCurveAt == std::string::npos)
                    m_nextCurveAt = i;
                continue;
            }
            if (wordBefore(i, {"end", "terminus", "pt"}, 4))
                continue;
            curve = true;
        } else if ((w == "r" || w == "radius") && isKind(i + 1, TokKind::Equals)) {
            curve = true;
        } else if (w == "radius" && m_nextCurveAt == std::string::npos) {
            curve = true;
        }
    }
    return curve;
}

std::optional<CallReader::Angle> CallReader::readAngle(size_t i, bool allowBareTrail) const
{
    Angle a;
    int slot = 0; // next positional slot: 0 degrees, 1 minutes, 2 seconds
    struct Part {
        int slot;
        bool marked;
        bool joined; // joined to the part before by a hyphen or colon
        size_t end;
    };
    std::vector<Part> parts;
    size_t k = i;
    double values[3] = {0, 0, 0};
    while (in(k) && slot < 3) {
        size_t n = k;
        bool joined = false;
        if (!parts.empty()) {
            // separators between parts
            while (in(n) && (isKind(n, TokKind::Hyphen) || isKind(n, TokKind::Colon) || isKind(n, TokKind::Comma)
                             || word(n) == "and" || isKind(n, TokKind::Period))) {
                if (isKind(n, TokKind::Hyphen) || isKind(n, TokKind::Colon))
                    joined = true;
                ++n;
            }
        }
        if (isKind(n, TokKind::Lost)) {
            a.lost = true;
            ++n;
            if (!isKind(n, TokKind::Number)) {
                k = n;
                continue;
            }
        }
        if (!isKind(n, TokKind::Number) || !m_active[n - m_begin] || m_used[n - m_begin])
            break;
        const double v = m_t[n].value;
        size_t m = n + 1;
        if (isKind(m, TokKind::Lost)) {
            a.lost = true;
            ++m;
        }
        int s = slot;
        bool marked = false;
        if (isKind(m, TokKind::Degree) || isDegreeWord(word(m))) {
            s = 0;
            marked = true;
        } else if (isKind(m, TokKind::Minute) || isMinuteWord(word(m))) {
            s = 1;
            marked = true;
        } else if (isKind(m, TokKind::Second) || isSecondWord(word(m))
                   || (slot == 2 && word(m) == "s" && isEW(word(skipPunct(m + 1))))) {
            // "44d 30m 15s E": after the minutes, an "s" before the east/west letter is the seconds' mark
            s = 2;
            marked = true;
        }
        if (s < slot)
            break;
        if (marked) {
            ++m;
            if (isKind(m, TokKind::Period) && (m_t[m].span.begin == m_t[m - 1].span.end || !isKind(m + 1, TokKind::Number)))
                ++m; // "deg.", "min."
            if (isKind(m, TokKind::Lost)) {
                a.lost = true;
                ++m;
            }
        }
        values[s] = v;
        parts.push_back({s, marked, joined, m});
        slot = s + 1;
        k = m;
    }
    if (parts.empty())
        return std::nullopt;
    // "N 1/2 of the SE 1/4": an aliquot part, not an angle.
    if (m_t[i].kind == TokKind::Number && m_t[i].fraction && m_t[i].value < 1 && !parts[0].marked)
        return std::nullopt;
    // Trailing unmarked parts after the first belong to the angle only when an
    // east/west letter follows or they are joined ("45-30-15"); otherwise they
    // are the call's length ("N 45° 100 feet").
    size_t after = skipPunct(parts.back().end);
    const bool ewFollows = isEW(word(after)) || (allowBareTrail && !in(after));
    while (parts.size() > 1 && !parts.back().marked && !parts.back().joined && !ewFollows) {
        values[parts.back().slot] = 0;
        parts.pop_back();
    }
    for (const Part &p : parts) {
        if (p.slot == 0) a.hasDeg = true;
        if (p.slot == 1) a.hasMin = true;
        if (p.slot == 2) a.hasSec = true;
    }
    // "N 100 feet": a lone unmarked number followed by a unit is a length.
    if (parts.size() == 1 && !parts[0].marked) {
        const size_t n = parts[0].end;
        if (unitNamed(word(n)) || isKind(n, TokKind::Minute) || isKind(n, TokKind::Second) || word(n) == "to"
            || word(n) == "in" || word(n) == "at" || word(n) == "along" || word(n) == "with")
            return std::nullopt;
    }
    a.deg = values[0];
    a.min = values[1];
    a.sec = values[2];
    a.end = parts.back().end;
    return a;
}

/// Degrees, minutes and seconds from a number of seconds of arc, seconds
/// rounded to 4 decimals.
void splitSeconds(double total, Direction &d)
{
    total = std::round(total * 10000.0) / 10000.0;
    d.degrees = int(std::floor(total / 3600.0 + 1e-12));
    double rest = total - d.degrees * 3600.0;
    d.minutes = int(std::floor(rest / 60.0 + 1e-12));
    d.seconds = std::round((rest - d.minutes * 60.0) * 10000.0) / 10000.0;
    if (d.seconds < 0)
        d.seconds = 0;
}

std::optional<Direction> CallReader::angleToQuadrant(char ns, char ew, const Angle &a, std::string &problem) const
{
    if (a.lost) {
        problem = "digits lost";
        return std::nullopt;
    }
    if (a.min >= 60) {
        problem = "minutes over 59";
        return std::nullopt;
    }
    if (a.sec >= 60) {
        problem = "seconds over 59";
        return std::nullopt;
    }
    const double total = a.deg * 3600.0 + a.min * 60.0 + a.sec;
    if (total > 90.0 * 3600.0 + 1e-9) {
        problem = "degrees over 90";
        return std::nullopt;
    }
    Direction d;
    d.ns = ns;
    d.ew = ew;
    d.hasAngle = true;
    splitSeconds(total, d);
    return d;
}

std::optional<Direction> CallReader::azimuthToQuadrant(const Angle &a, std::string &problem) const
{
    if (a.lost) {
        problem = "digits lost";
        return std::nullopt;
    }
    if (a.min >= 60 || a.sec >= 60) {
        problem = a.min >= 60 ? "minutes over 59" : "seconds over 59";
        return std::nullopt;
    }
    double total = a.deg * 3600.0 + a.min * 60.0 + a.sec;
    if (total > 360.0 * 3600.0) {
        problem = "azimuth over 360 degrees";
        return std::nullopt;
    }
    if (total >= 360.0 * 3600.0)
        total -= 360.0 * 3600.0;
    Direction d;
    const double q = 90.0 * 3600.0;
    if (total == 0) { d.ns = 'N'; return d; }
    if (total == q) { d.ns = 'E'; return d; }
    if (total == 2 * q) { d.ns = 'S'; return d; }
    if (total == 3 * q) { d.ns = 'W'; return d; }
    d.hasAngle = true;
    if (total < q) { d.ns = 'N'; d.ew = 'E'; splitSeconds(total, d); }
    else if (total < 2 * q) { d.ns = 'S'; d.ew = 'E'; splitSeconds(2 * q - total, d); }
    else if (total < 3 * q) { d.ns = 'S'; d.ew = 'W'; splitSeconds(total - 2 * q, d); }
    else { d.ns = 'N'; d.ew = 'W'; splitSeconds(4 * q - total, d); }
    return d;
}

std::optional<CallReader::Found> CallReader::compassPointAt(size_t i) const
{
    const std::string_view w = m_t[i].word;
    static constexpr std::string_view kPoints[] = {"nne", "ene", "ese", "sse", "ssw", "wsw", "wnw", "nnw"};
    std::string_view first, second;
    size_t end = i + 1;
    if (std::find(std::begin(kPoints), std::end(kPoints), w) != std::end(kPoints)) {
        first = w.substr(0, 1);
        second = w.substr(1);
    } else if ((isNS(w) || isEW(w)) && w.size() > 1 && isKind(i + 1, TokKind::Hyphen) && isKind(i + 2, TokKind::Word)
               && m_t[i + 1].span.begin == m_t[i].span.end && m_t[i + 2].span.begin == m_t[i + 1].span.end) {
        first = w;
        second = m_t[i + 2].word;
        end = i + 3;
    } else {
        return std::nullopt;
    }
    Found f;
    f.begin = i;
    f.end = end;
    if (isApproximateDirection(second)) {
        f.problem = "approximate direction '" + std::string(first) + "-" + std::string(second) + "'";
        return f;
    }
    const char lead = char(first[0] - 'a' + 'A');
    if ((second == "east" || second == "west") && isNS(first)) {
        f.direction.ns = lead;
        f.direction.ew = char(second[0] - 'a' + 'A');
        f.direction.hasAngle = true;
        f.direction.degrees = 45;
        return f;
    }
    const bool quarter = second == "ne" || second == "nw" || second == "se" || second == "sw" || second == "northeast"
                         || second == "northwest" || second == "southeast" || second == "southwest";
    if (!quarter)
        return std::nullopt;
    f.direction.ns = second[0] == 'n' ? 'N' : 'S';
    f.direction.ew = (second.back() == 'e' || second.ends_with("east")) ? 'E' : 'W';
    f.direction.hasAngle = true;
    f.direction.minutes = 30;
    if (lead == f.direction.ns)
        f.direction.degrees = 22; // north-northeast: a point from north toward northeast
    else if (lead == f.direction.ew)
        f.direction.degrees = 67; // east-northeast: a point from east toward northeast
    else
        f.problem = "unclear direction '" + std::string(first) + "-" + std::string(second) + "'";
    return f;
}

std::optional<CallReader::Found> CallReader::directionAt(size_t i)
{
    if (!active(i) || m_t[i].kind != TokKind::Word)
        return std::nullopt;
    const std::string_view w = m_t[i].word;
    if (auto point = compassPointAt(i))
        return point;
    Found f;
    f.begin = i;
    // Azimuth: "azimuth of 135°20'", "Az. 135-20-00".
    if (w == "azimuth" || w == "az" || w == "azm" || w == "azi" || w == "azimuths") {
        size_t k = i + 1;
        while (in(k) && (isPunct(k) || isKind(k, TokKind::Equals) || word(k) == "of" || word(k) == "an"))
            ++k;
        auto a = readAngle(k, true);
        if (!a)
            return std::nullopt;
        if (m_context.azimuthFromSouth) {
            a->deg += 180;
            if (a->deg >= 360)
                a->deg -= 360;
        }
        auto d = azimuthToQuadrant(*a, f.problem);
        if (d)
            f.direction = *d;
        f.end = a->end;
        return f;
    }
    // "on a bearing of 225°30'": a bearing without quadrant letters is a
    // whole-circle bearing, read like an azimuth.
    if (w == "bearing" || w == "brg") {
        size_t k = i + 1;
        while (in(k) && (isPunct(k) || word(k) == "of"))
            ++k;
        if (isKind(k, TokKind::Number) && (isKind(k + 1, TokKind::Degree) || isDegreeWord(word(k + 1)))) {
            auto a = readAngle(k, true);
            if (a && !isNS(word(skipPunct(a->end))) && !isEW(word(skipPunct(a->end)))) {
                if (auto d = azimuthToQuadrant(*a, f.problem))
                    f.direction = *d;
                f.end = a->end;
                return f;
            }
        }
    }
    // Northeast, N.E., north east: the half-way direction.
    if (w == "ne" || w == "nw" || w == "se" || w == "sw" || w == "northeast" || w == "northwest" || w == "southeast"
        || w == "southwest") {
        if (isSideNoun(word(skipPunct(i + 1))) || word(prevWordIndex(i)) == "the")
            return std::nullopt;
        const size_t n = skipPunct(i + 1);
        if (isKind(n, TokKind::Number) && readAngle(n, false))
            return std::nullopt; // "NE 1/4" and the like
        f.direction.ns = (w[0] == 'n') ? 'N' : 'S';
        f.direction.ew = (w.back() == 'e' || w.ends_with("east")) ? 'E' : 'W';
        f.direction.hasAngle = true;
        f.direction.degrees = 45;
        f.end = i + 1;
        return f;
    }
    // "Township 3 North", "T2N": a number right before the word names a township or range;
    // but "1<TAB>N 45 E", "L1 N 45 E" number a list of calls.
    const bool callNumber = i > m_begin && isKind(i - 1, TokKind::Number) && isNS(w)
                            && isKind(skipPunct(i + 1), TokKind::Number) // a bearing's angle follows
                            && (m_t[i - 1].lineStart
                                || (i - 1 > m_begin && (word(i - 2) == "l" || word(i - 2) == "c")
                                    && m_t[i - 2].span.end == m_t[i - 1].span.begin && m_t[i - 2].lineStart));
    if (i > m_begin && isKind(i - 1, TokKind::Number) && (isNS(w) || isEW(w)) && !callNumber)
        return std::nullopt;
    if (isNS(w)) {
        const char ns = (w[0] == 'n') ? 'N' : 'S';
        const bool letter = w.size() == 1;
        const size_t p = prevWordIndex(i);
        if (p != std::string::npos && ((isKind(p, TokKind::Number) && !callNumber)
                                       || (!letter && (word(p) == "the" || word(p) == "said" || word(p) == "its"
                                                       || word(p) == "an" || word(p) == "a"))))
            return std::nullopt;
        // "N-45-W": hyphens around the angle are separators.
        size_t k = skipPunct(i + 1);
        if (isKind(k, TokKind::Hyphen) && isKind(k + 1, TokKind::Number))
            ++k;
        if (!letter && isSideNoun(word(k)))
            return std::nullopt;
        const auto a = readAngle(k, false);
        size_t afterAngle = a ? skipPunct(a->end) : k;
        if (a && isKind(afterAngle, TokKind::Hyphen) && isEW(word(afterAngle + 1)))
            ++afterAngle;
        const std::string_view ewWord = word(afterAngle);
        if (a) {
            if (isEW(ewWord) && !isSideNoun(word(skipPunct(afterAngle + 1)))) {
                auto d = angleToQuadrant(ns, ewWord[0] == 'e' ? 'E' : 'W', *a, f.problem);
                if (d)
                    f.direction = *d;
                f.end = afterAngle + 1;
                return f;
            }
            f.problem = a->lost ? "digits lost" : "no East/West letter";
            f.end = a->end;
            return f;
        }
        if (isEW(ewWord) && afterAngle == i + 1 + (isPunct(i + 1) ? 1 : 0) && !isSideNoun(word(skipPunct(afterAngle + 1)))
            && (letter == (ewWord.size() == 1))) {
            // "North East 40 poles": the half-way direction.
            f.direction.ns = ns;
            f.direction.ew = ewWord[0] == 'e' ? 'E' : 'W';
            f.direction.hasAngle = true;
            f.direction.degrees = 45;
            f.end = afterAngle + 1;
            return f;
        }
        // "N xx E 210 feet": letters where the angle belongs, between the two
        // quadrant letters. The angle is lost; the E/W letter is no due course.
        if (letter && in(k) && (isKind(k, TokKind::Other) || (isKind(k, TokKind::Word) && word(k).size() <= 3
                                                              && !isSmallWord(word(k))))) {
            const size_t e = skipPunct(k + 1);
            if (isEW(word(e)) && word(e).size() == 1) {
                f.problem = "bearing cannot be read";
                f.end = e + 1;
                return f;
            }
        }
        // Due north or south: the full word, or the letter before a length.
        if ((!letter && cardinalFollower(k)) || isKind(k, TokKind::Number)) {
            f.direction.ns = ns;
            f.end = i + 1;
            return f;
        }
        return std::nullopt;
    }
    if (isEW(w)) {
        const bool letter = w.size() == 1;
        const size_t p = prevWordIndex(i);
        // The east/west letter of a bearing that could not be read is not a due course.
        if (p != std::string::npos && (isKind(p, TokKind::Number) || isKind(p, TokKind::Degree)
                                       || isKind(p, TokKind::Minute) || isKind(p, TokKind::Second)
                                       || isDegreeWord(word(p)) || isMinuteWord(word(p)) || isSecondWord(word(p))
                                       || (!letter && (word(p) == "the" || word(p) == "said" || word(p) == "its"
                                                       || word(p) == "an" || word(p) == "a"))))
            return std::nullopt;
        const size_t k = skipPunct(i + 1);
        if (!letter && isSideNoun(word(k)))
            return std::nullopt;
        if (letter ? !isKind(k, TokKind::Number) : !cardinalFollower(k))
            return std::nullopt;
        f.direction.ns = w[0] == 'e' ? 'E' : 'W';
        f.end = i + 1;
        return f;
    }
    return std::nullopt;
}

std::optional<CallReader::FoundLength> CallReader::lengthAt(size_t i, bool allowBare)
{
    if (!active(i) || m_t[i].kind != TokKind::Number)
        return std::nullopt;
    FoundLength f;
    f.begin = i;
    double feet = 0, metres = 0;
    bool anyFeetFamily = false, anyMetric = false, haveUnit = false;
    size_t k = i;
    double lastFactor = 1e30;
    int parts = 0;
    UnitInfo first{};
    while (isKind(k, TokKind::Number) && active(k)) {
        const Token &n = m_t[k];
        size_t u = k + 1;
        std::optional<UnitInfo> unit;
        if (isKind(u, TokKind::Minute)) unit = feetUnit();
        else if (isKind(u, TokKind::Second)) unit = inchUnit();
        else if (word(u) == "in" && anyFeetFamily) unit = inchUnit();
        else if ((word(u) == "l" || word(u) == "li") && parts > 0 && lastFactor == unitNamed("chain")->factorToFeet)
            unit = unitNamed("links");
        else if (word(u) == "in" && isKind(u + 1, TokKind::Period) && !isKind(u + 2, TokKind::Number)) unit = inchUnit();
        else unit = unitNamed(word(u));
        // "sixteen perches and two-tenths of a perch": a fraction of a unit, added.
        bool fractionOf = false;
        if (!unit && parts > 0 && word(u) == "of"
            && (word(u + 1) == "a" || word(u + 1) == "an" || word(u + 1) == "one") && unitNamed(word(u + 2))) {
            u += 2;
            unit = unitNamed(word(u));
            fractionOf = unit->known;
        }
        if (!unit) {
            if (parts > 0)
                break;
            // A number alone: a length only right after the direction, in the
            // description's usual unit.
            // "E 1/2 of Lot 5": a part of a lot, not a length.
            if (!allowBare || (n.fraction && n.value < 1) || word(u) == "of")
                return std::nullopt;
            f.bare = true;
            f.length = {n.value, Length::Kind::Bare, 1};
            f.end = k + 1;
            if (n.disagree)
                f.problem = "number in words and figures disagree";
            return f;
        }
        if (!unit->known) {
            f.problem = "unknown unit '" + m_t[u].word + "'";
            f.end = u + 1;
            return f;
        }
        if (unit->factorToFeet >= lastFactor && parts > 0 && !(fractionOf && unit->factorToFeet == lastFactor))
            break; // "100 feet, 50 feet": two lengths, not one
        if (n.disagree)
            f.problem = "number in words and figures disagree";
        if (parts == 0)
            first = *unit;
        lastFactor = unit->factorToFeet;
        if (unit->metric) {
            anyMetric = true;
            metres += n.value;
        } else {
            anyFeetFamily = true;
        }
        feet += n.value * unit->factorToFeet;
        haveUnit = true;
        ++parts;
        k = u + 1;
        if (isKind(k, TokKind::Period) && (m_t[k].span.begin == m_t[u].span.end || !isKind(k + 1, TokKind::Number)))
            ++k; // "ch.", "ft."
        f.end = k;
        // "10 poles and 3 feet", "12 ch. 25 lks", "25' 6\""
        size_t n2 = k;
        while (in(n2) && (word(n2) == "and" || isKind(n2, TokKind::Comma) || isKind(n2, TokKind::Hyphen)))
            ++n2;
        if (!isKind(n2, TokKind::Number))
            break;
        k = n2;
    }
    if (!haveUnit)
        return std::nullopt;
    if (anyMetric && !anyFeetFamily)
        f.length = {metres, Length::Kind::Metres, first.factorToFeet};
    else
        f.length = {feet, Length::Kind::Feet, first.factorToFeet};
    const size_t after = f.end;
    // Widths, depths and marker sizes are not courses.
    const std::string_view next = word(after) == "-" ? word(after + 1) : word(after);
    if (isWidthNoun(next) || (isKind(after, TokKind::Hyphen) && isWidthNoun(word(after + 1))))
        f.size = true;
    if (first.factorToFeet < 1.0 / 11 && (isMarkerNoun(next) || isMarkerNoun(word(after + 1))))
        f.size = true;
    if (word(i + 1) == "x" || word(f.end) == "x")
        f.size = true;
    // A few inches alone are a marker's size ("5/8 inch"), never a course.
    if (parts == 1 && first.factorToFeet < 1.0 / 11 && feet < 1.0)
        f.size = true;
    return f;
}

std::optional<CallReader::FoundLength> CallReader::lengthAfter(size_t i, int within, bool allowBare)
{
    size_t k = i;
    for (int n = 0; n < within && in(k); ++n, ++k) {
        if (!active(k))
            continue;
        if (m_t[k].kind == TokKind::Number)
            return lengthAt(k, allowBare);
        const std::string_view w = word(k);
        if (!(isPunct(k) || isKind(k, TokKind::Equals) || w == "of" || w == "a" || w == "an" || w == "is"
              || w == "distance" || w == "length" || w == "feet" || w == "being" || w == "dist" || w == "thereof"
              || w == "and" || w == "with"))
            return std::nullopt;
    }
    return std::nullopt;
}

char CallReader::sideWord(size_t from, size_t to) const
{
    for (size_t i = from; i < to; ++i) {
        if (!in(i) || !m_active[i - m_begin])
            continue;
        const std::string_view w = word(i);
        if ((w == "left" || w == "lt") )
            return 'L';
        if ((w == "right" || w == "rt") && word(i + 1) != "of" && !isKind(i + 1, TokKind::Hyphen) && word(i + 1) != "way")
            return 'R';
        // Turning clockwise, as seen on the map, is bending to the right.
        if (w == "counterclockwise" || w == "anticlockwise"
            || (w == "clockwise" && i >= from + 2 && isKind(i - 1, TokKind::Hyphen)
                && (word(i - 2) == "counter" || word(i - 2) == "anti")))
            return 'L';
        if (w == "clockwise")
            return 'R';
    }
    return 0;
}

Call CallReader::read()
{
    Call call;
    call.span = {m_t[m_begin].span.begin, m_t[m_end - 1].span.end};
    m_curve = findCurveWord();
    setAside();
    markLabels();

    // Where does the call end? At the point of beginning, unless a witness
    // tree only says where that point lies.
    const size_t closeEnd = m_witnessCut == std::string::npos ? m_end : m_witnessCut;
    size_t closedAt = 0;
    for (size_t i = m_begin; i < closeEnd; ++i) {
        const std::string_view w = word(i);
        if (w.empty())
            continue;
        const bool beginningWord = w == "beginning" || w == "begining" || w == "beg" || w == "commencement"
                                   || w == "commencing" || w == "begin" || (w == "starting" && prevWord(i) == "of");
        // "point of beginning", "to the beginning", "said beginning", "the true point of beginning";
        // not "the beginning of a curve"; "the point of beginning of the tract herein described" is.
        const size_t p1 = beginningWord ? prevWordIndex(i) : std::string::npos;
        const std::string_view b1 = beginningWord ? prevWord(i) : std::string_view();
        const std::string_view b2 = p1 == std::string::npos ? std::string_view() : prevWord(p1);
        const bool pointOf = b1 == "of" && (b2 == "point" || b2 == "place");
        if (beginningWord && ((word(i + 1) != "of" && word(i + 1) != "a") || pointOf)) {
            const size_t p2 = p1 == std::string::npos ? p1 : prevWordIndex(p1);
            const std::string_view b3 = p2 == std::string::npos ? std::string_view() : prevWord(p2);
            if (b1 == "of" || b1 == "the" || b1 == "said" || (b1 == "true" && b2 == "the")) {
                call.closes = true;
                call.atCommencement = w == "commencement" || w == "commencing" || w == "starting";
                call.truePoint = call.truePoint || b1 == "true" || b2 == "true" || b3 == "true";
            }
        }
        if (w == "pob" || w == "tpob" || w == "p0b") {
            call.closes = true;
            if (w == "tpob" || prevWord(i) == "true")
                call.truePoint = true;
        }
        if ((w == "named" || w == "mentioned") && wordBefore(i, {"first"}, 1)
            && wordBefore(i, {"point", "place", "corner", "station"}, 2))
            call.closes = true;
        if (w == "beginning" && (word(i + 1) == "corner" || word(i + 1) == "point"))
            call.closes = true;
        if ((w == "station" || w == "corner") && prevWord(i) == "first" && wordBefore(i, {"the"}, 2))
            call.closes = true;
        // "Courses from POB:", "from said point of beginning": where a list starts, not where it ends.
        if (call.closes && !closedAt && wordBefore(i, {"from"}, 5)) {
            call.closes = call.truePoint = false;
        }
        if (call.closes && !closedAt)
            closedAt = i;
        if (w == "starting" && word(i + 1) == "point")
            call.closes = true;
    }

    // Lost digits anywhere in the course part: nothing is certain.
    for (size_t i = m_begin; i < m_end; ++i)
        if (m_active[i - m_begin] && m_t[i].kind == TokKind::Lost) {
            call.problems.push_back("digits lost");
            return call;
        }

    if (m_curve) {
        readCurve(call);
    } else {
        if (m_nextCurveAt != std::string::npos) {
            // What follows "the beginning of a curve" describes the next call.
            readNextCurve(call);
            for (size_t i = m_nextCurveAt; i < m_end; ++i)
                m_active[i - m_begin] = false;
        }
        readStraight(call);
    }
    return call;
}

void CallReader::readStraight(Call &call)
{
    std::optional<Found> found;
    std::string approximate;
    for (size_t i = m_begin; i < m_end; ++i) {
        const std::string_view w = activeWord(i);
        if (w.empty())
            continue;
        if (isApproximateDirection(w) && approximate.empty() && !isSideNoun(word(skipPunct(i + 1)))
            && prevWord(i) != "most" && word(i + 1) != "of")
            approximate = m_t[i].word;
        if (w == "continuing" || w == "continue" || w == "continues" || w == "cont" || w == "continuation")
            call.continuing = true;
        if (!found) {
            auto f = directionAt(i);
            if (f)
                found = f;
        }
    }
    if (!found && m_context.azimuthDoc) {
        const size_t k = skipPunct(m_begin);
        if (isKind(k, TokKind::Number) && (isKind(k + 1, TokKind::Degree) || isDegreeWord(word(k + 1)))) {
            if (auto a = readAngle(k, true)) {
                if (m_context.azimuthFromSouth)
                    a->deg = a->deg >= 180 ? a->deg - 180 : a->deg + 180;
                Found f;
                f.begin = k;
                f.end = a->end;
                if (auto d = azimuthToQuadrant(*a, f.problem))
                    f.direction = *d;
                found = f;
            }
        }
    }
    size_t afterDirection = m_begin;
    if (found) {
        use(found->begin, found->end);
        afterDirection = found->end;
        if (!found->problem.empty())
            call.problems.push_back(found->problem);
        else
            call.direction = found->direction;
    } else if (call.continuing && m_context.previous) {
        call.direction = m_context.previous;
    } else if (!approximate.empty()) {
        call.problems.push_back("approximate direction '" + approximate + "'");
    }
    takeLengths(call, afterDirection);
    if (call.problems.empty() && !call.direction && call.distance)
        call.problems.push_back("no bearing");
    if (call.problems.empty() && call.direction && !call.distance && !call.closes)
        call.problems.push_back("no distance");
}

void CallReader::takeLengths(Call &call, size_t afterDirection)
{
    std::vector<FoundLength> lengths;
    const size_t bareAt = skipPunct(afterDirection);
    for (size_t i = m_begin; i < m_end; ++i) {
        if (!active(i) || m_t[i].kind != TokKind::Number)
            continue;
        // A bare number counts right after the direction ("N 45 E 100"), after
        // "a distance of", or as the only number of a shorthand call.
        bool allowBare = (call.direction || afterDirection > m_begin) && i == bareAt;
        if (!allowBare) {
            const std::string_view pw = prevWord(i);
            allowBare = (pw == "of" && wordBefore(i, {"distance"}, 3)) || pw == "distance" || pw == "dist";
        }
        if (word(i + 1) == "or" && isKind(i + 2, TokKind::Number))
            allowBare = true; // "62 or 65 poles": the first number has no unit of its own
        auto f = lengthAt(i, allowBare);
        if (!f)
            continue;
        // Two numbers in doubt: "62 or 65 poles".
        const size_t p = prevWordIndex(i);
        if (p != std::string::npos && word(p) == "or" && isKind(prevWordIndex(p), TokKind::Number))
            f->problem = "two distances '" + formatNumber(m_t[prevWordIndex(p)].value) + " or "
                         + formatNumber(m_t[i].value) + "'";
        if (word(f->end) == "or" && isKind(f->end + 1, TokKind::Number))
            f->problem = "two distances '" + formatNumber(m_t[i].value) + " or "
                         + formatNumber(m_t[f->end + 1].value) + "'";
        if (word(i + 1) == "or" && isKind(i + 2, TokKind::Number))
            f->problem = "two distances '" + formatNumber(m_t[i].value) + " or "
                         + formatNumber(m_t[i + 2].value) + "'";
        // Distances to features passed on the way: "at 25 poles", "passing ... at 150 feet".
        const std::string_view pw = prevWord(i);
        if (pw == "at" || pw == "distant" || (pw == "of" && wordBefore(i, {"at"}, 4)))
            f->feature = true;
        // "20 feet from and parallel to the centre line": an offset, not the course.
        if (word(f->end) == "from" || word(f->end) == "distant" || word(f->end) == "off")
            f->feature = true;
        if (wordBefore(i, {"all", "total", "totaling", "totalling", "whole", "altogether"}, 4))
            f->inAll = true;
        if (wordBefore(i, {"about", "approximately", "approx", "abt", "circa", "nearly"}, 2))
            f->warning = "distance given as about";
        use(f->begin, f->end);
        lengths.push_back(*f);
    }
    // The course's length: the one "in all"; else the first that is not a
    // feature passed, a width or a size, preferring one with its unit written.
    const FoundLength *chosen = nullptr;
    for (const auto &l : lengths)
        if (l.inAll && !l.size)
            chosen = &l;
    for (bool bare : {false, true})
        for (const auto &l : lengths)
            if (!chosen && !l.feature && !l.size && l.bare == bare)
                chosen = &l;
    if (!chosen)
        for (const auto &l : lengths)
            if (!l.size) {
                chosen = &l;
                break;
            }
    if (chosen) {
        if (!chosen->problem.empty()) {
            call.problems.push_back(chosen->problem);
            return;
        }
        // "1 00 feet", "100.0.0 feet": a number without a unit right before the
        // length's own; which digits belong together is not certain.
        for (const auto &l : lengths) {
            if (!l.bare || chosen->bare || l.begin >= chosen->begin)
                continue;
            const bool gluedPeriod = l.end + 1 == chosen->begin && isKind(l.end, TokKind::Period)
                                     && m_t[l.end].span.begin == m_t[l.end - 1].span.end
                                     && m_t[l.end].span.end == m_t[chosen->begin].span.begin;
            if (l.end == chosen->begin || gluedPeriod) {
                call.problems.push_back("two numbers before the unit");
                return;
            }
        }
        call.distance = chosen->length;
        if (!chosen->warning.empty())
            call.warnings.push_back(chosen->warning);
    }
}

void CallReader::readCurve(Call &call)
{
    call.curve = true;
    std::optional<Found> chordBearing, radialBearing;
    bool nonTangent = false, degreeOfCurve = false;
    double delta = -1;
    std::string concave;
    for (size_t i = m_begin; i < m_end; ++i) {
        const std::string_view w = activeWord(i);
        if (w.empty())
            continue;
        const bool eq = isKind(i + 1, TokKind::Equals) || isKind(i + 1, TokKind::Colon);
        if (w == "nontangent" || ((w == "non" || w == "not") && word(skipPunct(i + 1)) == "tangent")
            || (w == "non" && isKind(i + 1, TokKind::Hyphen) && word(i + 2) == "tangent"))
            nonTangent = true;
        if (w == "concave" || w == "concaved") {
            size_t k = skipPunct(i + 1);
            while (word(k) == "to" || word(k) == "the" || word(k) == "toward" || word(k) == "towards")
                ++k;
            concave = word(k);
        }
        if (w == "curve" && i > m_begin
            && (isKind(i - 1, TokKind::Degree) || isKind(i - 1, TokKind::Minute) || isDegreeWord(word(i - 1)))) {
            degreeOfCurve = true; // "a 4°00' curve", "a 2 degree curve"
            continue;
        }
        if ((w == "degree" && word(i + 1) == "of" && (word(i + 2) == "curve" || word(i + 2) == "curvature"))
            || (w == "dc" && eq)) {
            degreeOfCurve = true;
            use(i, i + 3);
            auto a = readAngle(skipPunct(i + 3), true);
            if (a)
                use(i, a->end);
            continue;
        }
        if (w == "radius" || w == "rad" || (w == "r" && eq)) {
            if (word(i + 1) == "point" || word(i + 1) == "pt")
                continue;
            // "a 500.00 foot radius curve"
            size_t u = i;
            while (u > m_begin && isKind(u - 1, TokKind::Hyphen))
                --u;
            if (u >= m_begin + 2 && isKind(u - 2, TokKind::Number) && !call.radius) {
                auto f = lengthAt(u - 2, false);
                if (f && f->problem.empty() && f->end == u) {
                    use(u - 2, i + 1);
                    call.radius = f->length;
                    continue;
                }
            }
            auto f = lengthAfter(i + 1, 6, true);
            if (f && !call.radius) {
                use(i, f->end);
                if (!f->problem.empty())
                    call.problems.push_back(f->problem);
                else
                    call.radius = f->length;
            }
            continue;
        }
        if ((w == "arc" && (lengthAfter(i + 1, 5, true))) || ((w == "l" || w == "a" || w == "al") && eq)
            || (w == "length" && !wordBefore(i, {"chord", "tangent", "radius"}, 2))
            || (w == "distance" && !wordBefore(i, {"chord", "tangent"}, 2))) {
            auto f = lengthAfter(i + 1, 5, true);
            if (f && !call.distance && word(f->end) != "radius" && !isKind(f->end, TokKind::Hyphen)) {
                use(i, f->end);
                if (!f->problem.empty())
                    call.problems.push_back(f->problem);
                else
                    call.distance = f->length;
            }
            continue;
        }
        if (w == "chord" || w == "chd" || ((w == "c" || w == "ch" || w == "cd" || w == "lc") && eq)) {
            // "chord bearing N 10 E, 99.5 feet", "chord of 99.5 feet", "C=99.5"
            size_t k = i + 1;
            for (int n = 0; n < 6 && in(k); ++n, ++k) {
                auto d = directionAt(k);
                if (d && d->direction.hasAngle) {
                    use(i, d->end);
                    chordBearing = d;
                    k = d->end;
                    break;
                }
                if (isKind(k, TokKind::Number))
                    break;
            }
            auto f = lengthAfter(k, 6, true);
            if (f && !call.chord && !f->size) {
                use(i, f->end);
                if (!f->problem.empty())
                    call.problems.push_back(f->problem);
                else
                    call.chord = f->length;
            }
            continue;
        }
        if ((w == "cb" || w == "chb" || w == "cbrg" || w == "brg" || w == "bearing" || w == "bears") && !chordBearing) {
            const bool radial = wordBefore(i, {"radius", "radial", "center", "centre", "rp"}, 6);
            size_t k = skipPunct(i + 1);
            while (in(k) && (isKind(k, TokKind::Equals) || word(k) == "of" || isPunct(k)))
                ++k;
            auto d = directionAt(k);
            if (d) {
                use(i, d->end);
                if (radial)
                    radialBearing = d;
                else
                    chordBearing = d;
                if (radial) {
                    auto f = lengthAfter(d->end, 6, true);
                    if (f && !call.radius && f->problem.empty()) {
                        use(f->begin, f->end);
                        call.radius = f->length;
                    }
                }
            }
            continue;
        }
        if (w == "delta" || (w == "central" && word(i + 1) == "angle") || w == "angle" || (w == "d" && eq)
            || (w == "included" && word(i + 1) == "angle") || (w == "interior" && word(i + 1) == "angle")) {
            size_t k = i + 1;
            while (in(k) && (isPunct(k) || isKind(k, TokKind::Equals) || word(k) == "angle" || word(k) == "of"
                             || word(k) == "an" || word(k) == "a"))
                ++k;
            auto a = readAngle(k, true);
            if (a) {
                use(i, a->end);
                if (!a->lost && a->min < 60 && a->sec < 60)
                    delta = (a->deg + a->min / 60.0 + a->sec / 3600.0) * kPi / 180.0;
            }
            continue;
        }
        if (w == "tangent" || (w == "t" && eq)) {
            auto f = lengthAfter(i + 1, 5, false);
            if (f)
                use(i, f->end);
        }
    }
    // A bearing without a key word: the chord's, unless it points at the centre.
    if (!chordBearing) {
        for (size_t i = m_begin; i < m_end; ++i) {
            auto d = directionAt(i);
            if (!d || !d->direction.hasAngle)
                continue;
            use(d->begin, d->end);
            if (wordBefore(i, {"radius", "radial", "center", "centre", "rp"}, 6))
                radialBearing = d;
            else
                chordBearing = d;
            if (!call.chord && !chordBearing)
                continue;
            auto f = lengthAfter(d->end, 6, true);
            if (f && f->problem.empty() && !f->size) {
                use(f->begin, f->end);
                if (chordBearing && !call.chord)
                    call.chord = f->length;
                else if (radialBearing && !call.radius)
                    call.radius = f->length;
            }
            break;
        }
    }
    // "along said curve 100 feet": a length without a key word is the arc.
    if (!call.distance) {
        for (size_t i = m_begin; i < m_end; ++i) {
            if (!active(i) || m_t[i].kind != TokKind::Number)
                continue;
            auto f = lengthAt(i, false);
            if (f && !f->size && !f->feature) {
                use(f->begin, f->end);
                if (!f->problem.empty())
                    call.problems.push_back(f->problem);
                else
                    call.distance = f->length;
                break;
            }
        }
    }
    if (!call.radius && m_context.pendingRadius && !degreeOfCurve)
        call.radius = m_context.pendingRadius;
    // "along said curve": the curve of the call before, radius and all
    if (!call.radius && !degreeOfCurve && m_context.lastCurveRadius)
        for (size_t i = m_begin; i + 1 < m_end; ++i)
            if (word(i) == "said" && (word(i + 1) == "curve" || word(i + 1) == "arc"))
                call.radius = m_context.lastCurveRadius;
    if (radialBearing && radialBearing->problem.empty())
        call.radial = radialBearing->direction;
    else if (!radialBearing && m_context.pendingRadial)
        radialBearing = Found{*m_context.pendingRadial, {}, 0, 0};
    if (!chordBearing && m_context.pendingChordBearing)
        chordBearing = Found{*m_context.pendingChordBearing, {}, 0, 0};
    if (!call.chord)
        call.chord = m_context.pendingChord;
    if (!call.distance)
        call.distance = m_context.pendingArc;
    call.side = sideWord(m_begin, m_end);
    if (!call.side && m_context.pendingSide)
        call.side = m_context.pendingSide;
    if (chordBearing && !chordBearing->problem.empty())
        call.problems.push_back(chordBearing->problem);
    else if (chordBearing)
        call.direction = chordBearing->direction;
    if (concave.empty())
        concave = m_context.pendingConcave;
    if (!call.side && !concave.empty()) {
        // Concave toward a compass direction: the side follows from the way
        // the curve runs (its chord, or the course it continues).
        double cx = 0, cy = 0;
        const bool n = concave.find("north") == 0 || concave == "n" || concave == "ne" || concave == "nw";
        const bool s = concave.find("south") == 0 || concave == "s" || concave == "se" || concave == "sw";
        if (n) cy = 1;
        if (s) cy = -1;
        if (concave.find("east") != std::string::npos || concave == "e" || concave.back() == 'e') cx = 1;
        if (concave.find("west") != std::string::npos || concave == "w" || concave.back() == 'w') cx = -1;
        std::optional<Direction> way = call.direction ? call.direction : m_context.previous;
        if (way && (cx != 0 || cy != 0)) {
            const double az = way->azimuth() * kPi / 180.0;
            const double tx = std::sin(az), ty = std::cos(az);
            const double cross = tx * cy - ty * cx;
            if (std::fabs(cross) > 1e-6)
                call.side = cross > 0 ? 'L' : 'R';
        }
    }
    if (!call.problems.empty())
        return;
    if (!call.radius) {
        call.problems.push_back(degreeOfCurve ? "curve given only by its degree of curve" : "curve without a radius");
        return;
    }
    // A radial bearing square to the course before marks a tangent curve; any
    // other one, without a chord bearing, a non-tangent curve that cannot be drawn.
    if (radialBearing && !chordBearing && !nonTangent) {
        bool square = false;
        if (m_context.previous) {
            const double turn = std::fmod(std::fabs(radialBearing->direction.azimuth() - m_context.previous->azimuth()), 180.0);
            square = std::fabs(turn - 90.0) < 1.0 / 3600.0;
        }
        nonTangent = !square;
    }
    if (nonTangent && !chordBearing) {
        call.problems.push_back(radialBearing ? "non-tangent curve given only by a radial bearing"
                                              : "non-tangent curve without a chord bearing");
        return;
    }
    if (!call.side) {
        call.problems.push_back("curve side (left or right) not given");
        return;
    }
    if (!call.distance && !call.chord) {
        if (delta > 0) {
            const double r = call.radius->value;
            call.distance = Length{r * delta, call.radius->kind, call.radius->mainFactor};
        } else if (!call.closes) {
            call.problems.push_back("curve without arc or chord");
        }
    }
}

void CallReader::readNextCurve(Call &call)
{
    for (size_t i = m_nextCurveAt; i < m_end; ++i) {
        if (!active(i))
            continue;
        const std::string_view w = word(i);
        if ((w == "radius" || w == "rad") && !call.nextRadius) {
            auto f = lengthAfter(i + 1, 6, true);
            if (f && f->problem.empty())
                call.nextRadius = f->length;
        }
        if (w == "concave" || w == "concaved") {
            size_t k = skipPunct(i + 1);
            while (word(k) == "to" || word(k) == "the" || word(k) == "toward" || word(k) == "towards")
                ++k;
            call.nextConcave = std::string(word(k));
        }
    }
    call.nextSide = sideWord(m_nextCurveAt, m_end);
    // The rest of what the clause tells of the curve, read as a curve's own
    // call would be; its side waits for the next call, which knows the way in.
    CallContext alone;
    alone.azimuthFromSouth = m_context.azimuthFromSouth;
    const Call next = CallReader(m_t, m_nextCurveAt, m_end, alone).read();
    if (next.curve && next.direction && next.direction->hasAngle)
        call.nextChordBearing = next.direction;
    if (next.curve) {
        call.nextChord = next.chord;
        call.nextArc = next.distance;
        call.nextRadial = next.radial;
    }
}

} // namespace

double Direction::azimuth() const
{
    const double a = degrees + minutes / 60.0 + seconds / 3600.0;
    if (ew == 0) {
        switch (ns) {
        case 'N': return 0;
        case 'E': return 90;
        case 'S': return 180;
        default: return 270;
        }
    }
    if (ns == 'N')
        return ew == 'E' ? a : 360 - a;
    return ew == 'E' ? 180 - a : 180 + a;
}

Call readCall(const std::vector<Token> &tokens, std::size_t begin, std::size_t end, const CallContext &context)
{
    if (begin >= end || end > tokens.size())
        return {};
    return CallReader(tokens, begin, end, context).read();
}

std::vector<std::pair<std::size_t, std::size_t>> splitCourses(const std::vector<Token> &t, std::size_t begin,
                                                               std::size_t end)
{
    std::vector<std::pair<std::size_t, std::size_t>> out;
    size_t start = begin;
    int depth = 0;
    bool sawLength = false;
    auto wordAt = [&](size_t k) -> std::string_view {
        return k < end && t[k].kind == TokKind::Word ? std::string_view(t[k].word) : std::string_view();
    };
    for (size_t i = begin; i < end; ++i) {
        const std::string_view w = wordAt(i);
        if (w == "curve" || w == "arc" || w == "radius" || w == "from" || w == "whence" || w == "bears"
            || w == "brs" || w == "witness" || w == "bore")
            break; // a curve's bearings are its chord's; after a witness tree nothing is a course
        if ((w == "r" || w == "cb" || w == "ch" || w == "delta") && i + 1 < end && t[i + 1].kind == TokKind::Equals)
            break; // "R=50.00' L=78.54' CB=S 0°00' W": a curve given as a plat writes it

        if (t[i].kind == TokKind::LParen)
            ++depth;
        else if (t[i].kind == TokKind::RParen)
            depth = depth > 0 ? depth - 1 : 0;
        if (depth > 0)
            continue;
        if (t[i].kind == TokKind::Number && i + 1 < end
            && (t[i + 1].kind == TokKind::Minute || (unitNamed(wordAt(i + 1)) && unitNamed(wordAt(i + 1))->known)))
            sawLength = true;
        size_t recordFrom = i;
        // "East 100 feet; West 50 feet": a due course after a length, its "thence" left out.
        const std::string_view before = i > begin ? wordAt(i - 1) : std::string_view();
        const TokKind beforeKind = i > begin ? t[i - 1].kind : TokKind::Other;
        const bool closesBearing = beforeKind == TokKind::Degree || beforeKind == TokKind::Minute
                                   || beforeKind == TokKind::Second || beforeKind == TokKind::Number
                                   || isDegreeWord(before) || isMinuteWord(before) || isSecondWord(before);
        const bool dueCourse = (w == "east" || w == "west") && !closesBearing && before != "the" && before != "said"
                               && before != "of" && before != "its";
        if (sawLength && (w == "n" || w == "s" || w == "north" || w == "south" || dueCourse)
            && !recordBearingEnd(t, i, begin, end, recordFrom)) {
            size_t k = i + 1;
            while (k < end && (t[k].kind == TokKind::Period || t[k].kind == TokKind::Comma))
                ++k;
            if (k < end && t[k].kind == TokKind::Number) {
                out.emplace_back(start, i);
                start = i;
                sawLength = false;
            }
        }
    }
    out.emplace_back(start, end);
    return out;
}

bool isClauseStart(const std::vector<Token> &t, std::size_t i, bool &commence)
{
    if (i >= t.size() || t[i].kind != TokKind::Word)
        return false;
    const std::string &w = t[i].word;
    // "POB at the NW cor.": surveyor's shorthand for "Beginning at".
    const bool begin = w == "beginning" || w == "begin" || w == "begining" || w == "beg" || w == "begins"
                       || (w == "pob" && i + 1 < t.size() && t[i + 1].isWord("at"));
    const bool comm = w == "commencing" || w == "commence" || w == "commencement" || w == "commences"
                      || (w == "starting" && i + 1 < t.size() && t[i + 1].isWord("at"));
    if (!begin && !comm)
        return false;
    if (i > 0) {
        size_t p = i - 1;
        while (p > 0 && (t[p].kind == TokKind::Comma))
            --p;
        const std::string &pw = t[p].word;
        if (t[p].kind == TokKind::Word
            && (pw == "of" || pw == "the" || pw == "to" || pw == "said" || pw == "true" || pw == "for" || pw == "a"
                || pw == "first" || pw == "point" || pw == "place" || pw == "new"))
            return false;
    }
    size_t n = i + 1;
    while (n < t.size() && (t[n].kind == TokKind::Comma || t[n].kind == TokKind::Colon || t[n].kind == TokKind::Period))
        ++n;
    if (n < t.size() && t[n].kind == TokKind::Word) {
        const std::string &nw = t[n].word;
        if (nw == "of" || nw == "corner" || nw == "point")
            return false;
    }
    commence = comm;
    return true;
}

} // namespace quilmar::deedtext
