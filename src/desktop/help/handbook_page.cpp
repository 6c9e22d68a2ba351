#include "desktop/help/handbook_page.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int smallestZoom = 50;
constexpr int largestZoom = 300;
constexpr int zoomStep = 10;
constexpr int pageMargin = 16;
constexpr int widestPictureEver = 700;
constexpr int narrowestPicture = 200; // the page then scrolls

/// Pages are addressed under a scheme of their own, so that relative links stay among them.
const QString scheme = QStringLiteral("handbook");

QUrl addressOf(const QString& target) { return QUrl(scheme + QStringLiteral(":/") + target); }

QString mixed(const QColor& a, const QColor& b, qreal part)
{
    const auto mix = [part](int x, int y) { return static_cast<int>(x + (y - x) * part); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())).name();
}

QString styleFor(const QPalette& palette)
{
    const QColor back = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return QStringLiteral("h1 { font-size: x-large; margin-bottom: 10px; }"
                          "h2 { font-size: large; margin-top: 18px; margin-bottom: 6px; }"
                          "h3 { font-size: medium; margin-top: 14px; margin-bottom: 4px; }"
                          "p, li { line-height: 125%; }"
                          "p { margin-top: 6px; margin-bottom: 8px; }"
                          ".picture { line-height: 100%; }" // else of the picture's height
                          "a { color: %1; }"
                          "code, pre { font-family: 'Liberation Mono', monospace; background-color: %2; }"
                          "pre { margin-left: 14px; }"
                          "td, th { padding: 3px 16px 3px 0; }"
                          "th { text-align: left; color: %3; }")
        .arg(palette.color(QPalette::Link).name(), mixed(back, text, 0.08), mixed(text, back, 0.25));
}

} // namespace

HandbookPage::HandbookPage(std::function<std::optional<QByteArray>(const QString&)> read, QWidget* parent)
    : QTextBrowser(parent), m_read(std::move(read))
{
    setObjectName(QStringLiteral("HandbookPage"));
    viewport()->setObjectName(QStringLiteral("HandbookPageArea"));
    setAccessibleName(QStringLiteral("Page of the handbook"));
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(pageMargin);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) {
        if (url.scheme() != scheme) return emit linkClicked(url.toString());
        const QString place = url.hasFragment() ? u'#' + url.fragment() : QString();
        emit linkClicked(url.path().mid(1) + place);
    });
    restyle();
}

void HandbookPage::showTarget(const QString& target)
{
    m_roomOfPictures = 0;
    setSource(addressOf(target), QTextDocument::HtmlResource);
}

void HandbookPage::setZoom(int percent)
{
    const int wanted = std::clamp(percent, smallestZoom, largestZoom);
    if (wanted == m_zoom) return;
    m_zoom = wanted;
    const qreal before = place(); // larger letters move it
    restyle();
    showAgain(before);
}

bool HandbookPage::findText(const QString& text, bool backwards, bool fromMarked)
{
    if (text.isEmpty()) return false;
    const QTextDocument::FindFlags flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    QTextCursor start = textCursor();
    if (!fromMarked) start.setPosition(start.selectionStart());
    QTextCursor found = document()->find(text, start, flags);
    if (found.isNull()) {
        start.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
        found = document()->find(text, start, flags);
    }
    if (found.isNull()) return false;
    setTextCursor(found);
    ensureCursorVisible();
    return true;
}

QVariant HandbookPage::loadResource(int type, const QUrl& name)
{
    if (type == QTextDocument::StyleSheetResource || name.scheme() != scheme) return {};
    const auto bytes = m_read(name.path().mid(1));
    if (type == QTextDocument::ImageResource) return bytes ? picture(*bytes) : QVariant();
    return bytes ? QString::fromUtf8(*bytes)
                 : QStringLiteral("<h1>No such page</h1><p>The handbook has no page %1.</p>")
                       .arg(name.path().mid(1).toHtmlEscaped());
}

int HandbookPage::widestPicture() const
{
    return std::clamp(viewport()->width() - 3 * pageMargin, narrowestPicture, widestPictureEver);
}

/// Not wider than the page, and as sharp as the screen.
QVariant HandbookPage::picture(const QByteArray& bytes)
{
    m_roomOfPictures = widestPicture();
    QImage image = QImage::fromData(bytes);
    if (image.isNull()) return {};
    if (image.width() <= m_roomOfPictures) return image;
    const int pixels = std::min(image.width(), static_cast<int>(m_roomOfPictures * devicePixelRatioF()));
    if (image.width() > pixels) image = image.scaledToWidth(pixels, Qt::SmoothTransformation);
    image.setDevicePixelRatio(static_cast<qreal>(pixels) / m_roomOfPictures);
    return image;
}

void HandbookPage::restyle()
{
    const QScopedValueRollback<bool> restyling(m_restyling, true);
    QFont font = QApplication::font(this);
    font.setPointSizeF(font.pointSizeF() * m_zoom / 100.0);
    setFont(font);
    document()->setDefaultStyleSheet(styleFor(palette()));
}

qreal HandbookPage::place() const
{
    const QScrollBar* bar = verticalScrollBar();
    return bar->maximum() > 0 ? static_cast<qreal>(bar->value()) / bar->maximum() : 0;
}

void HandbookPage::showAgain(qreal place)
{
    if (source().isEmpty()) return;
    reload();
    verticalScrollBar()->setValue(static_cast<int>(place * verticalScrollBar()->maximum()));
}

void HandbookPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (m_restyling) return;
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::ApplicationFontChange) return;
    const qreal before = place();
    restyle();
    showAgain(before);
}

void HandbookPage::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    if (m_roomOfPictures != 0 && m_roomOfPictures != widestPicture()) showAgain(place());
}

void HandbookPage::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
    setZoom(m_zoom + (event->angleDelta().y() > 0 ? zoomStep : -zoomStep));
    event->accept();
}

} // namespace tarvex
