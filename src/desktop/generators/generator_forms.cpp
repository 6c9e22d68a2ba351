#include "desktop/generators/generator_forms.h"

#include "desktop/generators/heading_view.h"
#include "desktop/generators/single_text_view.h"
#include "desktop/generators/title_view.h"
#include "desktop/platform/qt_dialogues.h"
#include "generators/generators.h"

namespace tarvex {

void addGeneratorForms(QtDialogues& dialogues, Generators& generators, QWidget* parent)
{
    dialogues.addForm("Title", [&form = generators.title, parent] { TitleView(form, parent).showModally(); });
    dialogues.addForm("Heading", [&form = generators.heading, parent] { HeadingView(form, parent).showModally(); });
    dialogues.addForm("SingleTextForm",
                      [&form = generators.rem, parent] { SingleTextView(form, parent).showModally(); });
}

} // namespace tarvex
