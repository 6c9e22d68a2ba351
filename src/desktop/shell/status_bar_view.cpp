#include "desktop/shell/status_bar_view.h"

#include "desktop/icon_theme.h"
#include "desktop/shell/elided_label.h"

#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QTime>

#include <array>

namespace tarvex {

namespace {

constexpr int imageSize = 16;
constexpr int progressWidth = 96;

/// Pictures of the saved state, by their number.
QIcon savedStateIcon(int picture)
{
    static const std::array<QString, 4> names{QString(), QStringLiteral("state-new"), QStringLiteral("state-saved"),
                                              QStringLiteral("state-modified")};
    const auto index = static_cast<std::size_t>(picture);
    return picture > 0 && index < names.size() ? themeIcon(names[index]) : QIcon();
}

/// Shows an icon as the label is, also after the palette has changed.
class IconLabel : public QLabel {
public:
    using QLabel::QLabel;
    void setIcon(const QIcon& icon)
    {
        m_icon = icon;
        update();
    }
    QSize sizeHint() const override { return {imageSize + 6, imageSize}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QRect area(0, 0, imageSize, imageSize);
        area.moveCenter(rect().center());
        m_icon.paint(&painter, area);
    }

private:
    QIcon m_icon;
};

/// Gives a label all of its room. A new text then doesn't lay out and paint the whole bar anew, which an analyser would
/// cause with each frame of the display.
class TextPlace : public QWidget {
public:
    explicit TextPlace(QLabel& label) : QWidget(label.parentWidget()), m_label(label) { m_label.setParent(this); }
    QSize sizeHint() const override { return {0, m_label.sizeHint().height()}; }

protected:
    void resizeEvent(QResizeEvent*) override { m_label.setGeometry(rect()); }

private:
    QLabel& m_label;
};

} // namespace

StatusBarView::StatusBarView(Mum& mum, QWidget* parent) : QStatusBar(parent), m_minute(new QTimer(this))
{
    addPanels(mum);
    setMouseTracking(true);
    for (QWidget* child : findChildren<QWidget*>()) child->setMouseTracking(true);
    m_minute->setObjectName(QStringLiteral("Minute"));
    m_minute->setSingleShot(true);
    m_minute->setTimerType(Qt::PreciseTimer);
    connect(m_minute, &QTimer::timeout, this, [this] { showTime(); });
    showTime();
}

void StatusBarView::addPanels(Mum& mum)
{
    auto* progressText = new ElidedLabel(this);
    progressText->setContentsMargins(4, 0, 4, 0);
    bindPanel(mum.StatusBar.Panels(panel::progress), *progressText);
    addWidget(new TextPlace(*progressText), 1);
    auto* progress = new QProgressBar(this);
    progress->setFixedWidth(progressWidth);
    progress->setMaximumHeight(fontMetrics().height());
    addPermanentWidget(progress);
    m_bindings.progressBar(mum.ProgressBar1, *progress);

    StatusBar::Panel& savedState = mum.StatusBar.Panels(panel::savedState);
    auto* image = new IconLabel(this);
    addPermanentWidget(image);
    bindPanel(savedState, *image);
    m_bindings.bind(savedState.Picture, [image](int picture) { image->setIcon(savedStateIcon(picture)); });

    addPanel(mum.StatusBar.Panels(panel::line), QStringLiteral("Line no: 00000"));
    m_capsLock = addKeyPanel(mum.StatusBar.Panels(panel::capsLock), QStringLiteral("CAPS"));
    m_insert = addKeyPanel(mum.StatusBar.Panels(panel::insert), QStringLiteral("INS"));
    m_numLock = addKeyPanel(mum.StatusBar.Panels(panel::numLock), QStringLiteral("NUM"));
    m_time = addKeyPanel(mum.StatusBar.Panels(panel::time), QStringLiteral("00:00"));
    m_time->setEnabled(true);
    auto* macroFile = new ElidedLabel(this); // a file's name can be of any length
    macroFile->setContentsMargins(4, 0, 4, 0);
    macroFile->setSamples(QStringLiteral("No macro file analysed"),
                          QStringLiteral("a name as long as most, and then some"));
    bindPanel(mum.StatusBar.Panels(panel::macroFile), *macroFile);
    addPermanentWidget(macroFile);
}

void StatusBarView::bindPanel(StatusBar::Panel& panel, QLabel& view)
{
    view.setTextFormat(Qt::PlainText);
    m_bindings.bind(panel.Text, [&view](const std::string& text) { view.setText(toQt(text).simplified()); });
    m_bindings.bind(panel.ToolTipText, [&view](const std::string& tip) { view.setToolTip(toQt(tip)); });
    m_bindings.bind(panel.Enabled, [&view](bool on) { view.setEnabled(on); });
}

/// Wide enough for `sample`, so that the panels don't move with their texts.
QLabel* StatusBarView::addPanel(StatusBar::Panel& panel, const QString& sample)
{
    auto* view = new QLabel(this);
    view->setContentsMargins(4, 0, 4, 0);
    view->setMinimumWidth(fontMetrics().horizontalAdvance(sample) + 12);
    bindPanel(panel, *view);
    addPermanentWidget(view);
    return view;
}

/// The toolkit's own panels: dimmed until the key is known to be on.
QLabel* StatusBarView::addKeyPanel(StatusBar::Panel& panel, const QString& name)
{
    auto* view = new QLabel(name, this);
    view->setContentsMargins(4, 0, 4, 0);
    view->setAlignment(Qt::AlignCenter);
    view->setEnabled(false);
    m_bindings.bind(panel.ToolTipText, [view](const std::string& tip) { view->setToolTip(toQt(tip)); });
    addPermanentWidget(view);
    return view;
}

/// Also over the panels, which leave the mouse to the bar.
void StatusBarView::mouseMoveEvent(QMouseEvent* event)
{
    if (hovered) hovered(static_cast<int>(event->position().x()));
}

void StatusBarView::showOverwrite(bool on)
{
    m_insert->setText(on ? QStringLiteral("OVR") : QStringLiteral("INS"));
    m_insert->setEnabled(on);
}

void StatusBarView::showLockKeys(LockKeyState state)
{
    m_capsLock->setEnabled(state.capsLock);
    m_numLock->setEnabled(state.numLock);
}

/// Wakes up once a minute and not in between.
void StatusBarView::showTime()
{
    constexpr int minute = 60'000;
    const QTime now = QTime::currentTime();
    const QString format = QLocale().timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    m_time->setText(QLocale().toString(now, format));
    m_minute->start(minute - now.msecsSinceStartOfDay() % minute + 1);
}

} // namespace tarvex
