#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

namespace tarvex {

/// A picture of a window, a pixel for each square of 8 x 8: enough to see what is painted elsewhere or in another
/// colour. A shift by one pixel and the way in which a machine smoothes letters change such a pixel little. Texts that
/// change by themselves, such as the clock's, aren't painted.
QImage reducedPicture(QWidget& window);

/// Where two such pictures differ, such as "0,3 is #ff0000 and not #00ff00"; the first ten squares of them.
QStringList differentSquares(const QImage& found, const QImage& wanted);

} // namespace tarvex
