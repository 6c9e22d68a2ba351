#pragma once

#include "viewer/view_image.h"

namespace tarvex {

void mnuImageLoad_Click(ViewImage& window);
/// Reads the file anew.
void mnuImageRefresh_Click(ViewImage& window);
void mnuShowSize_Click(ViewImage& window);
/// Hands the file to the system's program for it; a double click on the image does the same.
void mnuImageEdit_Click(ViewImage& window);
/// Writes the image as a bitmap.
void mnuFileSave_Click(ViewImage& window);
void mnuPrint_Click(ViewImage& window);
void mnuFileClose_Click(ViewImage& window);
void mnuFileExit_Click(ViewImage& window);

} // namespace tarvex
