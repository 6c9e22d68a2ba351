#pragma once

#include <QLayout>

#include <vector>

namespace tarvex {

/// Widgets from left to right, as on a toolbar. What has no room goes into further rows, or is left out and stands for
/// a menu behind the extension button. A separator is only seen between two widgets of its row.
class ToolbarLayout : public QLayout {
public:
    /// `extension` is shown when something was left out; `parent` owns both.
    ToolbarLayout(QWidget* extension, QWidget* parent);
    ~ToolbarLayout() override;

    void addSeparator(QWidget* separator);
    void setWraps(bool on);
    /// The widget is one of those that had no room.
    bool isLeftOut(const QWidget* widget) const;

    void addItem(QLayoutItem* item) override { m_entries.push_back({item, false}); }
    int count() const override { return static_cast<int>(m_entries.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return m_wraps; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    struct Entry {
        QLayoutItem* item;
        bool separator;
    };
    /// Where an entry goes; empty: it isn't seen.
    std::vector<QRect> places(const QRect& area) const;
    int extensionWidth() const;
    int rowHeight() const;
    int rowWidth() const;

    QWidget* m_extension;
    std::vector<Entry> m_entries;
    bool m_wraps = false;
};

} // namespace tarvex
