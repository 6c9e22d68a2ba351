#pragma once

#include "platform/dialogues.h"
#include "shell/menus.h"

#include <QStringList>

#include <functional>
#include <map>
#include <string>
#include <vector>

class QMessageBox;
class QPoint;
class QWidget;

namespace tarvex {

class DriveMap;

/// Message boxes, file dialogues and pop-up menus.
class QtDialogues final : public Dialogues {
public:
    /// The drives outlive this.
    explicit QtDialogues(const DriveMap& drives) : m_drives(drives) {}

    /// The window that the boxes belong to, and the menus that can pop up; none before they are set.
    void setParent(QWidget* parent) { m_parent = parent; }
    void setMenus(Menus* menus) { m_menus = menus; }
    /// What pops up for a menu that isn't one of the program's own, and where on the screen if not at the mouse; root
    /// and items outlive this.
    void addPopUp(const MenuItem& root, std::vector<MenuEntry> entries, std::function<QPoint()> place = {})
    {
        m_popUps[&root] = {std::move(entries), std::move(place)};
    }
    /// What showModal of that name runs.
    void addForm(const std::string& name, std::function<void()> show) { m_forms[name] = std::move(show); }

    Answer show(const MessageBox& box) override;
    std::optional<std::string> openFile(const FileRequest& request) override;
    std::optional<std::string> saveFile(const FileRequest& request) override;
    std::optional<std::string> chooseFolder(const std::string& title, const std::string& directory) override;
    std::optional<Colour> chooseColour(Colour now) override;
    std::optional<FontChoice> chooseFont(const FontChoice& now, bool fixedPitchOnly) override;
    bool showModal(const std::string& formName) override;
    void popUp(const MenuItem& root) override;
    void popUpAtCaret(const MenuItem& root) override;

private:
    std::optional<std::string> askForFile(const FileRequest& request, bool save);
    void popUpAt(const MenuItem& root, const QPoint& place);
    QString startDirectory(const std::string& wanted) const;
    QWidget* parentNow() const;

    const DriveMap& m_drives;
    QWidget* m_parent = nullptr;
    Menus* m_menus = nullptr;
    struct PopUp {
        std::vector<MenuEntry> entries;
        std::function<QPoint()> place;
    };
    std::map<const MenuItem*, PopUp> m_popUps;
    std::map<std::string, std::function<void()>> m_forms;
};

/// Filters of a file dialogue, each "description (patterns)", from descriptions and masks that alternate between "|".
/// Masks fit names in any case.
QStringList nameFilters(const std::string& filter);

/// Puts texts, icon, buttons and default button into an empty box.
void fillBox(QMessageBox& view, const MessageBox& box);

} // namespace tarvex
