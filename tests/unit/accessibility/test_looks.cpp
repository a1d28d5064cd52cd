// Everything that was set on a widget, layout, button group, validator or menu of strip, dialog and
// popup, against a list: a margin, a stretch, a flat button or an icon size changes only on
// purpose. After such a change LOOKS_WRITE=1 rewrites the lists; review the diff. The strip is
// compared with tests/contract/tools.txt.

#include "DialogFixture.h"
#include "Main.h"
#include "ToolRows.h"
#include "dimensions/Dimensious.h"

#include <QActionGroup>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleValidator>
#include <QFile>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMetaProperty>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QToolButton>

#include <functional>

namespace {

using Factory = std::function<QObject*()>;

template <class T>
QPair<QByteArray, Factory> plain()
{
    return {T::staticMetaObject.className(), [] { return new T; }};
}

/// The classes that objects are compared with: what differs from a plain one was set.
const QMap<QByteArray, Factory>& plainOnes()
{
    static const QMap<QByteArray, Factory> all = [] {
        QMap<QByteArray, Factory> map;
        for (const auto& [name, make] :
             {plain<QWidget>(),          plain<QFrame>(),
              plain<QLabel>(),           plain<QPushButton>(),
              plain<QToolButton>(),      plain<QRadioButton>(),
              plain<QCheckBox>(),        plain<QComboBox>(),
              plain<QLineEdit>(),        plain<QSpinBox>(),
              plain<QGroupBox>(),        plain<QMenu>(),
              plain<QAction>(),          plain<QButtonGroup>(),
              plain<QDoubleValidator>(), plain<QIntValidator>(),
              plain<QRegExpValidator>(), plain<QRegularExpressionValidator>(),
              plain<QHBoxLayout>(),      plain<QVBoxLayout>(),
              plain<QGridLayout>(),      plain<QFormLayout>()}) {
            map.insert(name, make);
        }
        map.insert("QActionGroup", [] { return new QActionGroup(nullptr); });
        return map;
    }();
    return all;
}

/// The nearest class that plain ones are made of; none for an object that nobody may set.
const QMetaObject* knownClass(const QObject& object)
{
    const QMetaObject* meta = object.metaObject();
    while (meta && !plainOnes().contains(meta->className())) {
        meta = meta->superClass();
    }
    return meta;
}

QString textOf(const QMetaProperty& property, const QVariant& value)
{
    if (property.isEnumType()) {
        const QMetaEnum names = property.enumerator();
        return property.isFlagType() ? QString(names.valueToKeys(value.toInt()))
                                     : names.valueToKey(value.toInt());
    }
    switch (static_cast<int>(value.type())) {
        case QVariant::Size:
            return QStringLiteral("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
        case QVariant::RegExp:
            return value.toRegExp().pattern();
        case QVariant::RegularExpression:
            return value.toRegularExpression().pattern();
        case QVariant::SizePolicy: {
            const auto policy = value.value<QSizePolicy>();
            return QStringLiteral("%1,%2,%3,%4")
                .arg(policy.horizontalPolicy())
                .arg(policy.verticalPolicy())
                .arg(policy.horizontalStretch())
                .arg(policy.verticalStretch());
        }
        default:
            return value.toString();
    }
}

/// What Qt works out by itself, or what a style, a font or showing decides.
bool isDerived(const char* property)
{
    static const QSet<QByteArray> names{"pos",
                                        "x",
                                        "y",
                                        "width",
                                        "height",
                                        "size",
                                        "rect",
                                        "minimized",
                                        "maximized",
                                        "focus",
                                        "active",
                                        "fullScreen",
                                        "font",
                                        "visible",
                                        "sizeHint",
                                        "modal",
                                        "frameGeometry",
                                        "geometry",
                                        "minimumSizeHint",
                                        "frameWidth",
                                        "objectName",
                                        "sizeIncrement",
                                        "childrenRect",
                                        "frameSize",
                                        "isActiveWindow",
                                        "minimumWidth",
                                        "minimumHeight",
                                        "maximumWidth",
                                        "maximumHeight",
                                        "count",
                                        "displayText",
                                        "cursorPosition",
                                        "currentText",
                                        "margin",
                                        "spacing",
                                        "acceptableInput"};
    return names.contains(property);
}

QString scalarsOf(const QObject& object)
{
    const QMetaObject* const meta = knownClass(object);
    const QScopedPointer<QObject> other(plainOnes().value(meta->className())());
    QStringList found;
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString value = textOf(property, property.read(&object));
        // The layout works out a window's minimum size.
        const bool isMinimumOfWindow = object.isWidgetType() &&
                                       static_cast<const QWidget&>(object).isWindow() &&
                                       qstrcmp(property.name(), "minimumSize") == 0;
        if (!isMinimumOfWindow && !isDerived(property.name()) &&
            value != textOf(property, property.read(other.data()))) {
            found.append(QStringLiteral("%1=%2").arg(property.name(), value).replace('\n', "\\n"));
        }
    }
    return found.join("; ");
}

QString nameOf(const QLayoutItem& item)
{
    auto& open = const_cast<QLayoutItem&>(item);  // Qt's getters of an item are not const
    if (const QWidget* const widget = open.widget()) {
        return widget->objectName();
    }
    if (open.layout()) {
        return QStringLiteral("(layout)");
    }
    const QSizePolicy policy = open.spacerItem()->sizePolicy();
    return QStringLiteral("(space %1x%2 %3,%4)")
        .arg(item.sizeHint().width())
        .arg(item.sizeHint().height())
        .arg(policy.horizontalPolicy())
        .arg(policy.verticalPolicy());
}

QString placeOf(const QLayout& layout, int index)
{
    if (const auto* const grid = qobject_cast<const QGridLayout*>(&layout)) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        return QStringLiteral("@%1,%2+%3,%4").arg(row).arg(column).arg(rows).arg(columns);
    }
    const auto* const box = qobject_cast<const QBoxLayout*>(&layout);
    return box && box->stretch(index) ? QStringLiteral("*%1").arg(box->stretch(index)) : QString();
}

QString stretchesOf(const QLayout& layout)
{
    QStringList found;
    if (const auto* const grid = qobject_cast<const QGridLayout*>(&layout)) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            found.append(QString::number(grid->columnStretch(column)) + '/' +
                         QString::number(grid->columnMinimumWidth(column)));
        }
        for (int row = 0; row < grid->rowCount(); ++row) {
            found.append(QString::number(grid->rowStretch(row)) + '/' +
                         QString::number(grid->rowMinimumHeight(row)));
        }
    }
    return found.isEmpty() ? QString() : " stretch " + found.join(' ');
}

QString itemsOf(const QLayout& layout)
{
    const QMargins margins = layout.contentsMargins();
    QStringList items;
    for (int index = 0; index < layout.count(); ++index) {
        const QLayoutItem& item = *layout.itemAt(index);
        items.append(nameOf(item) + placeOf(layout, index) +
                     (item.alignment() ? QStringLiteral("|%1").arg(item.alignment()) : QString()));
    }
    return QStringLiteral(" margins %1,%2,%3,%4 spacing %5%6: %7")
        .arg(margins.left())
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom())
        .arg(layout.spacing())
        .arg(stretchesOf(layout), items.join(", "));
}

QString extrasOf(const QObject& object)
{
    if (const auto* const layout = qobject_cast<const QLayout*>(&object)) {
        return itemsOf(*layout);
    }
    if (const auto* const group = qobject_cast<const QButtonGroup*>(&object)) {
        QStringList members;
        for (QAbstractButton* const button : group->buttons()) {
            members.append(
                QStringLiteral("%1=%2").arg(button->objectName()).arg(group->id(button)));
        }
        return " buttons " + members.join(' ');
    }
    if (const auto* const combo = qobject_cast<const QComboBox*>(&object)) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i) {
            items.append(combo->itemText(i) + '=' + combo->itemData(i).toString());
        }
        return " items " + items.join(", ");
    }
    const auto* const label = qobject_cast<const QLabel*>(&object);
    return label && label->buddy() ? " buddy " + label->buddy()->objectName() : QString();
}

/// Qt's own parts of a control (a combo box's list, a spin box's field) are not ours to set.
bool isOfQt(const QObject& object)
{
    return object.objectName().startsWith(QLatin1String("qt_")) ||
           object.inherits("QAbstractItemView") || object.inherits("QScrollBar");
}

void describe(const QObject& object, int depth, QStringList* lines)
{
    if (isOfQt(object)) {
        return;
    }
    if (knownClass(object)) {
        lines->append(
            QString(2 * depth, ' ') +
            QStringLiteral("%1 %2: ").arg(object.metaObject()->className(), object.objectName()) +
            scalarsOf(object) + extrasOf(object));
    }
    if (!qobject_cast<const QComboBox*>(&object) && !qobject_cast<const QSpinBox*>(&object)) {
        for (const QObject* const child : object.children()) {
            describe(*child, depth + 1, lines);
        }
    }
}

QStringList readLines(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split('\n')
                                          : QStringList();
}

QStringList looksOf(const QObject& root)
{
    QStringList lines;
    describe(root, 0, &lines);
    for (QString& line : lines) {
        while (line.endsWith(' ')) {
            line.chop(1);
        }
    }
    return lines;
}

void compareLines(const QStringList& lines, const QStringList& expected)
{
    for (int i = 0; i < qMin(lines.size(), expected.size()); ++i) {
        QCOMPARE(lines[i], expected[i]);
    }
    QCOMPARE(lines.size(), expected.size());
}

void compareWith(const QString& list, const QObject& root)
{
    const QStringList lines = looksOf(root) + QStringList(QString());
    const QString name = QDir(LOOKS_FOLDER).filePath(list);
    if (qEnvironmentVariableIsSet("LOOKS_WRITE")) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(lines.join('\n').toUtf8());
        return;
    }
    compareLines(lines, readLines(name));
}

constexpr int columns = 4;  // of the strip

/// The strip's layout: the tools row by row.
QString gridOf(const QVector<ToolRow>& tools)
{
    QStringList items;
    for (const ToolRow& tool : tools) {
        const int place = items.size();
        items.append(QStringLiteral("%1@%2,%3+1,1")
                         .arg(tool.objectName)
                         .arg(place / columns)
                         .arg(place % columns));
    }
    const int rows = (tools.size() + columns - 1) / columns;
    return QStringLiteral("  Canvas_Tool_Strip :  margins 11,11,11,11 spacing 6 stretch%1: %2")
        .arg(QStringLiteral(" 0/0").repeated(columns + rows), items.join(", "));
}

QString lookOf(const ToolRow& tool, bool isChecked)
{
    QStringList set{"minimumSize=40x40", "maximumSize=40x40"};
    if (!tool.isEnabled) {
        set.prepend("enabled=false");
    }
    if (tool.hasMenu) {
        set.append("contextMenuPolicy=CustomContextMenu");
    }
    set += {"toolTip=" + tool.tip, "accessibleName=" + tool.tip, "styleSheet=" + tool.styleSheet(),
            "checkable=true"};
    if (isChecked) {
        set.append("checked=true");
    }
    set.append("autoRaise=true");
    return QStringLiteral("  QToolButton %1: %2").arg(tool.objectName, set.join("; "));
}

}  // namespace

class TestLooks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dialog()
    {
        const DialogFixture fixture;
        fixture.dialog->setUpdatesEnabled(true);  // which the fixture has off
        compareWith("dialog.txt", *fixture.dialog);
    }

    void strip()
    {
        QWidget panel;
        panel.setLayout(new Canvas_Tool_Strip(&panel));
        // The first button is the panel's child before the strip is.
        QStringList expected{"QWidget :", lookOf(toolRows().first(), true), gridOf(toolRows())};
        for (const ToolRow& tool : toolRows().mid(1)) {
            expected.append(lookOf(tool, false));
        }
        compareLines(looksOf(panel), expected);
    }

    void dimensions()
    {
        constexpr int slotsWithoutSender = 7;  // the form connects by name before its groups exist
        for (int i = 0; i < slotsWithoutSender; ++i) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No matching signal for"));
        }
        const Dimensious popup;
        compareWith("dimensions.txt", popup);
    }
};

CTS_TEST(TestLooks);
#include "test_looks.moc"
