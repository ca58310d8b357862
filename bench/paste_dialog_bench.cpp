// The paste dialog reading its text again after a pause in typing: a
// 100-call description (target well under the 150 ms pause, so typing stays
// smooth) and 5,000 calls (the list and the marks for far more rows than the
// table holds; target under 1 s).

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QString>
#include <QTextCursor>

#include "paste_deed_dialog.h"

namespace {

QString calls(int n)
{
    QString text = QString::fromUtf8("Beginning at a “stone”; ");
    for (int i = 0; i < n; ++i) {
        text += QString::fromUtf8("thence N %1°%2′ E %3.5 feet; ").arg(i % 90).arg(i % 60).arg(i % 500 + 1);
        if (i % 50 == 0)
            text += "thence S 95° W 10 feet; "; // flagged
        if (i % 70 == 0)
            text += "thence N 5 E about 10 poles; "; // a warning
    }
    return text;
}

void BM_PasteDialogReread(benchmark::State &state)
{
    quilmar::PasteDeedDialog dialog(calls(int(state.range(0))));
    dialog.show(); // a shown list measures its columns: that is where the time went once
    QApplication::processEvents();
    QTextCursor end(dialog.textEdit()->document());
    end.movePosition(QTextCursor::End);
    bool typed = false;
    for (auto _ : state) {
        // One key typed or taken back at the end, as while typing.
        if (typed)
            end.deletePreviousChar();
        else
            end.insertText(" ");
        typed = !typed;
        dialog.reread();
        QApplication::processEvents();
    }
}
BENCHMARK(BM_PasteDialogReread)->Arg(100)->Arg(5000)->Unit(benchmark::kMillisecond);

} // namespace
