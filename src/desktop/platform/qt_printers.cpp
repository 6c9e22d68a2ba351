#include "desktop/platform/qt_printers.h"

#include "desktop/platform/qt_paper.h"
#include "desktop/text.h"
#include "platform/errors.h"

#include <QApplication>
#include <QBuffer>
#include <QLocale>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>

#include <exception>

namespace tarvex {

struct QtPrinters::InUse {
    InUse() : printer(QPrinter::HighResolution), paper(printer, [this] { printer.abort(); })
    {
        printer.setFullPage(true);
        printer.setCreator(QStringLiteral("Tarvex"));
    }
    QPrinter printer;
    QtPaper paper;
};

namespace {

/// The paper that is usual where the user lives.
QPageSize usualPaper()
{
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

} // namespace

QtPrinters::QtPrinters() = default;
QtPrinters::~QtPrinters() = default;

QtPrinters::InUse& QtPrinters::inUse()
{
    if (!m_inUse) m_inUse = std::make_unique<InUse>();
    return *m_inUse;
}

int QtPrinters::Count()
{
    const bool intoFile = m_inUse && !m_inUse->printer.outputFileName().isEmpty();
    return static_cast<int>(QPrinterInfo::availablePrinterNames().size()) + (intoFile ? 1 : 0);
}

Printer& QtPrinters::current() { return inUse().paper; }

void QtPrinters::setUp()
{
    QPrintDialog dialogue(&inUse().printer, QApplication::activeWindow());
    dialogue.exec();
    inUse().printer.setFullPage(true);
}

void QtPrinters::preview(const std::string& title, const PrintJob& job)
{
    QPrintPreviewDialog dialogue(&inUse().printer, QApplication::activeWindow());
    dialogue.setObjectName(QStringLiteral("PrintPreview"));
    dialogue.setWindowTitle(toQt(title));
    dialogue.resize(dialogue.screen()->availableSize() * 3 / 4);
    std::exception_ptr failure; // nothing may be thrown through Qt
    QObject::connect(&dialogue, &QPrintPreviewDialog::paintRequested, &dialogue, [&](QPrinter* printer) {
        printer->setFullPage(true); // the page setup gives the paper its margins back
        QtPaper paper(*printer);
        try {
            job(paper);
            paper.EndDoc();
        } catch (const RuntimeError&) {
            paper.KillDoc();
            failure = std::current_exception();
            QMetaObject::invokeMethod(&dialogue, &QDialog::reject, Qt::QueuedConnection);
        }
    });
    dialogue.exec();
    if (failure) std::rethrow_exception(failure);
}

std::string QtPrinters::pdf(const std::string& title, const PrintJob& job)
{
    constexpr int dotsPerInch = 1440; // a dot is a twip
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(toQt(title));
    writer.setCreator(QStringLiteral("Tarvex"));
    writer.setResolution(dotsPerInch);
    writer.setPageSize(m_inUse ? m_inUse->printer.pageLayout().pageSize() : usualPaper());
    if (m_inUse) writer.setPageOrientation(m_inUse->printer.pageLayout().orientation());
    writer.setPageMargins({});
    QtPaper paper(writer);
    job(paper);
    paper.EndDoc();
    return buffer.data().toStdString();
}

} // namespace tarvex
