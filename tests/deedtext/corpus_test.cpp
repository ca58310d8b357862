// The corpus: descriptions of many eras, regions and styles, each with its
// expected rows and flags (NAME.txt and NAME.tsv in corpus/), judged as the
// import is judged from outside. Every expected row and every call that should
// be flagged is one item. Rows that carry nothing that moves or tags are
// dropped; the rest are aligned with the expected rows in order; code cells
// compare without regard to case, lengths within 0.005, angles within 0.005
// seconds of arc. A flag counts when a flag points at the call and no course
// row was made from it. Rows that match nothing count against the score.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>

#include "deed_text.h"

namespace {

using quilmar::deedtext::DeedRow;
using quilmar::deedtext::DeedImport;
using Cells = std::array<std::string, 10>;

struct Expected {
    std::vector<Cells> rows;
    std::vector<std::string> flags; // a piece of the flagged call's text
};

Expected readTsv(const std::filesystem::path &path)
{
    Expected e;
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::vector<std::string> f;
        std::stringstream ss(line);
        std::string cell;
        while (std::getline(ss, cell, '\t'))
            f.push_back(cell);
        if (f[0] == "flag" && f.size() > 1) {
            e.flags.push_back(f[1]);
        } else if (f[0] == "row") {
            Cells c;
            for (size_t i = 0; i < 10; ++i)
                c[i] = i + 1 < f.size() ? f[i + 1] : "";
            e.rows.push_back(c);
        }
    }
    return e;
}

double num(const std::string &s) { return s.empty() ? 0.0 : std::stod(s); }

bool sameCode(const std::string &a, const std::string &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return std::toupper(x) == std::toupper(y); });
}

bool rowsMatch(const Cells &want, const Cells &got)
{
    for (int i : {0, 4, 8, 9})
        if (!sameCode(want[size_t(i)], got[size_t(i)]))
            return false;
    const double a = num(want[1]) + num(want[2]) / 60 + num(want[3]) / 3600;
    const double b = num(got[1]) + num(got[2]) / 60 + num(got[3]) / 3600;
    if (std::fabs(a - b) * 3600 > 0.005)
        return false;
    for (int i : {5, 6, 7})
        if (std::fabs(num(want[size_t(i)]) - num(got[size_t(i)])) > 0.005)
            return false;
    return true;
}

bool movesOrTags(const Cells &c) { return !c[5].empty() || !c[6].empty() || !c[7].empty() || !c[9].empty(); }

struct Score {
    size_t right = 0;
    size_t items = 0; // expected items plus rows that matched nothing
    std::string detail;
};

Score judge(const std::string &text, const Expected &want, const DeedImport &got)
{
    Score s;
    std::vector<const DeedRow *> rows;
    for (const auto &r : got.rows)
        if (movesOrTags(r.cells))
            rows.push_back(&r);
    // Longest common subsequence of expected and produced rows.
    const size_t n = want.rows.size(), m = rows.size();
    std::vector<std::vector<size_t>> lcs(n + 1, std::vector<size_t>(m + 1, 0));
    for (size_t i = n; i-- > 0;)
        for (size_t j = m; j-- > 0;)
            lcs[i][j] = rowsMatch(want.rows[i], rows[j]->cells) ? lcs[i + 1][j + 1] + 1
                                                                 : std::max(lcs[i + 1][j], lcs[i][j + 1]);
    const size_t matched = lcs[0][0];
    std::ostringstream d;
    // Walk the alignment to report what went wrong.
    for (size_t i = 0, j = 0; i < n || j < m;) {
        if (i < n && j < m && rowsMatch(want.rows[i], rows[j]->cells) && lcs[i][j] == lcs[i + 1][j + 1] + 1) {
            ++i, ++j;
        } else if (j < m && (i >= n || lcs[i][j + 1] >= lcs[i + 1][j])) {
            d << "    extra row:";
            for (const auto &c : rows[j]->cells)
                d << " [" << c << "]";
            d << "  <- " << quilmar::deedtext::quoteSpan(text, rows[j]->span, 50) << "\n";
            ++j;
        } else {
            d << "    missing row:";
            for (const auto &c : want.rows[i])
                d << " [" << c << "]";
            d << "\n";
            ++i;
        }
    }
    size_t flagsRight = 0;
    for (const auto &piece : want.flags) {
        const size_t at = text.find(piece);
        bool flagged = false, rowMade = false;
        if (at != std::string::npos) {
            for (const auto &f : got.flags)
                flagged = flagged || (f.span.begin <= at && at < f.span.end);
            for (const auto *r : rows)
                rowMade = rowMade || (r->cells[9].empty() && r->span.begin <= at && at < r->span.end);
        }
        if (flagged && !rowMade)
            ++flagsRight;
        else
            d << "    flag missed: \"" << piece << "\"" << (rowMade ? " (a row was made)" : "") << "\n";
    }
    s.right = matched + flagsRight;
    s.items = n + want.flags.size() + (m - matched);
    s.detail = d.str();
    return s;
}

std::string readAll(const std::filesystem::path &p)
{
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(DeedCorpus, EveryDescriptionScores)
{
    const std::filesystem::path dir = QUILMAR_DEED_CORPUS;
    std::vector<std::filesystem::path> files;
    for (const auto &e : std::filesystem::directory_iterator(dir))
        if (e.path().extension() == ".txt")
            files.push_back(e.path());
    std::sort(files.begin(), files.end());
    ASSERT_GE(files.size(), 40u);

    std::map<std::string, std::pair<size_t, size_t>> groups;
    size_t right = 0, items = 0;
    for (const auto &txt : files) {
        auto tsv = txt;
        tsv.replace_extension(".tsv");
        const std::string text = readAll(txt);
        const Expected want = readTsv(tsv);
        const Score s = judge(text, want, quilmar::deedtext::parseDeedText(text));
        const std::string name = txt.stem().string();
        const std::string group = name.substr(0, name.find('_'));
        groups[group].first += s.right;
        groups[group].second += s.items;
        right += s.right;
        items += s.items;
        std::cout << std::setw(32) << std::left << name << " " << s.right << "/" << s.items << "\n" << s.detail;
        // Each description is read in full; a miss names itself above.
        EXPECT_EQ(s.right, s.items) << name << "\n" << s.detail;
    }
    std::cout << "by group:\n";
    for (const auto &[g, ri] : groups)
        std::cout << "  " << std::setw(12) << std::left << g << " " << ri.first << "/" << ri.second << "  "
                  << std::fixed << std::setprecision(1) << 100.0 * double(ri.first) / double(ri.second) << " %\n";
    std::cout << "total " << right << "/" << items << "  " << 100.0 * double(right) / double(items) << " %\n";
}

} // namespace
