#include "templates/shipped_templates.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ShippedTemplates : testing::Test {
    TestMachine machine;
    int reads = 0;

    void copy()
    {
        copyShippedTemplates(machine.platform, [this] {
            ++reads;
            return std::vector<ShippedTemplate>{{"hat.rtf", "{\\rtf1 hat}"}, {"hat.txt", "hat"}};
        });
    }
};

TEST_F(ShippedTemplates, ComeIntoTheTemplatesFolderAtTheFirstStart)
{
    copy();
    EXPECT_EQ(machine.fileText("c:\\tarvex\\Templates\\hat.rtf"), "{\\rtf1 hat}");
    EXPECT_EQ(machine.fileText("c:\\tarvex\\Templates\\hat.txt"), "hat");
}

TEST_F(ShippedTemplates, AFileOfTheUserWithTheNameOfOneStays)
{
    machine.files.addDirectory("c:\\tarvex\\templates");
    machine.files.addFile("c:\\tarvex\\templates\\HAT.TXT", "my own");
    copy();
    EXPECT_EQ(machine.fileText("c:\\tarvex\\templates\\HAT.TXT"), "my own");
    EXPECT_EQ(machine.fileText("c:\\tarvex\\templates\\hat.rtf"), "{\\rtf1 hat}");
}

TEST_F(ShippedTemplates, WhatTheUserRemovedDoesNotComeBack)
{
    copy();
    machine.files.removeFile("c:\\tarvex\\Templates\\hat.rtf");
    copy();
    EXPECT_FALSE(machine.files.fileExists("c:\\tarvex\\Templates\\hat.rtf"));
    EXPECT_EQ(reads, 1);
}

TEST_F(ShippedTemplates, WhatCouldNotBeWrittenIsTriedAgainAtTheNextStart)
{
    const std::string path = "c:\\tarvex\\Templates\\hat.txt";
    machine.files.failWrites(path, RuntimeError(ErrorCode::DiskFull, "Disk full"));
    copy();
    EXPECT_FALSE(machine.files.fileExists(path));
    EXPECT_EQ(machine.fileText("c:\\tarvex\\Templates\\hat.rtf"), "{\\rtf1 hat}");
    machine.files.failWrites(path, std::nullopt);
    copy();
    EXPECT_EQ(machine.fileText(path), "hat");
}

} // namespace
} // namespace tarvex
