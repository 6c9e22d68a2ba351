#include "desktop/wizards/page_picture.h"

#include "desktop/text.h"
#include "shell/hardware/pictures.h"

#include <QEvent>
#include <QFile>
#include <QPainter>

#include <algorithm>

namespace tarvex {

namespace {

constexpr qreal scale = 0.58; // of the drawing's own size, in which it is made to be clicked
constexpr qreal markDistance = 8;
constexpr qreal markRadius = 8;
constexpr qreal markWidth = 5;
constexpr int markOpacity = 60;

std::vector<std::string_view> wordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0) words.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

} // namespace

PagePicture* PagePicture::make(std::string_view what)
{
    const auto words = wordsOf(what);
    if (words.empty()) return nullptr;
    const auto found = std::ranges::find(allPictures(), words[0], &Picture::file);
    if (found == allPictures().end()) return nullptr;
    std::vector<QString> marked;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const auto control = std::ranges::find(found->controls, words[i], &PictureControl::name);
        if (control != found->controls.end()) marked.push_back(toQt(control->id));
    }
    return new PagePicture(*found, std::move(marked));
}

PagePicture::PagePicture(const Picture& picture, std::vector<QString> marked)
    : m_file(QStringLiteral(":/hardware/%1.svg").arg(toQt(picture.file))), m_marked(std::move(marked))
{
    setObjectName(QStringLiteral("PagePicture"));
    setAccessibleName(toQt(picture.description));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    load();
}

/// The drawing's lines are of the window's text colour.
void PagePicture::load()
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly)) return;
    m_renderer.load(file.readAll().replace("currentColor", palette().color(QPalette::WindowText).name().toLatin1()));
}

QSize PagePicture::sizeHint() const { return m_renderer.defaultSize() * scale; }

void PagePicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF drawing = m_renderer.viewBoxF();
    if (drawing.isEmpty()) return;
    painter.scale(width() / drawing.width(), height() / drawing.height());
    m_renderer.render(&painter, drawing);
    QColor mark = palette().color(QPalette::Highlight);
    painter.setPen(QPen(mark, markWidth));
    mark.setAlpha(markOpacity);
    painter.setBrush(mark);
    for (const QString& id : m_marked) {
        const QRectF control = m_renderer.transformForElement(id).mapRect(m_renderer.boundsOnElement(id));
        painter.drawRoundedRect(control.adjusted(-markDistance, -markDistance, markDistance, markDistance), markRadius,
                                markRadius);
    }
}

void PagePicture::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    load();
    update();
}

} // namespace tarvex
