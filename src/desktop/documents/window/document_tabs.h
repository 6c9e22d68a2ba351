#pragma once

#include <QTabBar>

#include <functional>

namespace tarvex {

/// The tabs of the documents. A file name that is too long for the bar is cut in its middle and leaves the other tabs
/// readable; the whole name is in the tip.
class DocumentTabs : public QTabBar {
    Q_OBJECT
public:
    explicit DocumentTabs(QWidget* parent = nullptr);
    /// The tab's text takes more room than the tab has.
    bool isCut(int index) const;
    /// Returns the tip of a tab. Empty: its text, if that is cut.
    std::function<QString(int index)> wholeOf;

protected:
    QSize tabSizeHint(int index) const override;
    bool event(QEvent* event) override;
};

} // namespace tarvex
