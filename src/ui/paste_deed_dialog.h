#pragma once
// Edit > "Paste Deed Text...": a legal description's text on the left (the
// clipboard's text, editable) and the course rows read from it on the right,
// ten cells a row as in the grid, read again shortly after each change. In the
// text, calls that gave rows are marked green, calls that gave a row worth a
// look amber, and calls that could not be read red; a flagged call appears in
// the list as a row of its own that says why and is not inserted. Hovering a
// marked call or a row shows its reason; clicking a row selects its call.
//
// The dialog only returns values: Insert accepts, and rows() then holds the
// rows to put into the course table; it never touches the table itself.

#include <string>
#include <vector>

#include <QColor>
#include <QDialog>
#include <QSyntaxHighlighter>
#include <QTimer>

#include "deed_text.h"
#include "dialogs.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace quilmar {

/// The colours of the calls in the text, as formats of the layout only: the
/// text, its undo history and its change signal are untouched. Painting a
/// block costs the marks on it, so a long one-paragraph deed stays quick.
class CallMarks : public QSyntaxHighlighter {
public:
    struct Mark {
        int begin = 0; ///< UTF-16 position in the document
        int end = 0;
        QColor colour;
        bool flag = false; ///< painted over the others
    };
    using QSyntaxHighlighter::QSyntaxHighlighter;
    /// @param marks  in order of their begin
    void setMarks(std::vector<Mark> marks);

protected:
    void highlightBlock(const QString &text) override;

private:
    std::vector<Mark> m_marks;
    std::vector<int> m_reach; ///< the furthest end of marks 0..i
};

class PasteDeedDialog : public QDialog {
    Q_OBJECT
public:
    /// Read again this long after the last change, so typing stays smooth.
    static constexpr int kDelayMs = 150;

    explicit PasteDeedDialog(const QString &text, QWidget *parent = nullptr);

    QPlainTextEdit *textEdit() const { return m_text; }
    QTableWidget *rowTable() const { return m_rows; }
    QPushButton *insertButton() const { return m_insert; }

    /// The course rows read from the text as it was at the last reading.
    std::vector<PastedRow> rows() const;
    /// Reads the text now (the timer does this after each change).
    void reread();
    /// The reason shown over text position @p position (UTF-16 units), or empty.
    QString reasonAt(int position) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// One line of the list: a course row, or a flagged call that gave none.
    struct Entry {
        int row = -1;     ///< index into the reading's rows; -1 for a flag
        int begin = 0;    ///< its call in the text, UTF-16 units
        int end = 0;
        QString reason;   ///< empty for a row read without remark
        bool flag = false;
    };

    void fillTable();
    void markText();
    void selectCall(int line);

    QPlainTextEdit *m_text = nullptr;
    QTableWidget *m_rows = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_insert = nullptr;
    CallMarks *m_marks = nullptr;
    QTimer m_timer;
    bool m_read = false;
    std::string m_lastRead; ///< the text of the last reading
    deedtext::DeedImport m_import;
    std::vector<Entry> m_entries;
};

} // namespace quilmar
