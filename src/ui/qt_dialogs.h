#pragma once
// The window's Dialogs: Qt message boxes, input box and file dialogs, all
// parented to the window and titled as the program.

#include "dialogs.h"

#include <QString>

class QPageLayout;
class QPrinter;
class QWidget;

namespace quilmar {

class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(QWidget *parent = nullptr) : m_parent(parent) {}
    void setParent(QWidget *parent) { m_parent = parent; }

    Answer ask(const std::string &text, const std::string &title, Buttons buttons, Icon icon) override;
    std::optional<std::string> inputBox(const std::string &prompt, const std::string &title,
                                        const std::string &initial) override;
    std::optional<std::string> fileName(FileMode mode, const std::string &filter, const std::string &folder) override;
    bool print(const std::string &jobName, const Printout &printout) override;
    void preview(const std::string &jobName, const Printout &printout) override;
    /// The closure report window, modal, until the user closes it.
    void closureReport(ClosureSession &session) override;
    /// Shows PasteDeedDialog over the window.
    std::optional<std::vector<PastedRow>> pasteDeedText(const std::string &text) override;

private:
    QWidget *m_parent;
};

/// Paints @p printout on @p printer in twips from the top-left of the
/// printable area; each of the @p copies is painted by the printout itself.
void paintOn(QPrinter &printer, const Printout &printout, int copies);

/// The printout as a PDF file at @p path on pages of @p layout, written through
/// the writer of every file (a temporary file renamed over the target, so a
/// failure leaves an old file as it was).
/// @param error  receives the reason when it fails
bool writePrintoutPdf(const QString &path, const QPageLayout &layout, const Printout &printout, int copies,
                      std::string &error);

/// A classic "description|pattern|..." filter as a Qt name filter list
/// ("Map data(*.map)|*.map" -> "Map data(*.map) (*.map)").
QString qtFilter(const std::string &classic);

} // namespace quilmar
