#pragma once

#include "platform/printers.h"

#include <QString>

#include <memory>

namespace tarvex {

/// The path of the library that knows the system's printers, as the program was installed.
QString printerLibrary();

/// The system's printers, found when they are first asked for: the library takes a while to load, and so does looking
/// for them. Where the library isn't there, there are no printers.
class QtPrinters final : public Printers {
public:
    explicit QtPrinters(QString library = printerLibrary());
    ~QtPrinters() override;
    QtPrinters(const QtPrinters&) = delete;
    QtPrinters& operator=(const QtPrinters&) = delete;

    int Count() override;
    /// Throws RuntimeError without the library.
    Printer& current() override;
    void setUp() override;
    void preview(const std::string& title, const PrintJob& job) override;
    std::string pdf(const std::string& title, const PrintJob& job) override;

private:
    struct InUse;
    InUse* find();
    InUse& inUse();

    QString m_library;
    QString m_why; ///< why it can't be loaded
    std::unique_ptr<InUse> m_inUse;
};

} // namespace tarvex
