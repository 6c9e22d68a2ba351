#include "platform/posix/program_file.h"

#include "platform/errors.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The head of a program for DOS, with a header of another kind behind it.
std::string dosProgram(const std::string& mark = "", std::size_t place = 0x80)
{
    std::string bytes(0x40, '\0');
    bytes[0] = 'M';
    bytes[1] = 'Z';
    bytes[0x3C] = static_cast<char>(place);
    bytes.resize(0x80, '\0');
    return bytes + mark;
}

ProgramKind kindOf(const std::string& name, const std::string& bytes)
{
    const TemporaryDirectory disk;
    return kindOfProgram(disk.put(name, bytes));
}

TEST(KindOfProgram, IsDecidedByTheContentsAndNotByTheName)
{
    EXPECT_EQ(kindOf("winld.exe", "\x7F"
                                  "ELF\2"),
              ProgramKind::Native);
    EXPECT_EQ(kindOf("b50load.exe", "#!/bin/sh\n"), ProgramKind::Native);
    EXPECT_EQ(kindOf("a.com", dosProgram("PE")), ProgramKind::Windows);
    EXPECT_EQ(kindOf("a.bat", dosProgram("NE")), ProgramKind::Windows);
    EXPECT_EQ(kindOf("a.exe", dosProgram()), ProgramKind::Dos);
    EXPECT_EQ(kindOf("a.exe", "ZM"), ProgramKind::Dos);
}

TEST(KindOfProgram, ProgramsOfDosExtendersAreForDos)
{
    EXPECT_EQ(kindOf("a.exe", dosProgram("LE")), ProgramKind::Dos);
    EXPECT_EQ(kindOf("a.exe", dosProgram("LX")), ProgramKind::Dos);
}

TEST(KindOfProgram, AHeaderThatPointsNowhereMakesADosProgram)
{
    std::string bytes = dosProgram();
    bytes.replace(0x3C, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_EQ(kindOf("a.exe", bytes), ProgramKind::Dos);
    EXPECT_EQ(kindOf("a.exe", "MZ"), ProgramKind::Dos);
}

TEST(KindOfProgram, TheHeaderMayStandAnywhereInTheFile)
{
    std::string bytes = dosProgram();
    bytes.replace(0x3C, 4, std::string("\x34\x12\x01\x00", 4));
    bytes.resize(0x11234, '\0');
    EXPECT_EQ(kindOf("a.exe", bytes + "PE"), ProgramKind::Windows);
    EXPECT_EQ(kindOf("a.exe", bytes + "P"), ProgramKind::Dos) << "cut short";
    EXPECT_EQ(kindOf("a.exe", bytes + "\x01PE"), ProgramKind::Dos);
}

TEST(KindOfProgram, AHeadWithoutRoomForAPlaceMakesADosProgram)
{
    std::string bytes = dosProgram("PE");
    EXPECT_EQ(kindOf("a.exe", bytes.substr(0, 0x3F)), ProgramKind::Dos);
    bytes.replace(0x3C, 4, std::string("\0\0\0\0", 4));
    bytes.replace(0, 2, "MZ");
    EXPECT_EQ(kindOf("a.exe", bytes.substr(0, 0x40)), ProgramKind::Dos);
}

TEST(KindOfProgram, AppletsAreForTheControlPanel)
{
    EXPECT_EQ(kindOf("TM.CPL", dosProgram("PE")), ProgramKind::ControlPanel);
}

TEST(KindOfProgram, PlainProgramsAndBatchesAreRecognisedByTheirNames)
{
    EXPECT_EQ(kindOf("A.COM", "\xB4\x4C"), ProgramKind::Dos);
    EXPECT_EQ(kindOf("tm.Bat", "@echo off\r\n"), ProgramKind::DosBatch);
    EXPECT_EQ(kindOf("empty.com", ""), ProgramKind::Dos);
}

TEST(KindOfProgram, OtherFilesAreNoPrograms)
{
    EXPECT_THROW(kindOf("a.txt", "hello"), RuntimeError);
    EXPECT_THROW(kindOf("a.exe", "hello"), RuntimeError);
    EXPECT_THROW(kindOf("noextension", ""), RuntimeError);
}

} // namespace
} // namespace tarvex
