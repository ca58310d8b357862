#include "run_window.h"

#include <QApplication>

#include "plotter.h"
#include "qt_dialogs.h"

namespace quilmar {

int runWindow(int &argc, char **argv, const std::string &file)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("quilmar");
    QtDialogs dialogs;
    Plotter window(dialogs, startupOptionsFor(QCoreApplication::applicationFilePath().toStdString()));
    dialogs.setParent(&window);
    window.show();
    if (!file.empty())
        window.openFile(file);
    return app.exec();
}

} // namespace quilmar
