#include <QApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include <unistd.h>

// Tests with a device file of our own description. Only umockdev's wrapper shows it: started without, the program
// starts itself anew in it.
int main(int argumentCount, char** arguments)
{
    const char* loaded = std::getenv("LD_PRELOAD");
    if (loaded == nullptr || std::string_view(loaded).find("umockdev") == std::string_view::npos) {
        char wrapper[] = "umockdev-wrapper";
        std::vector<char*> command{wrapper};
        command.insert(command.end(), arguments, arguments + argumentCount);
        command.push_back(nullptr);
        ::execvp(wrapper, command.data());
        std::perror(wrapper);
        return EXIT_FAILURE;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
