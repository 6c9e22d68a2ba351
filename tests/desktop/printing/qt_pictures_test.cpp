#include "desktop/platform/drawings/clean_svg.h"
#include "desktop/platform/drawings/unzipped.h"
#include "desktop/platform/qt_pictures.h"

#include "platform/errors.h"
#include "platform/posix/drive_map.h"
#include "support/temporary_directory.h"

#include <QBuffer>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct QtPicturesTest : testing::Test {
    TemporaryDirectory directory;
    DriveMap drives{{}};
    QtPictures pictures{drives};

    std::string put(const std::string& name, const QByteArray& bytes)
    {
        return drives.toDos(directory.put(name, bytes.toStdString()));
    }
    static QByteArray encoded(const QImage& image, const char* format)
    {
        QBuffer buffer;
        EXPECT_TRUE(image.save(&buffer, format)) << format;
        return buffer.data();
    }
    static QImage red(int width = 30, int height = 20)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }
    const QImage& load(const std::string& path)
    {
        m_loaded = pictures.load(path);
        return dynamic_cast<const QtPicture&>(*m_loaded).image();
    }
    std::string whyNot(const std::string& path)
    {
        try {
            pictures.load(path);
        } catch (const RuntimeError& error) {
            return error.what();
        }
        return "(it was read)";
    }

private:
    std::shared_ptr<const LoadedPicture> m_loaded;
};

/// A GIF of two images of one red or blue pixel that plays for ever.
QByteArray endlessGif()
{
    const QByteArray head("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\x00\x00\x00\x00\xFF", 19);
    const QByteArray forEver("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19);
    const QByteArray first(
        "\x21\xF9\x04\x00\x01\x00\x00\x00\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00", 23);
    const QByteArray second(
        "\x21\xF9\x04\x00\x01\x00\x00\x00\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x4C\x01\x00", 23);
    return head + forEver + first + second + ";";
}

TEST_F(QtPicturesTest, ReadsTheUsualFormats)
{
    for (const char* format : {"BMP", "PNG", "JPG", "XPM"}) {
        const QImage& image = load(put(std::string("a.") + format, encoded(red(), format)));
        EXPECT_EQ(image.size(), QSize(30, 20)) << format;
        EXPECT_GT(image.pixelColor(5, 5).red(), 200) << format;
    }
}

TEST_F(QtPicturesTest, TheContentsCountAndNotTheExtension)
{
    EXPECT_EQ(load(put("a.bmp", encoded(red(), "PNG"))).size(), QSize(30, 20));
    EXPECT_EQ(load(put("a.txt", encoded(red(), "JPG"))).size(), QSize(30, 20));
}

TEST_F(QtPicturesTest, AnEmptyFileATextAndACutPictureAreNoPictures)
{
    EXPECT_THAT(whyNot(put("empty.bmp", "")), testing::StartsWith("Invalid picture"));
    EXPECT_THAT(whyNot(put("text.png", "Rem no picture")), testing::StartsWith("Invalid picture"));
    EXPECT_THAT(whyNot(put("cut.png", encoded(red(), "PNG").left(40))), testing::StartsWith("Invalid picture"));
}

TEST_F(QtPicturesTest, AFileThatIsNotThereAndAFolderAreNotFound)
{
    EXPECT_THAT(whyNot(drives.toDos(directory / "gone.bmp")), testing::StartsWith("File not found"));
    EXPECT_THAT(whyNot(drives.toDos(directory / ".")), testing::StartsWith("File not found"));
}

TEST_F(QtPicturesTest, APictureOfTwentyThousandPixelsASideIsRefusedAndNotLoaded)
{
    QByteArray head = encoded(red(1, 1), "BMP").left(54);
    const QByteArray twentyThousand("\x20\x4E\x00\x00", 4);
    head.replace(18, 4, twentyThousand).replace(22, 4, twentyThousand);
    EXPECT_THAT(whyNot(put("huge.bmp", head)), testing::StartsWith("Invalid picture"));
}

TEST_F(QtPicturesTest, OfAnEndlessGifTheFirstImageIsShown)
{
    EXPECT_EQ(load(put("endless.gif", endlessGif())).pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(QtPicturesTest, ADrawingIsPaintedOnWhite)
{
    const QImage& image = load(put("a.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'>"
                                            "<rect x='0' y='0' width='20' height='30' fill='#00f'/></svg>"));
    EXPECT_EQ(image.size(), QSize(40, 30));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(35, 5), QColor(Qt::white));
}

TEST_F(QtPicturesTest, ADrawingThatIsTooLargeIsPaintedSmaller)
{
    const QImage& image =
        load(put("large.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='20000' height='10000'/>"));
    EXPECT_EQ(image.size(), QSize(4000, 2000));
}

TEST_F(QtPicturesTest, ADrawingFetchesNoPictureOfTheDisk)
{
    const std::string native = directory.put("secret.png", encoded(red(40, 30), "PNG").toStdString());
    for (const std::string& reference : {native, "file://" + native, std::string("secret.png")}) {
        const QImage& image = load(
            put("thief.svg", QByteArray::fromStdString(
                                 "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
                                 "width='40' height='30'><image xlink:href='" +
                                 reference + "' href='" + reference + "' width='40' height='30'/></svg>")));
        EXPECT_EQ(image.pixelColor(20, 15), QColor(Qt::white)) << reference;
    }
}

TEST_F(QtPicturesTest, ADrawingMayBringItsOwnPicture)
{
    const QByteArray data = encoded(red(40, 30), "PNG").toBase64();
    const QImage& image = load(put("own.svg", "<svg xmlns='http://www.w3.org/2000/svg' "
                                              "xmlns:xlink='http://www.w3.org/1999/xlink' width='40' height='30'>"
                                              "<image xlink:href='data:image/png;base64," +
                                                  data + "' width='40' height='30'/></svg>"));
    EXPECT_EQ(image.pixelColor(20, 15), QColor(Qt::red));
}

TEST_F(QtPicturesTest, ADrawingThatIsMalformedOrNestedTooDeeplyIsNoPicture)
{
    EXPECT_THAT(whyNot(put("bad.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='3'><g>")),
                testing::StartsWith("Invalid picture"));
    const QByteArray deep = QByteArray("<g>").repeated(5000) + QByteArray("</g>").repeated(5000);
    EXPECT_THAT(
        whyNot(put("deep.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='3'>" + deep + "</svg>")),
        testing::StartsWith("Invalid picture"));
}

/// "<svg ... width='40' height='30'>" with a blue rectangle, zipped.
QByteArray zippedDrawing()
{
    return QByteArray::fromBase64(
        "H4sIAAAAAAACA1XNMQ7CMAyF4atE6uAtttpOKM5dEDhxpEBRYgjHpx0YOn+/3gv9k933UZ+dQc1eF8Qxhh+L31rGmYhwL8CNcjdl"
        "WAmcSslqDAtBDE1u9sf5jC6VWhkmogQYw7uL0yaJYTOV5vfZ6XrAcRB/SDlaRYgAAAA=");
}

TEST_F(QtPicturesTest, AZippedDrawingIsReadLikeAnyOther)
{
    const QImage& image = load(put("a.svgz", zippedDrawing()));
    EXPECT_EQ(image.size(), QSize(40, 30));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(35, 5), QColor(Qt::white));
}

TEST_F(QtPicturesTest, AZippedDrawingFetchesNothingEither)
{
    const QByteArray drawing = unzipped(zippedDrawing(), 1000);
    EXPECT_TRUE(drawing.contains("href='other.svg#a'"));
    EXPECT_FALSE(withoutOutsideReferences(drawing).contains("other.svg"));
}

TEST_F(QtPicturesTest, AZippedDrawingThatIsCutIsNoPicture)
{
    EXPECT_THAT(whyNot(put("cut.svgz", zippedDrawing().chopped(12))), testing::StartsWith("Invalid picture"));
    EXPECT_THAT(whyNot(put("head.svgz", zippedDrawing().first(10))), testing::StartsWith("Invalid picture"));
}

TEST(Unzipped, RefusesContentsThatAreLargerThanAllowed)
{
    const qsizetype size = unzipped(zippedDrawing(), 1000).size();
    EXPECT_EQ(unzipped(zippedDrawing(), size).size(), size);
    EXPECT_TRUE(unzipped(zippedDrawing(), size - 1).isEmpty());
    EXPECT_TRUE(unzipped("no gzip at all", 1000).isEmpty());
    EXPECT_TRUE(unzipped({}, 1000).isEmpty());
}

TEST(WithoutOutsideReferences, EveryReferenceOfAStyleHasToStayInside)
{
    const auto cleaned = [](const QByteArray& inner) { return withoutOutsideReferences("<svg>" + inner + "</svg>"); };
    for (const char* inner :
         {"<rect style='fill:url(#a) url(http://a.b)'/>", "<rect fill='URL( \"http://a.b\" )'/>",
          "<style>.a{fill:url(http://a.b)}</style>", "<style>ur<!-- -->l(http://a.b)</style>",
          "<style>.a{fill:\\75 rl(http://a.b)}</style>", "<style>@font-face{src:url(#a.b)}</style>"})
        EXPECT_FALSE(cleaned(inner).contains("a.b")) << inner;
    EXPECT_TRUE(cleaned("<style>.a{fill:url(#b)}</style>").contains("url(#b)"));
}

TEST_F(QtPicturesTest, APictureOfPixelsStaysAndADrawingThatCallsItselfOneDoesNot)
{
    const auto cleaned = [](const QByteArray& bytes) {
        return withoutOutsideReferences("<svg><image href='data:image/png;base64," + bytes.toBase64() + "'/></svg>");
    };
    EXPECT_TRUE(cleaned(encoded(red(4, 3), "PNG")).contains("data:"));
    EXPECT_FALSE(cleaned("<svg><image href='/etc/secret.png'/></svg>").contains("data:"));
    EXPECT_FALSE(cleaned(zippedDrawing()).contains("data:"));
}

TEST(WithoutOutsideReferences, DataThatIsMoreThanKindAndBase64IsLeftOut)
{
    const auto cleaned = [](const QByteArray& data) {
        return withoutOutsideReferences("<svg><image href='data:" + data + "'/></svg>");
    };
    EXPECT_TRUE(cleaned("image/png;base64,iVBORw0K\nGgo=").contains("data:")) << "base64 may have lines";
    EXPECT_TRUE(cleaned("image/svg+xml;charset=utf-8;base64,iVBORw0KGgo=").contains("data:"));
    for (const char* data : {"image/png;base64,iVBORw0KGgo= url(http://a.b)", "image/png;base64,iVBORw0KGgo=\xC3\xA4",
                             "url(http://a.b);base64,iVBORw0KGgo=", "image/png;x=(;base64,iVBORw0KGgo="})
        EXPECT_FALSE(cleaned(data).contains("data:")) << data;
}

TEST(WithoutOutsideReferences, ElementsThatStandForOthersMayNotMultiply)
{
    const auto nested = [](int levels) {
        QByteArray svg = "<svg><g id='a0'><rect/></g>";
        for (int level = 1; level <= levels; ++level) {
            const QByteArray use = "<use href='#a" + QByteArray::number(level - 1) + "'/>";
            svg += "<g id='a" + QByteArray::number(level) + "'>" + use.repeated(10) + "</g>";
        }
        return QByteArray(svg + "</svg>");
    };
    EXPECT_FALSE(withoutOutsideReferences(nested(2)).isEmpty());
    EXPECT_TRUE(withoutOutsideReferences(nested(9)).isEmpty());
    EXPECT_TRUE(withoutOutsideReferences("<svg><g id='a'><use href='#a'/></g></svg>").isEmpty()) << "endless";
}

TEST(WithoutOutsideReferences, DropsStyleSheetsEntitiesAndAddresses)
{
    const QByteArray clean = withoutOutsideReferences(
        "<?xml version='1.0'?><?xml-stylesheet href='file:///etc/a.css' type='text/css'?>"
        "<!DOCTYPE svg [<!ENTITY x SYSTEM 'file:///etc/passwd'>]>"
        "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'><style>@import "
        "url(http://a.b/c.css);</style>"
        "<rect fill='url(http://a.b/c.svg#d)' width='1'/><use href='other.svg#a'/><use href='#own'/>"
        "<rect fill='url(#own)'/></svg>");
    EXPECT_FALSE(clean.isEmpty());
    EXPECT_FALSE(clean.contains("file:"));
    EXPECT_FALSE(clean.contains("a.b"));
    EXPECT_FALSE(clean.contains("other.svg"));
    EXPECT_TRUE(clean.contains("xmlns:xlink=\"http://www.w3.org/1999/xlink\""));
    EXPECT_TRUE(clean.contains("href=\"#own\""));
    EXPECT_TRUE(clean.contains("url(#own)"));
    EXPECT_TRUE(clean.contains("width=\"1\""));
}

TEST_F(QtPicturesTest, ABitmapIsReadAsItWasWritten)
{
    const auto picture = pictures.load(put("a.png", encoded(red(), "PNG")));
    const std::string bytes = pictures.bitmap(*picture);
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(load(put("copy.bmp", QByteArray::fromStdString(bytes))).pixelColor(3, 3), QColor(Qt::red));
}

} // namespace
} // namespace tarvex
