#pragma once

#include "platform/posix/processes/posix_machine.h"

namespace tarvex {

/// This machine, with the desktop's file manager.
class QtMachine final : public PosixMachine {
public:
    using PosixMachine::PosixMachine;

    bool showFolder(const std::string& path) override;
};

} // namespace tarvex
