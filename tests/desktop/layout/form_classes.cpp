#include "form_classes.h"

#include "desktop/text.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace tarvex {

std::set<std::string> formClasses()
{
    std::set<std::string> classes;
    const QRegularExpression form("class (\\w+)(?: final)? : public (\\w*FormWindow|AnalyserWindow)");
    std::set<std::string> bases;
    QDirIterator files(TARVEX_SOURCE_DIRECTORY "/src/desktop", {"*.h", "*.cpp"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (auto found = form.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            classes.insert("tarvex::" + fromQt(match.captured(1)));
            bases.insert("tarvex::" + fromQt(match.captured(2)));
        }
    }
    for (const std::string& base : bases) classes.erase(base);
    return classes;
}

} // namespace tarvex
