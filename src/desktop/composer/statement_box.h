#pragma once

#include <QPlainTextEdit>

namespace tarvex {

/// Shows the statements of a control. A few lines are in sight at first; a splitter can give it more.
class StatementBox : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit StatementBox(QWidget* parent = nullptr);

    /// Shows another text, from its first line; the same text stays where it is scrolled to.
    void showStatements(const QString& text);
    /// What is written instead of an empty text.
    void showHint(const QString& hint);
    /// Scrolls for Page Up and Page Down; false for other keys.
    bool scrollByKey(int key);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize sizeOf(int lines) const;
};

} // namespace tarvex
