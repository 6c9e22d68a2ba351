#pragma once

#include "desktop/bind.h"
#include "preferences/extras_page.h"

#include <QTableWidget>

namespace tarvex {

/// The drives: letter, folder, and who says so. A folder that may be changed is edited in its place.
class DrivesTable : public QTableWidget {
    Q_OBJECT
public:
    /// The page outlives the table.
    DrivesTable(ExtrasPage& page, Bindings& bindings, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fill();
    void showRow();

    ExtrasPage& m_page;
};

} // namespace tarvex
