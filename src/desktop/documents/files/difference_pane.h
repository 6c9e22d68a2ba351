#pragma once

#include <QPlainTextEdit>

#include <optional>
#include <vector>

namespace tarvex {

/// One of two texts that stand side by side: a row for each of its lines and for each gap, differing rows marked.
class DifferencePane : public QPlainTextEdit {
    Q_OBJECT
public:
    struct Row {
        QString text;
        bool isGap = false;    ///< only the other text has a line here
        bool isMarked = false; ///< the texts differ here
        int number = 0;        ///< of the line, from 1; 0: a gap
    };
    explicit DifferencePane(QWidget* parent);

    void setRows(const std::vector<Row>& rows);
    /// The rows from the first to before the last stand out from other differences and are brought into sight.
    void showRows(int first, int last);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QColor groundOf(const Row& row, bool isShown) const;

    std::vector<Row> m_rows;
    int m_first = 0;
    int m_last = 0;
};

} // namespace tarvex
