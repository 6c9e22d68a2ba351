#include "sheet/pdf_sheet.h"

#include "sheet/pdf_page.h"

#include <array>
#include <cstdio>
#include <variant>
#include <vector>

namespace tarvex {

namespace {

/// The objects of the file, and where each begins.
class Objects {
public:
    /// Number of an object whose contents come later.
    int reserve()
    {
        m_objects.emplace_back();
        return static_cast<int>(m_objects.size());
    }
    void put(int number, std::string contents)
    {
        m_objects[static_cast<std::size_t>(number) - 1] = std::move(contents);
    }
    int add(std::string contents)
    {
        const int number = reserve();
        put(number, std::move(contents));
        return number;
    }
    int addStream(const std::string& stream)
    {
        return add("<< /Length " + std::to_string(stream.size()) + " >>\nstream\n" + stream + "\nendstream");
    }

    std::string file(int catalogue, int information) const
    {
        std::string file = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < m_objects.size(); ++i) {
            places.push_back(file.size());
            file += std::to_string(i + 1) + " 0 obj\n" + m_objects[i] + "\nendobj\n";
        }
        const std::size_t table = file.size();
        const std::string count = std::to_string(m_objects.size() + 1);
        file += "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const std::size_t place : places) {
            std::array<char, 32> row{};
            std::snprintf(row.data(), row.size(), "%010zu 00000 n \n", place);
            file += row.data();
        }
        return file + "trailer\n<< /Size " + count + " /Root " + std::to_string(catalogue) + " 0 R /Info " +
               std::to_string(information) + " 0 R >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
    }

private:
    std::vector<std::string> m_objects;
};

std::string fontObject(std::string_view name)
{
    return "<< /Type /Font /Subtype /Type1 /BaseFont /" + std::string(name) + " /Encoding /WinAnsiEncoding >>";
}

} // namespace

std::string pdfSheet(const std::vector<LaidOutPage>& pages, const std::string& title)
{
    Objects objects;
    const int catalogue = objects.reserve();
    const int tree = objects.reserve();
    objects.add(fontObject("Helvetica")); // 3 and 4, as the resources of the pages name them
    objects.add(fontObject("Helvetica-Bold"));
    std::string kids;
    for (const LaidOutPage& page : pages) {
        PdfPage writer(page.paper);
        for (const SheetItem& item : page.items) std::visit(writer, item);
        const int contents = objects.addStream(writer.stream());
        kids +=
            std::to_string(objects.add("<< /Type /Page /Parent " + std::to_string(tree) + " 0 R /MediaBox [0 0 " +
                                       pdfNumber(page.paper.width) + pdfNumber(page.paper.height) + "] /Contents " +
                                       std::to_string(contents) + " 0 R /Resources " + writer.resources() + " >>")) +
            " 0 R ";
    }
    objects.put(tree, "<< /Type /Pages /Count " + std::to_string(pages.size()) + " /Kids [" + kids + "] >>");
    objects.put(catalogue, "<< /Type /Catalog /Pages " + std::to_string(tree) + " 0 R >>");
    const int information = objects.add("<< /Title " + pdfString(title) + " /Creator (Tarvex) >>");
    return objects.file(catalogue, information);
}

} // namespace tarvex
