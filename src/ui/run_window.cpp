#include "run_window.h"

#include <cstdio>

#include <QApplication>
#include <QFileInfo>

#include "font_warm_up.h"
#include "plotter.h"
#include "qt_dialogs.h"
#include "session_bus.h"
#include "session_recovery.h"

namespace quilmar {

bool offerRecovery(Plotter &window, Dialogs &dialogs, const std::string &path)
{
    if (path.empty() || !QFileInfo::exists(QString::fromStdString(path)))
        return false;
    const Answer answer = dialogs.question(
        "Quilmar Deed Plotter did not close properly last time. Do you want to restore the data you were working on?",
        Buttons::YesNo, Icon::Question);
    if (answer != Answer::Yes) {
        std::remove(path.c_str()); // declined: not offered again
        return false;
    }
    window.restoreSession(path);
    return true;
}

int runWindow(int &argc, char **argv, const std::string &file)
{
    avoidBusAutolaunch();
    FontWarmUp fonts;
    QApplication app(argc, argv);
    QApplication::setApplicationName("quilmar");
    QtDialogs dialogs;
    fonts.wait();
    Plotter window(dialogs, startupOptionsFor(QCoreApplication::applicationFilePath().toStdString()));
    dialogs.setParent(&window);
    window.show();

    SessionRecovery recovery(defaultRecoveryPath(), [&window] { return window.engine().mapFileBytes(); });
    const bool restored = offerRecovery(window, dialogs, recovery.path());
    if (!restored && !file.empty())
        window.openFile(file);
    recovery.start();
    const int status = app.exec();
    recovery.discard(); // a clean exit: nothing to restore next time
    return status;
}

} // namespace quilmar
