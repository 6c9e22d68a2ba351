#include "documents/find/find_window.h"

namespace tarvex {

FindPage findPage(FindAndReplace& window)
{
    return {window.ComboTextFind, window.OptionJoystickF, window.OptionMacroF,
            window.MatchCaseF,    window.WholeWordF,      window.Command1};
}

FindPage replacePage(FindAndReplace& window)
{
    return {window.ComboTextReplaceFind, window.OptionJoystickR, window.OptionMacroR,
            window.MatchCaseR,           window.WholeWordR,      window.Command3};
}

} // namespace tarvex
