#include "desktop/platform/qt_printers.h"

#include "desktop/platform/printer_library.h"
#include "desktop/platform/qt_paper.h"
#include "desktop/text.h"
#include "platform/errors.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QLibrary>
#include <QLocale>
#include <QPdfWriter>

#include <exception>
#include <utility>

namespace tarvex {

struct QtPrinters::InUse {
    explicit InUse(SystemPrinters* found) : printers(found), paper(printers->device(), [this] { printers->abort(); }) {}
    std::unique_ptr<SystemPrinters> printers;
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

QString printerLibrary()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(programs.filePath(QStringLiteral(TARVEX_PRINTING_FROM_PROGRAM)));
}

QtPrinters::QtPrinters(QString library) : m_library(std::move(library)) {}

QtPrinters::~QtPrinters() = default;

/// The library stays loaded; one that can't be is tried again, because it may be installed meanwhile.
QtPrinters::InUse* QtPrinters::find()
{
    if (m_inUse) return m_inUse.get();
    QLibrary library(m_library);
    const auto open = reinterpret_cast<OpenSystemPrinters>(library.resolve(openSystemPrintersName));
    m_why = library.errorString();
    if (open != nullptr) m_inUse = std::make_unique<InUse>(open());
    return m_inUse.get();
}

QtPrinters::InUse& QtPrinters::inUse()
{
    InUse* found = find();
    if (found == nullptr)
        throw RuntimeError(ErrorCode::PrinterError, "What prints isn't installed (" + fromQt(m_why) + ").");
    return *found;
}

int QtPrinters::Count()
{
    const InUse* found = find();
    return found == nullptr ? 0 : found->printers->count();
}

Printer& QtPrinters::current() { return inUse().paper; }

void QtPrinters::setUp() { inUse().printers->setUp(QApplication::activeWindow()); }

void QtPrinters::preview(const std::string& title, const PrintJob& job)
{
    std::exception_ptr failure; // nothing may be thrown through Qt
    const auto paint = [&](QPagedPaintDevice& device) {
        QtPaper paper(device);
        try {
            job(paper);
            paper.EndDoc();
        } catch (const RuntimeError&) {
            paper.KillDoc();
            failure = std::current_exception();
        }
        return failure == nullptr;
    };
    inUse().printers->preview(QApplication::activeWindow(), toQt(title), paint);
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
    writer.setPageSize(usualPaper());
    if (m_inUse) {
        const QPageLayout layout = m_inUse->printers->device().pageLayout();
        writer.setPageSize(layout.pageSize());
        writer.setPageOrientation(layout.orientation());
    }
    writer.setPageMargins({});
    QtPaper paper(writer);
    job(paper);
    paper.EndDoc();
    return buffer.data().toStdString();
}

} // namespace tarvex
