#include "cli/layout_command.h"

#include "cli/input.h"
#include "documents/text/pane.h"
#include "language/slash_columns.h"

namespace tarvex::cli {

int alignCommand(const AlignOptions& options)
{
    Pane pane; // an editor's text has its line ends in pairs
    pane.setText(readInput(options.file));
    print(alignedText(pane.Text(), options.indent));
    return exitStatus::done;
}

} // namespace tarvex::cli
