#include "desktop/wizards/page_body.h"

#include "desktop/icon_theme.h"
#include "desktop/line_box.h"
#include "desktop/wizards/page_example.h"
#include "desktop/wizards/page_picture.h"

#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace tarvex {

namespace {

using Kind = WizardBlock::Kind;

constexpr std::size_t insertButton = 4;
constexpr int safeinButton = 6;
constexpr double titleSize = 1.3; // of the text's
constexpr int headingsShown = 8;

QLabel* label(const std::string& text)
{
    auto* words = new QLabel(toQt(text));
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    words->setSizePolicy(policy);
    return words;
}

QLabel* titleLabel(const std::string& text)
{
    QLabel* title = label(text);
    title->setObjectName(QStringLiteral("PageTitle"));
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * titleSize);
    title->setFont(font);
    return title;
}

} // namespace

QWidget* PageMaker::page(const WizardPage& page, bool withTitle)
{
    auto* body = new QWidget;
    auto* column = new QVBoxLayout(body);
    column->setSpacing(body->fontMetrics().lineSpacing() * 2 / 3); // paragraphs stand apart
    if (withTitle) column->addWidget(titleLabel(page.title));
    for (const WizardBlock& block : page.blocks) add(*column, block);
    column->addStretch();
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(body);
    area->setMinimumWidth(body->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

void PageMaker::add(QVBoxLayout& column, const WizardBlock& block)
{
    QWidget* widget = nullptr;
    Qt::Alignment place;
    switch (block.kind) {
    case Kind::Paragraph:
        widget = words(block.text);
        break;
    case Kind::Item:
        widget = item(block.text);
        break;
    case Kind::Example:
        widget = makePageExample(block.text, m_settings);
        break;
    case Kind::Button:
        widget = button(block.number);
        place = Qt::AlignLeft;
        break;
    case Kind::Picture:
        widget = PagePicture::make(block.text);
        place = Qt::AlignHCenter;
        break;
    case Kind::Macro:
        widget = macroBoxes();
        break;
    case Kind::Headings:
        widget = headings();
        break;
    }
    if (widget != nullptr) column.addWidget(widget, 0, place);
}

QWidget* PageMaker::words(const std::string& text) { return label(text); }

QWidget* PageMaker::item(const std::string& text) { return label("\xE2\x80\xA2 " + text); }

QPushButton* PageMaker::button(int number)
{
    const auto index = static_cast<std::size_t>(number);
    if (number < 0 || index >= m_buttons.size()) return nullptr;
    auto* push = new QPushButton;
    push->setObjectName(QStringLiteral("Command1_%1").arg(number));
    m_bindings.button(m_buttons[index], *push);
    if (m_maker != nullptr && number == safeinButton) {
        push->setIcon(themeIcon(QStringLiteral("keyboard")));
        push->setAccessibleName(QStringLiteral("Safein"));
        push->setToolTip(QStringLiteral("Safein"));
    }
    return push;
}

QWidget* PageMaker::macroBoxes()
{
    if (m_maker == nullptr) return nullptr;
    auto* boxes = new QWidget;
    auto* rows = new QFormLayout(boxes);
    rows->setContentsMargins({});
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addBox(*rows, "Na&me:", 0);
    addBox(*rows, "&Keys:", 1);
    QLabel* preview = label({});
    preview->setObjectName(QStringLiteral("Label1"));
    preview->setMinimumHeight(2 * preview->fontMetrics().lineSpacing()); // the buttons below keep their places
    preview->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_bindings.bind(m_maker->Label1.Caption,
                    [preview](const std::string& text) { preview->setText(withBreaksInLongWords(toQt(text))); });
    rows->addRow(preview);
    return boxes;
}

/// Return writes the macro, when it is whole.
void PageMaker::addBox(QFormLayout& rows, const char* label, std::size_t index)
{
    auto* box = new LineBox(m_maker->Text1.at(index), QStringLiteral("Text1_%1").arg(index), m_bindings);
    Button& insert = m_maker->Command1[insertButton];
    QObject::connect(box, &QLineEdit::returnPressed, box, [&insert] {
        if (insert.Enabled) insert.Click();
    });
    rows.addRow(QLatin1String(label), box);
}

QWidget* PageMaker::headings()
{
    if (m_maker == nullptr) return nullptr;
    auto* list = new QListWidget;
    list->setObjectName(QStringLiteral("List1"));
    list->setAccessibleName(QStringLiteral("Headings"));
    m_bindings.listBox(m_maker->List1, *list);
    list->setFixedHeight(headingsShown * list->fontMetrics().lineSpacing() + 2 * list->frameWidth());
    const auto insert = [maker = m_maker] { List1_DblClick(*maker); };
    QObject::connect(list, &QListWidget::doubleClicked, list, insert);
    auto* byReturn = new QShortcut(QKeySequence(Qt::Key_Return), list, insert);
    byReturn->setContext(Qt::WidgetShortcut);
    return list;
}

} // namespace tarvex
