#pragma once
// What the window's benchmarks share: dialogs that answer every question at
// once, and a window in a folder of its own on the full table of 202 rows of
// quadrant bearings they time the window on.

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "course_table.h"
#include "dialogs.h"
#include "plotter.h"

namespace quilmar::bench {

class QuietDialogs : public Dialogs {
public:
    Answer ask(const std::string &, const std::string &, Buttons, Icon) override { return Answer::Ok; }
    std::optional<std::string> inputBox(const std::string &, const std::string &, const std::string &) override
    {
        return std::nullopt;
    }
    std::optional<std::string> fileName(FileMode, const std::string &, const std::string &) override
    {
        return std::nullopt;
    }
    bool print(const std::string &, const Printout &) override { return false; }
    void preview(const std::string &, const Printout &) override {}
};

/// Row 0 the beginning, rows 1 to 201 quadrant bearings of 100 to 499 feet.
inline void fillBearingTable(CourseTable &t)
{
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows; ++r) {
        t.at(r, ColNS) = r % 2 ? "N" : "S";
        t.at(r, ColDeg) = std::to_string((r * 7) % 90);
        t.at(r, ColEW) = r % 3 ? "E" : "W";
        t.at(r, ColDistance) = std::to_string(100 + (r * 37) % 400);
    }
    t.gethighest();
}

/// The window (English measure) with its settings folder @p folderName under
/// the temporary folder, on the bearing table; the folder goes with it.
struct BenchWindow {
    explicit BenchWindow(const char *folderName) : folder(std::filesystem::temp_directory_path() / folderName)
    {
        std::filesystem::create_directories(folder);
        w = std::make_unique<Plotter>(dialogs, startupOptionsIn(folder.string(), "quilmar", true));
        fillBearingTable(w->engine().editTable());
    }
    ~BenchWindow()
    {
        w.reset();
        std::filesystem::remove_all(folder);
    }

    std::filesystem::path folder;
    QuietDialogs dialogs;
    std::unique_ptr<Plotter> w;
};

} // namespace quilmar::bench
