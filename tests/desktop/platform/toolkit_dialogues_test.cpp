// The toolkit's dialogues that the program opens: what they start with, and what the user's choice becomes.

#include "desktop/platform/qt_dialogues.h"

#include "platform/posix/drive_map.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ToolkitDialogues : testing::Test {
    DriveMap drives{{{}, "/tmp", "/tmp", "/tmp"}};
    QtDialogues dialogues{drives};
    bool looked = false;

    /// Runs `look` on the dialogue that comes up next, which then has to be closed.
    template <typename Dialogue, typename Look> void whenOpen(Look look)
    {
        QTimer::singleShot(0, qApp, [this, look] {
            auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            auto* dialogue = qobject_cast<Dialogue*>(modal);
            ASSERT_NE(dialogue, nullptr);
            looked = true;
            look(*dialogue);
            if (modal->isVisible()) modal->reject();
        });
    }
    void TearDown() override { EXPECT_TRUE(looked) << "no dialogue came up"; }
};

TEST_F(ToolkitDialogues, AColourIsChosenFromTheOneThatThereIs)
{
    whenOpen<QColorDialog>([](QColorDialog& dialogue) {
        EXPECT_EQ(dialogue.currentColor(), QColor(0x11, 0x22, 0x33));
        dialogue.setCurrentColor(QColor(0x40, 0x80, 0xFF));
        dialogue.accept();
    });
    EXPECT_EQ(dialogues.chooseColour(0x332211), Colour{0xFF8040});
}

TEST_F(ToolkitDialogues, ACancelledColourIsNone)
{
    whenOpen<QColorDialog>([](QColorDialog& dialogue) { dialogue.reject(); });
    EXPECT_EQ(dialogues.chooseColour(0x332211), std::nullopt);
}

TEST_F(ToolkitDialogues, AFontIsChosenFromTheOneThatThereIs)
{
    whenOpen<QFontDialog>([](QFontDialog& dialogue) {
        EXPECT_EQ(dialogue.currentFont().pointSizeF(), 13);
        EXPECT_TRUE(dialogue.currentFont().bold());
        EXPECT_FALSE(dialogue.testOption(QFontDialog::MonospacedFonts));
        dialogue.setCurrentFont(QFont(QStringLiteral("Liberation Sans"), 15));
        dialogue.accept();
    });
    const auto chosen = dialogues.chooseFont({"Liberation Sans", 13, true}, false);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->name, "Liberation Sans");
    EXPECT_EQ(chosen->size, 15);
    EXPECT_FALSE(chosen->bold);
}

TEST_F(ToolkitDialogues, OnlyFixedPitchFontsAreOfferedWhereTheyAreAskedFor)
{
    whenOpen<QFontDialog>([](QFontDialog& dialogue) {
        EXPECT_TRUE(dialogue.testOption(QFontDialog::MonospacedFonts));
        EXPECT_GT(dialogue.currentFont().pointSizeF(), 0) << "a size of nought is none";
        dialogue.reject();
    });
    EXPECT_EQ(dialogues.chooseFont({"Liberation Mono", 0, false}, true), std::nullopt);
}

TEST_F(ToolkitDialogues, AFileToOpenHasToBeThereAndItsFilterIsShownWithoutPatterns)
{
    FileRequest request;
    request.filter = "Joystick file|*.b50|All files|*.*";
    request.directory = "q:\\nowhere";
    whenOpen<QFileDialog>([](QFileDialog& dialogue) {
        EXPECT_EQ(dialogue.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialogue.fileMode(), QFileDialog::ExistingFile);
        EXPECT_TRUE(dialogue.testOption(QFileDialog::HideNameFilterDetails));
        EXPECT_EQ(dialogue.nameFilters(), (QStringList{"Joystick file (*.[bB]50)", "All files (*)"}));
        EXPECT_EQ(dialogue.directory().path(), QDir::homePath());
    });
    EXPECT_EQ(dialogues.openFile(request), std::nullopt);
}

TEST_F(ToolkitDialogues, AFileToSaveMayBeNewAndGetsTheExtension)
{
    FileRequest request;
    request.defaultExtension = "b50";
    whenOpen<QFileDialog>([](QFileDialog& dialogue) {
        EXPECT_EQ(dialogue.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialogue.fileMode(), QFileDialog::AnyFile);
        EXPECT_TRUE(dialogue.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(dialogue.defaultSuffix(), "b50");
    });
    EXPECT_EQ(dialogues.saveFile(request), std::nullopt);
}

TEST_F(ToolkitDialogues, WhereAFolderIsChosenOnlyFoldersAreShown)
{
    whenOpen<QFileDialog>([](QFileDialog& dialogue) {
        EXPECT_EQ(dialogue.fileMode(), QFileDialog::Directory);
        EXPECT_TRUE(dialogue.testOption(QFileDialog::ShowDirsOnly));
    });
    EXPECT_EQ(dialogues.chooseFolder("Select", "c:\\"), std::nullopt);
}

TEST_F(ToolkitDialogues, ABoxIsWideEnoughForItsTitle)
{
    const auto widthFor = [this](int characters) {
        MessageBox box;
        box.title = std::string(static_cast<std::size_t>(characters), 'W');
        box.text = "?";
        int width = 0;
        whenOpen<QMessageBox>([&width](QMessageBox& shown) {
            width = shown.width();
            shown.accept();
        });
        dialogues.show(box);
        return width;
    };
    const int letter = QFontMetrics(QApplication::font("QMessageBox")).horizontalAdvance("WWWWWWWWWW") / 10;
    EXPECT_GE(widthFor(20), 20 * letter + 130);
    EXPECT_LT(widthFor(20), 20 * letter + 200);
}

} // namespace
} // namespace tarvex
