#pragma once

#include <QLabel>

namespace tarvex {

/// A label of one line that shows both ends of its text where there is no room for all of it; the tooltip then has the
/// whole before its own text.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;
    /// At least as wide as one text, and at most as another; without a call it asks for no width at all.
    void setSamples(const QString& usual, const QString& longest);
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool fits() const;

    int m_narrowest = 0;
    int m_widest = 0;
};

} // namespace tarvex
