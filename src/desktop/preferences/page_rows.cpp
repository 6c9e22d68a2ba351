#include "desktop/preferences/page_rows.h"

#include "desktop/line_box.h"
#include "desktop/preferences/path_box.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tarvex {

namespace {

constexpr int columns = 3;
constexpr int digits = 8;

} // namespace

PageRows::PageRows(Bindings& bindings, QWidget* parent)
    : QWidget(parent), m_bindings(bindings), m_rows(new QGridLayout(this))
{
    m_rows->setColumnStretch(1, 1);
}

QPushButton* PageRows::button(Button& state, const QString& name)
{
    auto* widget = new QPushButton(this);
    widget->setObjectName(name);
    widget->setAutoDefault(false); // Return is OK, wherever it is pressed
    m_bindings.button(state, *widget);
    return widget;
}

QCheckBox* PageRows::check(CheckBox& state, const QString& name)
{
    auto* widget = new QCheckBox(this);
    widget->setObjectName(name);
    m_bindings.checkBox(state, *widget);
    return widget;
}

QGroupBox* PageRows::optionFrame(const QString& title)
{
    auto* frame = new QGroupBox(title, this);
    new QVBoxLayout(frame);
    return frame;
}

void PageRows::addOption(QGroupBox& frame, OptionButton& state, const QString& name)
{
    auto* widget = new QRadioButton(&frame);
    widget->setObjectName(name);
    m_bindings.optionButton(state, *widget);
    frame.layout()->addWidget(widget);
}

QListWidget* PageRows::list(ListBox& state, const QString& name, const QString& accessibleName, Bindings::Runs runs)
{
    auto* widget = new QListWidget(this);
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
    m_bindings.listBox(state, *widget, runs);
    return widget;
}

QLabel* PageRows::row(const QString& caption, QWidget* box, QWidget* beside)
{
    const int row = m_rows->rowCount();
    auto* label = new QLabel(caption, this);
    label->setBuddy(box);
    m_rows->addWidget(label, row, 0);
    m_rows->addWidget(box, row, 1, 1, beside == nullptr ? columns - 1 : 1);
    if (beside != nullptr) m_rows->addWidget(beside, row, columns - 1);
    return label;
}

void PageRows::pathRow(const QString& caption, TextBox& state, const QString& name, Button& browse,
                       const QString& browseName)
{
    auto* box = new PathBox(state, name, m_bindings);
    QPushButton* button = this->button(browse, browseName);
    const QString what = QString(caption).remove(QLatin1Char('&')).remove(QLatin1Char(':'));
    button->setAccessibleName(QStringLiteral("Browse for %1").arg(what));
    row(caption, box, button);
}

QLineEdit* PageRows::lineRow(const QString& caption, TextBox& state, const QString& name)
{
    auto* box = new LineBox(state, name, m_bindings);
    row(caption, box);
    return box;
}

QLineEdit* PageRows::numberRow(const QString& caption, TextBox& state, const QString& name)
{
    auto* box = new LineBox(state, name, m_bindings);
    box->setFixedWidth(box->fontMetrics().averageCharWidth() * digits * 2);
    row(caption, box);
    return box;
}

void PageRows::comboRow(const QString& caption, ComboBox& state, const QString& name)
{
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    m_bindings.comboBox(state, *box);
    row(caption, box);
}

void PageRows::below(QWidget* widget) { m_rows->addWidget(widget, m_rows->rowCount(), 1, 1, columns - 1); }

void PageRows::wide(QWidget* widget, Qt::Alignment alignment)
{
    m_rows->addWidget(widget, m_rows->rowCount(), 0, 1, columns, alignment);
}

void PageRows::gap() { m_rows->setRowMinimumHeight(m_rows->rowCount(), fontMetrics().height() / 2); }

void PageRows::end() { m_rows->setRowStretch(m_rows->rowCount(), 1); }

} // namespace tarvex
