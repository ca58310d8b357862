#pragma once
// The first text the window measures makes Qt read the system's font
// configuration: on a desktop this is the largest single cost of start-up
// (tens of thousands of lines of configuration files to parse). Reading it on a
// thread of its own, begun before the application connects to the display,
// lets it run while that connection waits on the display server; the window
// then finds it read. Where there is no font configuration library (Windows,
// macOS) this does nothing.

#include <thread>

namespace quilmar {

class FontWarmUp {
public:
    /// Begins reading the font configuration. Make it before the QApplication.
    FontWarmUp();
    ~FontWarmUp();
    FontWarmUp(const FontWarmUp &) = delete;
    FontWarmUp &operator=(const FontWarmUp &) = delete;

    /// Waits until the configuration is read; call before the first widget is
    /// made, so that Qt never reads it a second time beside this thread.
    void wait();

private:
    std::thread m_thread;
};

} // namespace quilmar
