#include "desktop/documents/files/file_forms.h"

#include "desktop/documents/files/differences_view.h"
#include "desktop/platform/qt_dialogues.h"

#include <QApplication>

namespace tarvex {

void addFileForms(QtDialogues& dialogues, Differences& differences, QWidget* parent)
{
    dialogues.addForm("Differences", [&differences, parent] {
        loadDifferences(differences);
        QWidget* before = QApplication::activeModalWidget();
        DifferencesView(differences, before != nullptr ? before : parent).showModally();
    });
}

} // namespace tarvex
