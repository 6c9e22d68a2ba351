#pragma once

#include <string_view>

namespace tarvex::extraKey {

/// Of the tick for what is assigned to the controls on the Composer's pictures.
constexpr std::string_view showAssigned = "ShowAssigned";

} // namespace tarvex::extraKey
