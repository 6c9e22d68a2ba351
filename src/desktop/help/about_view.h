#pragma once

#include "desktop/form_window.h"
#include "help/about.h"

class QLabel;

namespace tarvex {

/// The about box.
class AboutView : public FormWindow {
    Q_OBJECT
public:
    AboutView(AboutWindow& window, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    AboutWindow& m_window;
    QLabel* m_picture;
};

} // namespace tarvex
