#include "desktop/wizards/wizard_forms.h"

#include "desktop/wizards/speedy_view.h"
#include "desktop/wizards/wizard_texts.h"
#include "desktop/wizards/wizard_view.h"
#include "wizards/wizards.h"

namespace tarvex {

void makeWizardsWhenShown(Wizards& wizards, Bindings& bindings, QWidget* parent)
{
    const Settings& settings = wizards.editor.shared.settings;
    makeWhenShown(wizards.macro.form, bindings, [&window = wizards.macro, &settings, parent] {
        return new WizardView(wizardTexts("macro"), {window.pages, window.maker.Command1, &window.maker}, settings,
                              parent);
    });
    makeWhenShown(wizards.speedy.form, bindings,
                  [&window = wizards.speedy, parent] { return new SpeedyView(wizardTexts("speedy"), window, parent); });
    makeWhenShown(wizards.joystick.form, bindings, [&window = wizards.joystick, &settings, parent] {
        return new WizardView(wizardTexts("joystick"), {window.pages, window.BTNinFrame}, settings, parent);
    });
    makeWhenShown(wizards.slash.form, bindings, [&window = wizards.slash, &settings, parent] {
        return new WizardView(wizardTexts("slash"), {window.pages}, settings, parent);
    });
}

} // namespace tarvex
