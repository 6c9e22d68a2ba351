#pragma once

#include "desktop/form_window.h"
#include "documents/files/differences.h"

class QGridLayout;

namespace tarvex {

class DifferencePane;

/// A document and its file side by side; the two texts scroll together.
class DifferencesView : public FormWindow {
    Q_OBJECT
public:
    DifferencesView(Differences& window, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    DifferencePane* addPane(QGridLayout& texts, int column, const char* name, Label& caption);
    void addButtons(QBoxLayout& column);
    void fill();
    void showCurrent();
    void scrollTogether();

    Differences& m_window;
    DifferencePane* m_left = nullptr;
    DifferencePane* m_right = nullptr;
};

} // namespace tarvex
