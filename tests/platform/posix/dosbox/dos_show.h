#pragma once

#include "platform/posix/dosbox/dos_code.h"

#include <string>

namespace tarvex {

/// A DOS program that writes what it was given into SEEN.TXT of its current directory: its command line up to the
/// length that DOS reports, a line with its current directory, and the first 64 bytes of the file that the first word
/// of the command line names.
inline std::string dosShow()
{
    DosCode code;
    // where it is
    code.bytes({0xB4, 0x19, 0xCD, 0x21});             // int 21h/19h: the current drive, from 0
    code.bytes({0x04, 'A'});                          // add al, 'A'
    code.bytes({0xA2}), code.address("drive");        // mov [drive], al
    code.bytes({0xBE}), code.address("directory");    // mov si, directory
    code.bytes({0xB2, 0x00, 0xB4, 0x47, 0xCD, 0x21}); // int 21h/47h: the current directory
    // SEEN.TXT and the command line
    code.bytes({0xBA}), code.address("file name");    // mov dx, file name
    code.bytes({0x31, 0xC9, 0xB4, 0x3C, 0xCD, 0x21}); // int 21h/3Ch: create
    code.bytes({0x89, 0xC3});                         // mov bx, ax
    code.bytes({0x31, 0xC9, 0x8A, 0x0E, 0x80, 0x00}); // mov cx, length of the command line
    code.bytes({0xBA, 0x81, 0x00});                   // mov dx, 81h
    code.bytes({0xB4, 0x40, 0xCD, 0x21});             // int 21h/40h: write
    // the directory
    code.bytes({0xBF}), code.address("directory");        // mov di, directory
    code.bytes({0x31, 0xC0, 0xB9, 64, 0});                // xor ax, ax; mov cx, 64
    code.bytes({0xF2, 0xAE});                             // repne scasb: its end
    code.bytes({0x89, 0xF9, 0x49});                       // mov cx, di; dec cx
    code.bytes({0x81, 0xE9}), code.address("line");       // sub cx, line
    code.bytes({0xBA}), code.address("line");             // mov dx, line
    code.bytes({0xB4, 0x40, 0xCD, 0x21});                 // int 21h/40h: write
    code.bytes({0xB9, 2, 0, 0xBA}), code.address("line"); // mov cx, 2; mov dx, line
    code.bytes({0xB4, 0x40, 0xCD, 0x21});                 // int 21h/40h: write
    // the first word of the command line, ended by a zero
    code.bytes({0xBE, 0x81, 0x00}); // mov si, 81h
    code.label("blanks");
    code.bytes({0xAC, 0x3C, ' ', 0x74}), code.jump("blanks"); // lodsb; cmp al, ' '; je blanks
    code.bytes({0x4E, 0x89, 0xF2});                           // dec si; mov dx, si
    code.label("word");
    code.bytes({0xAC, 0x3C, ' ', 0x77}), code.jump("word"); // lodsb; cmp al, ' '; ja word
    code.bytes({0x4E, 0xC6, 0x04, 0x00});                   // dec si; mov byte [si], 0
    // the file that it names
    code.bytes({0x89, 0xDD});                   // mov bp, bx
    code.bytes({0xB8, 0x00, 0x3D, 0xCD, 0x21}); // int 21h/3D00h: open
    code.bytes({0x72}), code.jump("end");       // jc end
    code.bytes({0x89, 0xC3, 0xB9, 64, 0});      // mov bx, ax; mov cx, 64
    code.bytes({0xBA}), code.address("bytes");  // mov dx, bytes
    code.bytes({0xB4, 0x3F, 0xCD, 0x21});       // int 21h/3Fh: read
    code.bytes({0x89, 0xC1, 0x89, 0xEB});       // mov cx, ax; mov bx, bp
    code.bytes({0xBA}), code.address("bytes");  // mov dx, bytes
    code.bytes({0xB4, 0x40, 0xCD, 0x21});       // int 21h/40h: write
    code.label("end");
    code.bytes({0xB8, 0x00, 0x4C, 0xCD, 0x21}); // int 21h/4C00h: end
    // data
    code.label("file name");
    code.text("SEEN.TXT"), code.bytes({0});
    code.label("line");
    code.text("\r\n");
    code.label("drive");
    code.text("?:\\");
    code.label("directory");
    code.text(std::string(64, '\0'));
    code.label("bytes");
    return code.finished();
}

/// A DOS program that writes the drives and names of its two file control blocks into SEEN.TXT: 12 bytes each.
inline std::string dosShowControlBlocks()
{
    DosCode code;
    code.bytes({0xBA}), code.address("file name");    // mov dx, file name
    code.bytes({0x31, 0xC9, 0xB4, 0x3C, 0xCD, 0x21}); // int 21h/3Ch: create
    code.bytes({0x89, 0xC3});                         // mov bx, ax
    for (const int block : {0x5C, 0x6C}) {
        code.bytes({0xB9, 12, 0, 0xBA, block, 0}); // mov cx, 12; mov dx, block
        code.bytes({0xB4, 0x40, 0xCD, 0x21});      // int 21h/40h: write
    }
    code.bytes({0xB8, 0x00, 0x4C, 0xCD, 0x21}); // int 21h/4C00h: end
    code.label("file name");
    code.text("SEEN.TXT"), code.bytes({0});
    return code.finished();
}

} // namespace tarvex
