#pragma once

#include "platform/errors.h"

namespace tarvex {

/// A program wasn't started since what runs programs of its kind isn't there. A box has said so, with what to do
/// about it: nobody reports it again.
struct RunnerMissing : RuntimeError {
    RunnerMissing() : RuntimeError(ErrorCode::FileNotFound, "File not found") {}
};

} // namespace tarvex
