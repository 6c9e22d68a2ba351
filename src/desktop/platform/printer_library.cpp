#include "desktop/platform/printer_library.h"

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>

namespace tarvex {

namespace {

class QtSystemPrinters final : public SystemPrinters {
public:
    QtSystemPrinters() : m_printer(QPrinter::HighResolution)
    {
        m_printer.setFullPage(true);
        m_printer.setCreator(QStringLiteral("Tarvex"));
    }

    int count() const override
    {
        const bool intoFile = !m_printer.outputFileName().isEmpty();
        return static_cast<int>(QPrinterInfo::availablePrinterNames().size()) + (intoFile ? 1 : 0);
    }
    QPagedPaintDevice& device() override { return m_printer; }
    void abort() override { m_printer.abort(); }

    void setUp(QWidget* parent) override
    {
        QPrintDialog dialogue(&m_printer, parent);
        dialogue.exec();
        m_printer.setFullPage(true);
    }

    void preview(QWidget* parent, const QString& title, const std::function<bool(QPagedPaintDevice&)>& paint) override
    {
        QPrintPreviewDialog dialogue(&m_printer, parent);
        dialogue.setObjectName(QStringLiteral("PrintPreview"));
        dialogue.setWindowTitle(title);
        dialogue.resize(dialogue.screen()->availableSize() * 3 / 4);
        QObject::connect(&dialogue, &QPrintPreviewDialog::paintRequested, &dialogue, [&](QPrinter* printer) {
            printer->setFullPage(true); // the page setup gives the paper its margins back
            if (!paint(*printer)) QMetaObject::invokeMethod(&dialogue, &QDialog::reject, Qt::QueuedConnection);
        });
        dialogue.exec();
    }

private:
    QPrinter m_printer;
};

} // namespace

extern "C" Q_DECL_EXPORT SystemPrinters* tarvexOpenSystemPrinters() { return new QtSystemPrinters; }

} // namespace tarvex
