#include "desktop/lists/list_forms.h"

#include "desktop/lists/enter_favourite_name_view.h"
#include "desktop/lists/enter_game_name_view.h"
#include "desktop/platform/qt_dialogues.h"
#include "lists/lists.h"

namespace tarvex {

void addListForms(QtDialogues& dialogues, Lists& lists, QWidget* parent)
{
    dialogues.addForm("EnterFavouritename",
                      [&form = lists.favourites.form, parent] { EnterFavouriteNameView(form, parent).showModally(); });
    dialogues.addForm("EnterGameName",
                      [&form = lists.games.form, parent] { EnterGameNameView(form, parent).showModally(); });
}

} // namespace tarvex
