#pragma once
// The program-wide state of the plotter and the commands that work on it. One
// Engine lives from start-up to the end; the window and the command line call
// the same commands, and every message box goes through the injected Prompter.
//
// Data flow: CourseTable --convertCourses--> LegTable --rescaling--> scale factor
// and canvas origin --walkCourses--> Figure (painted by render) + sums and state.

#include <optional>
#include <string>

#include "course_table.h"
#include "figure.h"
#include "leg_table.h"
#include "prompter.h"
#include "rescaling.h"
#include "traverse_state.h"

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

class Engine {
public:
    explicit Engine(Prompter &prompter, const StartupSettings &settings = {});

    // --- commands --------------------------------------------------------------
    /// Converts the table, fits the map, walks it into `figure()` and builds the area texts.
    void mindraw();
    void mnuGap_Click();
    void mnuPeri_Click();
    void mnuAcres_Click();
    void mnuHectares_Click();
    /// Selects a unit option and its unit factor (unitFactor()).
    void metrix_Click(Units units);
    /// Opens a map file as "Open File..." does once its dialog has chosen @p path.
    /// @returns false when the file could not be read (a message was shown for a missing file)
    bool openMapFile(const std::string &path, const OpenOverrides &overrides = {});
    /// Replaces the table with demo sample @p n (1 to 6) and draws it.
    void loadDemoSample(int n);
    /// The map file bytes that "Save As..." writes now.
    std::string mapFileBytes() const;

    // --- state ---------------------------------------------------------------
    CourseTable &table() { return m_table; }
    const CourseTable &table() const { return m_table; }
    const LegTable &legs() const { return m_legs; }
    const TraverseState &state() const { return m_state; }
    TraverseState &state() { return m_state; }
    const Figure &figure() const { return m_figure; }
    float scaleFactor() const { return m_scaleFactor; }
    float scaleLeft() const { return m_fit.scaleLeft; }
    float scaleTop() const { return m_fit.scaleTop; }
    const std::string &acresbox() const { return m_acresbox; }
    void setAcresbox(std::string text) { m_acresbox = std::move(text); }
    const std::string &autoscalebox() const { return m_autoscalebox; }
    const std::string &description() const { return m_description; }
    void setDescription(std::string text) { m_description = std::move(text); }
    const std::string &scaleText() const { return m_scale.scaleText; }
    void setScaleText(std::string text) { m_scale.scaleText = std::move(text); }
    Units units() const { return m_scale.units; }
    float metricFactor() const { return m_metricFactor; }
    void setCanvasSize(float widthTwips, float heightTwips);
    float canvasWidth() const { return m_canvasWidth; }
    float canvasHeight() const { return m_canvasHeight; }
    bool printingMapFlag() const { return m_printing; }
    void setPrintingMapFlag(bool on) { m_printing = on; }
    PrintOptions &printOptions() { return m_printOptions; }
    bool mapComputed() const { return m_mapComputed; }
    const std::string &imperialText() const { return m_imperialText; }
    const std::string &metricText() const { return m_metricText; }

private:
    void showError(const std::string &text) { m_prompter.exclaim(text); }
    void buildAreaTexts();
    void markEnd();
    bool areaGapTooLarge(bool hectares);

    Prompter &m_prompter;
    CourseTable m_table;
    LegTable m_legs;
    TraverseState m_state;
    GapShares m_shares;
    Figure m_figure;
    FitResult m_fit;
    ScaleChoice m_scale;
    PrintOptions m_printOptions;
    float m_scaleFactor = 0.0f;
    float m_metricFactor = 2.5f;
    float m_canvasWidth = 7200.0f;
    float m_canvasHeight = 4800.0f;
    bool m_printing = false;
    bool m_mapComputed = false;
    std::string m_acresbox;
    std::string m_autoscalebox;
    std::string m_description;
    std::string m_imperialText;
    std::string m_metricText;
};

} // namespace quilmar
