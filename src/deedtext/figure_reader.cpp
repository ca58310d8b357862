// The third pass of the deed reader: the description's structure. The tokens
// are cut into clauses at "thence" (and, in a list of calls without it, at
// semicolons and line breaks), at "Beginning"/"Commencing", at exceptions and
// at tract headings. A commencement's calls are tie calls closed by a "B" row;
// a figure's call that ends at the point of beginning is followed by a "C" row;
// a new figure (another tract, an exception described by metes and bounds)
// starts after an "N" row. Text before the first beginning and after a close
// (areas, references, basis of bearings) gives no rows.

#include "deed_text.h"

#include <algorithm>
#include <map>

#include "call_reader.h"
#include "ground_units.h"
#include "number_text.h"
#include "tokenizer.h"
#include "vocabulary.h"

namespace quilmar::deedtext {

namespace {

enum class ClauseKind { Preamble, Call, Begin, Commence, Except, Tract };

struct Clause {
    ClauseKind kind;
    size_t begin, end; // token range
};

bool isExceptAt(const std::vector<Token> &t, size_t i)
{
    const std::string &w = t[i].word;
    auto wordAt = [&](size_t k) -> std::string_view {
        return k < t.size() && t[k].kind == TokKind::Word ? std::string_view(t[k].word) : std::string_view();
    };
    if (w == "except" || w == "excepting" || w == "excepted" || w == "exception" || w == "excluding") {
        if (wordAt(i + 1) == "as" || wordAt(i + 1) == "for")
            return false;
        if (wordAt(i + 1) == "and" && (wordAt(i + 2) == "reserving" || wordAt(i + 2) == "reserve"))
            return false;
        if (wordAt(i + 1) == "reserving" || wordAt(i + 1) == "reserve")
            return false;
        // "LESS AND EXCEPT", "SAVE AND EXCEPT": one exception, counted at its first word.
        if (i >= 2 && wordAt(i - 1) == "and" && (wordAt(i - 2) == "less" || wordAt(i - 2) == "save"))
            return false;
        return true;
    }
    if (w == "less") {
        if (i > 0 && (wordAt(i - 1) == "or" || wordAt(i - 1) == "more" || wordAt(i - 1) == "no"))
            return false;
        const std::string_view n = wordAt(i + 1);
        return n == "and" || n == "a" || n == "the" || n == "that" || n == "and" || n == "an" || n == "one"
               || n == "all" || n == "said" || (i + 1 < t.size() && t[i + 1].kind == TokKind::Number && !n.empty());
    }
    if (w == "save" && wordAt(i + 1) == "and" && wordAt(i + 2) == "except")
        return true;
    return false;
}

bool isOrdinal(std::string_view w)
{
    return w == "first" || w == "second" || w == "third" || w == "fourth" || w == "fifth" || w == "sixth"
           || w == "seventh" || w == "eighth" || w == "ninth" || w == "tenth";
}

// "TRACT 1", "PARCEL A:", "FIRST TRACT", "Tract No. 2" at the start of a line.
bool isTractHeading(const std::vector<Token> &t, size_t i)
{
    if (!t[i].lineStart || t[i].kind != TokKind::Word)
        return false;
    const std::string &w = t[i].word;
    auto wordAt = [&](size_t k) -> std::string_view {
        return k < t.size() && t[k].kind == TokKind::Word ? std::string_view(t[k].word) : std::string_view();
    };
    if (isOrdinal(w))
        return wordAt(i + 1) == "tract" || wordAt(i + 1) == "parcel" || wordAt(i + 1) == "lot";
    if (w != "tract" && w != "parcel")
        return false;
    size_t k = i + 1;
    if (wordAt(k) == "no" || wordAt(k) == "number" || wordAt(k) == "#")
        ++k;
    while (k < t.size() && t[k].kind == TokKind::Period)
        ++k;
    if (k >= t.size())
        return false;
    if (t[k].kind == TokKind::Number)
        return true;
    return t[k].kind == TokKind::Word && (t[k].word.size() <= 3 || isOrdinal(t[k].word));
}

bool isDirectionWord(const Token &t)
{
    if (t.kind != TokKind::Word)
        return false;
    const std::string &w = t.word;
    return w == "n" || w == "s" || w == "e" || w == "w" || w == "north" || w == "south" || w == "east"
           || w == "west" || w == "due" || w == "ne" || w == "nw" || w == "se" || w == "sw" || w == "northeast"
           || w == "northwest" || w == "southeast" || w == "southwest" || isApproximateDirection(w)
           || w == "azimuth" || w == "az";
}

std::vector<Clause> splitClauses(const std::vector<Token> &t, bool &anyClauseWord)
{
    bool thenceDoc = false;
    anyClauseWord = false;
    for (size_t i = 0; i < t.size(); ++i) {
        bool commence = false;
        if (t[i].kind == TokKind::Word && isThenceWord(t[i].word) && t[i].word != "then")
            thenceDoc = true;
        if (isClauseStart(t, i, commence))
            anyClauseWord = true;
    }
    std::vector<Clause> clauses;
    clauses.push_back({ClauseKind::Preamble, 0, t.size()});
    auto open = [&](ClauseKind kind, size_t i) {
        clauses.back().end = i;
        clauses.push_back({kind, i, t.size()});
    };
    for (size_t i = 0; i < t.size(); ++i) {
        const Token &tok = t[i];
        bool commence = false;
        const bool lastIsFreshCall = clauses.back().kind == ClauseKind::Call && clauses.back().begin + 1 >= i;
        if (tok.kind == TokKind::Word && isThenceWord(tok.word)) {
            if (!lastIsFreshCall)
                open(ClauseKind::Call, i);
            continue;
        }
        if (tok.kind == TokKind::Word && (tok.word == "running" || tok.word == "run" || tok.word == "runs")) {
            size_t k = i + 1;
            while (k < t.size() && (t[k].kind == TokKind::Comma || (t[k].kind == TokKind::Word && isThenceWord(t[k].word))))
                ++k;
            const bool afterThence = i > 0 && t[i - 1].kind == TokKind::Word && isThenceWord(t[i - 1].word);
            if (k < t.size() && isDirectionWord(t[k]) && !afterThence && !lastIsFreshCall)
                open(ClauseKind::Call, i);
            continue;
        }
        if (isClauseStart(t, i, commence)) {
            open(commence ? ClauseKind::Commence : ClauseKind::Begin, i);
            continue;
        }
        if (tok.kind == TokKind::Word && isExceptAt(t, i)) {
            open(ClauseKind::Except, i);
            continue;
        }
        if (isTractHeading(t, i)) {
            open(ClauseKind::Tract, i);
            continue;
        }
        if (!thenceDoc) {
            // A list of calls: one a line or one between semicolons.
            if (tok.kind == TokKind::Semicolon) {
                open(ClauseKind::Call, i);
                continue;
            }
            if (tok.lineStart && i > 0)
                open(ClauseKind::Call, i);
            // "POB at NW cor. N45E 100' to pin, S45E 50' to pin": after a comma
            // or a period, a quadrant bearing starts the next call.
            if ((tok.kind == TokKind::Comma || tok.kind == TokKind::Period) && i + 2 < t.size()
                && t[i + 1].kind == TokKind::Word && (t[i + 1].word == "n" || t[i + 1].word == "s") && t[i + 2].kind == TokKind::Number
                && !t[i + 2].fraction)
                open(ClauseKind::Call, i + 1);
        }
    }
    return clauses;
}

struct PendingRow {
    Call call;
    char tag = 0; // 'B', 'C', 'N' for a tag-only row
    Span span;
};

struct Builder {
    std::vector<PendingRow> rows;
    std::vector<DeedFlag> flags;
    size_t figureRows = 0;
    size_t figureFlags = 0; ///< calls of the figure flagged instead of written
    bool needNew = false;
    bool tagInFigure = false; ///< the figure has its "B" already
};

std::string lengthCell(const std::optional<Length> &l, bool metric, double bareFactor)
{
    if (!l)
        return {};
    double v = l->value;
    switch (l->kind) {
    case Length::Kind::Feet: break;
    case Length::Kind::Metres: v = metric ? l->value : l->value * groundUnitFactor(GroundUnit::Meters).feet; break;
    case Length::Kind::Bare: v = l->value * bareFactor; break;
    }
    return formatNumber(v);
}

} // namespace

bool DeedImport::anyFlagged() const
{
    return std::any_of(flags.begin(), flags.end(), [](const DeedFlag &f) { return f.severity == Severity::Flag; });
}

DeedImport parseDeedText(std::string_view text)
{
    const std::vector<Token> t = tokenize(text);
    bool anyClauseWord = false;
    const std::vector<Clause> clauses = splitClauses(t, anyClauseWord);

    // "azimuths ... measured clockwise from true South": said once for the whole description.
    bool fromSouth = false;
    for (size_t i = 2; i < t.size() && !fromSouth; ++i) {
        if (!t[i].isWord("south") || !(t[i - 1].isWord("from") || (t[i - 1].isWord("true") && t[i - 2].isWord("from"))))
            continue;
        for (size_t k = i > 16 ? i - 16 : 0; k < i; ++k)
            fromSouth = fromSouth || t[k].isWord("azimuth") || t[k].isWord("azimuths");
    }
    bool azimuthDoc = false;
    for (size_t i = 0; i < t.size() && !azimuthDoc; ++i)
        azimuthDoc = t[i].isWord("azimuths")
                     || (t[i].isWord("azimuth") && i + 1 < t.size() && t[i + 1].isWord("measured"));
    enum class Mode { Idle, Commence, Body } mode = anyClauseWord ? Mode::Idle : Mode::Body;
    Builder b;
    size_t tieRows = 0;
    CallContext context;
    context.azimuthFromSouth = fromSouth;
    context.azimuthDoc = azimuthDoc;
    std::optional<Clause> pendingException;
    bool embeddedTies = false;

    // A close followed by more "thence" calls was the end of a commencement
    // ("Beginning at the section corner; thence N 100 feet to the point of
    // beginning; thence ..."): its "C" becomes the "B".
    std::optional<size_t> lastClose;
    auto spanOf = [&](const Clause &c) {
        return Span{t[c.begin].span.begin, t[c.end - 1].span.end};
    };
    // "to the true point of beginning" in a figure without a commencement
    // ends tie calls when courses follow, and closes the figure when none do.
    std::optional<size_t> trueBeginning;
    auto closeAtTrueBeginning = [&] {
        if (trueBeginning && *trueBeginning + 1 == b.rows.size())
            b.rows[*trueBeginning].tag = 'C';
        trueBeginning.reset();
    };
    auto newFigure = [&] {
        closeAtTrueBeginning();
        lastClose.reset();
        if (b.figureRows > 0)
            b.needNew = true;
        b.figureRows = 0;
        b.figureFlags = 0;
        b.tagInFigure = false;
        context = {};
        context.azimuthFromSouth = fromSouth;
        context.azimuthDoc = azimuthDoc;
    };
    auto addTag = [&](char tag, Span span) {
        PendingRow r;
        r.tag = tag;
        r.span = span;
        b.rows.push_back(std::move(r));
    };
    auto addRow = [&](const Call &call) {
        if (b.needNew) {
            addTag('N', call.span);
            b.needNew = false;
        }
        PendingRow r;
        r.call = call;
        r.span = call.span;
        b.rows.push_back(std::move(r));
        ++b.figureRows;
    };
    auto flagException = [&] {
        if (!pendingException)
            return;
        const Clause &c = *pendingException;
        // The flag points at the exception's own sentence.
        size_t end = c.begin + 1;
        while (end < c.end && t[end].kind != TokKind::Semicolon
               && !(t[end].kind == TokKind::Period && end + 1 < c.end
                    && (t[end + 1].lineStart || (t[end + 1].kind == TokKind::Word && t[end + 1].word.size() > 2))))
            ++end;
        end = std::min(end + 1, c.end);
        b.flags.push_back({Span{t[c.begin].span.begin, t[end - 1].span.end}, "exception by reference cannot be drawn",
                           Severity::Flag});
        pendingException.reset();
    };

    for (const Clause &c : clauses) {
        if (c.begin >= c.end)
            continue;
        switch (c.kind) {
        case ClauseKind::Begin:
            if (mode == Mode::Commence && tieRows > 0) {
                addTag('B', spanOf(c));
                ++b.figureRows;
                b.tagInFigure = true;
            } else if (mode != Mode::Commence) {
                newFigure();
            }
            pendingException.reset();
            mode = Mode::Body;
            continue;
        case ClauseKind::Commence:
            // "BEGINNING at a point reached by commencing at ..., thence ...,
            // thence ...; thence ...": the tie calls are the beginning clause's
            // own, and end with its sentence part.
            embeddedTies = mode == Mode::Body && b.figureRows == 0 && c.begin > 0 && t[c.begin - 1].isWord("by");
            newFigure();
            pendingException.reset();
            mode = Mode::Commence;
            tieRows = 0;
            continue;
        case ClauseKind::Except:
            flagException();
            pendingException = c;
            newFigure();
            mode = Mode::Idle;
            continue;
        case ClauseKind::Tract:
            flagException();
            newFigure();
            mode = anyClauseWord ? Mode::Idle : Mode::Body;
            continue;
        case ClauseKind::Preamble:
        case ClauseKind::Call:
            break;
        }
        if (mode == Mode::Idle && !(lastClose && c.kind == ClauseKind::Call))
            continue;
        for (const auto &[from, to] : splitCourses(t, c.begin, c.end)) {
            if (mode == Mode::Idle) {
                if (!lastClose || b.rows[*lastClose].tag != 'C')
                    break;
                const Call next = readCall(t, from, to, context);
                if (!next.problems.empty() || !next.distance)
                    break;
                b.rows[*lastClose].tag = 'B';
                b.tagInFigure = true;
                lastClose.reset();
                mode = Mode::Body;
            }
            const Call call = readCall(t, from, to, context);
            for (const auto &w : call.warnings)
                b.flags.push_back({call.span, w, Severity::Warning});
            const bool flagged = !call.problems.empty();
            if (flagged) {
                b.flags.push_back({call.span, call.problems.front(), Severity::Flag});
                ++b.figureFlags;
            }
            const bool course = !flagged && (call.distance.has_value() || (call.curve && (call.chord || call.radius)));
            if (!flagged && !course && !call.closes && !call.holdsCourse())
                continue; // a clause without a course: "thence with the road"
            if (call.closes && !course && !flagged && b.figureRows == 0 && b.figureFlags == 0)
                continue; // "POINT OF BEGINNING: the corner of ...": a heading, not a close
            if (course) {
                addRow(call);
                if (mode == Mode::Commence)
                    ++tieRows;
            }
            if (!call.curve && call.direction && course)
                context.previous = call.direction;
            else if (call.curve)
                context.previous.reset();
            context.pendingRadius = call.nextRadius;
            context.pendingSide = call.nextSide;
            context.pendingConcave = call.nextConcave;
            context.pendingChordBearing = call.nextChordBearing;
            context.pendingChord = call.nextChord;
            context.pendingArc = call.nextArc;
            context.pendingRadial = call.nextRadial;
            if (call.curve && call.radius)
                context.lastCurveRadius = call.radius;
            if (call.closes) {
                const bool closesFigure = call.atCommencement && !call.truePoint;
                if (!closesFigure && (mode == Mode::Commence || (call.truePoint && mode == Mode::Body && !b.tagInFigure))) {
                    if (b.needNew) {
                        addTag('N', call.span);
                        b.needNew = false;
                    }
                    if (mode == Mode::Body)
                        trueBeginning = b.rows.size();
                    addTag('B', call.span);
                    ++b.figureRows;
                    b.tagInFigure = true;
                    mode = Mode::Body;
                } else {
                    if (b.needNew) {
                        addTag('N', call.span);
                        b.needNew = false;
                    }
                    addTag('C', call.span);
                    ++b.figureRows;
                    mode = Mode::Idle;
                    if (!b.tagInFigure)
                        lastClose = b.rows.size() - 1;
                }
            }
        }
        // Only where the ties run on with commas or "and" and a semicolon ends
        // them; ties cut by semicolons from the first end at their point of beginning.
        if (mode == Mode::Commence && embeddedTies && tieRows > 0
            && (t[c.end - 1].kind == TokKind::Semicolon || t[c.end - 1].kind == TokKind::Period)) {
            if (tieRows > 1) {
                addTag('B', spanOf(c));
                ++b.figureRows;
                b.tagInFigure = true;
                mode = Mode::Body;
            }
            embeddedTies = false;
        }
    }
    closeAtTrueBeginning();
    flagException();

    // Units: a description wholly in metres stays in metres; a number given
    // without a unit is in the description's usual unit.
    size_t metricCount = 0, feetCount = 0;
    std::map<double, size_t> factorCount;
    for (const auto &r : b.rows) {
        for (const auto *l : {&r.call.distance, &r.call.chord, &r.call.radius}) {
            if (!*l)
                continue;
            if ((*l)->kind == Length::Kind::Metres)
                ++metricCount;
            else if ((*l)->kind == Length::Kind::Feet) {
                ++feetCount;
                ++factorCount[(*l)->mainFactor];
            }
        }
    }
    DeedImport result;
    result.metric = metricCount > 0 && feetCount == 0;
    double bareFactor = 1;
    size_t best = 0;
    for (const auto &[factor, count] : factorCount)
        if (count > best) {
            best = count;
            bareFactor = factor;
        }
    if (result.metric)
        bareFactor = 1;

    for (const auto &r : b.rows) {
        DeedRow row;
        row.span = r.span;
        if (r.tag) {
            row.cells[9] = std::string(1, r.tag);
        } else {
            const Call &c = r.call;
            if (c.direction) {
                const Direction &d = *c.direction;
                row.cells[0] = std::string(1, d.ns);
                // A bearing of 0 or 90 degrees is a due course, written as one
                // ("N 0° E" as N alone, "S 90° W" as W alone).
                const bool whole = d.hasAngle && d.minutes == 0 && d.seconds == 0;
                if (whole && d.degrees == 90)
                    row.cells[0] = std::string(1, d.ew);
                else if (d.hasAngle && !(whole && d.degrees == 0)) {
                    row.cells[1] = std::to_string(d.degrees);
                    row.cells[2] = std::to_string(d.minutes);
                    row.cells[3] = formatNumber(d.seconds);
                    row.cells[4] = std::string(1, d.ew);
                }
            }
            row.cells[5] = lengthCell(c.distance, result.metric, bareFactor);
            if (c.curve) {
                row.cells[6] = lengthCell(c.chord, result.metric, bareFactor);
                row.cells[7] = lengthCell(c.radius, result.metric, bareFactor);
                row.cells[8] = c.side ? std::string(1, c.side) : std::string();
            }
        }
        result.rows.push_back(std::move(row));
    }
    result.flags = std::move(b.flags);
    std::stable_sort(result.flags.begin(), result.flags.end(),
                     [](const DeedFlag &a, const DeedFlag &c) { return a.span.begin < c.span.begin; });
    return result;
}

LineColumn lineColumnOf(std::string_view text, std::size_t offset)
{
    LineColumn lc;
    offset = std::min(offset, text.size());
    for (size_t i = 0; i < offset; ++i) {
        const char c = text[i];
        if (c == '\n' || (c == '\r' && (i + 1 >= text.size() || text[i + 1] != '\n'))) {
            ++lc.line;
            lc.column = 1;
        } else if (c == '\r') {
            // CR of CR LF: the LF ends the line
        } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
            ++lc.column;
        }
    }
    return lc;
}

std::string quoteSpan(std::string_view text, Span span, std::size_t maxChars)
{
    std::string out;
    const size_t end = std::min(span.end, text.size());
    bool blank = false;
    size_t chars = 0;
    for (size_t i = std::min(span.begin, end); i < end; ++i) {
        const char c = text[i];
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            blank = !out.empty();
            continue;
        }
        if (blank) {
            if (chars >= maxChars) {
                out += "...";
                return out;
            }
            out += ' ';
            ++chars;
            blank = false;
        }
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
            if (chars >= maxChars) {
                out += "...";
                return out;
            }
            ++chars;
        }
        out += c;
    }
    return out;
}

} // namespace quilmar::deedtext
