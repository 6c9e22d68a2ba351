#pragma once

#include <set>
#include <string>

class QWidget;

namespace tarvex {

/// What is wrong with the places of the window's visible widgets, a line each: siblings on top of each other, widgets
/// that leave their parent, texts that have no room in their label, button, tab or menu bar. Empty when all is well.
std::set<std::string> layoutFaults(const QWidget& window);

} // namespace tarvex
