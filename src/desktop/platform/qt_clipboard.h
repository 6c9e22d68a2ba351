#pragma once

#include "platform/platform.h"

#include <QObject>

#include <optional>

namespace tarvex {

/// The system's clipboard, plain and as RTF.
class QtClipboard final : public Clipboard {
public:
    QtClipboard();
    void put(const ClipboardContent& content) override;
    ClipboardContent get() const override;
    bool holdsText() const override;

private:
    /// What the clipboard's owner said last: it may be another program, which takes its time to answer.
    mutable std::optional<bool> m_holdsText;
    QObject m_listener;
};

} // namespace tarvex
