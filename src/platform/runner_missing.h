#pragma once

#include "platform/errors.h"

namespace tarvex {

/// A program wasn't started since what runs programs of its kind isn't there. The user was told so, with what to do
/// about it: nobody tells it again.
struct RunnerMissing : RuntimeError {
    RunnerMissing() : RuntimeError(ErrorCode::FileNotFound, "File not found") {}
};

} // namespace tarvex
