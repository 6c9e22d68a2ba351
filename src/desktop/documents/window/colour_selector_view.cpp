#include "desktop/documents/window/colour_selector_view.h"

#include "documents/window/colour_selector.h"

#include <QFrame>
#include <QGridLayout>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvex {

namespace {

/// A field of one colour; a click on it is a click on its button.
class Swatch : public QWidget {
public:
    Swatch(Property<Colour>& colour, QPushButton& button) : QWidget(button.parentWidget()), m_button(button)
    {
        const int size = button.sizeHint().height();
        setFixedSize(size * 3 / 2, size);
        m_bindings.bind(colour, [this](Colour now) {
            m_colour = toQt(now);
            update();
        });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.setBrush(m_colour);
        painter.drawRect(rect().adjusted(2, 2, -3, -3));
    }
    void mousePressEvent(QMouseEvent*) override { m_button.click(); }

private:
    QPushButton& m_button;
    QColor m_colour;
    Bindings m_bindings;
};

} // namespace

ColourSelectorView::ColourSelectorView(Editor& editor, QWidget* parent)
    : ToolFormWindow(editor.ColourSelector.form, parent), m_editor(editor)
{
    setWindowFlags(Qt::Popup);
    setAttribute(Qt::WA_NoMouseReplay); // the click on the picture that closes it mustn't open it again
    setAccessibleName(QStringLiteral("Colour of text"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QFrame(this);
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    column->addWidget(frame);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setSpacing(2);
    for (std::size_t index = 0; index < ColourSelector::count; ++index) {
        auto* button = new QPushButton(frame);
        button->setObjectName(QStringLiteral("Command1_%1").arg(index));
        button->setDefault(index == 0); // it has the keyboard first
        m_bindings.button(editor.ColourSelector.Command1[index], *button);
        auto* swatch = new Swatch(editor.ColourSelector.Label1[index], *button);
        swatch->setObjectName(QStringLiteral("Label1_%1").arg(index));
        grid->addWidget(swatch, static_cast<int>(index), 0);
        grid->addWidget(button, static_cast<int>(index), 1);
    }
}

/// Starts at the first button each time, not at the last choice.
void ColourSelectorView::showEvent(QShowEvent* event)
{
    ToolFormWindow::showEvent(event);
    findChild<QPushButton*>(QStringLiteral("Command1_0"))->setFocus(Qt::PopupFocusReason);
}

void ColourSelectorView::hideEvent(QHideEvent* event)
{
    ToolFormWindow::hideEvent(event);
    ColourSelector_LostFocus(m_editor);
}

} // namespace tarvex
