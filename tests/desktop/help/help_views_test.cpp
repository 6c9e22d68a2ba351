#include "desktop/help/about_view.h"
#include "desktop/help/handbook_page.h"
#include "desktop/help/handbook_view.h"
#include "desktop/help/help_key.h"
#include "desktop/help/help_windows.h"
#include "desktop/help/info_view.h"
#include "desktop/help/tip_view.h"
#include "desktop/text.h"
#include "support/fake_help_system.h"
#include "support/test_program.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::string html(const std::string& title, const std::string& body)
{
    return "<html><head><link rel=\"stylesheet\" href=\"handbook.css\"></head><body><h1>" + title + "</h1>" + body +
           "</body></html>";
}

struct HelpViews : testing::Test {
    TestProgram t;
    FakeHelpSystem system;
    Help& help = t.program().help;

    HelpViews()
    {
        help.useSystem(system);
        system.files["first.html"] = html("Welcome", "<p>Go to <a href=\"safein.html#raw\">Safein</a>.</p>");
        system.files["btn.html"] = html("The BTN statement", "<p>A button. Another button.</p>");
        system.files["safein.html"] = html("Safein", "<h2 id=\"raw\">Raw codes</h2><p>Codes.</p>");
        system.files["tour.html"] = html("A tour", "<p>Round.</p>");
    }

    template <typename Widget> static Widget& child(const QWidget& window, const char* name)
    {
        auto* const widget = window.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
};

struct HandbookViewTest : HelpViews {
    HandbookView view{help.handbook, nullptr};
    HandbookPage& page = child<HandbookPage>(view, "HandbookPage");
    QTabWidget& ways = child<QTabWidget>(view, "Ways");

    HandbookViewTest()
    {
        t.menus().mnuHelpContents.Click();
        view.refresh();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view)) << "shortcuts work in the active window";
    }
    std::string shown() const { return fromQt(page.toPlainText().section(u'\n', 0, 0)); }
    void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) { QTest::keyClick(&page, key, with); }
};

TEST_F(HandbookViewTest, ShowsTheFirstPageAndTheContents)
{
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(shown(), "Welcome");
    auto& tree = child<QTreeWidget>(view, "ContentsTree");
    ASSERT_EQ(tree.topLevelItemCount(), 2);
    EXPECT_EQ(tree.topLevelItem(0)->text(0), "Start");
    EXPECT_EQ(tree.topLevelItem(1)->child(1)->text(0), "A tour");
    ASSERT_NE(tree.currentItem(), nullptr);
    EXPECT_EQ(tree.currentItem()->text(0), "Welcome");
}

TEST_F(HandbookViewTest, AChoiceInTheContentsShowsThePage)
{
    auto& tree = child<QTreeWidget>(view, "ContentsTree");
    tree.setCurrentItem(tree.topLevelItem(1)->child(0));
    EXPECT_EQ(shown(), "Safein");
    EXPECT_EQ(view.windowTitle(), "Safein - Tarvex handbook");
}

TEST_F(HandbookViewTest, AClickOnALinkFollowsItAndBackReturns)
{
    QTextCursor link = page.document()->find(QStringLiteral("Safein"));
    page.setTextCursor(link);
    const QPoint middle = page.cursorRect(link).center() - QPoint(8, 0);
    QTest::mouseClick(page.viewport(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(help.handbook.Target.get(), "safein.html#raw");
    EXPECT_EQ(shown(), "Safein");
    child<QToolButton>(view, "Back").click();
    EXPECT_EQ(shown(), "Welcome");
    child<QToolButton>(view, "Forward").click();
    EXPECT_EQ(shown(), "Safein");
    child<QToolButton>(view, "Home").click();
    EXPECT_EQ(shown(), "Welcome");
}

TEST_F(HandbookViewTest, AltWithTheArrowsGoesBackAndForward)
{
    followHandbookLink(help.handbook, "btn.html");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), "Welcome");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown(), "The BTN statement");
}

TEST_F(HandbookViewTest, TheIndexIsFilteredAndReturnShowsTheMarkedWord)
{
    ways.setCurrentIndex(1);
    auto& filter = child<QLineEdit>(view, "Filter");
    QTest::keyClicks(&filter, QStringLiteral("btn s"));
    auto& words = child<QListWidget>(view, "Words");
    ASSERT_EQ(words.count(), 1);
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_EQ(help.handbook.Target.get(), "btn.html#s1");
    EXPECT_EQ(shown(), "The BTN statement");
}

TEST_F(HandbookViewTest, SearchListsPagesAndReturnShowsTheBest)
{
    ways.setCurrentIndex(2);
    auto& search = child<QLineEdit>(view, "Search");
    EXPECT_EQ(view.focusWidget(), &search);
    QTest::keyClicks(&search, QStringLiteral("button"));
    auto& hits = child<QListWidget>(view, "Hits");
    ASSERT_EQ(hits.count(), 1);
    EXPECT_TRUE(hits.item(0)->text().startsWith(QStringLiteral("The BTN statement\n")));
    EXPECT_EQ(child<QLabel>(view, "SearchResult").text(), "1 page");
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(shown(), "The BTN statement");
}

TEST_F(HandbookViewTest, AWordWithoutAPageBringsTheSearchToTheFront)
{
    HelpKeyword(help.handbook, "newcomer");
    EXPECT_EQ(ways.currentIndex(), 2);
    EXPECT_EQ(child<QLineEdit>(view, "Search").text(), "newcomer");
    EXPECT_EQ(shown(), "A tour");
}

TEST_F(HandbookViewTest, CtrlFFindsInThePageAndGoesRound)
{
    followHandbookLink(help.handbook, "btn.html");
    press(Qt::Key_F, Qt::ControlModifier);
    auto& text = child<QLineEdit>(view, "FindText");
    ASSERT_TRUE(text.isVisible());
    QTest::keyClicks(&text, QStringLiteral("button"));
    const int first = page.textCursor().selectionStart();
    EXPECT_EQ(page.textCursor().selectedText(), "button");
    QTest::keyClick(&text, Qt::Key_Return);
    const int second = page.textCursor().selectionStart();
    EXPECT_GT(second, first);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(page.textCursor().selectionStart(), first);
    QTest::keyClick(&text, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().selectionStart(), second);
    QTest::keyClicks(&text, QStringLiteral("x"));
    EXPECT_EQ(child<QLabel>(view, "FindResult").text(), "Not in this page");
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_FALSE(text.isVisible());
    EXPECT_TRUE(view.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(view.isVisible());
}

TEST_F(HandbookViewTest, TheWheelWithCtrlMakesLettersLargerAndSmaller)
{
    const auto turn = [this](int angle, Qt::KeyboardModifiers keys) {
        QWheelEvent event(QPointF(10, 10), page.viewport()->mapToGlobal(QPointF(10, 10)), {}, QPoint(0, angle),
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.viewport(), &event);
    };
    const int before = page.zoom();
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), before + 10);
    turn(-120, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), before);
    turn(-120, Qt::NoModifier);
    EXPECT_EQ(page.zoom(), before) << "it scrolls";
}

TEST_F(HandbookViewTest, LettersGetLargerAndSmallerWithinBounds)
{
    const qreal size = page.font().pointSizeF();
    child<QToolButton>(view, "ZoomIn").click();
    EXPECT_GT(page.font().pointSizeF(), size);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(page.font().pointSizeF(), size);
    for (int i = 0; i < 100; ++i) child<QToolButton>(view, "ZoomOut").click();
    EXPECT_EQ(page.zoom(), 50);
    for (int i = 0; i < 100; ++i) press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 300);
    EXPECT_EQ(shown(), "Welcome");
}

TEST_F(HandbookViewTest, PagesFollowThePalette)
{
    const auto colourOfCode = [this] { return page.document()->defaultStyleSheet(); };
    const QString before = colourOfCode();
    QPalette dark = page.palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    page.setPalette(dark);
    EXPECT_NE(colourOfCode(), before);
    EXPECT_EQ(shown(), "Welcome") << "the page is still there";
}

TEST_F(HandbookViewTest, APageThatIsMissingSaysSo)
{
    system.files.erase("btn.html");
    followHandbookLink(help.handbook, "btn.html");
    EXPECT_EQ(shown(), "No such page");
}

TEST_F(HandbookViewTest, NothingOutsideTheHandbookIsLoaded)
{
    system.files["btn.html"] = html("The BTN statement", "<p><img src=\"file:///etc/hostname\"></p>"
                                                         "<img src=\"https://example.com/x.png\">");
    followHandbookLink(help.handbook, "btn.html");
    EXPECT_EQ(shown(), "The BTN statement");
    EXPECT_TRUE(page.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("file:///etc/hostname"))).isNull());
}

TEST_F(HandbookViewTest, APictureIsMadeAsWideAsThePageHasRoom)
{
    QImage wide(3000, 300, QImage::Format_RGB32);
    wide.fill(Qt::red);
    QBuffer bytes;
    wide.save(&bytes, "PNG");
    system.files["wide.png"] = bytes.data().toStdString();
    system.files["btn.html"] = html("The BTN statement", "<p><img src=\"wide.png\"></p>");
    followHandbookLink(help.handbook, "btn.html");
    const auto width = [this] { return page.document()->documentLayout()->documentSize().width(); };
    for (const int windowWidth : {1100, 800, 1000}) {
        view.resize(windowWidth, 600);
        QApplication::processEvents();
        EXPECT_LE(width(), page.viewport()->width()) << windowWidth;
    }
}

TEST_F(HandbookViewTest, AModalWindowThatAskedForHelpDoesNotBlockIt)
{
    QDialog modal;
    modal.setModal(true);
    modal.show();
    HelpTopic(help.handbook, 2500);
    EXPECT_EQ(view.windowHandle()->transientParent(), modal.windowHandle());
    EXPECT_TRUE(view.isVisible());
}

TEST_F(HandbookViewTest, EachButtonAndKeyMakesLettersLargerOrSmallerByTen)
{
    child<QToolButton>(view, "ZoomIn").click();
    EXPECT_EQ(page.zoom(), 110);
    press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 120);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 130);
    child<QToolButton>(view, "ZoomOut").click();
    EXPECT_EQ(page.zoom(), 120);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 110);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(page.zoom(), 100);
}

TEST_F(HandbookViewTest, ALongPageStaysAtItsPlaceWhenItsLettersGrow)
{
    std::string body;
    for (int i = 0; i < 300; ++i) body += "<p>A line.</p>";
    system.files["btn.html"] = html("The BTN statement", body);
    followHandbookLink(help.handbook, "btn.html");
    QScrollBar& bar = *page.verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(bar.value(), bar.maximum() / 2, bar.maximum() / 50);
}

TEST_F(HandbookViewTest, AltHomeShowsTheFirstPage)
{
    followHandbookLink(help.handbook, "btn.html");
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(shown(), "Welcome");
}

TEST_F(HandbookViewTest, TheContentsMarkThePageThatWasOpenedFromElsewhere)
{
    const auto& tree = child<QTreeWidget>(view, "ContentsTree");
    followHandbookLink(help.handbook, "tour.html");
    ASSERT_NE(tree.currentItem(), nullptr);
    EXPECT_EQ(tree.currentItem()->text(0), "A tour");
    EXPECT_EQ(tree.currentItem()->toolTip(0), "A tour");
    EXPECT_EQ(help.handbook.visited.size(), 2U) << "the mark isn't a choice of the user";
}

TEST_F(HandbookViewTest, TheTitleOfAChapterLeadsNowhere)
{
    auto& tree = child<QTreeWidget>(view, "ContentsTree");
    tree.setCurrentItem(tree.topLevelItem(1));
    EXPECT_EQ(shown(), "Welcome");
    EXPECT_EQ(help.handbook.visited.size(), 1U);
}

TEST_F(HandbookViewTest, WordsAndPagesFoundAreOpenedByAClickOrByReturn)
{
    const auto click = [](QListWidget& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    };
    ways.setCurrentIndex(1);
    EXPECT_EQ(view.focusWidget(), &child<QLineEdit>(view, "Filter"));
    auto& words = child<QListWidget>(view, "Words");
    EXPECT_EQ(words.currentRow(), 0);
    click(words, 1);
    EXPECT_EQ(help.handbook.Target.get(), "btn.html#s1");
    words.setCurrentRow(2);
    QTest::keyClick(&words, Qt::Key_Return);
    EXPECT_EQ(help.handbook.Target.get(), "safein.html#raw");
    ways.setCurrentIndex(2);
    QTest::keyClicks(&child<QLineEdit>(view, "Search"), QStringLiteral("a"));
    auto& hits = child<QListWidget>(view, "Hits");
    ASSERT_GE(hits.count(), 2);
    click(hits, 1);
    EXPECT_TRUE(hits.item(1)->text().startsWith(QString::fromStdString(shown())));
    hits.setCurrentRow(0);
    QTest::keyClick(&hits, Qt::Key_Return);
    EXPECT_TRUE(hits.item(0)->text().startsWith(QString::fromStdString(shown())));
}

TEST_F(HandbookViewTest, ReturnWithoutAWordOrAPageFoundShowsNothingElse)
{
    ways.setCurrentIndex(1);
    auto& filter = child<QLineEdit>(view, "Filter");
    QTest::keyClicks(&filter, QStringLiteral("zzz"));
    QTest::keyClick(&filter, Qt::Key_Return);
    ways.setCurrentIndex(2);
    auto& search = child<QLineEdit>(view, "Search");
    QTest::keyClicks(&search, QStringLiteral("zzz"));
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(shown(), "Welcome");
}

TEST_F(HandbookViewTest, F3AsksForATextOnceAndThenFindsTheNextOne)
{
    followHandbookLink(help.handbook, "btn.html");
    auto& text = child<QLineEdit>(view, "FindText");
    press(Qt::Key_F3);
    ASSERT_TRUE(text.isVisible());
    EXPECT_TRUE(text.hasFocus());
    QTest::keyClicks(&text, QStringLiteral("button"));
    const int first = page.textCursor().selectionStart();
    press(Qt::Key_F3);
    const int second = page.textCursor().selectionStart();
    EXPECT_GT(second, first);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().selectionStart(), first);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().selectionStart(), second) << "it goes round backwards, too";
}

TEST_F(HandbookViewTest, TheFindBarComesUpWithItsTextSelectedAndLeavesTheKeyboardToThePage)
{
    auto& text = child<QLineEdit>(view, "FindText");
    auto& result = child<QLabel>(view, "FindResult");
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&text, QStringLiteral("zzz"));
    EXPECT_EQ(result.text(), "Not in this page");
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(text.selectedText(), "zzz");
    QTest::keyClick(&text, Qt::Key_Delete);
    EXPECT_EQ(result.text(), "");
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_TRUE(page.hasFocus());
}

TEST_F(HandbookViewTest, AnAddressOfTheWebGoesToTheBrowserWhole)
{
    emit page.anchorClicked(QUrl(QStringLiteral("https://example.com/x#y")));
    EXPECT_EQ(system.opened, std::vector<std::string>{"https://example.com/x#y"});
    EXPECT_EQ(shown(), "Welcome");
}

TEST_F(HandbookViewTest, PicturesAreMadeNarrowerButNeverWider)
{
    const auto add = [this](const std::string& name, int width) {
        QImage image(width, 30, QImage::Format_RGB32);
        image.fill(Qt::red);
        QBuffer bytes;
        image.save(&bytes, "PNG");
        system.files[name] = bytes.data().toStdString();
    };
    const auto widthOf = [this](const char* name) {
        const QVariant picture =
            page.loadResource(QTextDocument::ImageResource, QUrl(QLatin1String("handbook:/") + name));
        return picture.value<QImage>().width();
    };
    add("wide.png", 3000);
    add("small.png", 90);
    view.resize(1400, 600);
    QApplication::processEvents();
    EXPECT_EQ(widthOf("wide.png"), 700);
    EXPECT_EQ(widthOf("small.png"), 90);
    view.resize(800, 600);
    QApplication::processEvents();
    EXPECT_EQ(widthOf("wide.png"), page.viewport()->width() - 48);
    page.setFixedWidth(180);
    QApplication::processEvents();
    EXPECT_EQ(widthOf("wide.png"), 200) << "the page then scrolls";
    system.files["bad.png"] = "no picture";
    EXPECT_EQ(widthOf("bad.png"), 0);
    EXPECT_EQ(widthOf("missing.png"), 0);
}

TEST_F(HandbookViewTest, TheColoursOfAPageAreMixedFromThePalette)
{
    QPalette palette = page.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Link, QColor(0x12, 0x34, 0x56));
    page.setPalette(palette);
    const QString style = page.document()->defaultStyleSheet();
    EXPECT_TRUE(style.contains("background-color: #eaeaea")) << "of code";
    EXPECT_TRUE(style.contains("color: #3f3f3f")) << "of headings";
    EXPECT_TRUE(style.contains("color: #123456")) << "of links";
}

TEST_F(HandbookViewTest, ComesUpInTheSizeInWhichItWasLeft)
{
    help.handbook.form.Width = toTwips(700);
    help.handbook.form.Height = toTwips(500);
    const HandbookView again(help.handbook, nullptr);
    EXPECT_EQ(again.size(), QSize(700, 500));
    help.handbook.form.Width = toTwips(9000);
    help.handbook.form.Height = toTwips(9000);
    const HandbookView large(help.handbook, nullptr);
    EXPECT_EQ(large.size(), large.screen()->availableSize());
    help.handbook.form.Width = 0;
    const HandbookView first(help.handbook, nullptr);
    EXPECT_EQ(first.sizeHint(), QSize(960, 700));
}

TEST_F(HelpViews, F1InAWindowShowsThePageAboutIt)
{
    const HelpKey key(help);
    QDialog safein;
    safein.setObjectName(QStringLiteral("RAWform"));
    auto* field = new QLineEdit(&safein);
    safein.show();
    QTest::keyClick(field, Qt::Key_F1);
    EXPECT_EQ(help.handbook.Target.get(), "safein.html");
    QTest::keyClick(field, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(help.handbook.visited.size(), 1U);
}

TEST_F(HelpViews, F1InAWindowWithPagesPressesItsHelpButton)
{
    const HelpKey key(help);
    QDialog preferences;
    preferences.setObjectName(QStringLiteral("Preferences"));
    auto* button = new QPushButton(&preferences);
    button->setObjectName(QStringLiteral("Command6"));
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, [&] { ++clicks; });
    preferences.show();
    QTest::keyClick(button, Qt::Key_F1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(HelpViews, F1StaysWithWindowsThatHaveNoPage)
{
    const HelpKey key(help);
    QDialog tester;
    tester.setObjectName(QStringLiteral("KeyTestForm"));
    tester.show();
    QTest::keyClick(&tester, Qt::Key_F1);
    EXPECT_FALSE(help.handbook.Ready);
}

TEST_F(HelpViews, TheInfoWindowShowsItsTextAndWhatTheMouseIsOver)
{
    t.files.addDirectory("c:\\tarvex\\info");
    t.files.addFile("c:\\tarvex\\info\\Syntax.rtf", "{\\rtf1 Some words}");
    InfoView view(help.info, nullptr);
    t.menus().mnuTMhelp[0].Click();
    view.refresh();
    ASSERT_TRUE(view.isVisible());
    auto& text = child<QPlainTextEdit>(view, "InfoText");
    QApplication::processEvents();
    EXPECT_EQ(text.toPlainText(), "Some words");
    EXPECT_TRUE(text.isReadOnly());
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(text.viewport(), &enter);
    EXPECT_EQ(t.status(), "Some online help for you to peruse!");
    auto& ok = child<QPushButton>(view, "Command1");
    QApplication::sendEvent(&ok, &enter);
    EXPECT_EQ(t.status(), "Press the OK button when you're done.");
    EXPECT_GE(ok.geometry().top(), text.geometry().bottom()) << "the button stays beneath the text";
    const QSize before = text.size();
    view.resize(view.size() + QSize(200, 100));
    QApplication::processEvents();
    EXPECT_EQ(text.size(), before + QSize(200, 100));
    ok.click();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(HelpViews, TheTipWindowShowsTipsAndKeepsItsTick)
{
    t.files.addFile("c:\\tarvex\\Tips.txt", "one\r\ntwo\r\n");
    TipView view(help.frmTip, nullptr);
    help.frmTip.Form.Visible = true;
    view.refresh();
    auto& tip = child<QLabel>(view, "lblTipText");
    EXPECT_EQ(tip.text(), "one");
    child<QPushButton>(view, "cmdNextTip").click();
    EXPECT_EQ(tip.text(), "two");
    auto& tick = child<QCheckBox>(view, "chkLoadTipsAtStartup");
    tick.setChecked(true);
    tick.click();
    child<QPushButton>(view, "cmdOK").click();
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(t.ini("FileLocations", "ShowTips"), "0");
}

TEST_F(HelpViews, ATipShowsMarkupAsItStands)
{
    t.files.addFile("c:\\tarvex\\Tips.txt", "<img src=x> <b>bold</b>");
    TipView view(help.frmTip, nullptr);
    help.frmTip.Form.Visible = true;
    EXPECT_EQ(child<QLabel>(view, "lblTipText").textFormat(), Qt::PlainText);
}

TEST_F(HelpViews, TheAboutBoxShowsItsPictureNoLargerThanItsRoom)
{
    QImage picture(2000, 1000, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QBuffer bytes;
    picture.save(&bytes, "BMP");
    t.files.addFile("c:\\tarvex\\AboutTarvy.bmp", bytes.data().toStdString());
    AboutView view(help.frmAbout, nullptr);
    help.frmAbout.Form.Visible = true;
    view.refresh();
    EXPECT_EQ(child<QLabel>(view, "Picture").pixmap(Qt::ReturnByValue).size(), QSize(600, 300));
    EXPECT_EQ(child<QLabel>(view, "lblVersion").text(), toQt(help.frmAbout.lblVersion.Caption.get()));
}

TEST_F(HelpViews, TheAboutBoxComesUpWithoutAPictureToo)
{
    t.files.addFile("c:\\tarvex\\AboutTarvy.bmp", "no picture at all");
    AboutView view(help.frmAbout, nullptr);
    help.frmAbout.Form.Visible = true;
    view.refresh();
    EXPECT_FALSE(child<QLabel>(view, "Picture").isVisible());
    child<QPushButton>(view, "cmdOK").click();
    EXPECT_FALSE(view.isVisible());
}

} // namespace
} // namespace tarvex
