// What stands in the windows: captions, tips, items, keys, and what screen readers say, compared with a list for each
// window in tests/data/windows. With TARVEX_UPDATE_TEXTS set the lists are written instead; read the difference before
// committing it.

#include "window_walk.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabWidget>

#include <gtest/gtest.h>

#include <map>

namespace tarvex {
namespace {

QString textOf(const QWidget& widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->placeholderText();
    QStringList items;
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < box->count(); ++i) items.append(box->itemText(i));
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) items.append(tabs->tabText(i));
    }
    return items.join(u" | ");
}

/// A line such as `Command1 "OK", tip "..."`; nothing without any text.
class Line {
public:
    Line& add(const char* kind, QString text)
    {
        if (!text.isEmpty()) m_line += QLatin1String(kind) + u'"' + text.replace(u'\n', QStringLiteral("\\n")) + u'"';
        return *this;
    }
    QString of(const QObject& owner) const { return m_line.isEmpty() ? m_line : owner.objectName() + m_line + u'\n'; }

private:
    QString m_line;
};

QString lineOf(const QWidget& widget)
{
    Line line;
    line.add(" ", textOf(widget)).add(", tip ", widget.toolTip()).add(", spoken ", widget.accessibleName());
    return line.add(", described as ", widget.accessibleDescription()).of(widget);
}

QString lineOf(const QAction& action)
{
    Line line;
    line.add(" ", action.text()).add(", keys ", action.shortcut().toString(QKeySequence::PortableText));
    if (action.toolTip() != action.iconText()) line.add(", tip ", action.toolTip());
    return line.of(action);
}

/// The clock and the version change by themselves.
QString withoutTimeAndVersion(QString texts)
{
    texts.replace(QRegularExpression(QStringLiteral("\"\\d\\d:\\d\\d\"")), QStringLiteral("\"--:--\""));
    return texts.replace(QRegularExpression(QStringLiteral("\"Version [\\d.]+\"")), QStringLiteral("\"Version ...\""));
}

QString textsOf(const QWidget& window)
{
    QString texts = QStringLiteral("\"%1\"\n").arg(window.windowTitle());
    for (const QWidget* widget : window.findChildren<QWidget*>()) texts += lineOf(*widget);
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (!action->objectName().isEmpty()) texts += lineOf(*action);
    }
    return withoutTimeAndVersion(texts);
}

/// Takes the texts of each kind of window as it is first seen.
class TextWalk : public WindowWalk {
public:
    std::map<QString, QString> texts; ///< by the name of the window's class

private:
    void look(QWidget& window) override
    {
        const std::string name = className(window);
        const std::string ours = "tarvex::";
        if (name.starts_with(ours)) texts.try_emplace(toQt(name.substr(ours.size())), textsOf(window));
    }
};

const QString lists = QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/windows/");

void writeLists(const std::map<QString, QString>& texts)
{
    QDir(lists).removeRecursively();
    ASSERT_TRUE(QDir().mkpath(lists));
    for (const auto& [window, text] : texts) {
        QFile file(lists + window + QStringLiteral(".txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
}

TEST(WindowTexts, AreThoseOfTheLists)
{
    TextWalk walk;
    walk.run();
    if (qEnvironmentVariableIsSet("TARVEX_UPDATE_TEXTS")) writeLists(walk.texts);
    for (const auto& [window, text] : walk.texts) {
        QFile file(lists + window + QStringLiteral(".txt"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no list for the window " << fromQt(window);
        EXPECT_EQ(fromQt(text), file.readAll().toStdString()) << fromQt(window);
    }
    for (const QString& list : QDir(lists).entryList(QDir::Files)) {
        EXPECT_TRUE(walk.texts.contains(list.chopped(4))) << "no command led to the window of " << fromQt(list);
    }
}

} // namespace
} // namespace tarvex
