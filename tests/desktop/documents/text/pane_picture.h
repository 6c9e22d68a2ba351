#pragma once

#include "documents/text/pane.h"

#include <QImage>
#include <QPalette>

#include <string>

class QWidget;

namespace tarvex {

/// A pane's text as it has to look, drawn without any of the views.
struct PanePicture {
    const Pane& pane;
    int firstLine = 0;  ///< on top
    int zoom = 100;     ///< per cent
    bool active = true; ///< the window has the keyboard

    QImage drawn(QSize size) const;
};

/// What the widget paints.
QImage painted(QWidget& widget);

/// Empty when both are equal; otherwise says how many pixels differ, and where the first one is.
std::string difference(const QImage& shown, const QImage& wanted);

} // namespace tarvex
