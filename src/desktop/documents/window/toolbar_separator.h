#pragma once

#include <QStyleOption>
#include <QStylePainter>
#include <QWidget>

namespace tarvex {

/// The gap between two groups of buttons.
class ToolbarSeparator : public QWidget {
public:
    using QWidget::QWidget;
    QSize sizeHint() const override
    {
        QStyleOption option;
        option.initFrom(this);
        const int width = style()->pixelMetric(QStyle::PM_ToolBarSeparatorExtent, &option, this);
        return {width, width};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        option.state |= QStyle::State_Horizontal;
        painter.drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, option);
    }
};

} // namespace tarvex
