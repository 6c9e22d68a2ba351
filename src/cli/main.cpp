#include "cli/colour_command.h"
#include "cli/controls_command.h"
#include "cli/input.h"
#include "cli/key_commands.h"
#include "cli/layout_command.h"
#include "cli/macro_commands.h"
#include "cli/previous_command.h"
#include "cli/sheet_command.h"
#include "cli/statement_command.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <functional>
#include <memory>
#include <utility>

// Reads the controllers' files as the desktop program does, and prints what it makes of them.

namespace tarvex::cli {

namespace {

constexpr const char* teaching = R"(Examples:
  tarvexctl colour mig.b50                    show a joystick file in its colours
  tarvexctl colour mig.m50 --html > mig.html  a web page of a macro file
  tarvexctl colour - --as macro --json        read standard input as a macro file
  tarvexctl macros mig.m50                    headings, and the macros under them
  tarvexctl used mig.b50 mig.m50              which macros the joystick file uses
  tarvexctl align mig.b50 > aligned.b50       line up the slash modifiers
  tarvexctl statement mig.b50 H1U             what the hat does when pushed up
  tarvexctl controls mig.b50                  every control, with its statement
  tarvexctl sheet mig.b50 -o mig.pdf          the same on paper, with the pictures
  tarvexctl key DEL --ctrl                    what Ctrl+Delete is called, and its codes
  tarvexctl raw '#12 #1C #F0 #1C #F0 #12'     which keys raw codes press and release
  tarvexctl previous                          the joystick files opened last

Exit status: 0 done; 2 a wrong call, or a file that can't be read; 3 a search
would never have ended (an unclosed bracket), or raw codes are no key's, the result
is printed all the same; 4 there is nothing to analyse, no such statement or key.
'tarvexctl COMMAND --help' says more about a command; so does man tarvexctl.)";

constexpr const char* colourTeaching =
    R"(The text is searched for the words of the language, one word after the other, and
a later word paints over an earlier one: comments come last.
Files named *.m22, *.m50 and *.mdf are macro files, all others joystick files.

JSON: {"length": n, "runs": [[start, length, colour], ...],
       "held": [{"word": "RAW(", "line": 5}, ...]}
Runs cover the whole text; positions count bytes from 0, a line end as two;
a colour is a number of the settings, blue * 65536 + green * 256 + red.
"held" names the searches that would never have ended, with their line from 1.)";

constexpr const char* macrosTeaching =
    R"(A macro is a line "name = keys" that is no comment. A heading is a line between
two rules of comment lines, "Rem -----" or a box of double lines behind "~".
The heading All has every macro.

JSON: {"headings": ["All", ...], "lists": [["name", ...], ...]}
The first list has all macros, each other those under the heading of its place.)";

constexpr const char* usedTeaching =
    R"(A macro counts as used where its name stands as a whole word, in any case, with a
blank or a line end behind it; also in a comment.
A joystick file without any letter "e" leaves nothing to analyse.

JSON: for each heading of the macro file a list of ["name", true or false] pairs,
the first one with all macros.)";

constexpr const char* alignTeaching =
    R"(Lines that begin with a modifier go below that of their BTN line: /U /M /D, /I /O,
/P /R and /T each have a column. Tabs go, runs of blanks become one, comment lines
stay. The result is in the bytes of the file, its lines end in CR LF.)";

constexpr const char* statementTeaching =
    R"(HEAD is what names the statement: S1, "BTN S1", MDEF, PortB1. It is found as a
whole word in any case, at its first place; the statement ends before the next
BTN, RNG, ANT, MDEF, JSX, JSY, PORTB, USE, RATE, SWAPTG, THR or RDDR.

JSON: {"start": n, "length": n, "text": "..."}; positions as those of colour.)";

constexpr const char* controlsTeaching =
    R"(The controls are those of the stick that the file's name is for (*.f22, *.b50, *.adv;
any other the F-22 Pro's) and of the throttle that its text names, TQS or WCS, in the
order of the Composer's pictures. Of several statements the first is listed.

JSON: [{"control": "S1", "statement": "BTN S1 /U ...", "line": 12}, ...]
Lines count from 1; without a statement both are null.)";

constexpr const char* sheetTeaching =
    R"(The sheet has a page for each controller: its picture, and what its controls do, with
the layers /U /M /D and /I /O side by side and the keys behind each macro. What has no
room in letters that are read from a metre goes on on a second page. Without
MACROFILE the one is taken that the joystick file's MDEF names, else the one of its
name, in its folder. OUT ends in .pdf, .svg or .html.)";

constexpr const char* keyTeaching =
    R"(KEY is an index of the key table, 0 to 101, or a key's name as on an F-16 FLCS: a,
DEL, KP5. A number is an index; 0 to 9 are the digit keys. Brk and Prt are Pause and
Print Screen. The texts are the name in the controllers' language, and the raw codes
that the key sends when it goes down, when it comes up, and both.

JSON: {"index": n, "name": "...", "syntax": "...", "make": "...", "break": "...",
       "combined": "..."}; with --all a list of these.)";

constexpr const char* rawTeaching =
    R"(TEXT holds scan codes as controller files have them: #12 #1C. In a text with RAW (...)
only what stands in such brackets is read, all of them as one stream.

JSON: {"events": [{"key": "LSFT", "down": true}, ...], "left_down": ["...", ...],
       "unknown": [{"position": n, "text": "..."}, ...]}
"left_down" names the keys that are never released; positions count bytes from 0.)";

constexpr const char* previousTeaching =
    R"(The newest comes first. Paths are DOS paths, as in the settings; tarvex opens them as
they are.

JSON: ["path", ...])";

/// Called once the command line is known to be right; returns the exit status.
using Work = std::function<int()>;

/// A command whose options are kept until it runs.
template <typename Options>
std::pair<CLI::App*, std::shared_ptr<Options>> newCommand(CLI::App& app, Work& work, int (*run)(const Options&),
                                                          const char* name, const char* help, const char* footer)
{
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand(name, help);
    command->footer(footer);
    command->callback([options, run, &work] { work = [options, run] { return run(*options); }; });
    return {command, options};
}

void addColour(CLI::App& app, Work& work)
{
    const auto made = newCommand(app, work, colourCommand, "colour", "Print a file with its colours", colourTeaching);
    CLI::App* command = made.first;
    const std::shared_ptr<ColourOptions> options = made.second;
    command->add_option("FILE", options->file, "joystick file, macro file or template; - reads standard input")
        ->required();
    command->add_option("--as", options->as, "colour it as this kind of file, whatever its name says")
        ->check(CLI::IsMember({"joystick", "macro", "template"}));
    command->add_option("--ini", options->ini, "take the colours from this settings file instead of the factory's");
    CLI::Option_group* forms = command->add_option_group("Output", "ANSI on a terminal, else JSON");
    const auto form = [&](const char* flag, ColourForm which, const char* help) {
        forms->add_flag_callback(
            flag, [options, which] { options->form = which; }, help);
    };
    form("--json", ColourForm::Json, "colour runs as JSON");
    form("--ansi", ColourForm::Ansi, "text with the colours of a terminal");
    form("--html", ColourForm::Html, "a web page");
    form("--rtf", ColourForm::Rtf, "rich text, for word processors");
    forms->require_option(0, 1);
}

void addMacros(CLI::App& app, Work& work)
{
    const auto [command, options] =
        newCommand(app, work, macrosCommand, "macros", "List the headings and macros of a macro file", macrosTeaching);
    command->add_option("FILE", options->file, "macro file; - reads standard input")->required();
    command->add_flag("--json", options->json, "as JSON");
}

void addUsed(CLI::App& app, Work& work)
{
    const auto [command, options] =
        newCommand(app, work, usedCommand, "used", "List which macros a joystick file uses", usedTeaching);
    command->add_option("JOYSTICKFILE", options->joystickFile, "joystick file; - reads standard input")->required();
    command->add_option("MACROFILE", options->macroFile, "macro file; - reads standard input")->required();
    command->add_flag("--json", options->json, "as JSON");
}

void addAlign(CLI::App& app, Work& work)
{
    constexpr int mostBlanks = 32767;
    const auto [command, options] =
        newCommand(app, work, alignCommand, "align", "Line up the slash modifiers of a file", alignTeaching);
    command->add_option("FILE", options->file, "joystick or macro file; - reads standard input")->required();
    command->add_option("--indent", options->indent, "blanks to put in front of each line that isn't a comment")
        ->check(CLI::Range(0, mostBlanks));
}

void addStatement(CLI::App& app, Work& work)
{
    const auto [command, options] = newCommand(app, work, statementCommand, "statement",
                                               "Print one statement of a joystick file", statementTeaching);
    command->add_option("JOYSTICKFILE", options->file, "joystick file; - reads standard input")->required();
    command->add_option("HEAD", options->head, "what names the statement, e.g. S1")->required();
    command->add_flag("--json", options->json, "as JSON");
}

void addControls(CLI::App& app, Work& work)
{
    const auto [command, options] =
        newCommand(app, work, controlsCommand, "controls", "List the controls of a joystick file", controlsTeaching);
    command->add_option("JOYSTICKFILE", options->file, "joystick file; - reads standard input")->required();
    command->add_flag("--json", options->json, "as JSON");
}

void addSheet(CLI::App& app, Work& work)
{
    const auto [command, options] =
        newCommand(app, work, sheetCommand, "sheet", "Draw what is on which control", sheetTeaching);
    command->add_option("JOYSTICKFILE", options->joystickFile, "joystick file; - reads standard input")->required();
    command->add_option("MACROFILE", options->macroFile, "its macro file");
    command->add_option("-o,--output", options->output, "the file to write")->type_name("OUT")->required();
    command->add_flag("--letter", options->letter, "US Letter paper instead of A4");
    command->add_flag("--one-page", options->onePage, "smaller letters rather than a second page for a controller");
}

void addKey(CLI::App& app, Work& work)
{
    const auto [command, options] =
        newCommand(app, work, keyCommand, "key", "Print a key's name and raw codes", keyTeaching);
    CLI::Option_group* which = command->add_option_group("Key", "which key");
    which->add_option("KEY", options->key, "index or name of a key");
    which->add_flag("--all", options->all, "all keys of the keyboard");
    which->require_option(1);
    command->add_flag("--shift", options->shift, "with Shift held");
    command->add_flag("--ctrl", options->ctrl, "with Ctrl held");
    command->add_flag("--alt", options->alt, "with Alt held");
    command->add_flag("--numlock", options->numLock, "with Num Lock on; counts with --extended");
    command->add_flag("--no-shf", options->noShf, "A instead of SHF a");
    command->add_flag("--extended", options->extended, "the extended codes of grey keys");
    command->add_option("--joystick", options->joystick, "whose names to use, flcs by default")
        ->check(CLI::IsMember({"f22", "flcs", "pfcs", "topgun", "fcs"}));
    command->add_flag("--json", options->json, "as JSON");
}

void addRaw(CLI::App& app, Work& work)
{
    const auto [command, options] =
        newCommand(app, work, rawCommand, "raw", "Print the key presses that raw codes stand for", rawTeaching);
    command->add_option("TEXT", options->text, "raw codes; - reads standard input")->required();
    command->add_flag("--json", options->json, "as JSON");
}

void addPrevious(CLI::App& app, Work& work)
{
    const auto [command, options] = newCommand(app, work, previousCommand, "previous",
                                               "List the joystick files that Tarvex opened last", previousTeaching);
    command->add_option("--ini", options->ini, "read this settings file instead of the program's own");
    command->add_flag("--json", options->json, "as JSON");
}

int fail(const std::string& text)
{
    std::fprintf(stderr, "tarvexctl: %s\n", text.c_str());
    return exitStatus::wrongCall;
}

/// The fault of a call, in one line.
std::string complaint(const CLI::App& app, const CLI::ParseError& error, int argc, char** argv)
{
    const bool hasCommand = !app.get_subcommands().empty();
    if (!hasCommand && argc < 2) return "no command says what to do";
    if (!hasCommand && argv[1][0] != '-') return "there is no command " + std::string(argv[1]);
    const std::string text = error.what();
    return text.substr(0, text.find('\n'));
}

int run(int argc, char** argv)
{
    CLI::App app("Reads the files of Thrustmaster controllers as Tarvex does, without a window.", "tarvexctl");
    app.set_version_flag("--version", "tarvexctl " TARVEX_VERSION);
    app.require_subcommand(1);
    app.footer(teaching);
    Work work;
    addColour(app, work);
    addMacros(app, work);
    addUsed(app, work);
    addAlign(app, work);
    addStatement(app, work);
    addControls(app, work);
    addSheet(app, work);
    addKey(app, work);
    addRaw(app, work);
    addPrevious(app, work);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        print(app.help());
        return exitStatus::done;
    } catch (const CLI::CallForVersion& version) {
        print(std::string(version.what()) + "\n");
        return exitStatus::done;
    } catch (const CLI::ParseError& error) {
        return fail(complaint(app, error, argc, argv) + " (see tarvexctl --help)");
    }
    return work();
}

} // namespace

} // namespace tarvex::cli

int main(int argc, char** argv)
{
    try {
        return tarvex::cli::run(argc, argv);
    } catch (const std::exception& error) { // also when the memory doesn't suffice
        return tarvex::cli::fail(error.what());
    }
}
