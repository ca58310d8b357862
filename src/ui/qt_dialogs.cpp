#include "qt_dialogs.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QBuffer>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QStringList>

#include "closure_report_window.h"
#include "paged_output.h"
#include "paste_deed_dialog.h"
#include "qt_painter_surface.h"
#include "safe_file.h"

namespace quilmar {

namespace {

QString q(const std::string &s) { return QString::fromStdString(s); }

QMessageBox::Icon qtIcon(Icon icon)
{
    switch (icon) {
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Stop: return QMessageBox::Critical;
    case Icon::Information: return QMessageBox::Information;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

bool paintOn(QPagedPaintDevice &device, const Printout &printout, int copies)
{
    return paintPages(device, [&](Surface &surface, PageSize page) {
        PrintSheet sheet{surface, page.width, page.height, copies < 1 ? 1 : copies, [&surface] { surface.newPage(); }};
        printout(sheet);
    });
}

void paintOn(QPrinter &printer, const Printout &printout, int copies)
{
    paintOn(static_cast<QPagedPaintDevice &>(printer), printout, copies);
}

bool writePrintoutPdf(const QString &path, const QPageLayout &layout, const Printout &printout, int copies,
                      std::string &error)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setCreator(QStringLiteral("Quilmar Deed Plotter"));
        writer.setResolution(600);
        writer.setPageLayout(layout);
        if (!paintOn(writer, printout, copies)) {
            error = "cannot draw the PDF";
            return false;
        }
    }
    const FileOutcome outcome = writeFileSafely(path.toStdString(),
                                                std::string_view(buffer.data().constData(), size_t(buffer.size())));
    error = outcome.error;
    return outcome.ok;
}

bool QtDialogs::print(const std::string &jobName, const Printout &printout)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(q(jobName));
    QPrintDialog dialog(&printer, m_parent);
    // No selection and no page numbers; printing to a PDF file stays offered.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    // Each copy is painted whole (arrow, caption, list), so the printer prints every sheet once.
    const int copies = printer.copyCount();
    printer.setCopyCount(1);
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty()) {
        std::string error;
        if (!writePrintoutPdf(printer.outputFileName(), printer.pageLayout(), printout, copies, error))
            ask(error, kTitle, Buttons::Ok, Icon::Exclamation);
        return true;
    }
    paintOn(printer, printout, copies);
    return true;
}

void QtDialogs::preview(const std::string &jobName, const Printout &printout)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(q(jobName));
    QPrintPreviewDialog dialog(&printer, m_parent);
    dialog.setWindowTitle(q(jobName));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&printout](QPrinter *p) { paintOn(*p, printout, 1); });
    dialog.exec();
}

void QtDialogs::closureReport(ClosureSession &session)
{
    ClosureReportWindow window(session, m_parent);
    window.exec();
}

Answer QtDialogs::ask(const std::string &text, const std::string &title, Buttons buttons, Icon icon)
{
    QMessageBox box(qtIcon(icon), q(title), q(text), QMessageBox::NoButton, m_parent);
    QMessageBox::StandardButton first = QMessageBox::Ok;
    switch (buttons) {
    case Buttons::Ok: box.setStandardButtons(QMessageBox::Ok); break;
    case Buttons::OkCancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    case Buttons::YesNo: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); first = QMessageBox::Yes; break;
    case Buttons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        first = QMessageBox::Yes;
        break;
    }
    // Every question defaults to its first button.
    box.setDefaultButton(first);
    switch (box.exec()) {
    case QMessageBox::Ok: return Answer::Ok;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    }
}

std::optional<std::string> QtDialogs::inputBox(const std::string &prompt, const std::string &title,
                                               const std::string &initial)
{
    bool ok = false;
    const QString text = QInputDialog::getText(m_parent, q(title), q(prompt), QLineEdit::Normal, q(initial), &ok);
    if (!ok)
        return std::nullopt;
    return text.toStdString();
}

QString qtFilter(const std::string &classic)
{
    const QStringList parts = q(classic).split('|');
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2)
        filters << parts[i] + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
    return filters.join(";;");
}

std::optional<std::string> QtDialogs::fileName(FileMode mode, const std::string &filter, const std::string &folder)
{
    const QString name =
        mode == FileMode::Open
            ? QFileDialog::getOpenFileName(m_parent, {}, q(folder), qtFilter(filter))
            : QFileDialog::getSaveFileName(m_parent, {}, q(folder), qtFilter(filter), nullptr,
                                           QFileDialog::DontConfirmOverwrite);
    if (name.isEmpty())
        return std::nullopt;
    return name.toStdString();
}

std::optional<std::vector<PastedRow>> QtDialogs::pasteDeedText(const std::string &text)
{
    PasteDeedDialog dialog(q(text), m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    dialog.reread(); // an edit of the last moments counts
    return dialog.rows();
}

} // namespace quilmar
