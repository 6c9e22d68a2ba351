#include "platform/posix/dosbox/dos_starter.h"

#include "platform/posix/dosbox/dos_code.h"

namespace tarvex {

namespace {

/// Old programs look for the first two words of their command line in their file control blocks.
void addControlBlocks(DosCode& code)
{
    code.bytes({0xBE}), code.address("tail", 1);            // mov si, tail + 1
    code.bytes({0xBF, 0x5C, 0x00});                         // mov di, 5Ch
    code.bytes({0xB8, 0x01, 0x29, 0xCD, 0x21});             // int 21h/2901h: take the first
    code.label("word");                                     // what is left of it, as of a path
    code.bytes({0xAC, 0x3C, ' ', 0x77}), code.jump("word"); // lodsb; cmp al, ' '; ja word
    code.bytes({0x4E});                                     // dec si
    code.bytes({0xBF, 0x6C, 0x00});                         // mov di, 6Ch
    code.bytes({0xB8, 0x01, 0x29, 0xCD, 0x21});             // int 21h/2901h: take the second
}

void addInstructions(DosCode& code, char drive)
{
    code.bytes({0xBC}), code.address("stack");      // mov sp, stack
    code.bytes({0xBB}), code.address("paragraphs"); // mov bx, paragraphs
    code.bytes({0xB4, 0x4A, 0xCD, 0x21});           // int 21h/4Ah: keep that much memory, free the rest
    code.bytes({0xB2, (drive | 0x20) - 'a'});       // mov dl, drive
    code.bytes({0xB4, 0x0E, 0xCD, 0x21});           // int 21h/0Eh: select it
    code.bytes({0xBA}), code.address("directory");  // mov dx, directory
    code.bytes({0xB4, 0x3B, 0xCD, 0x21});           // int 21h/3Bh: change to it
    code.bytes({0x72}), code.jump("end");           // jc end: the program's place is gone
    addControlBlocks(code);
    code.bytes({0x8C, 0xC8});                                    // mov ax, cs
    for (const unsigned segment : {4U, 8U, 12U}) {               // of the tail and of two file control blocks
        code.bytes({0xA3}), code.address("parameters", segment); // mov [parameters + segment], ax
    }
    code.bytes({0xBB}), code.address("parameters"); // mov bx, parameters
    code.bytes({0xBA}), code.address("program");    // mov dx, program
    code.bytes({0xB8, 0x00, 0x4B, 0xCD, 0x21});     // int 21h/4B00h: load and run it
    code.label("end");
    code.bytes({0xB8, 0x00, 0x4C, 0xCD, 0x21}); // int 21h/4C00h: end
}

void addData(DosCode& code, const DosStart& start)
{
    code.label("parameters");
    code.word(0);         // the environment: this program's own
    code.address("tail"); // offset; the segment is filled in above
    code.word(0);
    code.word(0x5C); // the two file control blocks of this program's own prefix
    code.word(0);
    code.word(0x6C);
    code.word(0);
    code.label("tail");
    code.bytes({static_cast<int>(start.tail.size())}), code.text(start.tail), code.bytes({'\r'});
    code.label("directory");
    code.text(start.directory), code.bytes({0});
    code.label("program");
    code.text(start.program), code.bytes({0});
    constexpr unsigned stackSize = 512;
    const unsigned end = (code.place() + stackSize) & ~1U;
    code.label("stack", end);
    code.label("paragraphs", (end + 15) / 16);
}

} // namespace

std::string dosStarter(const DosStart& start)
{
    DosCode code;
    addInstructions(code, start.drive);
    addData(code, start);
    return code.finished();
}

} // namespace tarvex
