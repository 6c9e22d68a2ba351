// What the windows are made of, compared with a list for each in tests/data/windows: how their widgets are nested,
// captions, tips, keys, what screen readers say, and everything else that was set. And how they look, compared with
// small pictures in tests/data/window_pictures, and with QT_SCALE_FACTOR=2 in tests/data/window_pictures_2x. With
// TARVEX_UPDATE_TEXTS set they are written instead; read the difference before committing it.

#include "window_list.h"
#include "window_picture.h"
#include "window_walk.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QMetaEnum>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

namespace tarvex {
namespace {

/// The clock and the version change by themselves.
QString withoutTimeAndVersion(QString list)
{
    list.replace(QRegularExpression(QStringLiteral("(Minute QTimer: .*)interval \\d+")),
                 QStringLiteral("\\1interval ..."));
    list.replace(QRegularExpression(QStringLiteral("\"\\d\\d:\\d\\d\"")), QStringLiteral("\"--:--\""));
    return list.replace(QRegularExpression(QStringLiteral("\"Version [\\d.]+\"")), QStringLiteral("\"Version ...\""));
}

/// Takes list and pictures of each kind of window the first time that it comes up.
class ListWalk : public WindowWalk {
public:
    ListWalk()
    {
        m_desktop.appearance->choose(Appearance::Theme::Light);
        QApplication::processEvents(); // widgets learn of another palette by an event
    }

    std::map<QString, QString> lists;   ///< by the kind of window
    std::map<QString, QImage> pictures; ///< by that name and a number from 0

private:
    void look(QWidget& window) override
    {
        const std::string name = className(window);
        const std::string ours = "tarvex::";
        if (!name.starts_with(ours)) return;
        const QString kind = kindOf(window, toQt(name.substr(ours.size())));
        if (!lists.contains(kind)) lists[kind] = withoutTimeAndVersion(m_list.of(window));
        if (m_firstCommands.try_emplace(kind, command()).first->second == command()) takePicture(kind, window);
    }

    /// The class, and the name behind it for further windows of that class.
    QString kindOf(const QWidget& window, const QString& className)
    {
        const QString first = m_firstNames.try_emplace(className, window.objectName()).first->second;
        return first == window.objectName() ? className : className + u'-' + window.objectName();
    }

    /// Most looks are at a page that has been seen before.
    void takePicture(const QString& kind, QWidget& window)
    {
        const QImage picture = reducedPicture(window);
        int number = 0;
        for (; pictures.contains(kind + QString::number(number)); ++number)
            if (differentSquares(picture, pictures[kind + QString::number(number)]).isEmpty()) return;
        pictures[kind + QString::number(number)] = picture;
    }

    PlainWidgets m_plain;
    WindowList m_list{m_plain};
    std::map<QString, QString> m_firstNames;        ///< of windows, by class
    std::map<QString, std::string> m_firstCommands; ///< that showed a window of the kind
};

const QString listFolder = QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/windows/");

/// With QT_SCALE_FACTOR=2 the windows look as on a screen with twice the pixels.
bool isSharp() { return qApp->devicePixelRatio() > 1; }

QString pictureFolder()
{
    return QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/") +
           (isSharp() ? QStringLiteral("window_pictures_2x/") : QStringLiteral("window_pictures/"));
}

const QString coloursFile = QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/appearances.txt");

/// A line for each colour of each appearance.
QString coloursOfAppearances()
{
    constexpr QPalette::ColorRole roles[] = {QPalette::Window,
                                             QPalette::WindowText,
                                             QPalette::Base,
                                             QPalette::AlternateBase,
                                             QPalette::Text,
                                             QPalette::Button,
                                             QPalette::ButtonText,
                                             QPalette::ToolTipBase,
                                             QPalette::ToolTipText,
                                             QPalette::Highlight,
                                             QPalette::HighlightedText,
                                             QPalette::Link,
                                             QPalette::PlaceholderText};
    const std::pair<const char*, QPalette> palettes[] = {
        {"light", lightPalette()}, {"dark", darkPalette()}, {"high contrast", highContrastPalette()}};
    const std::pair<const char*, QPalette::ColorGroup> groups[] = {{"", QPalette::Active},
                                                                   {"disabled ", QPalette::Disabled}};
    const QMetaEnum names = QMetaEnum::fromType<QPalette::ColorRole>();
    QString list;
    for (const auto& [appearance, palette] : palettes)
        for (const auto& [groupName, group] : groups)
            for (const QPalette::ColorRole role : roles)
                list += QStringLiteral("%1: %2%3 %4\n")
                            .arg(QLatin1String(appearance), QLatin1String(groupName),
                                 QLatin1String(names.valueToKey(role)), palette.color(group, role).name());
    return list;
}

void makeAnew(const QString& folder)
{
    QDir(folder).removeRecursively();
    ASSERT_TRUE(QDir().mkpath(folder));
}

void writePictures(const ListWalk& walk)
{
    makeAnew(pictureFolder());
    for (const auto& [name, picture] : walk.pictures)
        ASSERT_TRUE(picture.save(pictureFolder() + name + QStringLiteral(".png")));
}

void writeLists(const ListWalk& walk)
{
    QFile colours(coloursFile);
    ASSERT_TRUE(colours.open(QIODevice::WriteOnly));
    colours.write(coloursOfAppearances().toUtf8());
    makeAnew(listFolder);
    for (const auto& [window, list] : walk.lists) {
        QFile file(listFolder + window + QStringLiteral(".txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(list.toUtf8());
    }
}

/// With a font whose widths are the same on every machine: some sizes are so many characters.
class WindowTexts : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        before = QApplication::font();
        QFont font(QStringLiteral("Liberation Sans"), 9);
        font.setHintingPreference(QFont::PreferNoHinting);
        ASSERT_EQ(fromQt(QFontInfo(font).family()), "Liberation Sans") << "the package fonts-liberation has it";
        QApplication::setFont(font);
        walk = std::make_unique<ListWalk>();
        walk->run();
        if (!qEnvironmentVariableIsSet("TARVEX_UPDATE_TEXTS")) return;
        writePictures(*walk);
        if (!isSharp()) writeLists(*walk);
    }
    void SetUp() override { ASSERT_NE(walk, nullptr); }
    static void TearDownTestSuite()
    {
        walk.reset();
        QApplication::setFont(before);
    }

    static inline QFont before;
    static inline std::unique_ptr<ListWalk> walk;
};

TEST_F(WindowTexts, AreThoseOfTheLists)
{
    for (const auto& [window, list] : walk->lists) {
        QFile file(listFolder + window + QStringLiteral(".txt"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no list for the window " << fromQt(window);
        EXPECT_EQ(fromQt(list), file.readAll().toStdString()) << fromQt(window);
    }
    for (const QString& list : QDir(listFolder).entryList(QDir::Files)) {
        EXPECT_TRUE(walk->lists.contains(list.chopped(4))) << "no command led to the window of " << fromQt(list);
    }
}

TEST_F(WindowTexts, LookAsTheirPicturesDo)
{
    for (const auto& [name, picture] : walk->pictures) {
        const QImage wanted(pictureFolder() + name + QStringLiteral(".png"));
        const QStringList different = differentSquares(picture, wanted.convertToFormat(QImage::Format_RGB32));
        EXPECT_EQ(fromQt(different.join(u'\n')), "") << "of squares with 8 pixels a side in " << fromQt(name);
    }
    for (const QString& name : QDir(pictureFolder()).entryList(QDir::Files)) {
        EXPECT_TRUE(walk->pictures.contains(name.chopped(4))) << "nothing is like " << fromQt(name);
    }
}

TEST_F(WindowTexts, AppearancesHaveTheColoursOfTheirList)
{
    QFile file(coloursFile);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(fromQt(coloursOfAppearances()), file.readAll().toStdString());
}

// ---- what the look at a window notices ------------------------------------------------------------------------------

TEST(DifferentSquares, AnEdgeThatIsAPixelOffIsNoneAndOneThatIsTwoOffIs)
{
    const auto withEdgeAt = [](int x) {
        QImage image(32, 32, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int y = 0; y < 32; ++y)
            for (int at = 0; at < x; ++at) image.setPixelColor(at, y, Qt::black);
        return image.scaled(4, 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    EXPECT_EQ(differentSquares(withEdgeAt(12), withEdgeAt(13)).size(), 0);
    EXPECT_EQ(differentSquares(withEdgeAt(12), withEdgeAt(14)).size(), 4);
    EXPECT_EQ(
        fromQt(differentSquares(QImage(3, 1, QImage::Format_RGB32), QImage(3, 2, QImage::Format_RGB32)).join(u' ')),
        "3 x 1 squares and not 3 x 2");
}

} // namespace
} // namespace tarvex
