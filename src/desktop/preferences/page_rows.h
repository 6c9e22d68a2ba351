#pragma once

#include "desktop/bind.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace tarvex {

/// A page of a dialogue, filled from the top: rows of a label, its box and the button beside it, all in line.
class PageRows : public QWidget {
    Q_OBJECT
public:
    explicit PageRows(Bindings& bindings, QWidget* parent = nullptr);

    QPushButton* button(Button& state, const QString& name);
    QCheckBox* check(CheckBox& state, const QString& name);
    /// Options of which one is chosen, in a frame with a title.
    template <std::size_t count>
    QGroupBox* options(std::array<OptionButton, count>& states, const QString& name, const QString& title)
    {
        QGroupBox* frame = optionFrame(title);
        for (std::size_t i = 0; i < count; ++i) addOption(*frame, states[i], QStringLiteral("%1(%2)").arg(name).arg(i));
        return frame;
    }
    QListWidget* list(ListBox& state, const QString& name, const QString& accessibleName,
                      Bindings::Runs runs = Bindings::Runs::OnChoice);

    /// A labelled row. The caption's access key leads to the box.
    QLabel* row(const QString& caption, QWidget* box, QWidget* beside = nullptr);
    void pathRow(const QString& caption, TextBox& state, const QString& name, Button& browse,
                 const QString& browseName);
    QLineEdit* lineRow(const QString& caption, TextBox& state, const QString& name);
    /// A line with a number of some digits.
    QLineEdit* numberRow(const QString& caption, TextBox& state, const QString& name);
    void comboRow(const QString& caption, ComboBox& state, const QString& name);
    /// Something below a box, as wide as the boxes are.
    void below(QWidget* widget);
    /// Something across the whole width, or where it is aligned in it.
    void wide(QWidget* widget, Qt::Alignment alignment = {});
    void gap();
    /// The rest of the page stays free.
    void end();

    Bindings& bindings() { return m_bindings; }

private:
    QGroupBox* optionFrame(const QString& title);
    void addOption(QGroupBox& frame, OptionButton& state, const QString& name);

    Bindings& m_bindings;
    QGridLayout* m_rows;
};

} // namespace tarvex
