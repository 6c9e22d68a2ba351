#include "desktop/help/tip_view.h"

#include "desktop/icon_theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr int widthInCharacters = 52;
constexpr int heightInLines = 7;
constexpr int iconSize = 48;

} // namespace

TipView::TipView(TipWindow& window, QWidget* parent) : FormWindow(window.Form, QStringLiteral("frmTip"), parent)
{
    auto* picture = new QLabel(this);
    picture->setPixmap(themeIcon(QStringLiteral("tarvex")).pixmap(iconSize));
    auto* heading = new QLabel(QStringLiteral("Did you know ..."), this);
    QFont large = heading->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    heading->setFont(large);
    auto* top = new QHBoxLayout;
    top->addWidget(picture);
    top->addWidget(heading, 1);

    auto* tip = new QLabel(this);
    tip->setObjectName(QStringLiteral("lblTipText"));
    tip->setTextFormat(Qt::PlainText);
    tip->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    tip->setWordWrap(true);
    tip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    tip->setMargin(8);
    tip->setAccessibleName(QStringLiteral("Tip"));
    m_bindings.bind(window.lblTipText.Caption, [tip](const std::string& text) { tip->setText(toQt(text)); });
    auto* room = new QScrollArea(this);
    room->setWidgetResizable(true);
    room->setWidget(tip);
    room->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    room->setMinimumSize(fontMetrics().averageCharWidth() * widthInCharacters,
                         fontMetrics().lineSpacing() * heightInLines);

    auto* tick = new QCheckBox(this);
    tick->setObjectName(QStringLiteral("chkLoadTipsAtStartup"));
    m_bindings.checkBox(window.chkLoadTipsAtStartup, *tick);
    auto* next = new QPushButton(this);
    next->setObjectName(QStringLiteral("cmdNextTip"));
    next->setAutoDefault(false);
    m_bindings.button(window.cmdNextTip, *next);
    auto* ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    m_bindings.button(window.cmdOK, *ok);
    auto* foot = new QHBoxLayout;
    foot->addWidget(tick);
    foot->addStretch();
    foot->addWidget(next);
    foot->addWidget(ok);

    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(room, 1);
    column->addLayout(foot);
    ok->setFocus();
}

} // namespace tarvex
