#pragma once

#include "desktop/form_window.h"
#include "lists/enter_game_name.h"

class QBoxLayout;
class QGridLayout;
class QPushButton;

namespace tarvex {

/// Window of the dialogue that asks for the details of a new game.
class EnterGameNameView : public FormWindow {
    Q_OBJECT
public:
    EnterGameNameView(EnterGameName& form, QWidget* parent);

private:
    QPushButton* button(Button& state, const QString& name);
    QPushButton* helpButton(Button& state, const QString& name, const QString& subject);
    void addRow(QGridLayout& rows, const QString& caption, QWidget* box, QPushButton* find, QWidget* help);
    QBoxLayout* closingButtons(EnterGameName& form);
    void orderTabs();
};

} // namespace tarvex
