#include "platform/posix/dos_starter.h"

#include <initializer_list>
#include <map>
#include <utility>
#include <vector>

namespace tarvex {

namespace {

/// Machine code of a .COM file, which DOS loads at 100h. Addresses of data are filled in at the end.
class Code {
public:
    void bytes(std::initializer_list<int> values)
    {
        for (const int value : values) m_bytes += static_cast<char>(value);
    }
    void text(std::string_view text) { m_bytes += text; }
    void word(unsigned value) { bytes({static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF)}); }
    /// The address that a label gets, plus `offset`.
    void address(const char* label, unsigned offset = 0)
    {
        m_uses.push_back({m_bytes.size(), label, offset});
        word(0);
    }
    void label(const char* name) { m_labels[name] = place(); }
    void label(const char* name, unsigned value) { m_labels[name] = value; }
    unsigned place() const { return static_cast<unsigned>(m_bytes.size()) + 0x100; }

    std::string finished()
    {
        for (const Use& use : m_uses) {
            const unsigned value = m_labels.at(use.label) + use.offset;
            m_bytes[use.at] = static_cast<char>(value & 0xFF);
            m_bytes[use.at + 1] = static_cast<char>(value >> 8 & 0xFF);
        }
        return m_bytes;
    }

private:
    struct Use {
        std::size_t at;
        const char* label;
        unsigned offset;
    };
    std::string m_bytes;
    std::vector<Use> m_uses;
    std::map<std::string, unsigned, std::less<>> m_labels;
};

void addInstructions(Code& code, char drive)
{
    code.bytes({0xBC}), code.address("stack");                     // mov sp, stack
    code.bytes({0xBB}), code.address("paragraphs");                // mov bx, paragraphs
    code.bytes({0xB4, 0x4A, 0xCD, 0x21});                          // int 21h/4Ah: keep that much memory, free the rest
    code.bytes({0xB2, (drive | 0x20) - 'a'});                      // mov dl, drive
    code.bytes({0xB4, 0x0E, 0xCD, 0x21});                          // int 21h/0Eh: select it
    code.bytes({0xBA}), code.address("directory");                 // mov dx, directory
    code.bytes({0xB4, 0x3B, 0xCD, 0x21});                          // int 21h/3Bh: change to it
    code.bytes({0x72, 22});                                        // jc end: the program's place is gone
    code.bytes({0x8C, 0xC8});                                      // mov ax, cs
    for (const unsigned segment : {4U, 8U, 12U}) {                 // of the tail and of two file control blocks
        code.bytes({0xA3}), code.address("parameters", segment);   // mov [parameters + segment], ax
    }
    code.bytes({0xBB}), code.address("parameters");                // mov bx, parameters
    code.bytes({0xBA}), code.address("program");                   // mov dx, program
    code.bytes({0xB8, 0x00, 0x4B, 0xCD, 0x21});                    // int 21h/4B00h: load and run it
    code.bytes({0xB8, 0x00, 0x4C, 0xCD, 0x21});                    // end: int 21h/4C00h
}

void addData(Code& code, const DosStart& start)
{
    code.label("parameters");
    code.word(0);           // the environment: this program's own
    code.address("tail");   // offset; the segment is filled in above
    code.word(0);
    code.word(0x5C);        // the two file control blocks of this program's own prefix, empty
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
    Code code;
    addInstructions(code, start.drive);
    addData(code, start);
    return code.finished();
}

} // namespace tarvex
