#pragma once

#include "platform/posix/dosbox/dos_code.h"

#include <string>

namespace tarvex {

/// A loader for DOS that writes a result file, WINLD.DAT, into its current directory.
inline std::string dosLoader(const std::string& result)
{
    DosCode code;
    code.bytes({0xBA}), code.address("file name");                       // mov dx, file name
    code.bytes({0x31, 0xC9, 0xB4, 0x3C, 0xCD, 0x21});                    // int 21h/3Ch: create
    code.bytes({0x89, 0xC3});                                            // mov bx, ax
    code.bytes({0xB9}), code.word(static_cast<unsigned>(result.size())); // mov cx, size
    code.bytes({0xBA}), code.address("result");                          // mov dx, result
    code.bytes({0xB4, 0x40, 0xCD, 0x21});                                // int 21h/40h: write
    code.bytes({0xB8, 0x00, 0x4C, 0xCD, 0x21});                          // int 21h/4C00h: end
    code.label("file name");
    code.text("WINLD.DAT"), code.bytes({0});
    code.label("result");
    code.text(result);
    return code.finished();
}

} // namespace tarvex
