#pragma once

#include "platform/printers.h"

#include <memory>

namespace tarvex {

/// The system's printers, found when they are first asked for: looking for them takes a while.
class QtPrinters final : public Printers {
public:
    QtPrinters();
    ~QtPrinters() override;
    QtPrinters(const QtPrinters&) = delete;
    QtPrinters& operator=(const QtPrinters&) = delete;

    /// Printing into a file, which the printer dialogue offers, counts as a printer.
    int Count() override;
    Printer& current() override;
    void setUp() override;
    void preview(const std::string& title, const PrintJob& job) override;
    std::string pdf(const std::string& title, const PrintJob& job) override;

private:
    struct InUse;
    InUse& inUse();
    std::unique_ptr<InUse> m_inUse;
};

} // namespace tarvex
