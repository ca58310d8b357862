#pragma once
// The program-wide state of the plotter and the commands that work on it. One
// Engine lives from start-up to the end; the window and the command line call
// the same commands, and every message box goes through the injected Prompter.
//
// Data flow: CourseTable --convertCourses--> LegTable --rescaling--> scale factor
// and canvas origin --walkCourses--> Figure (painted by render) + sums and state.
//
// How to use it (what the window and the command line call):
// - Every command that needs the geometry calls `mindraw(DrawRequest)`, the one
//   drawing routine. The request says what this draw is for (area mode,
//   perimeter mode, printing); the result (`DrawResult`: figure, canvas view,
//   sums, the error that ended it) is kept as `lastDraw()` until the next draw.
//   The commands (`redraw`, `mnuGap_Click`, `mnuPeri_Click`, `mnuAcres_Click`,
//   `mnuHectares_Click`, `openMapFile`, `loadDemoSample`) build the request
//   themselves; the window's printout will call `mindraw({.printing = true})`.
// - The grid edits the course table through ONE entry: `editTable()`. The
//   grid's rules (keystrokes, insert/delete/clear rows, the tag menu) and the
//   global conversion work on that reference; nothing else hands the table out
//   for writing.
// - The few other settable things are the window's own fields and options:
//   the result line (`setAcresbox`), the property description
//   (`setDescription`), the scale box (`setScaleText`), the unit option
//   (`metrix_Click`), the print options (`setPrintOptions`), the canvas size
//   (`setCanvasSize`), the start-up's skip-once flag (`skipNextDraw`) and
//   what a zoom window's drawing leaves behind (`keepZoomDraw`).
// - `openMapFile` returns an `OpenOutcome`: Ok, NotFound (its message was
//   shown, as the window does) or Failed with the reader's reason.
// - `mapComputed()` is the File menu's flag: set by every `mindraw` that ran.

#include <optional>
#include <string>
#include <string_view>

#include "canvas_view.h"
#include "course_table.h"
#include "figure.h"
#include "leg_table.h"
#include "map_file.h"
#include "prompter.h"
#include "rescaling.h"
#include "traverse_state.h"
#include "units.h"

namespace quilmar {

/// The five printout options; exactly 1 means on.
struct PrintOptions {
    int16_t referencePoints = 1;
    int16_t referenceList = 1;
    int16_t propertyDescription = 1;
    int16_t frames = 0;
    int16_t balanceGap = 0;
};

/// What a fresh start-up reads (defaults when there is no settings file).
struct StartupSettings {
    std::string scales = "50;100;200;400;800;1500;2000;3000;4000";
    float scaleEnglish = 1440.0f;
    float scaleMetric = 576.0f;
    PrintOptions printOptions;
    bool englishMeasure = false; ///< the regional setting says English units
};

/// Overrides of what a map file says, for the command line.
struct OpenOverrides {
    std::optional<Units> units;
    std::optional<std::string> scaleText;
};

/// What one call of mindraw is for.
struct DrawRequest {
    bool areaMode = false;      ///< add up the area (Calculate Acres, Calculate Hectares)
    bool perimeterMode = false; ///< add up the perimeter (Calculate Gap, Calculate Perimeter)
    bool printing = false;      ///< the map printout draws: legs to both devices, the printout's scale
};

/// What one call of mindraw did.
struct DrawResult {
    Figure figure;            ///< what the walk drew, drawing units (twips)
    CanvasView view;          ///< the canvas's scale origin and size for the figure
    float areaSum = 0.0f;     ///< signed shoelace sum, square drawing units (area mode)
    double perimeterSum = 0.0; ///< drawing units (perimeter mode)
    /// The error that ended the draw (already shown): the walk's message or
    /// "N.  Error drawing map (mindraw)"; nullopt when the draw went through.
    std::optional<std::string> error;
};

/// How opening a map file went.
struct OpenOutcome {
    MapReadStatus status = MapReadStatus::Failed;
    /// NotFound: the message shown ("File ... not found."); Failed: the reader's
    /// one-line reason (not shown); Ok: empty.
    std::string reason;
    bool ok() const { return status == MapReadStatus::Ok; }
};

class Engine {
public:
    explicit Engine(Prompter &prompter, const StartupSettings &settings = {});

    // --- commands --------------------------------------------------------------
    /// Converts the table, fits the map, walks it into the figure and builds the
    /// area texts; every message box on the way goes through the Prompter.
    /// Skipped (the last result stays) once after skipNextDraw().
    const DrawResult &mindraw(const DrawRequest &request);
    /// "Re-draw Map (F8)": mindraw with the perimeter mode Calculate Gap left on.
    const DrawResult &redraw();
    void mnuGap_Click();
    void mnuPeri_Click();
    /// Calculate Acres and Hectares. @returns false when the command refused
    /// (the gap too large to close): nothing was drawn and the result line stays.
    bool mnuAcres_Click();
    bool mnuHectares_Click();
    /// Selects a unit option and its unit factor (unitFactor()).
    void metrix_Click(Units units);
    /// Opens a map file as "Open File..." does once its dialog has chosen @p path,
    /// and draws it. A missing file shows "File ... not found."; other failures
    /// show nothing. On failure the table is left as it was.
    OpenOutcome openMapFile(const std::string &path, const OpenOverrides &overrides = {});
    /// openMapFile for a map file's bytes already in memory (the same reading
    /// and drawing; only the file is not touched). Always reads Ok.
    OpenOutcome openMapBytes(std::string_view bytes, const OpenOverrides &overrides = {});
    /// Replaces the table with demo sample @p n (1 to 6) and draws it.
    void loadDemoSample(int n);
    /// The map file bytes that "Save As..." writes now.
    std::string mapFileBytes() const;

    // --- reading -------------------------------------------------------------------
    const CourseTable &table() const { return m_table; }
    const LegTable &legs() const { return m_legs; }
    const TraverseState &state() const { return m_state; }
    const DrawResult &lastDraw() const { return m_draw; }
    const Figure &figure() const { return m_draw.figure; }
    CanvasView canvasView() const { return m_draw.view; }
    float scaleFactor() const { return m_scaleFactor; }
    const std::string &acresbox() const { return m_acresbox; }
    /// `Autoscalebox`: "AutoScale = N" after a fitted draw, "" otherwise.
    std::string autoscalebox() const { return m_autoScale ? autoScaleCaption(*m_autoScale) : std::string(); }
    const std::string &description() const { return m_description; }
    const std::string &scaleText() const { return m_scale.scaleText; }
    Units units() const { return m_scale.units; }
    const ScaleChoice &scaleChoice() const { return m_scale; }
    float metricFactor() const { return m_metricFactor; }
    const PrintOptions &printOptions() const { return m_printOptions; }
    /// The File menu's flag: true once any mindraw has computed a map.
    bool mapComputed() const { return m_mapComputed; }
    /// The area texts of the last draw: "A acres [S sq ft]" and
    /// "S Square Meters [H Ha]" (built when asked; "" before any draw).
    std::string imperialText() const;
    std::string metricText() const;

    // --- the window's entries --------------------------------------------------------
    /// The one entry through which the grid (and the global conversion) edit the table.
    CourseTable &editTable() { return m_table; }
    void setAcresbox(std::string text) { m_acresbox = std::move(text); }
    void setDescription(std::string text) { m_description = std::move(text); }
    void setScaleText(std::string text) { m_scale.scaleText = std::move(text); }
    void setPrintOptions(const PrintOptions &options) { m_printOptions = options; }
    /// The map canvas's size in twips; the next draw fits the map to it.
    void setCanvasSize(float widthTwips, float heightTwips);
    /// Makes the next mindraw do nothing (start-up selects the scale without drawing).
    void skipNextDraw() { m_skipOnce = true; }
    /// The zoom window draws with the shared points and scale factor: its drawing
    /// leaves the point of origin, the point of beginning, the pen (drawing units
    /// of its own picture) and @p scaleFactor as it computed them, until the next
    /// mindraw computes them again. Deliberate: Calculate Acres and Hectares test
    /// the gap from them before they draw. The canvas, its position and the last
    /// figure stay the main window's.
    void keepZoomDraw(const TraverseState &zoom, float scaleFactor)
    {
        m_state.origin = zoom.origin;
        m_state.pob = zoom.pob;
        m_state.pen = zoom.pen;
        m_scaleFactor = scaleFactor;
    }

private:
    void showError(const std::string &text) { m_prompter.exclaim(text); }
    void buildAreaTexts();
    void markEnd();
    bool areaGapTooLarge(bool hectares);
    /// What opening empties before the file is read (also when it fails).
    void clearForOpen();
    /// Stores and draws what was read; a failed read leaves the table alone.
    OpenOutcome showMap(MapReadResult read, const OpenOverrides &overrides);

    Prompter &m_prompter;
    CourseTable m_table;
    LegTable m_legs;
    TraverseState m_state;
    GapShares m_shares;
    DrawResult m_draw;
    ScaleChoice m_scale;
    PrintOptions m_printOptions;
    float m_scaleFactor = 0.0f;
    float m_metricFactor = 2.5f;
    float m_canvasWidth = 7200.0f;
    float m_canvasHeight = 4800.0f;
    /// Deliberate: Calculate Gap leaves the perimeter mode on for the draws that
    /// follow (only Calculate Perimeter turns it off); nothing shows that sum.
    bool m_perimeterModeLeftOn = false;
    bool m_skipOnce = false;
    bool m_mapComputed = false;
    std::string m_acresbox;
    std::string m_description;
    // The numbers behind Autoscalebox and the two area texts; their texts are
    // built only when read, so that a draw formats nothing.
    std::optional<double> m_autoScale;
    std::optional<double> m_imperialSquareUnits;
    std::optional<double> m_metricSquareUnits;
};

} // namespace quilmar
