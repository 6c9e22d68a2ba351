#pragma once

#include <QLabel>

namespace tarvex {

/// A label of one line that shows both ends of its text where there is no room for all of it; the tool tip then has the
/// whole.
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
