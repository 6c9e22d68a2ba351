#pragma once

#include "documents/recovery/journal/journalled_text.h"
#include "templates/template_form.h"

namespace tarvex {

/// The window's text, as the journal of its unsaved edits knows it.
inline JournalledText journalled(TemplateForm& window)
{
    return {window.TemplateText, window.TemplateFullName, window.TemplateName, window.Journal};
}

} // namespace tarvex
