#pragma once

#include <QString>

#include <functional>

class QPagedPaintDevice;
class QWidget;

namespace tarvex {

/// What the program needs of Qt's printing, which is in a library of its own, loaded when it is first wanted.
class SystemPrinters {
public:
    virtual ~SystemPrinters() = default;
    /// How many there are to print to; printing into a file, which the dialogue offers, counts as one.
    virtual int count() const = 0;
    /// The printer in use, to be painted on from the paper's very edge.
    virtual QPagedPaintDevice& device() = 0;
    /// Drops the document that the printer has begun.
    virtual void abort() = 0;
    /// Lets the user choose and set up the printer.
    virtual void setUp(QWidget* parent) = 0;
    /// Shows the pages that `paint` paints, each time anew; false of it closes the preview.
    virtual void preview(QWidget* parent, const QString& title,
                         const std::function<bool(QPagedPaintDevice&)>& paint) = 0;
};

/// The function that the library offers; the caller owns what it returns.
using OpenSystemPrinters = SystemPrinters* (*)();
inline constexpr char openSystemPrintersName[] = "tarvexOpenSystemPrinters";

} // namespace tarvex
