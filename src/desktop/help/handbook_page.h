#pragma once

#include <QTextBrowser>

#include <functional>
#include <optional>

namespace tarvex {

/// Shows pages of the handbook, in the colours of the palette and at the size that the user chose.
class HandbookPage : public QTextBrowser {
    Q_OBJECT
public:
    /// `read` gives a file of the handbook by its name.
    HandbookPage(std::function<std::optional<QByteArray>(const QString&)> read, QWidget* parent);

    /// A page's file, perhaps with "#" and a place in it.
    void showTarget(const QString& target);

    int zoom() const { return m_zoom; }
    /// Size of the letters in per cent, within 50 and 300.
    void setZoom(int percent);

    /// Marks the next place of a text after the marked one, or the one before it, and goes round at the ends. False:
    /// the text isn't in the page.
    bool findText(const QString& text, bool backwards, bool fromMarked);

    /// Files of the handbook, and nothing from elsewhere.
    QVariant loadResource(int type, const QUrl& name) override;

signals:
    /// The user clicked a link; as the page has it, without what leads to the handbook.
    void linkClicked(const QString& link);

protected:
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void restyle();
    /// How far the page is scrolled, from 0 to 1.
    qreal place() const;
    /// The page anew, at that place.
    void showAgain(qreal place);
    QVariant picture(const QByteArray& bytes);
    int widestPicture() const;

    std::function<std::optional<QByteArray>(const QString&)> m_read;
    int m_zoom = 100;
    int m_roomOfPictures = 0; ///< width that the pictures of the page were made for; 0: it has none
    bool m_restyling = false;
};

} // namespace tarvex
