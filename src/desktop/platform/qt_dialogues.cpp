#include "desktop/platform/qt_dialogues.h"

#include "desktop/icon_theme.h"
#include "desktop/menus/menu_view.h"
#include "desktop/text.h"
#include "platform/errors.h"
#include "platform/posix/drive_map.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QGridLayout>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

QMessageBox::Icon toQt(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons toQt(BoxButtons buttons)
{
    switch (buttons) {
    case BoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Answer toAnswer(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

/// "*.b50" as "*.[bB]50".
QString inAnyCase(const QString& mask)
{
    QString pattern;
    for (const QChar character : mask) {
        const bool letter = character.toLower() != character.toUpper();
        pattern += letter ? u'[' + QString(character.toLower()) + character.toUpper() + u']' : QString(character);
    }
    return pattern;
}

/// The middle of a text too long for a screen is left out, and words too long for a line can be broken.
QString fittingText(QString text)
{
    constexpr qsizetype longest = 2'500;
    constexpr qsizetype shown = 1'000; // at either end
    if (text.size() > longest) text = text.left(shown) + QStringLiteral(" [...] ") + text.right(shown);
    return withBreaksInLongWords(std::move(text));
}

/// Boxes are laid out for their text; the title is to be read too.
void widenForTitle(QMessageBox& view)
{
    constexpr int frame = 130; // the window's icon and buttons
    constexpr int widest = 600;
    auto* grid = qobject_cast<QGridLayout*>(view.layout());
    if (grid == nullptr) return;
    const int width = std::min(widest, view.fontMetrics().horizontalAdvance(view.windowTitle()) + frame);
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

/// Of the screen, where a box stands that comes before any window.
void moveToMiddle(QMessageBox& view)
{
    view.ensurePolished();
    view.adjustSize();
    view.move(QGuiApplication::primaryScreen()->availableGeometry().center() - view.rect().center());
}

} // namespace

void fillBox(QMessageBox& view, const MessageBox& box)
{
    view.setIcon(toQt(box.icon));
    view.setWindowTitle(toQt(box.title));
    view.setTextFormat(Qt::PlainText);
    view.setText(fittingText(toQt(box.text)));
    view.setTextInteractionFlags(Qt::TextSelectableByMouse);
    view.setStandardButtons(toQt(box.buttons));
    constexpr std::array order{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    for (std::size_t i = 0; i < std::min(box.captions.size(), order.size()); ++i) {
        QAbstractButton* const button = view.button(order[i]);
        if (button == nullptr || box.captions[i].empty()) continue;
        button->setText(toQt(box.captions[i]));
        button->setIcon({}); // the one of Yes or No says something else
    }
    for (std::size_t i = order.size(); i < box.captions.size(); ++i)
        view.addButton(toQt(box.captions[i]), QMessageBox::ActionRole);
    const bool twoButtons = box.buttons != BoxButtons::Ok;
    const auto first = twoButtons ? QMessageBox::Yes : QMessageBox::Ok;
    view.setDefaultButton(twoButtons && box.secondButtonIsDefault ? QMessageBox::No : first);
    if (box.buttons == BoxButtons::YesNo) view.setEscapeButton(QMessageBox::No);
}

/// The window that the user works in: a box that belongs to another could come up behind one that is kept on top. A box
/// of a minimised window would be hidden with it.
QWidget* QtDialogues::parentNow() const
{
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    QWidget* active = QApplication::activeWindow();
    if (active != nullptr && qobject_cast<QDialog*>(active) != nullptr && !active->isMinimized()) return active;
    return m_parent != nullptr && m_parent->isVisible() && !m_parent->isMinimized() ? m_parent : nullptr;
}

Answer QtDialogues::show(const MessageBox& box)
{
    QMessageBox view(parentNow());
    fillBox(view, box);
    widenForTitle(view);
    if (view.parentWidget() == nullptr || view.parentWidget()->windowIcon().isNull())
        view.setWindowIcon(themeIcon(QStringLiteral("tarvex"))); // while the program comes up
    if (view.parentWidget() == nullptr) moveToMiddle(view);
    return toAnswer(view.exec());
}

QStringList nameFilters(const std::string& filter)
{
    const QStringList parts = toQt(filter).split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& mask : parts[i + 1].split(u';', Qt::SkipEmptyParts)) {
            const QString trimmed = mask.trimmed();
            patterns.append(trimmed == u"*.*" ? QStringLiteral("*") : inAnyCase(trimmed));
        }
        filters.append(parts[i].trimmed() + QStringLiteral(" (") + patterns.join(u' ') + u')');
    }
    return filters;
}

/// The directory asked for, else the user's own.
QString QtDialogues::startDirectory(const std::string& wanted) const
{
    try {
        const QString directory = toQt(m_drives.toNative(wanted));
        if (QDir(directory).exists()) return directory;
    } catch (const RuntimeError&) { // no such drive
    }
    return QDir::homePath();
}

std::optional<std::string> QtDialogues::askForFile(const FileRequest& request, bool save)
{
    QFileDialog dialogue(parentNow());
    dialogue.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite);
    dialogue.setOption(QFileDialog::HideNameFilterDetails);
    if (!request.title.empty()) dialogue.setWindowTitle(toQt(request.title));
    dialogue.setNameFilters(nameFilters(request.filter));
    dialogue.setDirectory(startDirectory(request.directory));
    if (!request.suggestedName.empty()) dialogue.selectFile(toQt(request.suggestedName));
    dialogue.setDefaultSuffix(toQt(request.defaultExtension));
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return std::nullopt;
    return m_drives.toDos(fromQt(dialogue.selectedFiles().constFirst()));
}

std::optional<std::string> QtDialogues::openFile(const FileRequest& request) { return askForFile(request, false); }
std::optional<std::string> QtDialogues::saveFile(const FileRequest& request) { return askForFile(request, true); }

std::optional<std::string> QtDialogues::chooseFolder(const std::string& title, const std::string& directory)
{
    QFileDialog dialogue(parentNow());
    dialogue.setFileMode(QFileDialog::Directory);
    dialogue.setOption(QFileDialog::ShowDirsOnly);
    dialogue.setWindowTitle(toQt(title));
    dialogue.setDirectory(startDirectory(directory));
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return std::nullopt;
    return m_drives.toDos(fromQt(dialogue.selectedFiles().constFirst()));
}

std::optional<Colour> QtDialogues::chooseColour(Colour now)
{
    const QColor colour = QColorDialog::getColor(toQt(now), parentNow());
    if (!colour.isValid()) return std::nullopt;
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

std::optional<FontChoice> QtDialogues::chooseFont(const FontChoice& now, bool fixedPitchOnly)
{
    QFont font(toQt(now.name));
    if (now.size > 0) font.setPointSizeF(now.size);
    font.setBold(now.bold);
    QFontDialog::FontDialogOptions options;
    if (fixedPitchOnly) options |= QFontDialog::MonospacedFonts;
    bool accepted = false;
    font = QFontDialog::getFont(&accepted, font, parentNow(), QString(), options);
    if (!accepted) return std::nullopt;
    return FontChoice{fromQt(font.family()), static_cast<float>(font.pointSizeF()), font.bold()};
}

bool QtDialogues::showModal(const std::string& formName)
{
    const auto form = m_forms.find(formName);
    if (form == m_forms.end()) return false;
    form->second();
    return true;
}

void QtDialogues::popUp(const MenuItem& root)
{
    const auto added = m_popUps.find(&root);
    const bool placed = added != m_popUps.end() && added->second.place;
    popUpAt(root, placed ? added->second.place() : QCursor::pos());
}

void QtDialogues::popUpAtCaret(const MenuItem& root)
{
    const QWidget* text = QApplication::focusWidget();
    const QRect caret = text != nullptr ? text->inputMethodQuery(Qt::ImCursorRectangle).toRect() : QRect();
    popUpAt(root, caret.isValid() ? text->mapToGlobal(caret.bottomLeft()) : QCursor::pos());
}

void QtDialogues::popUpAt(const MenuItem& root, const QPoint& place)
{
    if (m_menus == nullptr) return;
    Bindings bindings;
    QMenu menu(m_parent);
    const auto added = m_popUps.find(&root);
    fillMenu(menu, added != m_popUps.end() ? added->second.entries : popUpMenu(*m_menus, root), bindings);
    if (!menu.isEmpty()) menu.exec(place);
}

} // namespace tarvex
