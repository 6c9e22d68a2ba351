#include "plain_widgets.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QIcon>
#include <QIntValidator>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <set>

namespace tarvex {

namespace {

/// What an abstract class of the toolkit is by itself.
struct PlainButton : QAbstractButton {
    using QAbstractButton::QAbstractButton;
    void paintEvent(QPaintEvent*) override {}
};

const std::set<QByteArray> leftOut{
    // places, and what the keyboard and the mouse are on
    "childrenRect", "childrenRegion", "frameGeometry", "frameRect", "frameSize", "geometry", "height", "lineCount",
    "blockCount", "minimumSizeHint", "normalGeometry", "pos", "rect", "size", "sizeHint", "width", "x", "y",
    "fullScreen", "isActiveWindow", "focus", "maximized", "minimized", "underMouse", "down", "sliderDown",
    "cursorPosition", "selectedText", "hasSelectedText", "selectionStart", "active", "remainingTime",
    // what other properties give
    "acceptableInput", "count", "currentData", "displayText", "document", "documentTitle", "frameWidth", "html",
    "iconText", "markdown", "modal", "maximumHeight", "maximumWidth", "minimumHeight", "minimumWidth", "redoAvailable",
    "searchPaths", "sliderPosition", "source", "undoAvailable", "visible", "cleanText",
    // what is compared by itself, or is the desktop's
    "cursor", "cursorWidth", "font", "locale", "objectName", "palette", "pixmap", "screen", "windowFilePath",
    "windowIcon", "windowIconText", "windowTitle"};

QString sizeText(QSize size) { return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()); }

/// By its name; a picture that was painted for the place by the colour in its middle.
QString iconText(const QIcon& icon)
{
    if (icon.isNull()) return {};
    if (!icon.name().isEmpty()) return icon.name();
    constexpr int side = 16;
    const QImage picture = icon.pixmap(side, side).toImage();
    return picture.isNull() ? QString() : picture.pixelColor(picture.rect().center()).name(QColor::HexArgb);
}

QString policyText(const QSizePolicy& policy)
{
    const QMetaEnum names = QMetaEnum::fromType<QSizePolicy::Policy>();
    QString text = QStringLiteral("%1 %2").arg(QLatin1String(names.valueToKey(policy.horizontalPolicy())),
                                               QLatin1String(names.valueToKey(policy.verticalPolicy())));
    if (policy.horizontalStretch() != 0 || policy.verticalStretch() != 0)
        text += QStringLiteral(" stretch %1 %2").arg(policy.horizontalStretch()).arg(policy.verticalStretch());
    if (policy.hasHeightForWidth()) text += QStringLiteral(" height by width");
    return text + (policy.retainSizeWhenHidden() ? QStringLiteral(" keeps its size") : QString());
}

QString valueText(const QMetaProperty& property, const QVariant& value)
{
    if (property.isEnumType()) {
        const QMetaEnum names = property.enumerator();
        return QLatin1String(property.isFlagType() ? names.valueToKeys(value.toInt())
                                                   : QByteArray(names.valueToKey(value.toInt())));
    }
    switch (value.typeId()) {
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QSize:
        return sizeText(value.toSize());
    case QMetaType::QIcon:
        return iconText(value.value<QIcon>());
    case QMetaType::QSizePolicy:
        return policyText(value.value<QSizePolicy>());
    case QMetaType::QKeySequence:
        return value.value<QKeySequence>().toString(QKeySequence::PortableText);
    default:
        return value.toString();
    }
}

QString valueText(const QObject& object, const QMetaProperty& property)
{
    const QVariant value = property.read(&object);
    const QLatin1String name(property.name());
    const auto* widget = qobject_cast<const QWidget*>(&object);
    if (widget != nullptr && name == QLatin1String("tabStopDistance")) // in characters
        return QString::number(value.toInt() / widget->fontMetrics().horizontalAdvance(u' '));
    if (const auto* button = qobject_cast<const QAbstractButton*>(&object); button && name == QLatin1String("shortcut"))
        return button->shortcut() == QKeySequence::mnemonic(button->text()) ? QString() : valueText(property, value);
    if (const auto* action = qobject_cast<const QAction*>(&object); action && name == QLatin1String("toolTip"))
        return action->toolTip() == action->iconText() ? quoted({}) : valueText(property, value);
    return valueText(property, value);
}

/// The least size of most windows follows from what is in them.
bool isByLayout(const QObject& object, const QMetaProperty& property)
{
    const auto* widget = qobject_cast<const QWidget*>(&object);
    return widget != nullptr && widget->isWindow() && !widget->inherits("QMainWindow") &&
           qstrcmp(property.name(), "minimumSize") == 0;
}

QString line(const QMetaProperty& property, const QString& value)
{
    const QString name = QLatin1String(property.name());
    if (property.typeId() == QMetaType::Bool) return value == QStringLiteral("true") ? name : "not " + name;
    return name + u' ' + value;
}

} // namespace

QString quoted(QString text)
{
    constexpr qsizetype longest = 160;
    if (text.size() > longest) text = text.left(longest) + QStringLiteral("...");
    text.replace(u'\n', QStringLiteral("\\n")).replace(u'\t', QStringLiteral("\\t"));
    return u'"' + text.replace(QChar(0xFFFC), u'*') + u'"';
}

PlainWidgets::PlainWidgets()
{
    QWidget* parent = new QDialog(&m_parent); // whose buttons differ from those elsewhere
    const QObject* const all[] = {new QWidget(parent),
                                  new QFrame(parent),
                                  new QLabel(parent),
                                  new PlainButton(parent),
                                  new QPushButton(parent),
                                  new QToolButton(parent),
                                  new QCheckBox(parent),
                                  new QRadioButton(parent),
                                  new QLineEdit(parent),
                                  new QComboBox(parent),
                                  new QAbstractSpinBox(parent),
                                  new QSpinBox(parent),
                                  new QSlider(parent),
                                  new QGroupBox(parent),
                                  new QTabWidget(parent),
                                  new QSplitter(parent),
                                  new QStackedWidget(parent),
                                  new QAbstractScrollArea(parent),
                                  new QScrollArea(parent),
                                  new QListView(parent),
                                  new QListWidget(parent),
                                  new QTableView(parent),
                                  new QTableWidget(parent),
                                  new QTreeView(parent),
                                  new QTreeWidget(parent),
                                  new QPlainTextEdit(parent),
                                  new QTextEdit(parent),
                                  new QTextBrowser(parent),
                                  new QProgressBar(parent),
                                  new QDialogButtonBox(parent),
                                  new QMenuBar(parent),
                                  new QStatusBar(parent),
                                  new QMainWindow(parent),
                                  new QMenu(parent),
                                  new QAction(parent),
                                  new QTimer(parent),
                                  new QShortcut(parent),
                                  new QIntValidator(parent),
                                  parent,
                                  new QHeaderView(Qt::Horizontal, parent)};
    for (const QObject* plain : all) m_plain[plain->metaObject()->className()] = plain;
}

const QObject* PlainWidgets::plainOf(const QObject& object) const
{
    for (const QMetaObject* kind = object.metaObject(); kind != nullptr; kind = kind->superClass())
        if (const auto found = m_plain.find(kind->className()); found != m_plain.end()) return found->second;
    return nullptr;
}

QStringList PlainWidgets::setIn(const QObject& object) const
{
    QStringList lines;
    const QObject* plain = plainOf(object);
    const QMetaObject& kind = *object.metaObject();
    for (int i = 0; i < kind.propertyCount(); ++i) {
        const QMetaProperty property = kind.property(i);
        if (!property.isReadable() || leftOut.contains(property.name()) || isByLayout(object, property)) continue;
        if (property.metaType().flags() & QMetaType::PointerToQObject) continue;
        const QString value = valueText(object, property);
        const int index = plain != nullptr ? plain->metaObject()->indexOfProperty(property.name()) : -1;
        if (index < 0 || value != valueText(*plain, plain->metaObject()->property(index)))
            lines.append(line(property, value));
    }
    return lines;
}

} // namespace tarvex
