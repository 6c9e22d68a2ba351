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

/// While it lives, what the program changes in a pane counts as the user's edit, also inside of a Loading.
class UserEdit {
public:
    explicit UserEdit(Shared& shared) : m_shared(shared), m_before(std::exchange(shared.IsLoading, 0)) {}
    ~UserEdit() { m_shared.IsLoading = m_before; }
    UserEdit(const UserEdit&) = delete;
    UserEdit& operator=(const UserEdit&) = delete;

private:
    Shared& m_shared;
    std::int16_t m_before;
};

} // namespace tarvex
