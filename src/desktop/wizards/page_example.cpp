#include "desktop/wizards/page_example.h"

#include "desktop/pane_colours.h"
#include "desktop/text.h"
#include "documents/text/pane.h"
#include "language/base_format.h"
#include "language/pass_runner.h"
#include "platform/windows1252.h"

#include <QEvent>
#include <QFontDatabase>

namespace tarvex {

namespace {

constexpr int margin = 6; // pixels

QString inColours(const Pane& pane, const PaneColours& shown)
{
    QString html = QStringLiteral("<pre style=\"margin:0\">");
    std::size_t start = 0;
    for (const FormatRun& run : pane.runs()) {
        const QString words = toQt(utf8FromWindows1252(std::string_view(pane.Text()).substr(start, run.length)));
        const QColor colour = shown.text((*pane.formats())[run.format].colour);
        html += QStringLiteral("<span style=\"color:%1\">%2</span>").arg(colour.name(), words.toHtmlEscaped());
        start += run.length;
    }
    return html.remove(u'\r') + QStringLiteral("</pre>");
}

/// Follows the application's appearance as panes do.
class Example final : public QLabel {
public:
    Example(const std::string& lines, const Settings& settings) : m_background(settings.BackgroundColour)
    {
        m_pane.setText(windows1252FromUtf8(lines));
        writeBaseFormat(m_pane, settings, 0);
        float position = 0;
        runPasses({m_pane, settings, position, Steps(), nullptr, [](const Hold&) {}}, joystickPasses());
        showColours();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange) showColours();
    }

private:
    void showColours()
    {
        const PaneColours shown = paneColours(m_background);
        QPalette colours = palette();
        colours.setColor(QPalette::Window, shown.ground);
        colours.setColor(QPalette::WindowText, shown.text(0));
        setPalette(colours);
        setText(inColours(m_pane, shown));
    }

    Pane m_pane;
    Colour m_background;
};

} // namespace

QLabel* makePageExample(const std::string& lines, const Settings& settings)
{
    auto* label = new Example(lines, settings);
    label->setObjectName(QStringLiteral("Example"));
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setMargin(margin);
    label->setAutoFillBackground(true);
    return label;
}

} // namespace tarvex
