#include "misreadings.h"

#include <algorithm>

#include "bearing_text.h"

namespace quilmar::analysis {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

Misreading reading(BlunderKind kind, int column, std::string text)
{
    Misreading m;
    m.kind = kind;
    m.first.column = column;
    m.first.text = std::move(text);
    return m;
}

// The digits of a cell's leading number: [begin, end) after blanks and sign.
bool numberSpan(const std::string &t, size_t &begin, size_t &end)
{
    size_t i = t.find_first_not_of(' ');
    if (i == std::string::npos)
        return false;
    if (t[i] == '+' || t[i] == '-')
        ++i;
    begin = i;
    bool digits = false, point = false;
    while (i < t.size() && (isDigit(t[i]) || (t[i] == '.' && !point))) {
        point = point || t[i] == '.';
        digits = digits || isDigit(t[i]);
        ++i;
    }
    end = i;
    return digits;
}

// Moves the decimal point one place right (@p right) or left.
std::string shiftPoint(const std::string &t, size_t begin, size_t end, bool right)
{
    std::string num = t.substr(begin, end - begin);
    size_t p = num.find('.');
    std::string whole = p == std::string::npos ? num : num.substr(0, p);
    std::string frac = p == std::string::npos ? "" : num.substr(p + 1);
    if (right) {
        whole += frac.empty() ? '0' : frac[0];
        if (!frac.empty())
            frac.erase(0, 1);
    } else {
        frac.insert(frac.begin(), whole.empty() ? '0' : whole.back());
        if (!whole.empty())
            whole.pop_back();
    }
    const size_t first = std::min(whole.find_first_not_of('0'), whole.size() - (whole.empty() ? 0 : 1));
    std::string number = whole.empty() ? std::string("0") : whole.substr(first);
    if (!frac.empty()) {
        number.push_back('.');
        number += frac;
    }
    std::string out = t.substr(0, begin);
    out += number;
    out += t.substr(end);
    return out;
}

void lengthReadings(const std::string &t, int column, int maxDecimals, double chainLength, std::vector<Misreading> &out)
{
    size_t b = 0, e = 0;
    // Past fifteen digits no distance was measured; nor is it worth the time.
    if (!numberSpan(t, b, e) || e - b > 16)
        return;
    const double old = textValue(t);
    auto add = [&](BlunderKind kind, std::string text) {
        if (textValue(text) != old && decimalPlaces(text, true) <= maxDecimals)
            out.push_back(reading(kind, column, std::move(text)));
    };
    for (size_t k = b; k + 1 < e; ++k) {
        // A transposition never makes a leading zero.
        if (k == b && t[k + 1] == '0')
            continue;
        if (isDigit(t[k]) && isDigit(t[k + 1]) && t[k] != t[k + 1]) {
            std::string s = t;
            std::swap(s[k], s[k + 1]);
            add(BlunderKind::Transpose, std::move(s));
        }
    }
    for (size_t k = b; k <= e; ++k)
        for (char d = '0'; d <= '9'; ++d)
            add(BlunderKind::DropDigit, std::string(t).insert(k, 1, d));
    for (size_t k = b; k + 1 < e; ++k)
        if (isDigit(t[k]) && t[k] == t[k + 1])
            add(BlunderKind::DoubleDigit, std::string(t).erase(k, 1));
    add(BlunderKind::TimesTen, shiftPoint(t, b, e, false));
    add(BlunderKind::TimesTen, shiftPoint(t, b, e, true));
    if (chainLength > 0.0)
        add(BlunderKind::ChainsFeet, std::string(t).replace(b, e - b, trimmedFixed(old * chainLength, maxDecimals)));
}

} // namespace

int decimalPlaces(const std::string &t, bool significant)
{
    size_t b = 0, e = 0;
    if (!numberSpan(t, b, e))
        return 0;
    const size_t point = t.find('.', b);
    if (point == std::string::npos || point >= e)
        return 0;
    size_t last = e;
    if (significant)
        while (last > point + 1 && t[last - 1] == '0')
            --last;
    return int(last - point - 1);
}

int lengthColumn(const RowCells &cells, const CourseReading &course)
{
    if (course.curve() && cells[ColDistance - 1].isEmpty() && !cells[ColChord - 1].isEmpty())
        return ColChord;
    return ColDistance;
}

std::vector<Misreading> misreadings(const RowCells &cells, const CourseReading &course, const MisreadingOptions &options)
{
    std::vector<Misreading> out;
    const std::string ns = trimmed(cellText(cells[ColNS - 1]));
    const std::string ew = trimmed(cellText(cells[ColEW - 1]));
    if (ns == "N" || ns == "S")
        out.push_back(reading(BlunderKind::NsFlip, ColNS, ns == "N" ? "S" : "N"));
    if (ns == "E" || ns == "W")
        out.push_back(reading(BlunderKind::EwFlip, ColNS, ns == "E" ? "W" : "E"));
    else if (ew == "E" || ew == "W")
        out.push_back(reading(BlunderKind::EwFlip, ColEW, ew == "E" ? "W" : "E"));
    const std::string deg = cellText(cells[ColDeg - 1]), min = cellText(cells[ColMin - 1]);
    if (!ns.empty() && ns != "E" && ns != "W" && !trimmed(deg).empty() && !trimmed(min).empty()) {
        const double dv = textValue(deg), mv = textValue(min);
        if (dv != mv && mv <= 90.0 && dv < 60.0) {
            Misreading m = reading(BlunderKind::DegMinSwap, ColDeg, min);
            m.second = CellChange{ColMin, deg};
            out.push_back(std::move(m));
        }
    }
    if (!options.lengths)
        return out;
    const int column = lengthColumn(cells, course);
    lengthReadings(cellText(cells[column - 1]), column, options.maxDecimals, options.chainLength, out);
    return out;
}

} // namespace quilmar::analysis
