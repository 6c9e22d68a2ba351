#include "desktop/help/handbook_page.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

#include <map>
#include <optional>

namespace tarvex {
namespace {

/// A page on a screen with twice the pixels.
struct SharpPage final : HandbookPage {
    using HandbookPage::HandbookPage;
    int metric(PaintDeviceMetric which) const override
    {
        constexpr int ratio = 2;
        if (which == PdmDevicePixelRatio) return ratio;
        if (which == PdmDevicePixelRatioScaled) return static_cast<int>(ratio * devicePixelRatioFScale());
        return HandbookPage::metric(which);
    }
};

TEST(HandbookPageOnASharpScreen, PicturesTakeTheSameRoomAndKeepTheirPixels)
{
    std::map<QString, int> widths{{"wide", 3000}, {"medium", 1000}, {"small", 90}};
    SharpPage page(
        [&](const QString& name) {
            QImage image(widths.at(name), 30, QImage::Format_RGB32);
            image.fill(Qt::red);
            QBuffer bytes;
            image.save(&bytes, "PNG");
            return std::optional(bytes.data());
        },
        nullptr);
    page.resize(1400, 600);
    page.show();
    const auto picture = [&page](const QString& name) {
        return page.loadResource(QTextDocument::ImageResource, QUrl("handbook:/" + name)).value<QImage>();
    };
    EXPECT_EQ(picture("wide").width(), 1400);
    EXPECT_EQ(picture("wide").deviceIndependentSize().width(), 700);
    EXPECT_EQ(picture("medium").width(), 1000);
    EXPECT_EQ(picture("medium").deviceIndependentSize().width(), 700);
    EXPECT_EQ(picture("small").deviceIndependentSize().width(), 90);
}

} // namespace
} // namespace tarvex
