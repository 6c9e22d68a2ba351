#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

void mnuViewZoomIn_Click(Editor& editor);
void mnuViewZoomOut_Click(Editor& editor);
void mnuViewZoomNormal_Click(Editor& editor);

/// The size of the text lives longer than the program: in Platform.ini.
void readZoom(Editor& editor);
void saveZoom(Editor& editor);

} // namespace tarvex
