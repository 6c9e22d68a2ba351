#pragma once

#include "shell/shared.h"

#include <utility>

namespace tarvex {

/// While it lives the program itself changes pane text (IsLoading is 1). Its end gives IsLoading its former value back,
/// so guards nest: text that is coloured while a file is opened doesn't end the opening.
class Loading {
public:
    explicit Loading(Shared& shared) : m_shared(shared), m_before(std::exchange(shared.IsLoading, 1)) {}
    ~Loading() { m_shared.IsLoading = m_before; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

private:
    Shared& m_shared;
    std::int16_t m_before;
};

} // namespace tarvex
