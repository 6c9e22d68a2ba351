#include "widget_notes.h"

#include "plain_widgets.h"
#include "window_walk.h"

#include <QComboBox>
#include <QCompleter>
#include <QFontInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QTreeView>
#include <QValidator>

namespace tarvex {

namespace {

constexpr int entriesShown = 30;

template <typename Enum> QString nameOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKeys(static_cast<int>(value)));
}

QString textOf(const QMargins& margins)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(margins.left())
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom());
}

QString entriesOf(const QAbstractItemModel& model)
{
    QStringList entries;
    for (int row = 0; row < std::min(model.rowCount(), entriesShown); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        entries.append(quoted(cells.join(u" | ")));
    }
    return entries.isEmpty() ? QString() : QStringLiteral("entries ") + entries.join(u' ');
}

QString columnsOf(const QHeaderView& header)
{
    QStringList columns;
    for (int column = 0; column < header.count(); ++column)
        columns.append(quoted(header.model()->headerData(column, header.orientation()).toString()) + u' ' +
                       nameOf(header.sectionResizeMode(column)) +
                       (header.isSectionHidden(column) ? QStringLiteral(" hidden") : QString()));
    const QString hidden = header.isHidden() ? QStringLiteral(" hidden ") : QStringLiteral(" ");
    return columns.isEmpty() ? QString() : QStringLiteral("columns") + hidden + columns.join(u' ');
}

// ---- looks ----------------------------------------------------------------------------------------------------------

/// Where they aren't those of the widget that this one is in; "disabled" and "inactive" where those differ from the
/// rest.
QString coloursOf(const QWidget& widget)
{
    const QPalette palette = widget.palette();
    const bool isInside = widget.parentWidget() != nullptr && !widget.isWindow();
    const QPalette around = isInside ? widget.parentWidget()->palette() : QPalette();
    constexpr std::pair<QPalette::ColorGroup, const char*> groups[] = {
        {QPalette::Active, ""}, {QPalette::Inactive, "inactive "}, {QPalette::Disabled, "disabled "}};
    QStringList colours;
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
        const auto role = static_cast<QPalette::ColorRole>(i);
        if (role == QPalette::NoRole) continue;
        for (const auto& [group, name] : groups) {
            const QColor colour = palette.color(group, role);
            const bool isRest = group != QPalette::Active && colour == palette.color(QPalette::Active, role);
            if (colour != around.color(group, role) && !isRest)
                colours.append(QLatin1String(name) + nameOf(role) + u' ' + colour.name(QColor::HexArgb));
        }
    }
    return colours.isEmpty() ? QString() : QStringLiteral("colours ") + colours.join(u' ');
}

QString fontOf(const QWidget& widget)
{
    if (widget.parentWidget() == nullptr || widget.isWindow()) return {};
    const QFont font = widget.font();
    const QFont around = widget.parentWidget()->font();
    QStringList differences;
    if (font.bold() != around.bold())
        differences.append(font.bold() ? QStringLiteral("bold") : QStringLiteral("light"));
    if (font.italic() != around.italic()) differences.append(QStringLiteral("italic"));
    if (font.underline() != around.underline()) differences.append(QStringLiteral("underlined"));
    if (font.pointSizeF() != around.pointSizeF())
        differences.append(QString::number(font.pointSizeF()) + QStringLiteral(" points"));
    if (QFontInfo(font).fixedPitch() != QFontInfo(around).fixedPitch())
        differences.append(QStringLiteral("fixed pitch"));
    return differences.isEmpty() ? QString() : QStringLiteral("font ") + differences.join(u' ');
}

QStringList attributesOf(const QWidget& widget)
{
    QStringList names;
    for (const auto attribute :
         {Qt::WA_TransparentForMouseEvents, Qt::WA_DeleteOnClose, Qt::WA_NoMouseReplay, Qt::WA_OpaquePaintEvent,
          Qt::WA_StaticContents, Qt::WA_ShowWithoutActivating, Qt::WA_NoSystemBackground, Qt::WA_AlwaysShowToolTips})
        if (widget.testAttribute(attribute) && !widget.inherits("QHeaderView")) names.append(nameOf(attribute));
    if (widget.testAttribute(Qt::WA_SetCursor)) names.append(nameOf(widget.cursor().shape()));
    if (widget.focusProxy() != nullptr)
        names.append(QStringLiteral("focus goes to ") + widget.focusProxy()->objectName());
    return names;
}

/// Of the program's own kinds of widgets, which say it themselves.
QString sizesOf(const QWidget& widget)
{
    const bool isOurs = className(widget).starts_with("tarvex::") && !widget.isWindow() && widget.layout() == nullptr;
    if (!isOurs) return {};
    const QSize least = widget.minimumSizeHint();
    const QSize wanted = widget.sizeHint();
    return QStringLiteral("least %1 x %2, wants %3 x %4")
        .arg(least.width())
        .arg(least.height())
        .arg(wanted.width())
        .arg(wanted.height());
}

// ---- layouts --------------------------------------------------------------------------------------------------------

QString numbers(int count, auto valueAt)
{
    QStringList all;
    bool isPlain = true;
    for (int i = 0; i < count; ++i) {
        all.append(QString::number(valueAt(i)));
        isPlain = isPlain && valueAt(i) == 0;
    }
    return isPlain ? QString() : all.join(u' ');
}

QString gridNote(const QGridLayout& grid)
{
    QString note;
    const auto add = [&note](const char* what, const QString& value) {
        if (!value.isEmpty()) note += QStringLiteral(", %1 %2").arg(QLatin1String(what), value);
    };
    add("rows stretch", numbers(grid.rowCount(), [&](int row) { return grid.rowStretch(row); }));
    add("columns stretch", numbers(grid.columnCount(), [&](int column) { return grid.columnStretch(column); }));
    add("rows at least", numbers(grid.rowCount(), [&](int row) { return grid.rowMinimumHeight(row); }));
    add("columns at least", numbers(grid.columnCount(), [&](int column) { return grid.columnMinimumWidth(column); }));
    return note;
}

QString formNote(const QFormLayout& form)
{
    const QFormLayout plain;
    QString note;
    if (form.fieldGrowthPolicy() != plain.fieldGrowthPolicy())
        note += QStringLiteral(", ") + nameOf(form.fieldGrowthPolicy());
    if (form.rowWrapPolicy() != plain.rowWrapPolicy()) note += QStringLiteral(", ") + nameOf(form.rowWrapPolicy());
    if (form.labelAlignment() != plain.labelAlignment())
        note += QStringLiteral(", labels ") + nameOf(form.labelAlignment());
    if (form.formAlignment() != plain.formAlignment()) note += QStringLiteral(", all ") + nameOf(form.formAlignment());
    return note;
}

QString kindOf(const QLayout& layout)
{
    const auto* box = qobject_cast<const QBoxLayout*>(&layout);
    if (box != nullptr)
        return box->direction() == QBoxLayout::LeftToRight ? QStringLiteral("row") : QStringLiteral("column");
    if (qobject_cast<const QGridLayout*>(&layout) != nullptr) return QStringLiteral("grid");
    if (qobject_cast<const QFormLayout*>(&layout) != nullptr) return QStringLiteral("form");
    return QStringLiteral("layout");
}

/// Margins and space as the style has them: of a layout of the widget itself and of one inside another.
QString distancesOf(const QLayout& layout, const QLayout* above)
{
    QWidget widget;
    const QVBoxLayout plain(&widget);
    const QMargins margins = layout.contentsMargins();
    QString note;
    if (margins != (above == nullptr ? plain.contentsMargins() : QMargins()))
        note += QStringLiteral(", margins ") + textOf(margins);
    const int usual = above != nullptr ? above->spacing() : plain.spacing();
    const auto* grid = qobject_cast<const QGridLayout*>(&layout);
    const auto* form = qobject_cast<const QFormLayout*>(&layout);
    const int across = grid != nullptr   ? grid->horizontalSpacing()
                       : form != nullptr ? form->horizontalSpacing()
                                         : layout.spacing();
    const int down = grid != nullptr   ? grid->verticalSpacing()
                     : form != nullptr ? form->verticalSpacing()
                                       : layout.spacing();
    if (across != usual || down != usual) note += QStringLiteral(", space %1 %2").arg(across).arg(down);
    if (layout.sizeConstraint() != QLayout::SetDefaultConstraint)
        note += QStringLiteral(", ") + nameOf(layout.sizeConstraint());
    return note;
}

} // namespace

QString kindOf(const QWidget& widget)
{
    static const QRegularExpression ours(QStringLiteral("tarvex::(\\(anonymous namespace\\)::)?"));
    return QString::fromStdString(className(widget)).remove(ours);
}

QString windowNote(const QWidget& window)
{
    QString note = quoted(window.windowTitle()) + u' ' + nameOf(window.windowFlags()) + u' ';
    if (window.testAttribute(Qt::WA_Resized))
        note += QStringLiteral("%1 x %2 ").arg(window.width()).arg(window.height());
    return note;
}

QStringList notesOn(const QWidget& widget)
{
    QStringList notes;
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->buddy() != nullptr)
        notes.append(QStringLiteral("of ") +
                     (label->buddy()->objectName().isEmpty() ? kindOf(*label->buddy()) : label->buddy()->objectName()));
    if (label != nullptr && label->frameWidth() == 0 && !label->contentsMargins().isNull())
        notes.append(QStringLiteral("margins ") + textOf(label->contentsMargins()));
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) notes.append(entriesOf(*box->model()));
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
        notes.append(header->model() != nullptr ? columnsOf(*header) : QString());
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget); view && view->model() != nullptr) {
        notes.append(entriesOf(*view->model()));
    }
    const QWidget* parent = widget.parentWidget();
    const bool isPage = parent != nullptr && parent->inherits("QStackedWidget");
    if (widget.isHidden() && !widget.isWindow() && !isPage) notes.append(QStringLiteral("hidden"));
    notes += attributesOf(widget);
    notes.append(sizesOf(widget));
    notes.append(coloursOf(widget));
    notes.append(fontOf(widget));
    notes.removeAll(QString());
    return notes;
}

QString tabNote(const QTabWidget& tabs, int page)
{
    QString note = QStringLiteral("tab ") + quoted(tabs.tabText(page));
    if (!tabs.tabToolTip(page).isEmpty()) note += QStringLiteral(" tip ") + quoted(tabs.tabToolTip(page));
    if (!tabs.isTabEnabled(page)) note += QStringLiteral(" disabled");
    if (!tabs.isTabVisible(page)) note += QStringLiteral(" hidden");
    if (tabs.currentIndex() == page) note += QStringLiteral(" in front");
    return note + QStringLiteral(": ");
}

QString noteOn(const QObject& object, const PlainWidgets& plain)
{
    const bool isNoted = qobject_cast<const QShortcut*>(&object) != nullptr ||
                         qobject_cast<const QTimer*>(&object) != nullptr || object.inherits("QValidator") ||
                         object.inherits("QCompleter");
    if (!isNoted) return {};
    const QString name = object.objectName().isEmpty() ? QString() : object.objectName() + u' ';
    return name + QLatin1String(object.metaObject()->className()) + QStringLiteral(": ") +
           plain.setIn(object).join(u", ");
}

QString layoutNote(const QLayout& layout, const QLayout* above)
{
    QString note = kindOf(layout) + distancesOf(layout, above);
    if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) note += gridNote(*grid);
    if (const auto* form = qobject_cast<const QFormLayout*>(&layout)) note += formNote(*form);
    return note;
}

QString alignmentNote(const QLayoutItem& item)
{
    return item.alignment() == Qt::Alignment() ? QString() : nameOf(item.alignment()) + QStringLiteral(": ");
}

QString spaceNote(const QSpacerItem& space)
{
    const QSize size = space.sizeHint();
    return QStringLiteral("space %1 x %2 %3 %4")
        .arg(size.width())
        .arg(size.height())
        .arg(nameOf(space.sizePolicy().horizontalPolicy()), nameOf(space.sizePolicy().verticalPolicy()));
}

} // namespace tarvex
