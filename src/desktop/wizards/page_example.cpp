#include "desktop/wizards/page_example.h"

#include "desktop/text.h"
#include "documents/text/pane.h"
#include "language/base_format.h"
#include "language/pass_runner.h"
#include "platform/windows1252.h"

#include <QFontDatabase>

namespace tarvex {

namespace {

constexpr int margin = 6; // pixels

QString inColours(const Pane& pane)
{
    QString html = QStringLiteral("<pre style=\"margin:0\">");
    std::size_t start = 0;
    for (const FormatRun& run : pane.runs()) {
        const QString words = toQt(utf8FromWindows1252(std::string_view(pane.Text()).substr(start, run.length)));
        const QColor colour = toQt((*pane.formats())[run.format].colour);
        html += QStringLiteral("<span style=\"color:%1\">%2</span>").arg(colour.name(), words.toHtmlEscaped());
        start += run.length;
    }
    return html.remove(u'\r') + QStringLiteral("</pre>");
}

} // namespace

QLabel* makePageExample(const std::string& lines, const Settings& settings)
{
    Pane pane;
    pane.setText(windows1252FromUtf8(lines));
    writeBaseFormat(pane, settings, 0);
    float position = 0;
    runPasses({pane, settings, position, Steps(), nullptr, [](const Hold&) {}}, joystickPasses());

    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("Example"));
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setTextFormat(Qt::RichText);
    label->setText(inColours(pane));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setMargin(margin);
    label->setAutoFillBackground(true);
    QPalette colours = label->palette();
    colours.setColor(QPalette::Window, toQt(settings.BackgroundColour));
    colours.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(colours);
    return label;
}

} // namespace tarvex
