#include "desktop/help/about_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr int widestPicture = 600;
constexpr int tallestPicture = 400;
constexpr qreal titleSize = 1.8; // of the window's letters

} // namespace

AboutView::AboutView(AboutWindow& window, QWidget* parent)
    : FormWindow(window.Form, QStringLiteral("frmAbout"), parent), m_window(window), m_picture(new QLabel(this))
{
    m_picture->setObjectName(QStringLiteral("Picture"));
    m_picture->setAccessibleName(QStringLiteral("Picture of Tarvex"));
    m_picture->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_picture);
    const auto line = [&](Label& state, const char* name) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(name));
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setAlignment(Qt::AlignHCenter);
        m_bindings.bind(state.Caption, [label](const std::string& text) { label->setText(toQt(text)); });
        column->addWidget(label);
        return label;
    };
    QLabel* title = line(window.lblTitle, "lblTitle");
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * titleSize);
    large.setBold(true);
    title->setFont(large);
    line(window.lblVersion, "lblVersion");
    line(window.lblDescription, "lblDescription");
    auto* info = new QPushButton(this);
    info->setObjectName(QStringLiteral("cmdSysInfo"));
    info->setAutoDefault(false);
    m_bindings.button(window.cmdSysInfo, *info);
    auto* ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    m_bindings.button(window.cmdOK, *ok);
    auto* foot = new QHBoxLayout;
    foot->addWidget(info);
    foot->addStretch();
    foot->addWidget(ok);
    column->addSpacing(column->spacing());
    column->addLayout(foot);
    ok->setFocus();
}

/// The file may be the user's own picture: one that is too large is made smaller, and one that is none shows nothing.
void AboutView::showEvent(QShowEvent* event)
{
    QPixmap picture;
    picture.loadFromData(QByteArray::fromStdString(m_window.Picture));
    if (picture.width() > widestPicture || picture.height() > tallestPicture)
        picture = picture.scaled(widestPicture, tallestPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    m_picture->setPixmap(picture);
    m_picture->setVisible(!picture.isNull());
    adjustSize();
    FormWindow::showEvent(event);
}

} // namespace tarvex
