#include "desktop/help/qt_help_system.h"

#include "desktop/help/program_files.h"
#include "help/handbook_index.h"
#include "shell/help_topics.h"
#include "support/temporary_directory.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::HasSubstr;

QString folder(const TemporaryDirectory& directory) { return QString::fromStdString(directory.path()); }

TEST(QtHelpSystem, ReadsTheHandbookThatTheBuildMade)
{
    QtHelpSystem system(helpPlaces(""));
    const auto index = system.handbookFile("index.txt");
    ASSERT_TRUE(index) << system.whyNoHandbook();
    const HandbookIndex handbook(*index);
    ASSERT_FALSE(handbook.pages().empty());
    for (const auto& page : handbook.pages()) EXPECT_TRUE(system.handbookFile(page.file)) << page.file;
    EXPECT_FALSE(system.handbookFile("nowhere.html"));
    EXPECT_FALSE(system.handbookFile("../index.txt"));
    EXPECT_EQ(system.whyNoHandbook(), "");
}

/// Every word of the controllers' language that the program knows, as a user marks it in a file.
constexpr const char* vocabulary[] = {
    "BTN",
    "DEF",
    "RAW (",
    "RAW(",
    "DLY(",
    "RPT(",
    "DELAY",
    "PULSE",
    "ANT",
    "RNG",
    "USE",
    "MT",
    "MDEF",
    "RATE",
    "JSX",
    "JSY",
    "RDDR",
    "THR",
    "SWAPTG",
    "RKR UP",
    "RKR DN",
    "AND",
    "NOT",
    "OR",
    "F22RST",
    "CMPLT",
    "CMPGT",
    "GAME1",
    "GAME2",
    "NULLCHR",
    "@digitalthrottle",
    "PortB",
    "Rem",
    "~",
    "//",
    "/U",
    "/M",
    "/D",
    "/I",
    "/O",
    "/A",
    "/P",
    "/R",
    "/H",
    "/N",
    "/T",
    "/Q",
    "/F",
    "RKR MD",
    "USE TQS",
    "USE WCS",
    "USE RCS",
    "USE NOMOUSE",
    "USE NOTHR",
    "USE NORDDR",
    "USE FCLK",
    "USE MTYPE",
    "BTN MT",
    "BTN X1",
    "DEF X1",
    "RAW (#1C #F0 #1C)",
    "DLY(60)",
    "RPT(3)",
    "S1",
    "S3",
    "T14",
    "TG1",
    "H1U",
    "H4DR",
    "HM",
    "A5",
    "B10",
    "C10",
    "X48",
    "CTL",
    "ALT",
    "SHF",
};

TEST(QtHelpSystem, EveryWordOfTheLanguageHasItsPage)
{
    QtHelpSystem system(helpPlaces(""));
    const HandbookIndex handbook(system.handbookFile("index.txt").value_or(""));
    for (const char* word : vocabulary) {
        const auto target = handbook.lookUp(word);
        ASSERT_TRUE(target) << word;
        EXPECT_NE(handbook.pageOf(*target), nullptr) << word;
    }
}

TEST(QtHelpSystem, EveryTopicNumberHasItsPageAndEveryPagesNumberIsAskedFor)
{
    QtHelpSystem system(helpPlaces(""));
    const HandbookIndex handbook(system.handbookFile("index.txt").value_or(""));
    std::vector<int> numbers;
    for (const auto& [number, target] : handbook.topics()) {
        numbers.push_back(number);
        EXPECT_NE(handbook.pageOf(target), nullptr) << number;
    }
    EXPECT_THAT(numbers, testing::ElementsAreArray(helpTopics));
}

TEST(QtHelpSystem, AReadOnlyCollectionIsReadAllTheSame)
{
    const TemporaryDirectory directory;
    const QString path = folder(directory) + QStringLiteral("/tarvex.qch");
    HelpPlaces places = helpPlaces("");
    ASSERT_TRUE(QFile::copy(places.handbook + QStringLiteral("/tarvex.qch"), path));
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
    places.handbook = folder(directory);
    QtHelpSystem system(places);
    EXPECT_TRUE(system.handbookFile("index.txt")) << system.whyNoHandbook();
}

TEST(QtHelpSystem, AMissingCollectionIsNamed)
{
    const TemporaryDirectory directory;
    HelpPlaces places = helpPlaces("");
    places.handbook = folder(directory);
    QtHelpSystem system(places);
    EXPECT_FALSE(system.handbookFile("index.txt"));
    EXPECT_THAT(system.whyNoHandbook(), HasSubstr("there is no file " + directory.path() + "/tarvex.qch"));
}

TEST(QtHelpSystem, AFileThatIsNoCollectionIsNamed)
{
    const TemporaryDirectory directory;
    directory.put("tarvex.qch", std::string(5000, 'x'));
    HelpPlaces places = helpPlaces("");
    places.handbook = folder(directory);
    QtHelpSystem system(places);
    EXPECT_FALSE(system.handbookFile("index.txt"));
    EXPECT_THAT(system.whyNoHandbook(), HasSubstr("isn't a help collection"));
}

TEST(QtHelpSystem, WithoutItsReaderTheHandbookIsExplainedToBeMissing)
{
    HelpPlaces places = helpPlaces("");
    places.library = QStringLiteral("/nowhere/handbook.so");
    QtHelpSystem system(places);
    EXPECT_FALSE(system.handbookFile("index.txt"));
    EXPECT_THAT(system.whyNoHandbook(), HasSubstr("what reads it isn't there"));
}

TEST(QtHelpSystem, OnlyPagesThatAreInstalledHaveAnAddressForTheBrowser)
{
    QtHelpSystem system(helpPlaces(""));
    EXPECT_THAT(system.browserAddress("using-help.html"), testing::StartsWith("file:///"));
    EXPECT_EQ(system.browserAddress("nowhere.html"), "");
}

/// Stands for the browser.
class Browser : public QObject {
    Q_OBJECT
public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }
    QList<QUrl> opened;
public slots:
    void open(const QUrl& url) { opened.append(url); }
};

TEST(QtHelpSystem, AnAddressGoesToTheBrowserAsItStands)
{
    Browser browser;
    QtHelpSystem system(helpPlaces(""));
    EXPECT_TRUE(system.openAddress("https://example.com/a?b=%20c&d#e"));
    ASSERT_EQ(browser.opened.size(), 1);
    EXPECT_EQ(browser.opened[0].toEncoded(), "https://example.com/a?b=%20c&d#e");
}

TEST(QtHelpSystem, TheRegistryIsThatOfTheWinePrefix)
{
    const TemporaryDirectory directory;
    directory.put("system.reg", "[Software\\\\X]\n\"PATH\"=\"c:\\\\x.exe\"\n");
    QtHelpSystem system(helpPlaces(directory.path()));
    EXPECT_EQ(system.registryText("SOFTWARE\\X", "PATH"), "c:\\x.exe");
    EXPECT_EQ(QtHelpSystem(helpPlaces("")).registryText("SOFTWARE\\X", "PATH"), std::nullopt);
}

TEST(ShippedProgramFiles, AreThoseOfAFolderAndTheFoldersInIt)
{
    const TemporaryDirectory directory;
    directory.put("Tips.txt", "one");
    directory.put("info/Syntax.rtf", "{\\rtf1}");
    const auto files = readShippedFiles(folder(directory));
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].name, "Tips.txt");
    EXPECT_EQ(files[0].bytes, "one");
    EXPECT_EQ(files[1].name, "info\\Syntax.rtf");
    EXPECT_TRUE(readShippedFiles(QStringLiteral("/nowhere")).empty());
}

} // namespace
} // namespace tarvex

#include "qt_help_system_test.moc"
