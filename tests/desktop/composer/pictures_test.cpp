// The drawings in resources/hardware, compared with the table of their controls.

#include "desktop/composer/picture_case.h"
#include "desktop/theme.h"
#include "shell/hardware/pictures.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tarvex {
namespace {

QString fromTable(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

struct Drawing : testing::TestWithParam<Picture> {
    QString file = QStringLiteral(":/hardware/%1.svg").arg(fromTable(GetParam().file));
    QSvgRenderer renderer{file};

    QRectF bounds(std::string_view id) const
    {
        const QString element = fromTable(id);
        return renderer.transformForElement(element).mapRect(renderer.boundsOnElement(element));
    }
    /// The picture, or one element of it, alone; in twice its size.
    QImage draw(std::string_view id = {})
    {
        constexpr int scale = 2;
        QImage image(renderer.defaultSize() * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        if (id.empty()) {
            renderer.render(&painter);
        } else {
            painter.scale(scale, scale);
            renderer.render(&painter, fromTable(id), bounds(id));
        }
        return image;
    }
    /// The pixels of `draw` that an element may cover.
    QRect area(std::string_view id) const
    {
        const QRectF own = bounds(id);
        return QRectF(own.topLeft() * 2, own.size() * 2).toAlignedRect();
    }
    /// What `see` is given for each element that has an id: the id, and the text within.
    template <typename See> void forEachElement(See&& see) const
    {
        QFile svg(file);
        ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&svg);
        QStringList open;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement()) {
                open.append(xml.attributes().value("id").toString());
                see(xml.name().toString(), open.last(), QString());
            }
            if (xml.isCharacters() && !xml.isWhitespace()) see(QString(), open.last(), xml.text().toString());
            if (xml.isEndElement()) open.removeLast();
        }
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    }
};

/// Of the darkest and the lightest pixel, from 0 to 255.
std::pair<int, int> lightness(const QImage& image, const QRect& area)
{
    int dark = 255;
    int light = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const int here = image.pixelColor(x, y).lightness();
            dark = std::min(dark, here);
            light = std::max(light, here);
        }
    }
    return {dark, light};
}

INSTANTIATE_TEST_SUITE_P(Hardware, Drawing, testing::ValuesIn(allPictures().begin(), allPictures().end()),
                         [](const auto& shown) { return caseOf(shown.param); });

TEST_P(Drawing, HasEveryControlInsideThePicture)
{
    ASSERT_TRUE(renderer.isValid()) << file.toStdString();
    for (const PictureControl& control : GetParam().controls) {
        EXPECT_TRUE(renderer.elementExists(fromTable(control.id))) << control.id;
        EXPECT_TRUE(renderer.viewBoxF().contains(bounds(control.id))) << control.id;
    }
}

TEST_P(Drawing, HasHotSpotsThatAreLargeEnoughToClick)
{
    for (const PictureControl& control : GetParam().controls) {
        EXPECT_GE(bounds(control.id).width(), 20) << control.id;
        EXPECT_GE(bounds(control.id).height(), 20) << control.id;
    }
}

TEST_P(Drawing, HasNoTwoHotSpotsInOnePlace)
{
    constexpr int solid = 160; // the soft edge of a shape may touch its neighbour's
    std::map<std::pair<int, int>, std::string_view> owner;
    std::map<std::string, int> shared;
    for (const PictureControl& control : GetParam().controls) {
        const QImage shape = draw(control.id);
        const QRect place = area(control.id);
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (qAlpha(shape.pixel(x, y)) < solid) continue;
                const auto [held, first] = owner.try_emplace({x, y}, control.id);
                if (!first) ++shared[std::string(held->second) + " and " + std::string(control.id)];
            }
        }
    }
    EXPECT_THAT(shared, testing::IsEmpty());
}

TEST_P(Drawing, HidesNothingOfAControl)
{
    const QImage whole = draw();
    for (const PictureControl& control : GetParam().controls) {
        const QImage alone = draw(control.id);
        const QImage label = draw("label:" + std::string(control.id)); // is drawn on top
        int solid = 0;
        int covered = 0;
        const QRect place = area(control.id);
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (qAlpha(alone.pixel(x, y)) < 255 || qAlpha(label.pixel(x, y)) > 0) continue;
                const QColor shown = whole.pixelColor(x, y);
                const QColor own = alone.pixelColor(x, y);
                ++solid;
                covered += std::abs(shown.lightness() - own.lightness()) > 16;
            }
        }
        EXPECT_LT(covered, solid / 25) << control.id;
    }
}

TEST_P(Drawing, NamesOnlyControlsOfTheTable)
{
    static const QRegularExpression control(QStringLiteral("^(label:|name:|beside:)?([A-Z]+(\\(\\d+\\))?)$"));
    std::set<QString> seen;
    forEachElement([&](const QString& element, const QString& id, const QString&) {
        if (element.isEmpty() || id.isEmpty()) return;
        EXPECT_TRUE(seen.insert(id).second) << "twice: " << id.toStdString();
        const auto match = control.match(id);
        if (!match.hasMatch()) return;
        EXPECT_NE(findControl(GetParam(), match.captured(2).toStdString()), nullptr) << id.toStdString();
    });
    EXPECT_GT(seen.size(), GetParam().controls.size());
}

TEST_P(Drawing, WritesTheNameOfEachControl)
{
    std::map<QString, QString> labels;
    forEachElement([&](const QString&, const QString& id, const QString& text) {
        if (!text.isEmpty()) labels[id] += text;
    });
    for (const PictureControl& control : GetParam().controls)
        EXPECT_EQ(labels[QStringLiteral("name:") + fromTable(control.id)].toStdString(), control.name) << control.id;
}

TEST_P(Drawing, WritesNoNameOverAnother)
{
    std::vector<QRectF> names;
    for (const PictureControl& control : GetParam().controls) {
        if (control.name.empty()) continue;
        const QRectF own = bounds("name:" + std::string(control.id));
        EXPECT_TRUE(renderer.viewBoxF().contains(own)) << control.id;
        for (const QRectF& other : names) EXPECT_FALSE(own.intersects(other)) << control.id;
        names.push_back(own);
    }
}

TEST_P(Drawing, WritesNoNameOverAnotherControl)
{
    for (const PictureControl& control : GetParam().controls) {
        const QImage shape = draw(control.id);
        for (const PictureControl& other : GetParam().controls) {
            if (other.id == control.id || other.name.empty()) continue;
            const QRect name = area("name:" + std::string(other.id));
            int covered = 0;
            for (int y = name.top(); y <= name.bottom(); ++y) {
                for (int x = name.left(); x <= name.right(); ++x) covered += qAlpha(shape.pixel(x, y)) > 0;
            }
            EXPECT_EQ(covered, 0) << control.id << " and the name of " << other.id;
        }
    }
}

TEST_P(Drawing, HasLegibleNamesOnLightAndOnDarkGround)
{
    for (const QPalette& palette : {lightPalette(), darkPalette()}) {
        QFile svg(file);
        ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
        const QByteArray ink = palette.color(QPalette::WindowText).name().toLatin1();
        QSvgRenderer inked(svg.readAll().replace("currentColor", ink));
        QImage image(inked.defaultSize(), QImage::Format_RGB32);
        image.fill(palette.color(QPalette::Window));
        QPainter painter(&image);
        inked.render(&painter);
        painter.end();
        for (const PictureControl& control : GetParam().controls) {
            if (control.name.empty()) continue;
            const auto [dark, light] = lightness(image, bounds("name:" + std::string(control.id)).toRect());
            EXPECT_GT(light - dark, 100) << control.id;
        }
    }
}

TEST_P(Drawing, UsesOnlyWhatEverySvgRendererKnows)
{
    const std::set<QString> known{"svg", "title", "defs", "linearGradient", "radialGradient", "stop",
                                  "g",   "path",  "text", "circle",         "ellipse",        ""};
    forEachElement([&](const QString& element, const QString&, const QString&) {
        EXPECT_TRUE(known.contains(element)) << element.toStdString();
    });
}

TEST_P(Drawing, FillsItsPlaceAndIsNotCut)
{
    const QImage image = draw();
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            drawn += alpha > 200;
            const bool edge = x < 4 || y < 4 || x >= image.width() - 4 || y >= image.height() - 4;
            EXPECT_FALSE(edge && alpha > 8) << x << ',' << y;
        }
    }
    EXPECT_GT(drawn, image.width() * image.height() / 10);
}

} // namespace
} // namespace tarvex
