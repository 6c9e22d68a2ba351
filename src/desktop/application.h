#pragma once

#include "shell/errors.h"

#include <QApplication>

namespace tarvex {

/// An error that no procedure has caught doesn't end the program: it is recorded, and work goes on.
class Application : public QApplication {
public:
    using QApplication::QApplication;
    /// The record outlives the application's events.
    void setErrorRecord(ErrorRecord* errors) { m_errors = errors; }
    bool notify(QObject* receiver, QEvent* event) override;

private:
    ErrorRecord* m_errors = nullptr;
};

} // namespace tarvex
