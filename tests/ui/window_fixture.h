#pragma once
// The window in a folder of its own (its settings, backups and manual), shown
// on the offscreen platform, with every question answered by ScriptedDialogs;
// shared by the window's test files.

#include <filesystem>
#include <memory>
#include <string>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "entry_grid.h"
#include "plotter.h"
#include "recorded_calls.h"
#include "scripted_dialogs.h"
#include "table_builder.h"
#include "temp_folder.h"

namespace quilmar::test {

class WindowTest : public ::testing::Test {
protected:
    TempFolder folder; // declared first: the window goes before its folder
    const std::filesystem::path &dir = folder.path();
    ScriptedDialogs dialogs;
    std::unique_ptr<Plotter> w;

    void SetUp() override { start(true); }
    void TearDown() override { w.reset(); }
    /// A new window in English or metric measure; @p ini, when given, is written as its settings first.
    void start(bool english, const std::string &ini = {})
    {
        w.reset();
        if (!ini.empty())
            folder.write("quilmar.ini", ini);
        w = std::make_unique<Plotter>(dialogs, startupOptionsIn(dir.string(), "quilmar", english));
        w->resize(1100, 700);
        w->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(w.get()));
    }
    QLineEdit *field(int row, int column) { return w->grid().field({row, column}); }
    template <class T> T *child(const char *name) { return w->findChild<T *>(name); }
    QAction *action(const char *name) { return child<QAction>(name); }
    void trigger(const char *name)
    {
        QAction *a = action(name);
        ASSERT_NE(a, nullptr) << name;
        a->trigger();
    }
    void click(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    /// Types @p keys into the focused widget; "\t" is Tab and "\r" Enter.
    void type(const std::string &keys)
    {
        for (char c : keys) {
            QWidget *target = QApplication::focusWidget();
            if (c == '\t' || c == '\r')
                QTest::keyClick(target, c == '\t' ? Qt::Key_Tab : Qt::Key_Return);
            else
                QTest::keyClick(target, c);
        }
    }
    void closeTagMenu() { w->grid().tagMenu()->hide(); }
    std::string cell(int row, int column) { return w->engine().table().at(row, column).text(); }
    /// Puts @p table into the engine and shows it in the grid, as opening a file does.
    void load(const CourseTable &table)
    {
        w->engine().editTable() = table;
        w->grid().rules().populatefields();
        w->grid().sync();
    }
    /// Every visible field shows what the table holds.
    void expectGridShowsTable()
    {
        const int top = w->grid().scrollBar()->value();
        for (int r = 0; r < GridRules::kVisibleRows; ++r)
            for (int c = 1; c <= CourseTable::kColumns; ++c)
                ASSERT_EQ(field(r, c)->text().toStdString(), cell(top + r, c)) << "row " << r << ", column " << c;
    }
    std::string acres() { return child<QLabel>("Acresbox")->text().toStdString(); }
    std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }
    /// Whether any call of the last printout carries @p needle.
    bool printedText(const std::string &needle) { return !callsContaining(dialogs.printed, needle).empty(); }
};

} // namespace quilmar::test
