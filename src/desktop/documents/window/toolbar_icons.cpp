#include "desktop/documents/window/toolbar_icons.h"

#include <QPainter>
#include <QToolButton>

#include <map>

namespace tarvex {

QString toolbarIcon(int number)
{
    static const std::map<int, const char*> icons{
        {1, "file-new"},
        {2, "file-open"},
        {3, "file-save"},
        {5, "print"},
        {7, "cut"},
        {8, "copy"},
        {9, "paste"},
        {11, "undo"},
        {12, "redo"},
        {14, "find"},
        {15, "replace"},
        {16, "goto-line"},
        {18, "favourite-add"},
        {20, "macros-update"},
        {21, "macros-view"},
        {23, "composer"},
        {24, "template-insert"},
        {25, "keyboard"},
        {26, "title-insert"},
        {27, "heading-insert"},
        {28, "rem-insert"},
        {30, "tile-vertically"},
        {32, "colour-apply"},
        {33, "highlight-line"},
        {34, "identify"},
        {36, "launcher"},
        {37, "calibrate"},
        {38, "ctfj"},
        {39, "image-viewer"},
        {40, "key-test"},
        {41, "template-editor"},
        {42, "control-centre"},
        {44, "download"},
        {46, "preferences"},
        {47, "help"},
    };
    const auto found = icons.find(number);
    return found != icons.end() ? QString::fromLatin1(found->second) : QString();
}

QIcon swatch(const QColor& colour, const QToolButton& button)
{
    const qreal scale = button.devicePixelRatioF();
    const int size = button.iconSize().height();
    QPixmap picture(QSize(size, size) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(button.palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(2.5, 2.5, size - 5, size - 5), 2, 2);
    painter.end();
    return {picture};
}

} // namespace tarvex
