#include "desktop/bind.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QTimer>

namespace tarvex {

void Bindings::button(Button& state, QAbstractButton& widget)
{
    bind(state.Caption, [&widget](const std::string& caption) { widget.setText(toQt(caption)); });
    bind(state.Enabled, [&widget](bool on) { widget.setEnabled(on); });
    bind(state.Visible, [&widget](bool on) { widget.setVisible(on); });
    bind(state.ToolTipText, [&widget](const std::string& tip) { widget.setToolTip(toQt(tip)); });
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&state] { state.Click(); });
}

void Bindings::comboBox(ComboBox& state, QComboBox& widget)
{
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

void Bindings::focus(Focusable& state, QWidget& widget)
{
    follow(state.focusWanted, [&widget] { widget.setFocus(Qt::OtherFocusReason); });
}

void Bindings::textBox(TextBox& state, QLineEdit& widget)
{
    focus(state, widget);
    bind(state.Text, [&widget](const std::string& text) {
        if (toQt(text) != widget.text()) widget.setText(toQt(text));
    });
    follow(state.selectAllWanted, [&widget] { widget.selectAll(); });
    QObject::connect(&widget, &QLineEdit::textChanged, &widget,
                     [&state](const QString& text) { state.Text = fromQt(text); });
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
