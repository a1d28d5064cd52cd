#include "PlainPages.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QFrame>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegExpValidator>

namespace PlainPages {
namespace {

constexpr char decimal[] = "-?[0-9]*\\.?[0-9]*";
constexpr char positive[] = "^[1-9][0-9]*|0$";
constexpr char pitch[] =
    "[-]?[1-9][0-9]{0,14}|[-]?[0][.][0-9]{0,5}|[-]?[1-9][0-9]{0,}[.][0-9]{1,5}|^$";

template <class Layout>
Layout* withoutMargins(QWidget* page)
{
    auto* const layout = new Layout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

QLabel* label(const QString& text, QWidget* parent, QWidget* buddy = nullptr)
{
    auto* const created = new QLabel(text, parent);
    created->setBuddy(buddy);
    return created;
}

QCheckBox* checkBox(const QString& text, QWidget* parent)
{
    return new QCheckBox(text, parent);
}

QLayout* directionButtons(QWidget* group, QButtonGroup* buttons)
{
    struct Direction {
        const char* icon;
        const char* tip;
    };
    static constexpr Direction directions[] = {
        {":/Canvas_Tool_Strip/Resources/Free1.jpg", "Free direction"},
        {":/Canvas_Tool_Strip/Resources/Ver1.jpg", "Vertical"},
        {":/Canvas_Tool_Strip/Resources/Hori1.jpg", "Horizontal"},
        {":/Canvas_Tool_Strip/Resources/VH1.jpg", "Vertical, then horizontal"},
        {":/Canvas_Tool_Strip/Resources/8 Dir1.jpg", "Eight directions"},
        {":/Canvas_Tool_Strip/Resources/Fixed1.jpg", "Fixed angle"},
    };
    auto* const row = new QHBoxLayout;
    row->setSpacing(0);
    for (const Direction& direction : directions) {
        auto* const button = new QRadioButton(group);
        button->setIcon(QIcon(QLatin1String(direction.icon)));
        button->setIconSize({24, 24});
        button->setToolTip(QLatin1String(direction.tip));
        buttons->addButton(button);
        row->addWidget(button);
    }
    buttons->buttons().first()->setChecked(true);
    return row;
}

QWidget* directionGroup(QWidget* page)
{
    auto* const group = new QWidget(page);
    auto* const rows = withoutMargins<QVBoxLayout>(group);
    rows->addLayout(directionButtons(group, new QButtonGroup(page)));
    auto* const angle = field({}, decimal, group);
    auto* const angleLabel = label("Angle (deg)", group, angle);
    angle->setEnabled(false);
    angleLabel->setEnabled(false);
    auto* const angleRow = new QHBoxLayout;
    angleRow->addStretch();
    angleRow->addWidget(angleLabel);
    angleRow->addWidget(angle);
    rows->addLayout(angleRow);
    return group;
}

QWidget* cornerGroup(QWidget* page)
{
    auto* const group = new QWidget(page);
    auto* const rows = withoutMargins<QVBoxLayout>(group);
    auto* const grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    rows->addLayout(grid);
    auto* const type = combo({"Straight", "Round", "Chamfer", "Oblong"}, group);
    auto* const radius = field("0", positive, group);
    grid->addWidget(label("Corner Type : ", group, type), 0, 0);
    grid->addWidget(type, 0, 1);
    grid->addWidget(label("Corner Radius : ", group, radius), 1, 0);
    grid->addWidget(radius, 1, 1);
    grid->addWidget(label("mil", group), 1, 2);
    for (const int column : {0, 1, 2}) {
        grid->itemAtPosition(1, column)->widget()->setEnabled(false);
    }
    return group;
}

QWidget* slotGroup(QWidget* page)
{
    auto* const group = new QWidget(page);
    auto* const rows = withoutMargins<QVBoxLayout>(group);
    auto* const grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    rows->addLayout(grid);
    int row = 0;
    for (const char* const text : {"Length : ", "Angle (deg) : ", "Decode: "}) {
        auto* const value = field("0", decimal, group);
        grid->addWidget(label(QLatin1String(text), group, value), row, 0);
        grid->addWidget(value, row, 1);
        ++row;
    }
    grid->addWidget(label("\"", group), 0, 2);
    rows->addWidget(combo({"Plated", "Non Plated"}, group));
    return group;
}

QGridLayout* padColumn(QWidget* page, const QString& axis)
{
    auto* const grid = new QGridLayout;
    auto* const count = field("1", nullptr, page);
    count->setValidator(new QIntValidator(count));
    auto* const distance = field("0", pitch, page);
    auto* const factor = field("1", nullptr, page);
    factor->setValidator(new QDoubleValidator(factor));
    grid->addWidget(label("N" + axis + "   : ", page, count), 0, 0);
    grid->addWidget(count, 0, 1);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, 2);
    grid->addWidget(label("D" + axis + "   : ", page, distance), 1, 0);
    grid->addWidget(distance, 1, 1);
    grid->addWidget(label("mil", page), 1, 2);
    grid->addWidget(label(axis.toUpper() + "scl : ", page, factor), 2, 0);
    grid->addWidget(factor, 2, 1);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 2, 2);
    grid->setColumnStretch(1, 1);
    return grid;
}

}  // namespace

QComboBox* combo(const QStringList& items, QWidget* parent, std::initializer_list<int> greyed)
{
    auto* const created = new QComboBox(parent);
    created->addItems(items);
    for (const int index : greyed) {
        created->setItemData(index, 0, Qt::UserRole - 1);
    }
    return created;
}

QLineEdit* field(const QString& text, const char* pattern, QWidget* parent)
{
    auto* const created = new QLineEdit(text, parent);
    if (pattern) {
        created->setValidator(new QRegExpValidator(QRegExp(QLatin1String(pattern)), created));
    }
    return created;
}

QWidget* line(QWidget* dialog)
{
    auto* const page = new QWidget(dialog);
    auto* const rows = withoutMargins<QVBoxLayout>(page);
    auto* const kindRow = new QHBoxLayout;
    kindRow->addWidget(combo({"Single Line", "Polyline", "Rectangle", "Slot"}, page, {3}));
    auto* const closed = checkBox("Closed", page);
    closed->setEnabled(false);
    kindRow->addWidget(closed);
    kindRow->addStretch();
    rows->addLayout(kindRow);
    rows->addWidget(directionGroup(page));
    for (QWidget* const hidden : {cornerGroup(page), slotGroup(page)}) {
        rows->addWidget(hidden);
        hidden->hide();
    }
    return page;
}

QWidget* pad(QWidget* dialog)
{
    auto* const page = new QWidget(dialog);
    auto* const columns = withoutMargins<QHBoxLayout>(page);
    auto* const separator = new QFrame(page);
    separator->setFrameShape(QFrame::VLine);
    separator->setFrameShadow(QFrame::Sunken);
    columns->addLayout(padColumn(page, "x"), 1);
    columns->addWidget(separator);
    columns->addLayout(padColumn(page, "y"), 1);
    return page;
}

QWidget* surface(QWidget* dialog)
{
    auto* const page = new QWidget(dialog);
    auto* const row = withoutMargins<QHBoxLayout>(page);
    row->addWidget(combo({"Rectangle", "Polygon", "Circle"}, page));
    row->addStretch();
    return page;
}

QWidget* arc(QWidget* dialog)
{
    auto* const page = new QWidget(dialog);
    auto* const firstRow = new QHBoxLayout;
    auto* const clockWise = checkBox("ClockWise", page);
    clockWise->setChecked(true);
    firstRow->addWidget(combo({"Arc", "Circle"}, page));
    firstRow->addWidget(clockWise);
    firstRow->addStretch();
    auto* const circle =
        combo({"Center, Radius", "Center, Point", "Point, Center", "Three Points"}, page, {3});
    circle->setEnabled(false);
    auto* const rows = withoutMargins<QVBoxLayout>(page);
    rows->addLayout(firstRow);
    rows->addWidget(combo(
        {"Start, Center, End", "Start, End, Edge", "Start, End, Center", "Start, Center, Angle",
         "Start, Center, Length", "Start, End, Angle", "Start, End, Radius"},
        page, {3, 4, 5, 6}));
    rows->addWidget(circle);
    return page;
}

}  // namespace PlainPages
