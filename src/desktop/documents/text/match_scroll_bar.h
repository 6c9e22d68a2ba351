#pragma once

#include <QScrollBar>
#include <QTimer>

#include <functional>
#include <vector>

namespace tarvex {

/// A scroll bar that shows where in the text the matches of a search are.
class MatchScrollBar : public QScrollBar {
    Q_OBJECT
public:
    /// `places` returns the places of the matches, in order, each from 0 (the beginning of the text) to below 1.
    MatchScrollBar(std::function<std::vector<float>()> places, QWidget* parent);

    /// The matches may be at other places now. Shown a little later, so that nobody who types waits for it.
    void placesChanged() { m_later.start(); }
    /// The same at once.
    void showPlaces();
    /// Rows of the bar that have a mark, for tests.
    const std::vector<int>& markedRows() const { return m_rows; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect groove() const;
    void findRows();

    std::function<std::vector<float>()> m_wanted;
    std::vector<float> m_places;
    std::vector<int> m_rows;
    QTimer m_later;
};

} // namespace tarvex
