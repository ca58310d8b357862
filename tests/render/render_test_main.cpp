// Test main for the render tests: the Qt surfaces need a QGuiApplication for
// their fonts. Test discovery runs this binary at build time without any
// environment, so without a display it picks the offscreen platform itself.

#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
