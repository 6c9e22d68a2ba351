#include "templates/shipped_templates.h"

namespace tarvex {

std::string templatesFolder(const Platform& platform) { return platform.programDirectory + "\\Templates\\"; }

void copyShippedTemplates(const Platform& platform, const std::function<std::vector<ShippedTemplate>()>& read)
{
    copyShippedFiles(platform, "TemplatesCopied", [&read] {
        std::vector<ShippedFile> files = read();
        for (ShippedFile& file : files) file.name = "Templates\\" + file.name;
        return files;
    });
}

} // namespace tarvex
