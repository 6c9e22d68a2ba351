#include "desktop/viewer/view_image_view.h"

#include "desktop/platform/qt_pictures.h"
#include "desktop/viewer/picture_area.h"
#include "desktop/viewer/select_picture_view.h"
#include "support/test_program.h"

#include <QAction>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

namespace tarvex {
namespace {

struct ViewImageViewTest : testing::Test {
    TestProgram t;
    ViewImage& window = t.program().imageViewer;
    ViewImageView view{window, nullptr};
    PictureArea* area = view.findChild<PictureArea*>();

    ViewImageViewTest()
    {
        t.menus().mnuAppsImageViewer.Click();
        view.refresh();
        view.resize(400, 300);
        QApplication::processEvents();
    }
    void show(int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::green);
        window.Picture3 = std::make_shared<QtPicture>(image);
        window.mnuZoomActual.Click();
    }
    QScrollBar* bar(const char* name) { return view.findChild<QScrollBar*>(name); }
    QColor colourAt(int x, int y) { return area->grab().toImage().pixelColor(x, y); }
};

TEST_F(ViewImageViewTest, ASmallPictureStandsAtTheOriginWithoutBars)
{
    show(50, 40);
    EXPECT_FALSE(bar("HScroll1")->isVisible());
    EXPECT_FALSE(bar("VScroll1")->isVisible());
    EXPECT_EQ(colourAt(49, 39), QColor(Qt::green));
    EXPECT_NE(colourAt(51, 10), QColor(Qt::green));
}

TEST_F(ViewImageViewTest, ALargePictureHasBarsBesideItThatMoveIt)
{
    show(1000, 900);
    ASSERT_TRUE(bar("HScroll1")->isVisible());
    ASSERT_TRUE(bar("VScroll1")->isVisible());
    EXPECT_EQ(bar("HScroll1")->geometry().bottom(), area->height() - 1);
    EXPECT_EQ(bar("VScroll1")->geometry().right(), area->width() - 1);
    bar("HScroll1")->setValue(bar("HScroll1")->maximum());
    EXPECT_EQ(window.Picture3Place.get().Left + 1000, window.Picture2.get().Width)
        << "its right edge is at the frame's";
}

TEST_F(ViewImageViewTest, TheWheelZooms)
{
    show(50, 40);
    QWheelEvent up(QPointF(10, 10), area->mapToGlobal(QPointF(10, 10)), {}, QPoint(0, 120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(area, &up);
    EXPECT_EQ(window.Picture3Place.get().Width, 63);
    QWheelEvent down(QPointF(10, 10), area->mapToGlobal(QPointF(10, 10)), {}, QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(area, &down);
    EXPECT_EQ(window.Picture3Place.get().Width, 50);
}

TEST_F(ViewImageViewTest, TheMouseDragsThePicture)
{
    show(1000, 900);
    QTest::mousePress(area, Qt::LeftButton, {}, QPoint(100, 100));
    QTest::mouseMove(area, QPoint(60, 70));
    QMouseEvent move(QEvent::MouseMove, QPointF(60, 70), area->mapToGlobal(QPointF(60, 70)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(area, &move);
    EXPECT_EQ(window.HScroll1.Value, 40);
    EXPECT_EQ(window.VScroll1.Value, 30);
}

TEST_F(ViewImageViewTest, ADoubleClickHandsTheFileToTheSystem)
{
    t.settings().ImageFilePath = "c:\\pictures\\keys.bmp";
    QTest::mouseDClick(area, Qt::LeftButton);
    EXPECT_EQ(t.pictures.openedOutside, std::vector<std::string>{"c:\\pictures\\keys.bmp"});
}

TEST_F(ViewImageViewTest, KeysOfTheMenusWorkAlsoWhereThePanesHaveThem)
{
    show(50, 40);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    QTest::keyClick(area, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(t.printers.printer.pages.size(), 1U);
    QTest::keyClick(area, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(window.Picture3Place.get().Width, 63);
}

TEST(SelectPictureView, AClickOnAFileShowsItsPathAndOkReturnsIt)
{
    TestProgram t;
    t.files.addFile("c:\\pictures\\keys.bmp", "PICTURE 640 480");
    t.setIni("Miscellaneous", "ImagesDirectory", "c:\\pictures");
    SelectPictureForm& form = t.program().imageViewer.select;
    t.dialogues.whileModal = [&] {
        SelectPictureView view(form, nullptr);
        form.Form.Visible = true;
        view.refresh();
        auto* files = view.findChild<QListWidget*>("File1");
        QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualItemRect(files->item(0)).center());
        EXPECT_EQ(form.Label1.Caption.get(), "c:\\pictures\\keys.bmp");
        view.findChild<QPushButton*>("Command1")->click();
        EXPECT_FALSE(form.Form.Visible);
    };
    EXPECT_EQ(selectPicture(form), "c:\\pictures\\keys.bmp");
}

} // namespace
} // namespace tarvex
