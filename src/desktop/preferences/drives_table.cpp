#include "desktop/preferences/drives_table.h"

#include "preferences/extras_drives.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace tarvex {

namespace {

enum Column { letterColumn, folderColumn, originColumn };
constexpr int rowsShown = 4;

QString nameOf(DriveFolder::Origin origin)
{
    switch (origin) {
    case DriveFolder::Origin::Wine:
        return QStringLiteral("Wine");
    case DriveFolder::Origin::Tarvex:
        return QStringLiteral("Tarvex");
    default:
        return QStringLiteral("you");
    }
}

QTableWidgetItem* cell(const QString& text, bool editable)
{
    auto* item = new QTableWidgetItem(text);
    item->setToolTip(text);
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    item->setFlags(editable ? flags | Qt::ItemIsEditable : flags);
    return item;
}

} // namespace

DrivesTable::DrivesTable(ExtrasPage& page, Bindings& bindings, QWidget* parent)
    : QTableWidget(0, originColumn + 1, parent), m_page(page)
{
    setObjectName(QStringLiteral("Drives"));
    setAccessibleName(QStringLiteral("Drives and their folders"));
    setHorizontalHeaderLabels({QStringLiteral("Drive"), QStringLiteral("Folder"), QStringLiteral("Set by")});
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(folderColumn, QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fill();
    bindings.follow(page.Drives, [this] { fill(); });
    bindings.follow(page.DriveRow, [this] { showRow(); });
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row) { m_page.DriveRow = row; });
    // Queued, because the table is filled anew while its editor is still open.
    connect(
        this, &QTableWidget::cellChanged, this,
        [this](int row, int column) {
            if (column == folderColumn && item(row, column) != nullptr)
                writeDriveFolder(m_page, row, fromQt(item(row, column)->text()));
        },
        Qt::QueuedConnection);
}

QSize DrivesTable::sizeHint() const
{
    const int height = horizontalHeader()->sizeHint().height() + rowsShown * verticalHeader()->defaultSectionSize();
    return {QTableWidget::sizeHint().width(), height + 2 * frameWidth()};
}

/// Return edits the folder; F2 does so, too.
void DrivesTable::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QTableWidgetItem* folder = isReturn && currentRow() >= 0 ? item(currentRow(), folderColumn) : nullptr;
    if (folder == nullptr || !(folder->flags() & Qt::ItemIsEditable) || state() == EditingState)
        return QTableWidget::keyPressEvent(event);
    setCurrentItem(folder);
    editItem(folder);
}

void DrivesTable::fill()
{
    const QSignalBlocker quiet(this);
    const std::vector<DriveFolder>& drives = m_page.Drives;
    setRowCount(static_cast<int>(drives.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const DriveFolder& drive = drives[static_cast<std::size_t>(row)];
        setItem(row, letterColumn, cell(QString(QLatin1Char(drive.letter)) + QLatin1Char(':'), false));
        setItem(row, folderColumn, cell(toQt(drive.folder), mayChange(drive)));
        setItem(row, originColumn, cell(nameOf(drive.origin), false));
    }
    showRow();
}

void DrivesTable::showRow()
{
    const QSignalBlocker quiet(this);
    if (m_page.DriveRow != currentRow()) setCurrentCell(m_page.DriveRow, folderColumn);
}

} // namespace tarvex
