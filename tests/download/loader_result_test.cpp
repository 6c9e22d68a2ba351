#include "download/loader_result.h"

#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

LoaderResult resultOf(const std::string& bytes, ErrorRecord* errors = nullptr)
{
    MemoryFiles files;
    files.addFile("c:\\tm\\winld.dat", bytes);
    ErrorRecord ignored;
    return readLoaderResult(files, "c:\\tm\\winld.dat", Steps(errors != nullptr ? *errors : ignored, "TAG"));
}

std::string statusOf(const std::string& bytes) { return resultOf(bytes).statusText(); }

TEST(LoaderResult, OfASuccessShowsTheSizeAsItStands)
{
    EXPECT_EQ(statusOf("WinLoad\r\nmig.b50\r\n1234\r\n"),
              "Compiled and downloaded successfully! (File size: 1234 bytes)");
    EXPECT_EQ(statusOf("\r\n\r\n 12 KB \r\nmore\r\n"),
              "Compiled and downloaded successfully! (File size:  12 KB  bytes)");
}

TEST(LoaderResult, OfAFailureShowsLineAndMessage)
{
    const LoaderResult result = resultOf("WinLoad\r\nERROR\r\n27\r\nUnknown statement\r\n");
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.errorLine, 27);
    EXPECT_EQ(result.statusText(), "Compiler reported an error at line 27: Unknown statement");
}

TEST(LoaderResult, LowerCaseErrorIsNoFailure)
{
    EXPECT_FALSE(resultOf("error\r\nError\r\n99\r\n").failed);
    EXPECT_EQ(statusOf("error\r\n\r\n99\r\n"), "Compiled and downloaded successfully! (File size: 99 bytes)");
}

TEST(LoaderResult, UpperCaseErrorInsideAFileNameIsAFailureToo)
{
    EXPECT_TRUE(resultOf("WinLoad\r\nc:\\TERRORS.B50\r\n99\r\n").failed);
    EXPECT_TRUE(resultOf("1\r\n2\r\n3\r\n4\r\n5\r\nlate ERROR").failed);
}

TEST(LoaderResult, AThirdLineOfZeroOrNoNumberHasNoErrorLine)
{
    for (const std::string third : {"0", "", "none", "-", ".", "0.9", "x27"}) {
        const LoaderResult result = resultOf("a\r\nERROR\r\n" + third + "\r\nNo macro file\r\n");
        EXPECT_EQ(result.errorLine, 0) << third;
        EXPECT_EQ(result.statusText(), "Compiler reported the following error: No macro file") << third;
    }
}

TEST(LoaderResult, ZerosInFrontOfTheErrorLineAreLeftOut)
{
    EXPECT_EQ(statusOf("a\r\nERROR\r\n027\r\nm\r\n"), "Compiler reported an error at line 27: m");
}

TEST(LoaderResult, ANumberAbove32767OverflowsAndLeavesTheErrorWithoutALine)
{
    EXPECT_EQ(resultOf("a\r\nERROR\r\n32767\r\nm\r\n").errorLine, 32767);
    ErrorRecord errors;
    const LoaderResult result = resultOf("a\r\nERROR\r\n32768\r\nm\r\n", &errors);
    EXPECT_EQ(result.errorLine, 0);
    EXPECT_EQ(result.statusText(), "Compiler reported the following error: m");
    EXPECT_EQ(errors.ErrorNumber, 6);
    EXPECT_EQ(errors.ErrorDescription, "Overflow");
    EXPECT_EQ(errors.ErrorProcedure, "TAG");
}

TEST(LoaderResult, FewerLinesThanAskedForKeepWhatWasRead)
{
    ErrorRecord errors;
    EXPECT_EQ(resultOf("a\r\nERROR\r\n27", &errors).statusText(), "Compiler reported an error at line 27: ");
    EXPECT_EQ(errors.ErrorNumber, 62);
    EXPECT_EQ(statusOf("ERROR"), "Compiler reported the following error: ");
    EXPECT_EQ(statusOf("a\r\nb\r\n"), "Compiled and downloaded successfully! (File size:  bytes)");
    EXPECT_EQ(statusOf(""), "Compiled and downloaded successfully! (File size:  bytes)");
}

TEST(LoaderResult, LinesMayEndAtReturnOrLineFeedAlone)
{
    for (const std::string end : {"\r\n", "\r", "\n"}) {
        EXPECT_EQ(statusOf("a" + end + end + "321" + end),
                  "Compiled and downloaded successfully! (File size: 321 bytes)");
        EXPECT_EQ(statusOf("ERROR" + end + end + "3" + end + "Oops"), "Compiler reported an error at line 3: Oops");
    }
}

TEST(LoaderResult, TextIsOfTheCodePage)
{
    EXPECT_EQ(resultOf("ERROR\r\n\r\n1\r\nUng\xFCltig\r\n").message, "Ung\xC3\xBCltig");
}

TEST(LoaderResult, OfAnUnreadableFileIsAnError)
{
    const MemoryFiles files;
    EXPECT_THROW(readLoaderResult(files, "c:\\winld.dat", Steps()), RuntimeError);
}

TEST(LoaderResultReader, GivesTheSameInPiecesOfAnySize)
{
    const std::string bytes = "a\r\n\r\r\n12 xERROR\nlast";
    for (std::size_t size = 1; size <= bytes.size(); ++size) {
        LoaderResultReader reader;
        for (std::size_t at = 0; at < bytes.size(); at += size) reader.take(std::string_view(bytes).substr(at, size));
        reader.finish();
        EXPECT_TRUE(reader.hasError()) << size;
        EXPECT_EQ(reader.line(1), "a") << size;
        EXPECT_EQ(reader.line(2), "") << size;
        EXPECT_EQ(reader.line(3), "") << size;
        EXPECT_EQ(reader.line(4), "12 xERROR") << size;
    }
}

TEST(LoaderResultReader, KeepsLittleOfAHundredMegabytesAndStillFindsTheErrorAtTheirEnd)
{
    LoaderResultReader reader;
    const std::string piece(1 << 20, 'x');
    for (int i = 0; i < 100; ++i) reader.take(piece);
    EXPECT_FALSE(reader.hasError());
    reader.take("\r\nERR");
    reader.take("OR");
    reader.finish();
    EXPECT_TRUE(reader.hasError());
    EXPECT_EQ(reader.line(1).size(), LoaderResultReader::longestLine);
    EXPECT_EQ(reader.line(2), "ERROR");
    try {
        (void)reader.line(3);
        ADD_FAILURE() << "there are two lines";
    } catch (const RuntimeError& error) {
        EXPECT_STREQ(error.what(), "Input past end of file");
    }
}

TEST(LeadingNumber, IsCutToAWholeNumber)
{
    EXPECT_EQ(leadingNumber("27"), 27);
    EXPECT_EQ(leadingNumber("  27: x"), 27);
    EXPECT_EQ(leadingNumber("27.9"), 27);
    EXPECT_EQ(leadingNumber("-3.9"), -3);
    EXPECT_EQ(leadingNumber("+8"), 8);
    EXPECT_EQ(leadingNumber("32767.9"), 32767);
    EXPECT_EQ(leadingNumber("-32768"), -32768);
    EXPECT_EQ(leadingNumber("inf"), 0);
    EXPECT_THROW(leadingNumber("-32769"), RuntimeError);
    EXPECT_THROW(leadingNumber("1e999"), RuntimeError);
}

TEST(LoaderResult, ALineEndAtTheEndBeginsNoFurtherLine)
{
    ErrorRecord errors;
    resultOf("WinLoad\r\nERROR\r\n27\r\n", &errors);
    EXPECT_EQ(errors.ErrorProcedure, "TAG");
    EXPECT_EQ(errors.ErrorDescription, "Input past end of file");
    errors = {};
    resultOf("WinLoad\r\nERROR\r\n27\r\nx", &errors);
    EXPECT_EQ(errors.ErrorProcedure, "");
}

TEST(LeadingNumber, BeginsWithADigitOrWithItsPoint)
{
    for (const char* none : {"inf", "nan", "-inf", ".", "-.", ".x", "..5", "e5", "/5", ":5", "+-5", "#5"})
        EXPECT_EQ(leadingNumber(none), 0) << none;
    EXPECT_EQ(leadingNumber("+.9e1"), 9);
    EXPECT_EQ(leadingNumber("0x1F"), 0);
    EXPECT_EQ(leadingNumber("9"), 9);
}

TEST(LoaderResult, OfAnEarlierPieceThatHoldsAnErrorStaysAFailure)
{
    LoaderResultReader reader;
    reader.take("WinLoad\r\nERROR\r\n27\r\n");
    reader.take("Unknown statement\r\n");
    reader.finish();
    EXPECT_TRUE(reader.hasError());
    EXPECT_THROW((void)reader.line(5), RuntimeError);
}

} // namespace
} // namespace tarvex
