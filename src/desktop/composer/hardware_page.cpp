#include "desktop/composer/hardware_page.h"

#include "composer/overlay.h"
#include "desktop/composer/field_row.h"
#include "desktop/composer/hardware_picture.h"
#include "desktop/composer/statement_box.h"
#include "desktop/text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr char portToggle[] = "ROTARY(7)";
// A tip can't be scrolled, and hides what is under it.
constexpr int tipLines = 12;
constexpr int tipColumns = 80;

/// The part of the statements that goes into a tip.
QString cutToTip(const QString& statements)
{
    QStringList lines = statements.split(u'\n');
    const qsizetype more = lines.size() - tipLines;
    if (more > 1) {
        lines.resize(tipLines);
        lines.append(QStringLiteral("... and %1 more lines, in the box below the picture").arg(more));
    }
    for (QString& line : lines) {
        if (line.size() > tipColumns) line = line.left(tipColumns - 3) + QStringLiteral("...");
    }
    return lines.join(u'\n');
}

/// The statements of a control above its tip.
QString tipOf(const QString& statements, const std::string& tip)
{
    QString text;
    if (!statements.isEmpty())
        text = QStringLiteral("<pre style=\"margin: 0\">") + cutToTip(statements).toHtmlEscaped() +
               QStringLiteral("</pre>");
    if (!text.isEmpty() && !tip.empty()) text += QStringLiteral("<hr>");
    return text + toQt(tip).toHtmlEscaped();
}

} // namespace

HardwarePage::HardwarePage(InsertOptions& window, Bindings& bindings, QWidget* parent)
    : QWidget(parent), m_window(window), m_bindings(bindings)
{
    auto* column = new QVBoxLayout(this);
    auto* parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(makePictures());
    parts->addWidget(makeStatement());
    parts->setStretchFactor(0, 1);
    parts->setChildrenCollapsible(false);
    column->addWidget(parts, 1);
    column->addLayout(makeSlashRow());
    column->addLayout(makeItemRow());
    column->addLayout(makeRemarkRow());
    bindControls();
    showControls();
}

QWidget* HardwarePage::makePictures()
{
    constexpr std::array shown{PictureOf::F22AndF16Stick, PictureOf::OlderStick, PictureOf::Tqs, PictureOf::Wcs};
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("SSTabHardware"));
    tabs->setDocumentMode(true);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        m_pictures[i] = new HardwarePicture(picture(shown[i]), tabs);
        connect(m_pictures[i], &HardwarePicture::clicked, this, &HardwarePage::click);
        connect(m_pictures[i], &HardwarePicture::attended, this, &HardwarePage::attend);
        tabs->addTab(m_pictures[i], {});
    }
    m_bindings.pages(m_window.SSTabHardware, *tabs);
    connect(tabs, &QTabWidget::currentChanged, this, [this] {
        m_attended.clear();
        showAttended();
    });
    return tabs;
}

QWidget* HardwarePage::makeStatement()
{
    m_statement = new StatementBox(this);
    m_statement->setObjectName(QStringLiteral("AssignedText"));
    m_statement->setAccessibleName(QStringLiteral("What is on the control"));
    m_statement->showHint(hint());
    m_bindings.bind(m_window.CheckShowAssigned.Value, [this](bool on) { m_statement->setVisible(on); });
    return m_statement;
}

QLayout* HardwarePage::makeSlashRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    for (std::size_t i = 0; i < m_window.SlashButton.size(); ++i) {
        QPushButton* slash =
            newButton(m_window.SlashButton[i], QStringLiteral("SlashButton(%1)").arg(i), m_bindings, this);
        slash->setMinimumWidth(slash->fontMetrics().averageCharWidth() * 5);
        slash->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        row->addWidget(slash);
    }
    return row;
}

QLayout* HardwarePage::makeItemRow()
{
    constexpr int digits = 5;
    StatementFields& fields = m_window.fields;
    auto* row = new QHBoxLayout;
    addField(*row, QStringLiteral("Delay"), fields.DLYText, QStringLiteral("DLYText"), digits, m_bindings,
             newButton(m_window.DlyRptButtons[0], QStringLiteral("DlyRptButtons(0)"), m_bindings, this));
    addField(*row, QStringLiteral("Repeat"), fields.TextRPT, QStringLiteral("TextRPT"), digits, m_bindings,
             newButton(m_window.DlyRptButtons[1], QStringLiteral("DlyRptButtons(1)"), m_bindings, this));
    addField(*row, QStringLiteral("Blanks"), fields.Text1[valueField::blanks], QStringLiteral("Text1(0)"), digits,
             m_bindings, newButton(m_window.Command7[1], QStringLiteral("Command7(1)"), m_bindings, this));
    row->addStretch();
    row->addWidget(newButton(m_window.Command7[0], QStringLiteral("Command7(0)"), m_bindings, this));
    return row;
}

QLayout* HardwarePage::makeRemarkRow()
{
    auto* row = new QHBoxLayout;
    addField(*row, QStringLiteral("Remark"), m_window.fields.RemTextBox, QStringLiteral("RemTextBox"), 0, m_bindings,
             newButton(m_window.CommandREM, QStringLiteral("CommandREM"), m_bindings, this));
    row->addWidget(newButton(m_window.Command10, QStringLiteral("Command10"), m_bindings, this));
    return row;
}

// ---- the controls of the pictures -----------------------------------------------------------------------------------

void HardwarePage::bindControls()
{
    for (const Picture& shown : allPictures()) {
        for (const PictureControl& control : shown.controls) {
            Button* button = controlButton(m_window, control.id);
            if (button == nullptr) continue;
            const auto show = [this, id = control.id] { showControl(id); };
            m_bindings.follow(button->Visible, show);
            m_bindings.follow(button->Caption, show);
            m_bindings.follow(button->ToolTipText, show);
        }
    }
    m_bindings.follow(m_window.ROTARY[7].Value, [this] { showControl(portToggle); });
    m_bindings.follow(m_window.AssignedChanged, [this] { showControls(); });
    m_bindings.bind(m_window.WcsPicture, [this](PictureOf what) {
        m_pictures[hardwarePage::wcs]->setPicture(picture(what));
        showControls();
    });
}

void HardwarePage::showControls()
{
    for (const HardwarePicture* shown : m_pictures) {
        for (const PictureControl& control : shown->picture().controls) showControl(control.id);
    }
    showAttended();
}

void HardwarePage::showControl(std::string_view id)
{
    for (const HardwarePicture* shown : m_pictures) {
        if (HardwareControl* view = shown->control(id)) showState(*view, id);
    }
}

void HardwarePage::showState(HardwareControl& view, std::string_view id)
{
    const Button& button = *controlButton(m_window, id);
    view.setVisible(button.Visible);
    view.setEnabled(id == "TRIG" || !button.Caption.get().empty());
    view.setAssigned(isAssigned(m_window, id));
    view.setToolTip(toQt(button.ToolTipText.get()));
    if (id != portToggle) return;
    view.setCheckable(true);
    view.setChecked(m_window.ROTARY[7].Value == 1);
}

void HardwarePage::click(const QString& id)
{
    const std::string name = fromQt(id);
    for (const HardwarePicture* shown : m_pictures) {
        const HardwareControl* view = shown->control(name);
        if (view == nullptr || !shown->isVisible()) continue;
        const QPoint place = view->menuPlace();
        m_window.PopUpPlace = {place.x(), place.y(), 0, 0};
    }
    if (const Button* button = controlButton(m_window, name)) button->Click();
    showControl(portToggle); // what was clicked shows its value, not the click
}

/// A control that is left stays the one whose statements are shown, so that they can be scrolled and read to the end.
void HardwarePage::attend(const QString& id)
{
    if (id.isEmpty()) return;
    m_attended = id;
    showAttended();
}

/// Only for the control at hand, because the keys of all macros on all controls take a while to look up.
void HardwarePage::showAttended()
{
    const std::string name = fromQt(m_attended);
    const QString text = toQt(assignedText(m_window, name));
    m_statement->showStatements(text);
    m_statement->showHint(hint());
    const Button* button = controlButton(m_window, name);
    for (const HardwarePicture* shown : m_pictures) {
        HardwareControl* view = shown->control(name);
        if (view == nullptr || button == nullptr) continue;
        view->setToolTip(tipOf(text, button->ToolTipText));
        view->setAccessibleDescription(text);
    }
}

QString HardwarePage::hint() const
{
    const std::string name = fromQt(m_attended);
    for (const HardwarePicture* shown : m_pictures) {
        const PictureControl* control = findControl(shown->picture(), name);
        if (!shown->isVisible() || control == nullptr || control->name.empty()) continue;
        return QStringLiteral("Your joystick file has nothing on %1 yet.").arg(toQt(control->name));
    }
    return QStringLiteral("Point at a control to see what your joystick file has on it. A green mark: something is.");
}

/// The box doesn't take the keyboard from the control whose statements it shows, so its keys come from there.
void HardwarePage::keyPressEvent(QKeyEvent* event)
{
    if (!m_statement->isVisible() || !m_statement->scrollByKey(event->key())) QWidget::keyPressEvent(event);
}

} // namespace tarvex
