#include "desktop/composer/flags_page.h"

#include "composer/logic.h"
#include "desktop/composer/field_row.h"
#include "desktop/composer/flag_field.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace tarvex {

namespace {

/// The selectors of all pages are one group, which the logic keeps.
QRadioButton* selector(OptionButton& state, std::size_t index, Bindings& bindings, QWidget* parent)
{
    auto* option = new QRadioButton(toQt(state.Caption.get()), parent);
    option->setObjectName(QStringLiteral("OptionFlag(%1)").arg(index));
    option->setAutoExclusive(false);
    bindings.bind(state.Value, [option](bool on) { option->setChecked(on); });
    QObject::connect(option, &QRadioButton::clicked, option, [&state, option] {
        if (state.Click) state.Click();
        option->setChecked(state.Value);
    });
    return option;
}

QWidget* definitionsPage(InsertOptions& window, std::size_t first, Bindings& bindings)
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setVerticalSpacing(2);
    for (std::size_t i = first; i < first + FlagTab::perPage; ++i) {
        const int row = static_cast<int>(i - first);
        const auto focused = [&window, i] { RichTexFlag_GotFocus(window, static_cast<int>(i)); };
        auto* field = new FlagField(window.flags.RichTexFlag[i], focused, page);
        field->setObjectName(QStringLiteral("RichTexFlag(%1)").arg(i));
        field->setAccessibleName(QStringLiteral("Definition of X%1").arg(i + 1));
        grid->addWidget(selector(window.flags.OptionFlag[i], i, bindings, page), row, 0);
        grid->addWidget(field, row, 1);
    }
    return page;
}

QTabWidget* definitions(InsertOptions& window, Bindings& bindings)
{
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("SSTabFlags"));
    for (std::size_t first = 0; first < FlagTab::count; first += FlagTab::perPage)
        tabs->addTab(definitionsPage(window, first, bindings), {});
    bindings.pages(window.SSTabFlags, *tabs);
    return tabs;
}

template <typename Buttons> QLayout* buttonRow(Buttons& buttons, const char* name, Bindings& bindings, QWidget* parent)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        QPushButton* button =
            newButton(buttons[i], QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i), bindings, parent);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        button->setMinimumWidth(button->fontMetrics().averageCharWidth() * 4);
        row->addWidget(button, static_cast<int>(buttons[i].Caption.get().size()) + 2);
    }
    return row;
}

/// Lists and fields with the button that makes a term of them.
class TermGroup : public QGroupBox {
public:
    TermGroup(InsertOptions& window, const char* title, std::size_t insert, Bindings& bindings)
        : QGroupBox(QLatin1String(title)), m_window(window), m_bindings(bindings), m_row(new QHBoxLayout)
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(4, 4, 4, 4);
        column->addLayout(m_row);
        m_insert = newButton(window.flags.CMDFlagInsert[insert], QStringLiteral("CMDFlagInsert(%1)").arg(insert),
                             bindings, this);
        m_insert->setAccessibleName(QStringLiteral("%1: %2").arg(m_insert->text(), title));
        column->addWidget(m_insert);
    }

    TermGroup* list(std::size_t index, const char* name)
    {
        auto* list = new QListWidget(this);
        list->setObjectName(QStringLiteral("FlagList(%1)").arg(index));
        list->setAccessibleName(QLatin1String(name));
        list->setMinimumWidth(list->fontMetrics().averageCharWidth() * 10);
        m_bindings.listBox(m_window.flags.FlagList[index], *list);
        QObject::connect(list, &QListWidget::itemActivated, m_insert, [this] { m_insert->click(); });
        m_row->addWidget(list, 1);
        return this;
    }
    TermGroup* field(std::size_t index, const char* name)
    {
        constexpr int digits = 4;
        QLineEdit* field =
            newField(m_window.flags.TxtFlag[index], QStringLiteral("TxtFlag(%1)").arg(index), m_bindings, this);
        field->setAccessibleName(QLatin1String(name));
        field->setPlaceholderText(QLatin1String(name));
        field->setMinimumWidth(field->fontMetrics().averageCharWidth() * digits);
        QObject::connect(field, &QLineEdit::returnPressed, m_insert, [this] { m_insert->click(); });
        m_row->addWidget(field);
        return this;
    }

private:
    InsertOptions& m_window;
    Bindings& m_bindings;
    QHBoxLayout* m_row;
    QPushButton* m_insert = nullptr;
};

QLayout* lists(InsertOptions& window, Bindings& bindings)
{
    auto* row = new QHBoxLayout;
    row->addWidget((new TermGroup(window, "Flags", 0, bindings))->list(0, "Flag"), 2);
    row->addWidget((new TermGroup(window, "Hats", 1, bindings))->list(1, "Hat")->list(5, "Position"), 3);
    row->addWidget((new TermGroup(window, "Buttons", 2, bindings))->list(2, "Button"), 2);
    row->addWidget((new TermGroup(window, "Comparison", 5, bindings))
                       ->list(3, "Less or greater")
                       ->list(4, "Axis")
                       ->field(3, "Value"),
                   4);
    return row;
}

QLayout* numbers(InsertOptions& window, Bindings& bindings)
{
    auto* row = new QHBoxLayout;
    row->addWidget((new TermGroup(window, "Pulse", 3, bindings))->field(0, "On")->field(1, "Off"), 2);
    row->addWidget((new TermGroup(window, "Timer", 4, bindings))->field(2, "Delay"), 1);
    row->addWidget((new TermGroup(window, "Delay", 6, bindings))->field(4, "Time"), 1);
    row->addWidget((new TermGroup(window, "Repeat", 7, bindings))->field(5, "Count"), 1);
    return row;
}

QLayout* blocks(InsertOptions& window, Bindings& bindings, QWidget* parent)
{
    constexpr std::size_t notes = 8;
    constexpr std::size_t help = 9;
    auto* row = new QHBoxLayout;
    for (std::size_t i = 0; i < window.flags.Command13.size(); ++i)
        row->addWidget(newButton(window.flags.Command13[i], QStringLiteral("Command13(%1)").arg(i), bindings, parent));
    row->addStretch(1);
    for (const std::size_t i : {notes, help})
        row->addWidget(
            newButton(window.flags.CMDFlagInsert[i], QStringLiteral("CMDFlagInsert(%1)").arg(i), bindings, parent));
    return row;
}

} // namespace

QWidget* flagsPage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->addWidget(definitions(window, bindings));
    column->addLayout(buttonRow(window.flags.CMDCompare, "CMDCompare", bindings, page));
    column->addLayout(buttonRow(window.flags.CMDFlagSlash, "CMDFlagSlash", bindings, page));
    column->addLayout(lists(window, bindings), 1);
    column->addLayout(numbers(window, bindings));
    column->addLayout(blocks(window, bindings, page));
    return page;
}

} // namespace tarvex
