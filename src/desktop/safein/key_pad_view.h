#pragma once

#include "desktop/bind.h"
#include "desktop/platform/keyboard_signs.h"
#include "safein/raw_form.h"

#include <QWidget>

#include <array>

namespace tarvex {

class KeyButton;

/// The drawn keyboard. It takes the room that it is given, keys keep their proportions. For the keyboard's user it is
/// one stop of the Tab key; the arrow keys move on it.
class KeyPadView : public QWidget {
    Q_OBJECT
public:
    KeyPadView(RAWform& window, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// What the keys print in the user's layout.
    void showSigns(const KeyboardSigns& signs);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addKey(const Key& key);
    void moveFocus(int index, int arrow);
    void refreshSigns();
    void light(int index);
    KeyButton* button(int index) const { return m_buttons[static_cast<std::size_t>(index)]; }

    RAWform& m_window;
    std::array<KeyButton*, keyIndex::last + 1> m_buttons{};
    KeyboardSigns m_signs;
    KeyButton* m_tabStop = nullptr;
    KeyButton* m_lit = nullptr;
    Bindings m_bindings;
};

} // namespace tarvex
