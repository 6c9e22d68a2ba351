#include "templates/template_recovery.h"

#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/journal/recovery_names.h"
#include "documents/recovery/offer/recovery_offer.h"
#include "documents/recovery/recovery_format.h"
#include "templates/template_edit.h"
#include "templates/template_files.h"
#include "templates/template_journal.h"

namespace tarvex {

namespace {

/// The file gives the saved text its colours, which a journal doesn't have.
void showSavedText(TemplateForm& window, const JournalStart& start, bool fileIsSame)
{
    std::optional<FileSum> file = fileIsSame ? start.file : std::nullopt;
    if (!file || !loadTemplate(window, start.path, fileNameFor(start.name), "TEMPLATE Form_Load")) {
        file.reset();
        beginNewTemplate(window);
    }
    if (window.TemplateText.Text() != start.base) {
        writeWithoutEdit(window, [&] { window.TemplateText.setText(start.base); });
        refreshLayout(window);
        beginHistory(window);
    }
    noteTextSettled(window.editor, journalled(window), file);
}

/// The change from the saved text to the unsaved one, as if the user had made it.
void makeEdit(TemplateForm& window, const TextEdit& edit)
{
    Pane& pane = window.TemplateText;
    pane.setSelStart(static_cast<std::int64_t>(edit.position));
    pane.setSelLength(static_cast<std::int64_t>(edit.removed));
    if (edit.removed != 0 || !edit.inserted.empty()) pane.setSelText(edit.inserted);
    window.TemplateChanged = 1;
}

void bringBack(TemplateForm& window, const Journal& journal, bool fileIsSame)
{
    window.form.open();
    showSavedText(window, journal.start, fileIsSame);
    makeEdit(window, differenceOf(window.TemplateText.Text(), journal.text));
}

} // namespace

void offerTemplateRecovery(TemplateForm& window)
{
    offerRecovery(window.editor, journalled(window), TemplateForm::untitled,
                  [&window](const Journal& journal, bool fileIsSame) { bringBack(window, journal, fileIsSame); });
}

} // namespace tarvex
