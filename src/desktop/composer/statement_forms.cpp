#include "desktop/composer/statement_forms.h"

#include "desktop/composer/control_scene.h"
#include "desktop/composer/field_row.h"
#include "desktop/composer/form_scenes.h"
#include "desktop/toggle_view.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <span>

namespace tarvex {

namespace {

using Labels = std::initializer_list<const char*>;

constexpr Labels stepsLabels{"Steps", "Step up", "Step down"};
constexpr Labels centredLabels{"Steps", "Step up", "Centre", "Step down"};
constexpr Labels fiveFieldLabels{"Steps", "Full up", "Full up to centre", "Centre", "Centre to full down", "Full down"};

/// A page: columns of forms with a picture of what they are about, and the tick at its foot.
class FormPage : public QWidget {
public:
    enum class Place { NextColumn, Below };

    FormPage(InsertOptions& window, Bindings& bindings, std::size_t tick)
        : m_window(window), m_bindings(bindings), m_column(new QVBoxLayout(this)), m_forms(new QHBoxLayout)
    {
        m_column->addLayout(m_forms);
        m_column->addStretch(leastStretch);
        auto* box = new QCheckBox(this);
        box->setObjectName(QStringLiteral("CheckMultiAddCR(%1)").arg(tick));
        bindings.checkBox(window.CheckMultiAddCR[tick], *box);
        m_column->addWidget(box);
    }

    void form(const char* title, Labels labels, std::span<TextBox> fields, const char* fieldName, Button& insert,
              const char* insertName, Place place = Place::NextColumn)
    {
        auto* group = new QGroupBox(QLatin1String(title), this);
        auto* rows = new QFormLayout(group);
        QPushButton* button = this->button(insert, insertName, group);
        button->setAccessibleName(QStringLiteral("Insert %1").arg(QLatin1String(title)));
        const auto* label = labels.begin();
        for (std::size_t i = 0; i < fields.size(); ++i) {
            QLineEdit* field =
                newField(fields[i], QStringLiteral("%1(%2)").arg(QLatin1String(fieldName)).arg(i), m_bindings, group);
            connect(field, &QLineEdit::returnPressed, button, [button] { button->click(); });
            rows->addRow(QLatin1String(*label++), field);
        }
        rows->addRow(QString(), button);
        if (place == Place::NextColumn) {
            m_stack = new QVBoxLayout;
            m_stack->addStretch(leastStretch);
            m_forms->addLayout(m_stack, 1);
        }
        m_stack->insertWidget(m_stack->count() - 1, group);
    }

    /// Below the last form.
    void below(QPushButton* button) { m_stack->insertWidget(m_stack->count() - 1, button, 0, Qt::AlignLeft); }
    /// The picture takes the room that is left below the last form, or below all of them.
    ControlScene* sceneInColumn()
    {
        auto* scene = new ControlScene(this);
        m_stack->insertWidget(m_stack->count() - 1, scene, all);
        m_column->setStretchFactor(m_forms, all);
        return scene;
    }
    ControlScene* sceneBelow()
    {
        auto* scene = new ControlScene(this);
        m_column->insertWidget(m_column->count() - 2, scene, all);
        return scene;
    }
    void above(QLayout* layout) { m_column->insertLayout(0, layout); }
    void beside(QWidget* widget, int stretch = 1) { m_forms->addWidget(widget, stretch, Qt::AlignTop); }

    QPushButton* button(Button& state, const QString& name, QWidget* parent = nullptr)
    {
        return newButton(state, name, m_bindings, parent != nullptr ? parent : this);
    }
    QPushButton* button(Button& state, const char* name, QWidget* parent)
    {
        return button(state, QString::fromLatin1(name), parent);
    }

protected:
    InsertOptions& m_window;
    Bindings& m_bindings;

private:
    static constexpr int leastStretch = 1; // of what takes the room where there is no picture
    static constexpr int all = 1'000;

    QVBoxLayout* m_column;
    QHBoxLayout* m_forms;
    QVBoxLayout* m_stack = nullptr; ///< the column of forms that was begun last; a stretch ends it
};

QHBoxLayout* leftAligned(std::initializer_list<QWidget*> widgets)
{
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets) row->addWidget(widget);
    row->addStretch(1);
    return row;
}

QGroupBox* useGroup(InsertOptions& window, Bindings& bindings)
{
    constexpr int columns = 2;
    auto* group = new QGroupBox(QStringLiteral("Use"));
    group->setObjectName(QStringLiteral("Frame3"));
    auto* grid = new QGridLayout(group);
    for (std::size_t i = 0; i < window.Command1.size(); ++i) {
        const int place = static_cast<int>(i);
        grid->addWidget(newButton(window.Command1[i], QStringLiteral("Command1(%1)").arg(i), bindings, group),
                        place / columns, place % columns);
    }
    return group;
}

QGroupBox* valueGroup(InsertOptions& window, Bindings& bindings)
{
    constexpr const char* labels[] = {"RATE", "MDEF", "NULLCHR"};
    auto* group = new QGroupBox(QStringLiteral("Values"));
    auto* rows = new QGridLayout(group);
    for (int i = 0; i < 3; ++i) {
        const auto index = static_cast<std::size_t>(i);
        QPushButton* insert = newButton(window.Command2[index], QStringLiteral("Command2(%1)").arg(i), bindings, group);
        insert->setAccessibleName(QStringLiteral("Insert %1").arg(QLatin1String(labels[i])));
        QLineEdit* field =
            newField(window.fields.Text1[index + 1], QStringLiteral("Text1(%1)").arg(i + 1), bindings, group);
        QObject::connect(field, &QLineEdit::returnPressed, insert, [insert] { insert->click(); });
        auto* label = new QLabel(QLatin1String(labels[i]), group);
        label->setBuddy(field);
        rows->addWidget(label, i, 0);
        rows->addWidget(field, i, 1);
        rows->addWidget(insert, i, 2);
    }
    return group;
}

QListWidget* mouseList(InsertOptions& window, std::size_t index, Bindings& bindings, QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->setObjectName(QStringLiteral("MouseList(%1)").arg(index));
    list->setAccessibleName(QStringLiteral("Types of mice"));
    bindings.listBox(window.mice.MouseList[index], *list);
    return list;
}

/// Which button of the controllers works as which button of the mouse.
QGridLayout* mouseButtons(InsertOptions& window, Bindings& bindings, QWidget* parent)
{
    constexpr const char* titles[] = {"Left", "Middle", "Right"};
    auto* grid = new QGridLayout;
    for (int i = 0; i < 3; ++i) {
        auto* title = new QLabel(QLatin1String(titles[i]), parent);
        auto* shown = new QLabel(parent);
        title->setObjectName(QStringLiteral("Label4(%1)").arg(i));
        shown->setObjectName(QStringLiteral("Label5(%1)").arg(i));
        bindings.bind(window.mice.Label5[static_cast<std::size_t>(i)].Caption,
                      [shown](const std::string& text) { shown->setText(toQt(text)); });
        grid->addWidget(title, i, 0);
        grid->addWidget(shown, i, 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return grid;
}

QGroupBox* miceGroup(InsertOptions& window, Bindings& bindings)
{
    auto* group = new QGroupBox(QStringLiteral("Mice type"));
    group->setObjectName(QStringLiteral("Frame2"));
    auto* column = new QVBoxLayout(group);
    auto* kinds = new QHBoxLayout;
    column->addLayout(kinds);
    auto* types = new QHBoxLayout;
    column->addLayout(types);
    for (std::size_t i = 0; i < window.mice.Option1.size(); ++i) {
        auto* kind = new QRadioButton(group);
        kind->setObjectName(QStringLiteral("Option1(%1)").arg(i));
        bindings.optionButton(window.mice.Option1[i], *kind);
        kinds->addWidget(kind);
        types->addWidget(mouseList(window, i, bindings, group), 1);
    }
    types->addLayout(mouseButtons(window, bindings, group), 1);
    QPushButton* insert = newButton(window.mice.Command9, QStringLiteral("Command9"), bindings, group);
    insert->setAccessibleName(QStringLiteral("Insert USE MTYPE"));
    column->addWidget(insert, 0, Qt::AlignRight);
    return group;
}

} // namespace

QWidget* rangePage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new FormPage(window, bindings, 0);
    page->form("RNG 1", stepsLabels, window.fields.Rng1, "Rng1", window.Command3, "Command3");
    page->form("RNG 2", {"Steps", "Full up", "In between", "Full down"}, window.fields.Rng2, "Rng2", window.Command4,
               "Command4");
    page->sceneBelow()->showControls(PictureOf::Tqs, {QStringLiteral("ROTARY(0)")});
    return page;
}

QWidget* antennaPage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new FormPage(window, bindings, 1);
    page->form("ANT 1", centredLabels, window.fields.Ant1, "Ant1", window.Command8[0], "Command8(0)");
    page->form("ANT 2", fiveFieldLabels, window.fields.Ant2, "Ant2", window.InsertANT, "InsertANT");
    page->sceneBelow()->showControls(PictureOf::Tqs, {QStringLiteral("ROTARY(1)")});
    return page;
}

QWidget* throttlePage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new FormPage(window, bindings, 2);
    page->form("THR 1",
               {"Throttle steps", "Afterburner steps", "Throttle up", "Throttle down", "AB entry", "AB exit", "AB up",
                "AB down"},
               window.fields.Thr1, "Thr1", window.Command12[0], "Command12(0)");
    page->below(page->button(window.Command15[0], QStringLiteral("Command15(0)")));
    page->form("THR 2", {"Throttle steps", "Afterburner steps", "Throttle characters", "Afterburner characters"},
               window.fields.Thr2, "Thr2", window.Command12[1], "Command12(1)");
    showThrottle(window, bindings, *page->sceneInColumn());
    return page;
}

QWidget* axesPage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new FormPage(window, bindings, 3);
    auto* axes = leftAligned({});
    for (std::size_t i = 0; i < window.ToggleButton1.size(); ++i) {
        auto* toggle = new QPushButton(page);
        toggle->setObjectName(QStringLiteral("ToggleButton1(%1)").arg(i));
        toggle->setAutoDefault(false);
        bindToggle(window.ToggleButton1[i], *toggle, bindings);
        axes->insertWidget(static_cast<int>(i), toggle);
    }
    page->above(axes);
    page->form("Form 1", centredLabels, window.fields.Axis1, "Axis1", window.Command8[1], "Command8(1)");
    page->form("Form 2", fiveFieldLabels, window.fields.Axis2, "Axis2", window.Command8[2], "Command8(2)",
               FormPage::Place::Below);
    page->below(page->button(window.Command15[1], QStringLiteral("Command15(1)")));
    page->form("Form 3", {"Left", "Centre", "Right"}, window.fields.Axis3, "Axis3", window.Command8[3], "Command8(3)");
    showAxis(window, bindings, *page->sceneInColumn());
    return page;
}

QWidget* setUpPage(InsertOptions& window, Bindings& bindings)
{
    auto* page = new FormPage(window, bindings, 4);
    auto* left = new QWidget(page);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(useGroup(window, bindings));
    column->addWidget(valueGroup(window, bindings));
    page->beside(left);
    page->beside(miceGroup(window, bindings));
    showMouseButtons(window, bindings, *page->sceneBelow());
    return page;
}

} // namespace tarvex
