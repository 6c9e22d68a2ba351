#pragma once

#include "desktop/bind.h"
#include "desktop/pane_colours.h"
#include "testers/drawing.h"

#include <QImage>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace tarvex {

/// Shows a drawing field, in dark windows on a dark ground. What was painted stays on a canvas, so that only new
/// strokes cost time.
class FieldView : public QWidget {
    Q_OBJECT
public:
    /// The field outlives the view.
    FieldView(DrawingField& field, const char* name, QWidget* parent);

    /// Paints the strokes that wait.
    void flush();
    const QImage& canvas() const { return m_canvas; }
    std::function<void()> resized; ///< what was painted is gone, and is to be drawn anew

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// A colour of the drawing as it is shown.
    struct Shown {
        Colour colour;
        QRgb pixel;
    };
    QRgb shown(Colour colour);
    QRgb readable(Colour colour) const;
    void recolour();
    void makeCanvas();
    void clear();
    QRect placeOf(const Stroke& stroke) const;
    int pixelOf(float coordinate, int pixels) const;
    void paint(const QRect& place, const Stroke& stroke);
    bool changesPicture(const QRect& place, const Stroke& stroke);
    void updateCanvas(const QRect& part);

    DrawingField& m_field;
    PaneColours m_colours;
    std::vector<Shown> m_shown; ///< the few that were used
    QImage m_canvas;            ///< in pixels of the screen
    // Lines across the field are drawn again and again: their colours by their first pixel.
    std::vector<std::optional<Colour>> m_rows;
    std::vector<std::optional<Colour>> m_columns;
    Bindings m_bindings;
};

} // namespace tarvex
