#include "desktop/wizards/wizard_texts.h"

#include <QFile>

namespace tarvex {

std::vector<WizardPage> wizardTexts(const char* name)
{
    QFile file(QStringLiteral(":/wizards/%1.txt").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? readWizardPages(file.readAll().toStdString()) : std::vector<WizardPage>();
}

} // namespace tarvex
