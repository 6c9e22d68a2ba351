#include "desktop/testers/numbers_view.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace tarvex {

NumbersView::NumbersView(Numbers& numbers, QWidget* parent) : QWidget(parent), m_numbers(numbers)
{
    setObjectName(QStringLiteral("Numbers"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text(numbers.Verdict, "Verdict"));
    column->addLayout(table());
    column->addWidget(text(numbers.Rate, "Rate"));
    column->addWidget(text(numbers.Kernel, "Kernel"));
    column->addLayout(choices());
    column->addLayout(buttons());
    column->addStretch();
    QFont strong = font();
    strong.setBold(true);
    findChild<QLabel*>(QStringLiteral("Verdict"))->setFont(strong);
    m_bindings.bind(numbers.Visible, [this](bool on) { setVisible(on); });
}

QLabel* NumbersView::text(Label& state, const char* name)
{
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_bindings.bind(state.Caption, [label](const std::string& caption) {
        label->setText(toQt(caption));
        label->setVisible(!caption.empty());
    });
    return label;
}

QLayout* NumbersView::table()
{
    // As wide as the columns get: a wider window would lose the trail.
    constexpr std::array<const char*, Numbers::columns.size()> widest = {
        "00000", "00000", "00000", "100.0 %", "00000", "+100.0 %", "1500.0 (3000)", "00000", "+00000"};
    constexpr int cellMargin = 4; // a label is a little wider than its text
    auto* grid = new QGridLayout;
    for (std::size_t column = 0; column < Numbers::columns.size(); ++column) {
        auto* heading = new QLabel(QLatin1String(Numbers::columns[column]), this);
        heading->setAlignment(Qt::AlignRight);
        grid->addWidget(heading, 0, static_cast<int>(column) + 1);
        grid->setColumnMinimumWidth(static_cast<int>(column) + 1,
                                    fontMetrics().horizontalAdvance(QLatin1String(widest[column])) + cellMargin);
        grid->setColumnStretch(static_cast<int>(column) + 1, 1);
    }
    for (std::size_t role = 0; role < Numbers::rows.size(); ++role) {
        grid->addWidget(new QLabel(QLatin1String(Numbers::rows[role]), this), static_cast<int>(role) + 1, 0);
        for (std::size_t column = 0; column < Numbers::columns.size(); ++column) {
            auto* cell = new QLabel(this);
            cell->setObjectName(QStringLiteral("Cell_%1_%2").arg(role).arg(column));
            cell->setAlignment(Qt::AlignRight);
            m_bindings.bind(m_numbers.Cells[role][column].Caption,
                            [cell](const std::string& caption) { cell->setText(toQt(caption)); });
            grid->addWidget(cell, static_cast<int>(role) + 1, static_cast<int>(column) + 1);
        }
    }
    return grid;
}

QComboBox* NumbersView::comboBox(ComboBox& state, const QString& name, const QString& accessibleName)
{
    constexpr int shortest = 8;
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setMinimumContentsLength(shortest);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_bindings.comboBox(state, *box);
    return box;
}

QLayout* NumbersView::choices()
{
    auto* grid = new QGridLayout;
    auto* device = comboBox(m_numbers.Device, QStringLiteral("Device"), QStringLiteral("Device"));
    auto* label = new QLabel(QStringLiteral("&Device"), this);
    label->setBuddy(device);
    grid->addWidget(label, 0, 0);
    grid->addWidget(device, 0, 1, 1, 3);
    for (std::size_t role = 0; role < Numbers::rows.size(); ++role) {
        const QString name = QLatin1String(Numbers::rows[role]);
        const int row = 1 + static_cast<int>(role) / 2;
        const int column = 2 * (static_cast<int>(role) % 2);
        grid->addWidget(new QLabel(name, this), row, column);
        grid->addWidget(comboBox(m_numbers.Axis[role], QStringLiteral("Axis_%1").arg(role),
                                 QStringLiteral("Axis for %1").arg(name)),
                        row, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
    return grid;
}

QPushButton* NumbersView::button(Button& state, const char* name)
{
    auto* view = new QPushButton(this);
    view->setObjectName(QLatin1String(name));
    view->setAutoDefault(false);
    m_bindings.button(state, *view);
    return view;
}

QLayout* NumbersView::buttons()
{
    auto* row = new QHBoxLayout;
    row->addWidget(button(m_numbers.SavePicture, "SavePicture"));
    row->addWidget(button(m_numbers.SaveSamples, "SaveSamples"));
    row->addWidget(button(m_numbers.CopySummary, "CopySummary"));
    row->addStretch();
    row->addWidget(button(m_numbers.StartAgain, "StartAgain"));
    return row;
}

} // namespace tarvex
