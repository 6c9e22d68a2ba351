#pragma once

#include <QRectF>
#include <QSvgRenderer>
#include <QWidget>

#include <string_view>
#include <vector>

namespace tarvex {

struct Picture;

/// A drawing of a controller, with a mark around the controls that a page is about.
class PagePicture : public QWidget {
    Q_OBJECT
public:
    /// `what` is the name of the drawing and, behind a blank each, names of controls as the drawing labels them. None
    /// for a drawing that there isn't.
    static PagePicture* make(std::string_view what);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    PagePicture(const Picture& picture, std::vector<QString> marked);
    void load();

    QString m_file;
    std::vector<QString> m_marked; ///< ids of elements
    QSvgRenderer m_renderer;
};

} // namespace tarvex
