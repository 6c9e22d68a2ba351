#pragma once

#include "shell/shared.h"

namespace tarvex {

/// While it lives the program itself changes pane text (IsLoading is 1). Whatever fails meanwhile, what the user types
/// afterwards counts as an edit again.
class Loading {
public:
    explicit Loading(Shared& shared) : m_shared(shared) { m_shared.IsLoading = 1; }
    ~Loading() { m_shared.IsLoading = 0; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

private:
    Shared& m_shared;
};

} // namespace tarvex
