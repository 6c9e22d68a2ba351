#pragma once

#include <QLabel>

namespace tarvex {

/// A label of one line that shows as much of its text as there is room for; the tool tip then has the whole.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    bool fits() const;
};

} // namespace tarvex
