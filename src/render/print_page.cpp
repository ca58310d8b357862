#include "print_page.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "figure_painter.h"
#include "number_format.h"
#include "number_read.h"

namespace quilmar {

namespace {

constexpr float kTextLeft = 360.0f;
constexpr float kTextTop = 1080.0f;
constexpr float kHeadingRightReserve = 2400.0f;
constexpr float kRuleReserve = 2520.0f;
constexpr float kGap = 360.0f;
constexpr float kArrowGap = 240.0f;
constexpr float kArrowHeight = 540.0f;

float listLineHeight(Surface &surface)
{
    // A list line is as high as "ABC" printed in the list's font.
    return surface.textHeight();
}

// Entries per page, column-major in two columns of @p lines lines each.
void paintListBlock(Surface &surface, PageSize page, const std::vector<std::string> &entries, size_t first,
                    size_t count, float top, float lineHeight)
{
    const size_t rows = (count + 1) / 2;
    const float secondColumn = kTextLeft + (page.width - 2 * kTextLeft) / 2;
    for (size_t i = 0; i < count; ++i) {
        const float x = i < rows ? kTextLeft : secondColumn;
        const float y = top + float(i < rows ? i : i - rows) * lineHeight;
        surface.text({x, y}, 0, entries[first + i]);
    }
}

// The drawing-unit box of what the printer receives of @p figure (arcs by their
// own sweep, not their whole circle); empty when it prints nothing.
struct Box {
    double left = 1e300, top = 1e300, right = -1e300, bottom = -1e300;
    bool empty() const { return left > right; }
    void add(double x, double y)
    {
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
    }
};

Box printedBox(const Figure &figure)
{
    constexpr double kTurn = 6.283185307179586;
    Box box;
    for (const FigureItem &item : figure.items) {
        if (item.target == Target::Screen)
            continue;
        if (const auto *line = std::get_if<FigLine>(&item.shape)) {
            box.add(line->from.x, line->from.y);
            box.add(line->to.x, line->to.y);
        } else if (const auto *circle = std::get_if<FigCircle>(&item.shape)) {
            box.add(circle->centre.x - circle->radius, circle->centre.y - circle->radius);
            box.add(circle->centre.x + circle->radius, circle->centre.y + circle->radius);
        } else if (const auto *arc = std::get_if<FigArc>(&item.shape)) {
            double sweep = std::fmod(arc->end - arc->start, kTurn);
            if (sweep < 0)
                sweep += kTurn;
            auto point = [&](double t) {
                box.add(arc->centre.x + arc->radius * std::cos(t), arc->centre.y - arc->radius * std::sin(t));
            };
            point(arc->start);
            point(arc->start + sweep);
            for (int k = 0; k < 8; ++k) {
                const double cardinal = k * kTurn / 4;
                double along = std::fmod(cardinal - arc->start, kTurn);
                if (along < 0)
                    along += kTurn;
                if (along < sweep)
                    point(cardinal);
            }
        }
    }
    return box;
}

void paintHeading(Surface &surface, const std::vector<PlacedWord> &words)
{
    surface.setFont(kHeadingFont);
    for (const PlacedWord &w : words)
        surface.text(w.at, 0, w.text);
}

} // namespace

std::vector<PlacedWord> wrapHeading(const Surface &surface, PageSize page, float top, const std::string &heading)
{
    std::vector<PlacedWord> words;
    const float lineHeight = surface.textHeight();
    const float limit = page.width - kHeadingRightReserve;
    float x = 0.0f, y = top;
    size_t start = 0;
    while (start <= heading.size()) {
        size_t end = heading.find_first_of(" \n", start);
        if (end == std::string::npos)
            end = heading.size();
        std::string word = heading.substr(start, end - start);
        if (!word.empty() && word.back() == '\r')
            word.pop_back();
        const float width = surface.textWidth(word);
        // Tested before every word, the first one too: a first word wider than
        // the line is printed one line down and leaves the first line empty.
        if (x + width > limit) {
            x = 0.0f;
            y += lineHeight;
        }
        // The text's own last space leaves no empty word behind.
        if (!(end == heading.size() && word.empty())) {
            words.push_back({{kTextLeft + x, y}, word + " "});
            x += surface.textWidth(word + " ");
        }
        if (end < heading.size() && heading[end] == '\n') {
            x = 0.0f;
            y += lineHeight;
        }
        start = end + 1;
    }
    return words;
}

MapPageLayout planMapPage(Surface &surface, PageSize page, const MapPageText &text)
{
    const TextFont saved = surface.font();
    MapPageLayout layout;
    float arrowTip = kTextTop;
    if (text.description && !text.heading.empty()) {
        surface.setFont(kHeadingFont);
        layout.heading = wrapHeading(surface, page, kTextTop, text.heading);
        if (!layout.heading.empty()) {
            layout.headingBottom = layout.heading.back().at.y + surface.textHeight();
            arrowTip = layout.headingBottom + kArrowGap;
        }
    }
    layout.arrowFoot = arrowTip + kArrowHeight;

    surface.setFont(kCaptionFont);
    const float captionLine = surface.textHeight();
    // Two empty caption lines stand between the arrow's foot and the caption.
    layout.captionTop = layout.arrowFoot + 2 * captionLine;
    const float mapTop = layout.captionTop + captionLine + kGap;
    float mapBottom = page.height - kGap;

    if (text.referenceList) {
        layout.listReserved = float(text.highest / 2 + 2) * listLineHeight(surface);
        if (layout.listReserved <= kFirstPageListRoom) {
            layout.listOnFirstPage = true;
            layout.listTop = page.height - kGap - layout.listReserved;
            mapBottom = layout.listTop - kGap;
        } else {
            layout.listOnSecondPage = true;
        }
    }
    layout.mapArea = {kGap, mapTop, std::max(0.0f, page.width - 2 * kGap), std::max(0.0f, mapBottom - mapTop)};
    surface.setFont(saved);
    return layout;
}

void paintNorthArrow(Surface &surface, float footY)
{
    static constexpr PointF kArrow[] = {{0, -300}, {-120, 0}, {240, -240}, {240, 240}, {-120, 0}, {0, 300}, {-240, 0}};
    static constexpr PointF kLetterN[] = {{0, -120}, {60, 120}, {0, -120}};
    PointF pen{kTextLeft - 240.0f, footY};
    for (PointF step : kArrow) {
        const PointF to{pen.x + step.x, pen.y + step.y};
        surface.line(pen, to);
        pen = to;
    }
    pen = {kTextLeft - 150.0f, footY - 60.0f};
    for (PointF step : kLetterN) {
        const PointF to{pen.x + step.x, pen.y + step.y};
        surface.line(pen, to);
        pen = to;
    }
}

std::string scaleCaption(std::string_view scaleText, std::string_view autoScaleCaption, Units units,
                         bool referenceList)
{
    std::string caption = "Scale = 1:";
    const double n = leadingNumber(scaleText);
    if (n != 0.0) {
        caption += generalNumber(n);
    } else if (const size_t eq = autoScaleCaption.find('='); eq != std::string_view::npos) {
        caption += autoScaleCaption.substr(eq + 1);
    }
    if (referenceList) {
        if (units == Units::Feet)
            caption += " (Feet)";
        else if (units == Units::Meters)
            caption += " (Meters)";
    }
    return caption;
}

PointF figureOrigin(const PageRect &area, const Figure &figure, float fitLeft, float fitTop)
{
    PointF origin{fitLeft - area.left, fitTop - area.top};
    const Box box = printedBox(figure);
    if (box.empty())
        return origin;
    if (box.right - box.left > area.width)
        origin.x = float(box.left - area.left);
    if (box.bottom - box.top > area.height)
        origin.y = float(box.top - area.top);
    return origin;
}

void paintMapPage(Surface &surface, PageSize page, const MapPageLayout &layout, const MapPageText &text,
                  const Figure &figure, float fitLeft, float fitTop)
{
    surface.setScaleOrigin(0.0f, 0.0f);
    surface.setColour(paletteColour(Palette::Black));
    paintHeading(surface, layout.heading);
    paintNorthArrow(surface, layout.arrowFoot);

    surface.setFont(kCaptionFont);
    surface.text({kTextLeft, layout.captionTop}, 0, text.scaleCaption);

    // The figure keeps its own drawing coordinates; only the origin moves.
    const PointF origin = figureOrigin(layout.mapArea, figure, fitLeft, fitTop);
    surface.setScaleOrigin(origin.x, origin.y);
    paintFigure(figure, surface, Target::Printer);
    surface.setScaleOrigin(0.0f, 0.0f);
    surface.setColour(paletteColour(Palette::Black));

    if (!text.referenceList)
        return;
    const float lineHeight = listLineHeight(surface);
    const std::vector<std::string> &entries = text.listEntries;
    if (layout.listOnFirstPage) {
        // The block's first line stays empty, between the map and the list.
        paintListBlock(surface, page, entries, 0, entries.size(), layout.listTop + lineHeight, lineHeight);
        return;
    }
    size_t next = 0;
    do {
        surface.newPage();
        float top = kTextTop;
        if (!layout.heading.empty()) {
            paintHeading(surface, layout.heading);
            surface.setFont(kCaptionFont);
            top = layout.headingBottom;
        }
        const float ruleY = top + lineHeight / 2;
        surface.line({kTextLeft, ruleY}, {kTextLeft + page.width - kRuleReserve, ruleY});
        top = ruleY + lineHeight / 2 + lineHeight;
        const size_t linesHere = size_t(std::max(1.0f, (page.height - kGap - top) / lineHeight));
        const size_t count = std::min(entries.size() - next, 2 * linesHere);
        paintListBlock(surface, page, entries, next, count, top, lineHeight);
        next += count;
    } while (next < entries.size());
}

} // namespace quilmar
