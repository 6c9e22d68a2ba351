#include "desktop/bind.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QRadioButton>
#include <QShortcut>
#include <QShortcutEvent>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>

namespace tarvex {

namespace {

/// Clicks a button at once when the keys of its caption are pressed. By itself it shows itself pressed for a while
/// first, ignores the same keys meanwhile, and lets keys pressed next overtake the click.
class ClickAtOnce final : public QObject {
public:
    explicit ClickAtOnce(QAbstractButton& button) : QObject(&button) { button.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous()) return false;
        auto* button = static_cast<QAbstractButton*>(watched);
        if (button->isCheckable() && button->focusPolicy() & Qt::ClickFocus) button->setFocus();
        button->click();
        return true;
    }
};

} // namespace

void Bindings::button(Button& state, QAbstractButton& widget)
{
    bind(state.Caption, [&widget](const std::string& caption) { widget.setText(toQt(caption)); });
    bind(state.Enabled, [&widget](bool on) { widget.setEnabled(on); });
    bind(state.Visible, [&widget](bool on) { widget.setVisible(on); });
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    focus(state, widget);
    new ClickAtOnce(widget);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&state] { state.Click(); });
}

void Bindings::focus(Focusable& state, QWidget& widget)
{
    follow(state.focusWanted, [&widget] { widget.setFocus(Qt::OtherFocusReason); });
}

void Bindings::comboBox(ComboBox& state, QComboBox& widget)
{
    focus(state, widget);
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    if (widget.isEditable()) return editableComboBox(state, widget);
    const auto showText = [&state, &widget] {
        const QSignalBlocker quiet(widget);
        const QString text = toQt(state.Text.get());
        widget.setCurrentIndex(widget.findText(text));
        widget.setPlaceholderText(text);
    };
    bind(state.Items, [&widget, showText](const std::vector<std::string>& items) {
        const QSignalBlocker quiet(widget);
        widget.clear();
        QStringList texts;
        for (const std::string& item : items) texts.append(toQt(item));
        widget.addItems(texts);
        showText();
    });
    follow(state.Text, showText);
    QObject::connect(&widget, &QComboBox::activated, &widget, [&state, &widget](int index) {
        state.Text = fromQt(widget.itemText(index));
        if (state.Click) state.Click();
    });
}

void Bindings::editableComboBox(ComboBox& state, QComboBox& widget)
{
    const auto showText = [&state, &widget] {
        const QSignalBlocker quiet(widget);
        const QString text = toQt(state.Text.get());
        if (text != widget.currentText()) widget.setEditText(text);
    };
    bind(state.Items, [&widget, showText](const std::vector<std::string>& items) {
        const QSignalBlocker quiet(widget);
        const QString written = widget.currentText();
        QStringList texts;
        for (const std::string& item : items) texts.append(toQt(item));
        widget.clear();
        widget.addItems(texts);
        widget.setCurrentIndex(static_cast<int>(texts.indexOf(written))); // where the arrow keys go on from
        widget.setEditText(written);
        showText();
    });
    follow(state.Text, showText);
    follow(state.selectAllWanted, [&widget] { widget.lineEdit()->selectAll(); });
    QObject::connect(&widget, &QComboBox::editTextChanged, &widget,
                     [&state](const QString& text) { state.Text = fromQt(text); });
    QObject::connect(&widget, &QComboBox::activated, &widget, [&state] {
        if (state.Click) state.Click();
    });
}

void Bindings::textBox(TextBox& state, QLineEdit& widget)
{
    focus(state, widget);
    bind(state.Text, [&widget](const std::string& text) {
        if (toQt(text) != widget.text()) widget.setText(toQt(text));
    });
    bind(state.Enabled, [&widget](bool on) { widget.setEnabled(on); });
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    follow(state.selectAllWanted, [&widget] { widget.selectAll(); });
    QObject::connect(&widget, &QLineEdit::textChanged, &widget,
                     [&state](const QString& text) { state.Text = fromQt(text); });
}

void Bindings::checkBox(CheckBox& state, QCheckBox& widget)
{
    bind(state.Caption, [&widget](const std::string& caption) { widget.setText(toQt(caption)); });
    bind(state.Value, [&widget](bool on) { widget.setChecked(on); });
    bind(state.Enabled, [&widget](bool on) { widget.setEnabled(on); });
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    new ClickAtOnce(widget);
    QObject::connect(&widget, &QCheckBox::clicked, &widget, [&state](bool on) {
        state.Value = on;
        if (state.Click) state.Click();
    });
}

void Bindings::optionButton(OptionButton& state, QRadioButton& widget)
{
    bind(state.Caption, [&widget](const std::string& caption) { widget.setText(toQt(caption)); });
    bind(state.Value, [&widget](bool on) {
        if (on) widget.setChecked(true); // which clears the others
    });
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    new ClickAtOnce(widget);
    QObject::connect(&widget, &QRadioButton::clicked, &widget, [&state] {
        if (state.Click) state.Click();
    });
}

void Bindings::tabs(TabStrip& state, QTabWidget& widget)
{
    for (int tab = 1; tab <= state.Count(); ++tab) {
        bind(state.Tabs(tab).Caption,
             [&widget, tab](const std::string& caption) { widget.setTabText(tab - 1, toQt(caption)); });
    }
    bind(state.SelectedItem, [&widget](int tab) {
        const QSignalBlocker quiet(widget);
        widget.setCurrentIndex(tab - 1);
    });
    QObject::connect(&widget, &QTabWidget::currentChanged, &widget, [&state](int index) { state.Select(index + 1); });
}

void Bindings::pages(SSTab& state, QTabWidget& widget)
{
    for (int page = 0; page < state.Count(); ++page) {
        SSTab::Page& one = state.Pages(page);
        bind(one.Caption, [&widget, page](const std::string& caption) { widget.setTabText(page, toQt(caption)); });
        bind(one.Enabled, [&widget, page](bool on) { widget.setTabEnabled(page, on); });
        bind(one.Visible, [&widget, page](bool on) { widget.setTabVisible(page, on); });
    }
    bind(state.Tab, [&widget](int page) {
        const QSignalBlocker quiet(widget);
        widget.setCurrentIndex(page);
    });
    QObject::connect(&widget, &QTabWidget::currentChanged, &widget, [&state](int page) {
        state.Tab = page;
        if (state.Click) state.Click();
    });
}

void Bindings::listBox(ListBox& state, QListWidget& widget, Runs runs)
{
    focus(state, widget);
    bind(state.Items, [&state, &widget](const std::vector<std::string>& items) {
        const QSignalBlocker quiet(widget);
        widget.clear();
        for (const std::string& item : items) widget.addItem(toQt(item));
        widget.setCurrentRow(state.ListIndex);
    });
    bind(state.ListIndex, [&widget](int row) {
        const QSignalBlocker quiet(widget);
        widget.setCurrentRow(row);
    });
    bind(state.Enabled, [&widget](bool on) { widget.setEnabled(on); });
    bind(state.Visible, [&widget](bool on) { widget.setVisible(on); });
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    const auto click = [&state] {
        if (state.Click && state.ListIndex >= 0) state.Click();
    };
    QObject::connect(&widget, &QListWidget::currentRowChanged, &widget, [&state, runs, click](int row) {
        state.ListIndex = row;
        if (runs == Runs::OnChoice) click();
    });
    if (runs == Runs::OnChoice) return;
    QObject::connect(&widget, &QListWidget::clicked, &widget, click);
    auto* byReturn = new QShortcut(QKeySequence(Qt::Key_Return), &widget, click);
    byReturn->setContext(Qt::WidgetShortcut);
}

void Bindings::progressBar(ProgressBar& state, QProgressBar& widget)
{
    const auto showRange = [&state, &widget] {
        widget.setRange(state.Min, state.Max);
        widget.setValue(state.Value);
    };
    showRange();
    follow(state.Min, showRange);
    follow(state.Max, showRange);
    follow(state.Value, showRange);
    bind(state.Visible, [&widget](bool on) { widget.setVisible(on); });
}

void Bindings::timer(Timer& state, QObject& owner)
{
    auto* clockwork = new QTimer(&owner);
    clockwork->setObjectName(QLatin1String(tickName));
    QObject::connect(clockwork, &QTimer::timeout, clockwork, [&state] {
        if (state.Tick) state.Tick();
    });
    bind(state.Interval, [clockwork](int milliseconds) { clockwork->setInterval(milliseconds); });
    bind(state.Enabled, [clockwork](bool on) {
        if (on) {
            clockwork->start();
        } else {
            clockwork->stop();
        }
    });
}

} // namespace tarvex
