#include "wizards/page_turner.h"

#include <algorithm>

namespace tarvex {

void loadFoot(PageTurner& pages, const Operations& operations)
{
    pages.foot[footButton::next].Caption = "&Next";
    pages.foot[footButton::back].Caption = "&Back";
    pages.foot[footButton::help].Caption = "&Help";
    pages.foot[footButton::help].Enabled = static_cast<bool>(operations.HelpTopic);
    showPage(pages, 0);
}

void showPage(PageTurner& pages, int page)
{
    page = std::clamp(page, 0, pages.lastPage);
    const bool last = page == pages.lastPage;
    pages.PageNumber = page;
    pages.foot[footButton::next].Visible = !last;
    pages.foot[footButton::back].Enabled = page > 0;
    pages.foot[footButton::close].Caption = last ? "Finished" : "Cancel";
}

void footClick(PageTurner& pages, const Operations& operations, std::size_t index)
{
    switch (index) {
    case footButton::close:
        return pages.form.unload();
    case footButton::next:
        return showPage(pages, pages.PageNumber + 1);
    case footButton::back:
        return showPage(pages, pages.PageNumber - 1);
    default:
        operations.HelpTopic(pages.helpTopic);
    }
}

} // namespace tarvex
