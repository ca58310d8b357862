#include "map_printout.h"

#include "course_description.h"
#include "data_listing.h"
#include "text_pages.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

std::vector<std::string> referenceListEntries(const Engine &engine)
{
    std::vector<std::string> entries;
    const CourseTable &table = engine.table();
    const LegTable &legs = engine.legs();
    const int last = std::min<int>(table.highest, CourseTable::kRows);
    for (int row = 0; row < last; ++row) {
        const std::string words = describeCourse(table, row);
        if (words.empty())
            continue;
        if (words == "New") {
            entries.push_back(words);
            continue;
        }
        const int label = size_t(row) < legs.size() ? legs[size_t(row)].course : row + 1;
        entries.push_back(std::to_string(label) + "  " + std::string(trimBlanks(words)));
    }
    return entries;
}

std::string printedScaleCaption(const Engine &engine)
{
    // The caption is printed before the printing draw, from what Autoscalebox
    // shows at that moment (a printing draw leaves it as it was), so at a size
    // level the paper repeats the window's AutoScale number, as it always has.
    return scaleCaption(engine.scaleText(), engine.autoscalebox(), engine.units(),
                        engine.printOptions().referenceList == 1);
}

namespace {

MapPageText pageText(Engine &engine)
{
    MapPageText text;
    const PrintOptions &options = engine.printOptions();
    text.description = options.propertyDescription == 1;
    text.referenceList = options.referenceList == 1;
    text.heading = engine.description();
    text.highest = engine.table().highest;
    return text;
}

} // namespace

std::string printMapPage(Engine &engine, Surface &surface, PageSize page, int copies)
{
    const TextFont saved = surface.font();
    const CanvasView canvas = engine.canvasView();
    std::string fault;
    try {
        for (int copy = 1; copy <= std::max(1, copies); ++copy) {
            if (copy > 1)
                surface.newPage();
            MapPageText text = pageText(engine);
            text.scaleCaption = printedScaleCaption(engine);
            const MapPageLayout layout = planMapPage(surface, page, text);
            const PageRect printing = printCanvas(layout.mapArea);
            engine.setCanvasSize(printing.width, printing.height);
            const DrawResult &draw = engine.mindraw({.printing = true});
            text.listEntries = referenceListEntries(engine);
            paintMapPage(surface, page, layout, text, draw.figure, draw.view.scaleLeft, draw.view.scaleTop);
        }
    } catch (const VbError &e) {
        fault = e.description();
    }
    engine.setCanvasSize(canvas.width, canvas.height);
    surface.setFont(saved);
    return fault;
}

void printDataPages(const Engine &engine, Surface &surface, PageSize page)
{
    const TextFont saved = surface.font();
    surface.setFont(kDataFont);
    const std::vector<std::string> lines =
        dataListingLines(engine.table(), engine.description(), charsPerLine(surface, page));
    paintTextPages(surface, page, lines);
    surface.setFont(saved);
}

CanvasDraw drawDoubleSize(Engine &engine)
{
    const CanvasView own = engine.canvasView();
    engine.setCanvasSize(2.0f * own.width, 2.0f * own.height);
    const DrawResult &doubled = engine.redraw();
    CanvasDraw draw{doubled.figure, doubled.view};
    engine.setCanvasSize(own.width, own.height);
    engine.redraw();
    return draw;
}

} // namespace quilmar
