#pragma once

#include <set>
#include <string>

class QColor;
class QMenu;
class QWidget;

namespace tarvex {

/// What prevents the use of a window with a screen reader, with the keyboard alone or with weak eyes, a line each:
/// controls that aren't announced or have no name, two of one kind with the same name in one group, controls that
/// neither Tab nor the arrows reach, access keys of two controls, texts with a contrast below 4.5 : 1. Only what is
/// visible counts.
std::set<std::string> accessFaults(const QWidget& window);

/// Controls of the window that look the same with and without the keyboard focus. Leaves the focus where it was.
std::set<std::string> focusFaults(QWidget& window);

/// Entries of a menu without a name, and access keys of two entries.
std::set<std::string> accessFaults(const QMenu& menu);

/// How much two colours differ in brightness, 1 to 21, as the Web Content Accessibility Guidelines define it.
double contrast(const QColor& text, const QColor& ground);

} // namespace tarvex
