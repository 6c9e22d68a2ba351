#include "cli/colour_command.h"
#include "cli/input.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <functional>

// Reads the controllers' files as the desktop program does, and prints what it makes of them.

namespace tarvex::cli {

namespace {

constexpr const char* teaching = R"(Examples:
  tarvexctl colour mig.b50                    show a joystick file in its colours
  tarvexctl colour mig.m50 --html > mig.html  a web page of a macro file
  tarvexctl colour - --as macro --json        read standard input as a macro file

Exit status: 0 done; 2 a wrong call, or a file that can't be read; 3 a search
would never have ended (an unclosed bracket), the result is printed all the same;
4 there is nothing to analyse.
'tarvexctl COMMAND --help' tells more about a command; so does man tarvexctl.)";

constexpr const char* colourTeaching =
    R"(The text is searched for the words of the language, one word after the other, and
a later word paints over an earlier one: comments come last.
Files named *.m22, *.m50 and *.mdf are macro files, all others joystick files.

JSON: {"length": n, "runs": [[start, length, colour], ...],
       "held": [{"word": "RAW(", "line": 5}, ...]}
Runs cover the whole text; positions count bytes from 0, a line end as two;
a colour is a number of the settings, blue * 65536 + green * 256 + red.
"held" names the searches that would never have ended, with their line from 1.)";

/// Called once the command line is known to be right; returns the exit status.
using Work = std::function<int()>;

void addColour(CLI::App& app, Work& work)
{
    auto options = std::make_shared<ColourOptions>();
    CLI::App* command = app.add_subcommand("colour", "Print a file with its colours");
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
    command->footer(colourTeaching);
    command->callback([options, &work] { work = [options] { return colourCommand(*options); }; });
}

int fail(const std::string& text)
{
    std::fprintf(stderr, "tarvexctl: %s\n", text.c_str());
    return exitStatus::wrongCall;
}

/// What is wrong with a call, in one line.
std::string complaint(const CLI::App& app, const CLI::ParseError& error, int argc, char** argv)
{
    const bool hasCommand = !app.get_subcommands().empty();
    if (!hasCommand && argc < 2) return "tell me what to do";
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
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        print(app.help());
        return exitStatus::done;
    } catch (const CLI::CallForVersion& version) {
        print(std::string(version.what()) + "\n");
        return exitStatus::done;
    } catch (const CLI::ParseError& error) {
        return fail(complaint(app, error, argc, argv) + " (tarvexctl --help tells how it is called)");
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
