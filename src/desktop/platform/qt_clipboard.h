#pragma once

#include "platform/platform.h"

namespace tarvex {

/// The system's clipboard, plain and as RTF.
class QtClipboard final : public Clipboard {
public:
    void put(const ClipboardContent& content) override;
    ClipboardContent get() const override;
};

} // namespace tarvex
