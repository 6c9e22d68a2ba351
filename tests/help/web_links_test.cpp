#include "help/web_links.h"

#include "help_program.h"

#include <filesystem>

namespace tarvex {
namespace {

using testing::ElementsAre;

struct WebLinks : HelpTest {
    void haveFile(const std::string& lines) { t.files.addFile("c:\\tarvex\\Website.txt", lines); }
    void click(int index) { t.menus().mnuWebTarvex[index].Click(); }
    bool opens(const std::string& line) { return openableAddress(system, line).has_value(); }
};

TEST_F(WebLinks, EachEntryOpensItsLine)
{
    haveFile("http://one.example/\r\nhttps://two.example/a?b=c&d#e\r\nhttp://three.example\nhttp://4.example\r\n"
             "HTTPS://Five.example:8080/");
    for (int index = 0; index < 5; ++index) click(index);
    EXPECT_THAT(system.opened, ElementsAre("http://one.example/", "https://two.example/a?b=c&d#e",
                                           "http://three.example", "http://4.example", "HTTPS://Five.example:8080/"));
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(WebLinks, WithoutTheFileTheUserLearnsOfItAndTheBuiltInAddressIsOpened)
{
    click(3);
    const MessageBox& box = t.lastBox();
    EXPECT_EQ(box.title, "Couldn't find file");
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.text,
              "I couldn't find the file c:\\tarvex\\Website.txt, which contains the location of the Tarvex Pro website "
              "(URL) and other sites listed in this menu. You need to create a text file for it, containing these "
              "URLs. In the meanwhile, I'll try connecting you to the default site.");
    EXPECT_THAT(system.opened, ElementsAre(std::string(builtInAddresses[3])));
}

TEST_F(WebLinks, EveryBuiltInAddressCanBeOpened)
{
    for (const std::string_view address : builtInAddresses) EXPECT_TRUE(opens(std::string(address))) << address;
}

TEST_F(WebLinks, APageOfTheHandbookIsOpenedWhereItIsInstalled)
{
    haveFile("file:tour.html\r\n");
    click(0);
    EXPECT_THAT(system.opened, ElementsAre("file:///usr/share/tarvex-help/handbook/tour.html"));
}

TEST_F(WebLinks, OtherSchemesFilesAndMetacharactersAreNotOpened)
{
    for (const char* line : {"",
                             "   ",
                             "javascript:alert(1)",
                             "JavaScript:alert(1)",
                             "file:///etc/passwd",
                             "file:../../etc/passwd",
                             "file:..\\x.html",
                             "file:.html",
                             "file:",
                             "file:a/b.html",
                             "file:page.html;ls",
                             "data:text/html,x",
                             "mailto:a@b.example",
                             "www.example.com",
                             "http://",
                             "http:///path",
                             "https://?x",
                             "http://a b.example/",
                             "http://a.example/`ls`",
                             "http://a.example/\"x",
                             "http://a.example/|x",
                             "http://a.example/<x>",
                             "http://a.example/\\x",
                             "http://-a.example",
                             "http://user@evil.example/",
                             "ftp://a.example/",
                             "http://a.example/\x01",
                             "http://d\xE9j\xE0.example/",
                             "ssh://a.example",
                             "http//a.example"})
        EXPECT_FALSE(opens(line)) << line;
    EXPECT_FALSE(opens("http://a.example/" + std::string(5000, 'a')));
}

TEST_F(WebLinks, TheBuiltInAddressesAreThePagesOfTheHandbookAndTheMakersSite)
{
    EXPECT_EQ(builtInAddresses[3], "https://support.thrustmaster.com/");
    for (const std::string_view address : builtInAddresses) {
        if (!address.starts_with("file:")) continue;
        const std::string page(address.substr(5, address.rfind('.') - 5));
        EXPECT_TRUE(address.ends_with(".html")) << address;
        EXPECT_TRUE(std::filesystem::exists(TARVEX_SOURCE_DIRECTORY "/resources/help/" + page + ".md")) << address;
    }
}

TEST_F(WebLinks, HostsAndPagesConsistOfTheirLettersOnly)
{
    for (const std::string line :
         {"http://a.example:80/x", "http://0a-9.z/", "HTTPS://a.example", "http://a.example/~x!@&()*+,;=%$#[1]:?_",
          "http://a.example?q", "http://a.example#f"})
        EXPECT_TRUE(opens(line)) << line;
    for (const std::string line : {"http://a_b.example/", "http://a.exa[mple/", "http://.example/", "http://:80/",
                                   "http://a.example/{x}", "http://a.example/^", "http://a.example/'"})
        EXPECT_FALSE(opens(line)) << line;
    const std::string start = "http://a.example/";
    EXPECT_TRUE(opens(start + std::string(2000 - start.size(), 'a')));
    EXPECT_FALSE(opens(start + std::string(2001 - start.size(), 'a')));
}

TEST_F(WebLinks, ALineThatIsNoAddressIsShownAndNotOpened)
{
    haveFile("javascript:alert(1)\r\n");
    click(0);
    EXPECT_TRUE(system.opened.empty());
    EXPECT_EQ(t.lastBox().title, "Ooops!");
    EXPECT_EQ(t.lastBox().text,
              "This isn't an address that I can open: \"javascript:alert(1)\". An address begins with "
              "http:// or https://, one on each line of Website.txt.");
    click(4);
    EXPECT_EQ(t.dialogues.boxes.size(), 2U) << "a file with too few lines";
}

TEST_F(WebLinks, ASystemWithoutABrowserSaysSo)
{
    system.hasBrowser = false;
    haveFile("http://a.example/");
    click(0);
    EXPECT_EQ(t.lastBox().text, "I couldn't find a browser that opens http://a.example/");
}

TEST_F(WebLinks, AFileThatCanNotBeReadIsReportedUnderItsTag)
{
    haveFile("http://a.example/");
    t.files.failReads("c:\\tarvex\\Website.txt", RuntimeError(ErrorCode::PermissionDenied, "Permission denied"));
    click(0);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_mnuWebTarvex_Click");
    EXPECT_TRUE(system.opened.empty());
}

TEST_F(WebLinks, OfALineTheBlanksAroundTheAddressAreNotOfIt)
{
    haveFile(" \thttp://A.Z.example/ \t\r\n");
    click(0);
    EXPECT_THAT(system.opened, ElementsAre("http://A.Z.example/"));
}

TEST_F(WebLinks, OfALineThatIsNoAddressTwoHundredLettersAreShown)
{
    haveFile(std::string(300, 'x'));
    click(0);
    EXPECT_THAT(t.lastBox().text, testing::StartsWith("This isn't an address that I can open: \"" +
                                                      std::string(200, 'x') + "\". An address"));
}

} // namespace
} // namespace tarvex
