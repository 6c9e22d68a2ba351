#include "viewer/select_picture_form.h"

#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

struct SelectPictureFormTest : testing::Test {
    TestProgram t;
    SelectPictureForm& form = t.program().imageViewer.select;

    SelectPictureFormTest()
    {
        t.files.addFile("c:\\pictures\\Keys.BMP", "PICTURE 640 480");
        t.files.addFile("c:\\pictures\\chart.svg", "PICTURE 60 40");
        t.files.addFile("c:\\pictures\\notes.txt", "no picture");
        t.files.addFile("c:\\pictures\\old\\first.gif", "PICTURE 1 2");
        t.settings().ImagesDirectory = "c:\\pictures";
        t.setIni("Miscellaneous", "ImagesDirectory", "c:\\pictures");
    }
    std::string choose(const std::function<void()>& user)
    {
        t.dialogues.whileModal = user;
        return selectPicture(form);
    }
    void click(ListBox& list, int index)
    {
        list.ListIndex = index;
        list.Click();
    }
};

TEST_F(SelectPictureFormTest, StartsInTheStoredFolder)
{
    choose([this] {
        EXPECT_EQ(form.Form.Caption.get(), "Select image file to open");
        EXPECT_EQ(form.Folder.get(), "c:\\pictures");
        EXPECT_EQ(form.Drive1.Text.get(), "c:");
        EXPECT_THAT(form.Drive1.Items.get(), ElementsAre("c:", "z:"));
        EXPECT_THAT(form.Dir1.Items.get(), ElementsAre("..", "old"));
        EXPECT_THAT(form.File1.Items.get(), ElementsAre("chart.svg", "Keys.BMP"));
        form.Command2.Click();
    });
    EXPECT_THAT(t.dialogues.modalForms, ElementsAre("SelectPictureForm"));
}

TEST_F(SelectPictureFormTest, AStoredFolderThatNoLongerExistsLeavesTheCurrentOne)
{
    t.setIni("Miscellaneous", "ImagesDirectory", "c:\\gone");
    choose([this] {
        EXPECT_EQ(form.Folder.get(), t.program().shared.currentDirectory.path());
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, AClickOnAFileShowsItsLowerCasePathAndItsPicture)
{
    choose([this] {
        click(form.File1, 1);
        EXPECT_EQ(form.Label1.Caption.get(), "c:\\pictures\\keys.bmp");
        EXPECT_EQ(form.ImagePreview.get()->width(), 640);
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, AFileInARootGetsOneBackslash)
{
    t.files.addFile("c:\\root.png", "PICTURE 3 3");
    choose([this] {
        click(form.Dir1, 0);
        EXPECT_EQ(form.Folder.get(), "c:\\");
        const auto& files = form.File1.Items.get();
        click(form.File1, static_cast<int>(std::find(files.begin(), files.end(), "root.png") - files.begin()));
        EXPECT_EQ(form.Label1.Caption.get(), "c:\\root.png");
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, AFileThatIsNoPictureLeavesThePreviewAndIsRecorded)
{
    t.files.addFile("c:\\pictures\\a.bmp", "no picture");
    choose([this] {
        click(form.File1, 2);
        click(form.File1, 0);
        EXPECT_EQ(form.Label1.Caption.get(), "c:\\pictures\\a.bmp");
        EXPECT_EQ(form.ImagePreview.get()->width(), 640);
        EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "SELIMG file1_Click");
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, FoldersAreEnteredAndLeft)
{
    choose([this] {
        click(form.Dir1, 1);
        EXPECT_EQ(form.Folder.get(), "c:\\pictures\\old");
        EXPECT_THAT(form.File1.Items.get(), ElementsAre("first.gif"));
        click(form.Dir1, 0);
        EXPECT_EQ(form.Folder.get(), "c:\\pictures");
        click(form.Dir1, 0);
        EXPECT_EQ(form.Folder.get(), "c:\\");
        EXPECT_NE(form.Dir1.Items.get().at(0), "..");
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, ADriveThatCannotBeReadIsNotTaken)
{
    choose([this] {
        form.Drive1.Text = "z:";
        form.Drive1.Click();
        EXPECT_EQ(form.Drive1.Text.get(), "c:");
        EXPECT_EQ(form.Folder.get(), "c:\\pictures");
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, ListsEachKindOfPictureAndNothingElseByNameInAnyCase)
{
    const std::vector<std::string> pictures{"a.bmp", "B.DIB", "c.gif",  "D.ico",  "e.jpg", "F.jpeg",
                                            "g.png", "H.svg", "i.svgz", "J.webp", "k.xpm"};
    for (const std::string& name : pictures) t.files.addFile("c:\\kinds\\" + name, "PICTURE 1 1");
    for (const char* name : {"l.tif", "m.bmp.txt", "bmp"}) t.files.addFile("c:\\kinds\\" + std::string(name), "");
    t.setIni("Miscellaneous", "ImagesDirectory", "c:\\kinds");
    choose([&] {
        EXPECT_THAT(form.File1.Items.get(), testing::ElementsAreArray(pictures));
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, ADriveIsEnteredAtItsRoot)
{
    choose([this] {
        click(form.File1, 0);
        form.Drive1.Text = "c:";
        form.Drive1.Click();
        EXPECT_EQ(form.Folder.get(), "c:\\");
        EXPECT_EQ(form.File1.ListIndex, -1);
        EXPECT_EQ(form.Dir1.ListIndex, -1);
        EXPECT_EQ(form.Drive1.Text.get(), "c:");
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, EachOpeningStartsWithoutAPreview)
{
    choose([this] {
        click(form.File1, 1);
        form.Command2.Click();
    });
    choose([this] {
        EXPECT_EQ(form.Label1.Caption.get(), "");
        EXPECT_EQ(form.ImagePreview.get(), nullptr);
        form.Command2.Click();
    });
}

TEST_F(SelectPictureFormTest, FailuresAreReportedUnderTheirProcedures)
{
    const auto broken = [] { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); };
    const auto reported = [this] { return t.program().shared.errors.ErrorProcedure; };
    choose([&] {
        auto listening = form.Folder.changed.connect(broken);
        click(form.Dir1, 1);
        EXPECT_EQ(reported(), "SELIMG Dir1_Change");
        form.Drive1.Text = "c:";
        form.Drive1.Click();
        EXPECT_EQ(reported(), "SELIMG Drive1_Change");
        listening.disconnect();
        form.Command2.Click();
    });
    t.setIni("Miscellaneous", "ImagesDirectory", "c:\\pictures\\old");
    const auto listening = form.Folder.changed.connect(broken);
    choose([this] { form.Command2.Click(); });
    EXPECT_EQ(reported(), "SELIMG Form_Load");
}

TEST_F(SelectPictureFormTest, OkReturnsThePathAndKeepsTheFolder)
{
    EXPECT_EQ(choose([this] {
                  click(form.Dir1, 1);
                  click(form.File1, 0);
                  form.Command1.Click();
              }),
              "c:\\pictures\\old\\first.gif");
    EXPECT_EQ(t.ini("Miscellaneous", "ImagesDirectory"), "c:\\pictures\\old");
}

TEST_F(SelectPictureFormTest, CancelReturnsNoPathAndKeepsTheOldFolder)
{
    EXPECT_EQ(choose([this] {
                  click(form.Dir1, 1);
                  click(form.File1, 0);
                  form.Command2.Click();
              }),
              "");
    EXPECT_EQ(t.ini("Miscellaneous", "ImagesDirectory"), "c:\\pictures");
}

TEST_F(SelectPictureFormTest, BothButtonsAndTheFrameCloseItAndAClosedOneChoosesNothing)
{
    const auto closes = [this](const std::function<void()>& act) {
        form.Form.Visible = true;
        act();
        return !form.Form.Visible;
    };
    const std::string chosen = choose([&] {
        click(form.File1, 0);
        EXPECT_TRUE(closes([this] { form.Command1.Click(); }));
    });
    EXPECT_EQ(chosen, "c:\\pictures\\chart.svg");
    EXPECT_EQ(choose([&] { EXPECT_TRUE(closes([this] { form.Command2.Click(); })); }), "");
    EXPECT_EQ(choose([&] { EXPECT_TRUE(closes([this] { form.Form.Close(); })); }), "");
    EXPECT_EQ(choose([] {}), "");
}

TEST_F(SelectPictureFormTest, AFolderThatIsEnteredHasNothingChosen)
{
    choose([this] {
        click(form.File1, 1);
        click(form.Dir1, 1);
        EXPECT_EQ(form.Dir1.ListIndex, -1);
        EXPECT_EQ(form.File1.ListIndex, -1);
        form.Command2.Click();
    });
}

} // namespace
} // namespace tarvex
