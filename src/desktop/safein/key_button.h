#pragma once

#include <QPushButton>

#include <functional>

namespace tarvex {

/// A drawn key: a button that draws its cap as large as fits, with the user's own keyboard sign small in its
/// corner where that is another one.
class KeyButton : public QPushButton {
    Q_OBJECT
public:
    KeyButton(int index, QWidget* parent);

    int index() const { return m_index; }
    /// Edge of a usual key in pixels; all keys take the size of their letters from it.
    void setUsualEdge(int pixels) { m_usualEdge = pixels; }
    void setSecondSign(const QString& sign);
    QString secondSign() const { return m_secondSign; }
    /// Shows the key as one that is pressed on the real keyboard.
    void setLit(bool on);
    bool isLit() const { return m_lit; }

    std::function<void(int key)> arrowPressed; ///< Qt::Key_Left and the others

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_index;
    int m_usualEdge = 0;
    QString m_secondSign;
    bool m_lit = false;
};

} // namespace tarvex
