#include "platform/profile_file.h"

#include "platform/windows1252.h"
#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace tarvex {

namespace {

using namespace std::string_literals;

constexpr auto path = "c:\\Tarvex.ini";

struct Profile : testing::Test {
    MemoryFiles files;
    ProfileFile ini{files, path};

    void fileHolds(const std::string& bytes) { files.addFile(path, bytes); }
    std::string bytes() const { return files.contents(path).value_or("(no file)"); }
    std::string read(const std::string& key, std::size_t buffer = 100) const
    {
        return ini.readString("Games", key, "default", buffer);
    }
    void write(const std::string& key, const std::string& value) { ini.writeString("Games", key, value); }
};

} // namespace

TEST_F(Profile, MissingFileGivesTheDefaults)
{
    EXPECT_EQ(ini.readString("Games", "Key", "default"), "default");
    EXPECT_EQ(ini.readInt("Games", "Key", 7), 7);
    EXPECT_EQ(bytes(), "(no file)");
}

TEST_F(Profile, MissingSectionOrKeyGivesTheDefault)
{
    fileHolds("[Other]\r\nKey=1\r\n[Games]\r\nOther=2\r\n");
    EXPECT_EQ(read("Key"), "default");
    EXPECT_EQ(ini.readString("None", "Key", "default"), "default");
}

TEST_F(Profile, DefaultIsStrippedAndCutLikeAValue)
{
    EXPECT_EQ(ini.readString("Games", "Key", " \"abcdef\" ", 4), "abc");
}

TEST_F(Profile, EmptyValueIsNotTheDefault)
{
    fileHolds("[Games]\r\nKey=\r\n");
    EXPECT_EQ(read("Key"), "");
}

TEST_F(Profile, SectionAndKeyMatchInAnyCaseAndWithBlanksAround)
{
    fileHolds(" [ gAMES ] \r\n \tKEY \t= value \t\r\n");
    EXPECT_EQ(read("Key"), "value");
    EXPECT_EQ(ini.readString(" Games ", " key ", ""), "value");
}

TEST_F(Profile, NamesWithAccentsMatchInAnyCaseAndEncoding)
{
    fileHolds("[\xC4]\r\n\xC3\x96=1\r\n");
    EXPECT_EQ(ini.readString("\u00E4", "\u00F6", ""), "1");
}

TEST_F(Profile, NamesOfOneByteOfTheCodePageMatchTheirCharacter)
{
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        const std::string name(1, static_cast<char>(byte));
        fileHolds("[" + name + "]\r\n" + name + "=1\r\n");
        const std::string character = utf8FromWindows1252(name);
        EXPECT_EQ(ini.readString(character, character, "none"), "1") << byte;
    }
    fileHolds("[\x7F]\r\n\x7F=1\r\n");
    EXPECT_EQ(ini.readString("\x7F", "\x7F", ""), "1");
}

TEST_F(Profile, NameOfTheFirstByteBeyondAsciiMatchesItsCharacter)
{
    fileHolds("[Games]\r\n\x80=1\r\n");
    EXPECT_EQ(read("\xE2\x82\xAC"), "1");
}

TEST_F(Profile, OnePairOfMatchingQuotesIsStripped)
{
    fileHolds("[Games]\r\na=\"x\"\r\nb='x'\r\nc=\"\"x\"\"\r\nd=\"x'\r\ne=\"\r\nf=\" x \"\r\ng=x\"\r\nh=\"\"\r\n");
    EXPECT_EQ(read("a"), "x");
    EXPECT_EQ(read("b"), "x");
    EXPECT_EQ(read("c"), "\"x\"");
    EXPECT_EQ(read("d"), "\"x'");
    EXPECT_EQ(read("e"), "\"");
    EXPECT_EQ(read("f"), " x ");
    EXPECT_EQ(read("g"), "x\"");
    EXPECT_EQ(read("h"), "");
}

TEST_F(Profile, BufferOfNKeepsNMinusOneCharacters)
{
    fileHolds("[Games]\r\nshort=" + std::string(99, 'x') + "\r\nlong=" + std::string(100, 'x') + "\r\n");
    EXPECT_EQ(read("short").size(), 99U);
    EXPECT_EQ(read("long").size(), 99U);
    EXPECT_EQ(read("long", 101).size(), 100U);
    EXPECT_EQ(read("long", 10).size(), 9U);
    EXPECT_EQ(read("long", 1), "");
    EXPECT_EQ(read("long", 0), "");
}

TEST_F(Profile, BufferCountsCharactersNotBytes)
{
    fileHolds("[Games]\r\na=\xE4\xF6\xFC\r\nb=\u00E4\u00F6\u00FC\r\n");
    EXPECT_EQ(read("a", 3), "\u00E4\u00F6");
    EXPECT_EQ(read("b", 3), "\u00E4\u00F6");
}

TEST_F(Profile, CommentIsNoKeyAndIsKept)
{
    fileHolds("[Games]\r\n;Key=1\r\n ; Key=2\r\n");
    EXPECT_EQ(read("Key"), "default");
    EXPECT_EQ(read(";Key"), "default");
    write("Key", "3");
    EXPECT_EQ(bytes(), "[Games]\r\n;Key=1\r\n ; Key=2\r\nKey=3\r\n");
}

TEST_F(Profile, FirstSectionAndFirstKeyWin)
{
    fileHolds("[Games]\nA=1\nA=2\n[Games]\nA=3\nB=4\n");
    EXPECT_EQ(read("A"), "1");
    EXPECT_EQ(read("B"), "default");
    write("A", "5");
    EXPECT_EQ(bytes(), "[Games]\nA=5\nA=2\n[Games]\nA=3\nB=4\n");
}

TEST_F(Profile, ReadIntTakesTheLeadingDigits)
{
    fileHolds("[Games]\na=12x\nb= -7\nc=+7\nd=x12\ne=\nf=\" 9\"\ng=- 5\nh=0x10\ni=00012.9\n");
    EXPECT_EQ(ini.readInt("Games", "a", 3), 12);
    EXPECT_EQ(ini.readInt("Games", "b", 3), -7);
    EXPECT_EQ(ini.readInt("Games", "c", 3), 7);
    EXPECT_EQ(ini.readInt("Games", "d", 3), 0);
    EXPECT_EQ(ini.readInt("Games", "e", 3), 3);
    EXPECT_EQ(ini.readInt("Games", "f", 3), 9);
    EXPECT_EQ(ini.readInt("Games", "g", 3), 0);
    EXPECT_EQ(ini.readInt("Games", "h", 3), 0);
    EXPECT_EQ(ini.readInt("Games", "i", 3), 12);
}

TEST_F(Profile, ReadIntBeyondThirtyTwoBitsWrapsAround)
{
    fileHolds("[Games]\na=2147483647\nb=2147483648\nc=4294967296\nd=-2147483648\ne=-2147483649\n");
    EXPECT_EQ(ini.readInt("Games", "a", 0), 2147483647);
    EXPECT_EQ(ini.readInt("Games", "b", 0), -2147483647 - 1);
    EXPECT_EQ(ini.readInt("Games", "c", 9), 0);
    EXPECT_EQ(ini.readInt("Games", "d", 0), -2147483647 - 1);
    EXPECT_EQ(ini.readInt("Games", "e", 0), 2147483647);
}

TEST_F(Profile, WriteCreatesFileAndSectionWithWindowsLineEnds)
{
    write("Key", "1");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=1\r\n");
    ini.writeString("Colours", "BTNColour", "255");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=1\r\n[Colours]\r\nBTNColour=255\r\n");
}

TEST_F(Profile, WriteKeepsUnknownKeysCommentsOrderAndEachLineEnd)
{
    fileHolds("junk\n[Odd\n; note\r\nUnknown = 1\r[Games]\rKey =  old \nNext=2\r\n\r\n[Z]\nend");
    write("key", "new");
    EXPECT_EQ(bytes(), "junk\n[Odd\n; note\r\nUnknown = 1\r[Games]\rKey =  new\nNext=2\r\n\r\n[Z]\nend");
}

TEST_F(Profile, NewLineUsesThePrevailingLineEnd)
{
    fileHolds("[Games]\nA=1\nB=2\r\n");
    write("C", "3");
    EXPECT_EQ(bytes(), "[Games]\nA=1\nB=2\r\nC=3\n");
    fileHolds("[Games]\rA=1\r");
    write("C", "3");
    EXPECT_EQ(bytes(), "[Games]\rA=1\rC=3\r");
    fileHolds("[Games]\nA=1\r\n");
    write("C", "3");
    EXPECT_EQ(bytes(), "[Games]\nA=1\r\nC=3\r\n") << "as often as the other";
}

TEST_F(Profile, NewKeyGoesBeforeTheBlankLinesThatEndItsSection)
{
    fileHolds("[Games]\r\n\r\nA=1\r\n; last\r\n \r\n\r\n[Z]\r\n");
    write("B", "2");
    EXPECT_EQ(bytes(), "[Games]\r\n\r\nA=1\r\n; last\r\nB=2\r\n \r\n\r\n[Z]\r\n");
}

TEST_F(Profile, FileWithoutFinalLineEndGetsOneBeforeANewLine)
{
    fileHolds("[Games]\nA=1");
    EXPECT_EQ(read("A"), "1");
    write("A", "2");
    EXPECT_EQ(bytes(), "[Games]\nA=2");
    write("B", "3");
    EXPECT_EQ(bytes(), "[Games]\nA=2\nB=3\n");
}

TEST_F(Profile, LastLineKeepsItsMissingEndWhereTheNewLineGoesElsewhere)
{
    fileHolds("[Games]\nA=1\n[Z]\nend");
    write("B", "2");
    EXPECT_EQ(bytes(), "[Games]\nA=1\nB=2\n[Z]\nend");
}

TEST_F(Profile, FileWithoutAnySectionHasNoKeysAndSurvives)
{
    fileHolds("Key=1\r\njust text");
    EXPECT_EQ(read("Key"), "default");
    write("Key", "2");
    EXPECT_EQ(bytes(), "Key=1\r\njust text\r\n[Games]\r\nKey=2\r\n");
    EXPECT_EQ(read("Key"), "2");
}

TEST_F(Profile, NulBytesEndAValueAndSurvive)
{
    fileHolds("[Games]\r\nA=x\0y\r\n\0\0\r\nB=2\r\n"s);
    EXPECT_EQ(read("A"), "x");
    EXPECT_EQ(read("B"), "2");
    write("B", "3\0=4"s);
    EXPECT_EQ(bytes(), "[Games]\r\nA=x\0y\r\n\0\0\r\nB=3\r\n"s);
}

TEST_F(Profile, LineOfAMegabyteIsReadAndKept)
{
    const std::string large(1 << 20, 'x');
    fileHolds("[Games]\r\nA=" + large + "\r\n" + large + "\r\nB=2\r\n");
    EXPECT_EQ(read("A", 2 << 20), large);
    EXPECT_EQ(read("B"), "2");
    write("B", "3");
    EXPECT_EQ(bytes(), "[Games]\r\nA=" + large + "\r\n" + large + "\r\nB=3\r\n");
}

TEST_F(Profile, Utf8MarkDoesNotHideTheFirstSectionAndStays)
{
    fileHolds("\xEF\xBB\xBF[Games]\r\nA=\u00E9\r\n");
    EXPECT_EQ(read("A"), "\u00E9");
    write("A", "\u00E8");
    EXPECT_EQ(bytes(), "\xEF\xBB\xBF[Games]\r\nA=\u00E8\r\n") << "such a file holds UTF-8 only";
}

TEST_F(Profile, AccentsAreReadInBothEncodings)
{
    fileHolds("[Games]\r\na=caf\xE9\r\nb=caf\u00E9\r\n");
    EXPECT_EQ(read("a"), "caf\u00E9");
    EXPECT_EQ(read("b"), "caf\u00E9");
}

TEST_F(Profile, ValueIsWrittenInTheCodePageWhereThatReadsBack)
{
    write("a", "caf\u00E9");
    write("b", "\u0416");
    write("c", "\u00C3\u00A9"); // its two bytes in the code page would read as one character of UTF-8
    EXPECT_EQ(bytes(), "[Games]\r\na=caf\xE9\r\nb=\u0416\r\nc=\u00C3\u00A9\r\n");
    EXPECT_EQ(read("a"), "caf\u00E9");
    EXPECT_EQ(read("b"), "\u0416");
    EXPECT_EQ(read("c"), "\u00C3\u00A9");
}

TEST_F(Profile, ValueWithALineBreakIsCutThere)
{
    for (const std::string lineBreak : {"\r\n", "\n", "\r"}) {
        write("Key", "one" + lineBreak + "[Evil]" + lineBreak + "Key=2");
        EXPECT_EQ(bytes(), "[Games]\r\nKey=one\r\n");
    }
}

TEST_F(Profile, NamesThatWouldBreakTheFileAreCutOrRefused)
{
    ini.writeString("Games]x\r\n[y", "Key=1\r\nz", "2");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=2\r\n");
    for (const char* key : {"", " ", "=x", ";x", "[x]", "\nx"}) {
        write(key, "3");
        EXPECT_EQ(bytes(), "[Games]\r\nKey=2\r\n") << key;
        EXPECT_EQ(read(key), "default") << key;
    }
}

TEST_F(Profile, WritingAnEqualValueLeavesTheFileUntouched)
{
    fileHolds("[Games]\r\nKey = \"5\" \r\nName=\xE9\r\n");
    write("Key", "5");
    write("Name", "\u00E9");
    EXPECT_TRUE(files.writes().empty());
    write("Key", "6");
    EXPECT_EQ(files.writes().size(), 1U);
}

TEST_F(Profile, WrittenQuotesAreKeptInTheFileAndStrippedOnReading)
{
    write("Key", "\"a b\"");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=\"a b\"\r\n");
    EXPECT_EQ(read("Key"), "a b");
}

TEST_F(Profile, ChangedFileIsReadAgain)
{
    fileHolds("[Games]\r\nKey=1\r\n");
    EXPECT_EQ(read("Key"), "1");
    fileHolds("[Games]\r\nKey=2\r\nOther=3\r\n");
    EXPECT_EQ(read("Key"), "2");
    fileHolds("[Games]\r\nKey=4\r\nOther=5\r\n");
    write("Key", "6");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=6\r\nOther=5\r\n");
    files.removeFile(path);
    EXPECT_EQ(read("Key"), "default");
}

TEST_F(Profile, FileOfTheSameTimeAndSizeIsNotReadAgain)
{
    fileHolds("[Games]\r\nKey=1\r\n");
    EXPECT_EQ(read("Key"), "1");
    files.changeSecretly(path, "[Games]\r\nKey=2\r\n");
    EXPECT_EQ(read("Key"), "1");
}

TEST_F(Profile, BatchWritesOnceAtItsOutermostEnd)
{
    {
        const ProfileFile::Batch outer(ini);
        write("A", "1");
        {
            const ProfileFile::Batch inner(ini);
            write("B", "2");
        }
        EXPECT_TRUE(files.writes().empty());
        EXPECT_EQ(read("B"), "2") << "reads see what the batch holds";
    }
    ASSERT_EQ(files.writes().size(), 1U);
    EXPECT_EQ(bytes(), "[Games]\r\nA=1\r\nB=2\r\n");
    write("A", "3");
    EXPECT_EQ(files.writes().size(), 2U);
}

TEST_F(Profile, BatchWithoutAChangeWritesNothing)
{
    fileHolds("[Games]\r\nA=1\r\n");
    {
        const ProfileFile::Batch batch(ini);
        write("A", "1");
    }
    EXPECT_TRUE(files.writes().empty());
}

TEST_F(Profile, FailedWriteIsLostInSilenceAndTheFileCounts)
{
    fileHolds("[Games]\r\nA=1\r\n");
    files.failWrites(path, RuntimeError(ErrorCode::DiskFull, "Disk full"));
    EXPECT_NO_THROW(write("A", "2"));
    EXPECT_EQ(read("A"), "1");
    files.failWrites(path, std::nullopt);
    write("B", "3");
    EXPECT_EQ(bytes(), "[Games]\r\nA=1\r\nB=3\r\n");
}

TEST_F(Profile, UnreadableFileGivesDefaultsAndIsNeverWrittenOver)
{
    fileHolds("[Games]\r\nA=1\r\n");
    files.failReads(path, RuntimeError(ErrorCode::DeviceInputOutput, "Input/output error"));
    EXPECT_EQ(read("A"), "default");
    write("B", "2");
    EXPECT_EQ(bytes(), "[Games]\r\nA=1\r\n");
    files.failReads(path, std::nullopt);
    EXPECT_EQ(read("A"), "1");
}

TEST_F(Profile, MissingDirectoryLosesTheWriteInSilence)
{
    ProfileFile other(files, "c:\\none\\Tarvex.ini");
    EXPECT_NO_THROW(other.writeString("Games", "A", "1"));
    EXPECT_EQ(other.readString("Games", "A", "default"), "default");
}

// ---- UTF-16 ---------------------------------------------------------------------------------------------------------

namespace {

const std::string utf8Mark = "\xEF\xBB\xBF";
constexpr Utf16Order orders[] = {Utf16Order::LittleEndian, Utf16Order::BigEndian};

} // namespace

TEST_F(Profile, Utf16FileIsReadInBothOrders)
{
    for (const Utf16Order order : orders) {
        fileHolds(utf16FromUtf8(utf8Mark + "[Games]\r\nKey=caf\u00E9 \u0416\r\nNumber=12\r\n", order));
        EXPECT_EQ(read("Key"), "caf\u00E9 \u0416");
        EXPECT_EQ(ini.readInt("Games", "Number", 0), 12);
        EXPECT_EQ(ini.readStrings("Games", "Ke", 1, "none"), std::vector<std::string>{"none"});
    }
}

TEST_F(Profile, Utf16FileKeepsItsFormCommentsOrderAndLineEnds)
{
    const std::string before = utf8Mark + "; \u00E4 \u4E2D\n[Other]\rX=1\r\n[Games]\r\nUnknown=\U0001F600\r\nKey=1\r\n";
    for (const Utf16Order order : orders) {
        fileHolds(utf16FromUtf8(before, order));
        write("Key", "\u00FC\u0416");
        write("New", "2");
        const std::string after = utf8Mark + "; \u00E4 \u4E2D\n[Other]\rX=1\r\n[Games]\r\nUnknown=\U0001F600\r\n"
                                             "Key=\u00FC\u0416\r\nNew=2\r\n";
        EXPECT_EQ(bytes(), utf16FromUtf8(after, order));
        ProfileFile again(files, path);
        EXPECT_EQ(again.readString("Games", "Key", ""), "\u00FC\u0416");
    }
}

TEST_F(Profile, Utf16FileIsWrittenByUnitsOfTwoBytes)
{
    fileHolds("\xFF\xFE[\0A\0]\0\r\0\n\0"s);
    ini.writeString("A", "k", "\u20AC");
    EXPECT_EQ(bytes(), "\xFF\xFE[\0A\0]\0\r\0\n\0k\0=\0\xAC\x20\r\0\n\0"s);
    fileHolds("\xFE\xFF\0[\0A\0]"s);
    ini.writeString("A", "k", "\u20AC");
    EXPECT_EQ(bytes(), "\xFE\xFF\0[\0A\0]\0\r\0\n\0k\0=\x20\xAC\0\r\0\n"s);
}

TEST_F(Profile, Utf16FileWithAMarkAloneTakesItsFirstSection)
{
    fileHolds("\xFF\xFE");
    write("Key", "1");
    EXPECT_EQ(read("Key"), "1");
    EXPECT_EQ(bytes(), utf16FromUtf8(utf8Mark + "\r\n[Games]\r\nKey=1\r\n", Utf16Order::LittleEndian));
}

TEST_F(Profile, AfterAUtf16FileThatWasDeletedTheNextOneIsPlain)
{
    fileHolds(utf16FromUtf8(utf8Mark + "[Games]\r\nKey=1\r\n", Utf16Order::LittleEndian));
    EXPECT_EQ(read("Key"), "1");
    files.removeFile(path);
    write("Key", "2");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=2\r\n");
}

TEST_F(Profile, EqualValueLeavesAUtf16FileUntouched)
{
    fileHolds(utf16FromUtf8(utf8Mark + "[Games]\r\nKey=\u0416\r\n", Utf16Order::LittleEndian));
    write("Key", "\u0416");
    EXPECT_TRUE(files.writes().empty());
}

TEST_F(Profile, HalfASurrogatePairInAUtf16FileStays)
{
    const std::string head = "\xFF\xFE[\0G\0a\0m\0e\0s\0]\0\n\0;\0\x3D\xD8\n\0"s;
    fileHolds(head);
    write("K", "1");
    EXPECT_EQ(bytes(), head + "K\0=\0"
                              "1\0\n\0"s);
}

TEST_F(Profile, FileThatTurnsFromUtf16IntoBytesIsReadAsBytes)
{
    fileHolds(utf16FromUtf8(utf8Mark + "[Games]\r\nKey=1\r\n", Utf16Order::LittleEndian));
    EXPECT_EQ(read("Key"), "1");
    fileHolds("[Games]\r\nKey=longer \xE9\r\n");
    EXPECT_EQ(read("Key"), "longer \u00E9");
    write("Key", "\u00E8");
    EXPECT_EQ(bytes(), "[Games]\r\nKey=\xE8\r\n");
}

// ---- indexed families -----------------------------------------------------------------------------------------------

/// Files in which a family is easy to misread.
const std::string oddFiles[] = {
    "",
    "[Games]",
    "[Games]\r\nStem1=a\r\nStem3=c\r\nStem2=b\r\n",
    " [ gAMES ] \n sTEM1 = \"a\" \nSTEM01=zero\nStem1=second\n;Stem2=comment\nStem=none\nStem-1=no\n",
    "[Other]\r\nStem1=other\r\n[Games]\r\n\r\n; end\r\n\r\n[Games]\r\nStem2=later\r\n",
    "\xEF\xBB\xBF[Games]\nStem2=\xC3\xA4\nStem4=no line end",
    "\xFF\xFE[\0G\0a\0m\0e\0s\0]\0\n\0S\0t\0e\0m\0"
    "2\0=\0x\0"s,
    "[Games]\r\nStem99999999999999999999=large\r\nStem4=too far\r\nStem2x=no\r\n12=no\r\n",
};

TEST_F(Profile, AFamilyReadsAsItsKeysDoOneByOne)
{
    for (const std::string& file : oddFiles) {
        fileHolds(file);
        const auto values = ini.readStrings("Games", "Stem", 3, " default ");
        ASSERT_EQ(values.size(), 3U);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(values[i], read("Stem" + std::to_string(i + 1))) << file << " key " << i + 1;
    }
}

TEST_F(Profile, AFamilyIsWrittenAsItsKeysAreOneByOne)
{
    const std::vector<std::string> values{"new", "", "\xC3\xA4\r\n[Evil]\r\nx=1"};
    for (const std::string& file : oddFiles) {
        fileHolds(file);
        ini.writeStrings("Games", "Stem", values);
        const std::string together = bytes();
        fileHolds(file);
        for (std::size_t i = 0; i < values.size(); ++i) write("Stem" + std::to_string(i + 1), values[i]);
        EXPECT_EQ(together, bytes()) << file;
    }
}

TEST_F(Profile, AnEqualFamilyLeavesTheFileUntouched)
{
    fileHolds("[Games]\r\nStem1 = a\r\nStem2=\"b\"\r\n");
    ini.writeStrings("Games", "Stem", {"a", "b"});
    ini.writeStrings("None", "Stem", {});
    EXPECT_TRUE(files.writes().empty());
}

TEST_F(Profile, AFamilysValuesAreCutToTheBuffer)
{
    fileHolds("[Games]\r\nStem1=abcdef\r\n");
    EXPECT_EQ(ini.readStrings("Games", "Stem", 2, "uvwxyz", 4), (std::vector<std::string>{"abc", "uvw"}));
}

} // namespace tarvex
