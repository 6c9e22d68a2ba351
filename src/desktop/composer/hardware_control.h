#pragma once

#include <QAbstractButton>

namespace tarvex {

/// A control in a picture of the hardware: the place that takes clicks, keys and focus, and what a screen reader finds.
/// It paints nothing; HardwarePicture draws its state. Its name (objectName) is the control's id.
class HardwareControl : public QAbstractButton {
    Q_OBJECT

public:
    explicit HardwareControl(QWidget& picture);

    /// Whether it wears the mark of a control that has a statement.
    bool isAssigned() const { return m_assigned; }
    void setAssigned(bool assigned);
    /// Takes its place in the picture's widget. The mouse reaches it on the solid pixels of `shape`, whose corner is
    /// given, and on its name.
    void setShape(QPoint corner, const QImage& shape, const QRect& name);
    /// What its shape covers, in coordinates of the picture's widget.
    QRect shapeArea() const { return m_shapeArea; }
    /// The part of it that lies farthest to the upper right.
    QPoint markPlace() const { return m_markPlace; }
    /// Where a menu of this control opens, on the screen.
    QPoint menuPlace() const;

signals:
    /// Its state is to be drawn anew.
    void changed();
    /// It is shown, hidden, enabled or disabled.
    void availabilityChanged();
    /// The mouse or the focus has come to it (true) or left it.
    void attended(bool here);
    /// An arrow key: the neighbour in the order of the picture is wanted, 1 for the next and -1 for the one before.
    void neighbourWanted(int step);
    /// The right button or the menu key, on the screen.
    void menuWanted(QPoint place);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_assigned = false;
    QRect m_shapeArea;
    QPoint m_markPlace;
};

} // namespace tarvex
