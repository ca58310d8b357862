#include "printouts.h"

#include <algorithm>
#include <sstream>

#include "course_description.h"
#include "figure_painter.h"
#include "grid_rules.h"
#include "number_format.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

namespace {

constexpr float kLeft = 360.0f;       // a quarter inch in
constexpr float kTop = 1080.0f;       // three quarters of an inch down
constexpr float kListRoom = 4320.0f;  // the first page keeps three inches for the list
constexpr float kCharTwips = 100.0f;  // a character of the 8-point face, for wrapping

// The map page's font has no metrics here: a word is as wide as its characters.
float wordWidth(const std::string &word) { return float(word.size()) * kCharTwips; }

// The heading printed word by word from (kLeft, kTop); returns the y below it.
float printHeading(Surface &s, float pageWidth, const std::string &heading)
{
    const float line = s.textHeight();
    float x = kLeft, y = kTop;
    std::string text = heading;
    std::replace(text.begin(), text.end(), '\r', ' ');
    std::istringstream lines(text);
    std::string para;
    bool any = false;
    while (std::getline(lines, para)) {
        size_t start = 0;
        while (start <= para.size()) {
            const size_t end = std::min(para.find(' ', start), para.size());
            const std::string word = para.substr(start, end - start) + " ";
            if (x > kLeft && x + wordWidth(word) > pageWidth - 2400.0f) {
                x = kLeft;
                y += line;
            }
            s.text({x, y}, 0, word);
            x += wordWidth(word);
            any = true;
            start = end + 1;
        }
        x = kLeft;
        y += line;
    }
    return any ? y : kTop;
}

// The arrow with its foot at (kLeft, footY): seven steps of the outline, three of the "N".
void printNorthArrow(Surface &s, float footY)
{
    const PointF steps[] = {{0, -300}, {-120, 0}, {240, -240}, {240, 240}, {-120, 0}, {0, 300}, {-240, 0}};
    PointF p{kLeft - 240.0f, footY};
    s.setColour({0, 0, 0});
    for (const PointF &d : steps) {
        const PointF q{p.x + d.x, p.y + d.y};
        s.line(p, q);
        p = q;
    }
    p = {kLeft - 150.0f, footY - 60.0f};
    for (const PointF &d : {PointF{0, -120}, PointF{60, 120}, PointF{0, -120}}) {
        const PointF q{p.x + d.x, p.y + d.y};
        s.line(p, q);
        p = q;
    }
}

std::string listEntry(const Engine &engine, int row)
{
    const std::string words = describeCourse(engine.table(), row);
    if (words.empty())
        return {};
    return std::to_string(row + 1) + "  " + words;
}

void printList(const Engine &engine, Surface &s, float top, float pageWidth)
{
    std::vector<std::string> entries;
    for (int r = 0; r < std::min<int>(engine.table().highest, CourseTable::kRows); ++r)
        if (std::string e = listEntry(engine, r); !e.empty())
            entries.push_back(e);
    const size_t half = (entries.size() + 1) / 2;
    const float column = (pageWidth - 2 * kLeft) / 2;
    for (size_t i = 0; i < entries.size(); ++i) {
        const bool right = i >= half;
        s.text({kLeft + (right ? column : 0.0f), top}, int(right ? i - half : i), entries[i]);
    }
}

} // namespace

std::string printedScaleCaption(const std::string &scaleText, const std::string &autoScale, Units units,
                                bool referenceList)
{
    std::string caption = "Scale = 1:";
    const double n = leadingNumber(scaleText);
    if (n != 0.0) {
        caption += generalNumber(n);
    } else if (const size_t eq = autoScale.find('='); eq != std::string::npos) {
        caption += autoScale.substr(eq + 1);
    }
    if (referenceList) {
        if (units == Units::Feet)
            caption += " (Feet)";
        else if (units == Units::Meters)
            caption += " (Meters)";
    }
    return caption;
}

void printMapSheets(Engine &engine, PrintSheet &sheet)
{
    Surface &s = sheet.surface;
    const PrintOptions &o = engine.printOptions();
    const CanvasView screen = engine.canvasView();
    const float line = s.textHeight();
    const float reserved = float(engine.table().highest / 2 + 2) * line;
    const bool listOn = o.referenceList == 1;
    const bool secondPage = listOn && reserved > kListRoom;
    for (int copy = 0; copy < sheet.copies; ++copy) {
        if (copy > 0)
            sheet.newPage();
        s.setScaleOrigin(0, 0);
        const float headingBottom =
            o.propertyDescription == 1 ? printHeading(s, sheet.width, engine.description()) : kTop;
        const float foot = headingBottom + 240.0f + 540.0f;
        printNorthArrow(s, foot);
        const float captionTop = foot + 2 * line;

        // The printing draw fits the map to twice the canvas: give it half the area.
        const float areaTop = captionTop + line + 360.0f;
        const float areaBottom = sheet.height - 360.0f - (listOn && !secondPage ? reserved : 0.0f);
        const float areaWidth = sheet.width - 2 * kLeft;
        const float areaHeight = std::max(720.0f, areaBottom - areaTop);
        engine.setCanvasSize(areaWidth / 2, areaHeight / 2);
        const DrawResult &draw = engine.mindraw({.printing = true});
        // The caption reads the AutoScale of this printing draw.
        std::string autoScale;
        try {
            autoScale = autoScaleCaption(engine.scaleChoice(), engine.scaleFactor());
        } catch (const VbError &) {
        }
        s.text({kLeft - 360.0f, captionTop}, 0,
               printedScaleCaption(engine.scaleText(), autoScale, engine.units(), listOn));
        s.setScaleOrigin(draw.view.scaleLeft - kLeft, draw.view.scaleTop - areaTop);
        try {
            paintFigure(draw.figure, s, Target::Printer);
        } catch (const VbError &) {
        }
        s.setScaleOrigin(0, 0);
        s.setColour({0, 0, 0});
        if (listOn && !secondPage) {
            printList(engine, s, sheet.height - 360.0f - reserved, sheet.width);
        } else if (secondPage) {
            sheet.newPage();
            const float below =
                o.propertyDescription == 1 ? printHeading(s, sheet.width, engine.description()) : kTop;
            s.line({kLeft, below + line / 2}, {kLeft + sheet.width - 2520.0f, below + line / 2});
            printList(engine, s, below + line, sheet.width);
        }
    }
    engine.setCanvasSize(screen.width, screen.height);
}

void printDataSheets(const Engine &engine, PrintSheet &sheet)
{
    Surface &s = sheet.surface;
    // The columns of a fixed-pitch 12-point face: 144 twips a character.
    constexpr float kPitch = 144.0f;
    const int columns[] = {1, 5, 10, 15, 20, 23, 35, 47, 59, 64};
    const char *headings[] = {"NS", "Deg", "Min", "Sec", "EW", "Distance", "Chord", "Radius", "L-R", "Tag"};
    const float line = s.textHeight();
    float y = 720.0f + 2 * line;
    auto next = [&] {
        y += line;
        if (y + line > sheet.height - 720.0f) {
            sheet.newPage();
            y = 720.0f;
        }
    };
    s.setScaleOrigin(0, 0);
    s.setColour({0, 0, 0});
    // The description wrapped by words to the columns of the listing.
    const size_t width = size_t(std::max(10.0f, (sheet.width - 2 * kLeft) / kPitch));
    std::istringstream description(engine.description());
    for (std::string text; std::getline(description, text);) {
        if (!text.empty() && text.back() == '\r')
            text.pop_back();
        while (text.size() > width) {
            size_t cut = text.rfind(' ', width);
            if (cut == std::string::npos || cut == 0)
                cut = width;
            s.text({kLeft, y}, 0, text.substr(0, cut));
            next();
            text.erase(0, cut);
            text.erase(0, text.find_first_not_of(' ') == std::string::npos ? text.size() : text.find_first_not_of(' '));
        }
        s.text({kLeft, y}, 0, text);
        next();
    }
    next();
    for (int c = 0; c < 10; ++c)
        s.text({kLeft + (columns[c] - 1) * kPitch, y}, 0, headings[c]);
    next();
    const CourseTable &t = engine.table();
    for (int r = 0; r < std::min<int>(t.highest, CourseTable::kRows); ++r) {
        bool any = false;
        for (int c = 0; c < 10; ++c) {
            const std::string text = cellText(t.at(r, c + 1));
            if (!text.empty()) {
                s.text({kLeft + (columns[c] - 1) * kPitch, y}, 0, text);
                any = true;
            }
        }
        if (any)
            next();
    }
    s.text({kLeft, y}, 0, "end");
}

} // namespace quilmar
