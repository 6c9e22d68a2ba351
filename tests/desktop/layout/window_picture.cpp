#include "window_picture.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>

namespace tarvex {

namespace {

constexpr int usualSide = 8;  // of a square, in pixels of the window
constexpr int tolerance = 40; // of a channel; an edge between black and white that is a pixel off changes it by 32
constexpr int reported = 10;

bool isClock(const QLabel& label)
{
    static const QRegularExpression time(QStringLiteral("^\\s*\\d\\d:\\d\\d\\s*$|^Version "));
    return label.isVisible() && label.text().contains(time);
}

bool isSame(const QColor& a, const QColor& b)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}

} // namespace

QImage reducedPicture(QWidget& window)
{
    QApplication::setCursorFlashTime(0); // a caret is always there
    QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (isClock(*label)) painter.fillRect(QRect(label->mapTo(&window, QPoint()), label->size()), Qt::gray);
    painter.end();
    const int side = qRound(usualSide * picture.devicePixelRatio());
    picture.setDevicePixelRatio(1);
    const QSize squares = (picture.size() + QSize(side - 1, side - 1)) / side;
    return picture.copy(QRect(QPoint(), squares * side))
        .scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QStringList differentSquares(const QImage& found, const QImage& wanted)
{
    if (found.size() != wanted.size())
        return {QStringLiteral("%1 x %2 squares and not %3 x %4")
                    .arg(found.width())
                    .arg(found.height())
                    .arg(wanted.width())
                    .arg(wanted.height())};
    QStringList different;
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width() && different.size() < reported; ++x) {
            const QColor here = found.pixelColor(x, y);
            const QColor there = wanted.pixelColor(x, y);
            if (!isSame(here, there))
                different.append(QStringLiteral("%1,%2 is %3 and not %4").arg(x).arg(y).arg(here.name(), there.name()));
        }
    }
    return different;
}

} // namespace tarvex
