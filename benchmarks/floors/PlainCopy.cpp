#include "PlainCopy.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegExpValidator>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int greyRole = Qt::UserRole - 1;

using Create = std::function<QWidget*(QWidget* parent)>;

/// Makes a widget of the last of these classes that the original belongs to.
template <class... Classes>
Create creation(const QWidget& original)
{
    Create create = [](QWidget* parent) { return new QWidget(parent); };
    const auto look = [&](auto* found) {
        using Class = std::remove_const_t<std::remove_pointer_t<decltype(found)>>;
        if (found) {
            create = [](QWidget* parent) { return new Class(parent); };
        }
    };
    (look(qobject_cast<const Classes*>(&original)), ...);
    return create;
}

/// The parts that Qt builds a control from come with the control.
bool isPartOfControl(const QWidget& widget)
{
    const QWidget* const parent = widget.parentWidget();
    return qobject_cast<const QComboBox*>(parent) || qobject_cast<const QSpinBox*>(parent) ||
           qobject_cast<const QLineEdit*>(parent);
}

/// The module's file that the icon was made from.
QString pictureOf(const QIcon& icon)
{
    const QDir pictures(QStringLiteral(":/Canvas_Tool_Strip/Resources"));
    const QImage shown = icon.pixmap(icon.availableSizes().value(0)).toImage();
    for (const QString& name : pictures.entryList()) {
        if (QPixmap(pictures.filePath(name)).toImage() == shown) {
            return pictures.filePath(name);
        }
    }
    qFatal("a picture of the dialog is not the module's");
}

QLayout* plainLayout(bool isGrid, QBoxLayout::Direction direction)
{
    return isGrid ? static_cast<QLayout*>(new QGridLayout) : new QBoxLayout(direction);
}

}  // namespace

PlainCopy::PlainCopy(const QWidget& original)
{
    add(original);
    for (int i = 0; i < m_originals.size(); ++i) {
        if (const QLayout* const layout = m_originals[i]->layout()) {
            addLayout(*layout, i);
        }
    }
    addBuddiesAndGroups();
    m_originals.clear();
}

QWidget* PlainCopy::make(QWidget* owner) const
{
    Made made{owner, {}, {}};
    for (const auto& call : m_calls) {
        call(made);
    }
    return made.widgets.first();
}

void PlainCopy::add(const QWidget& original)
{
    const int parent = m_originals.indexOf(original.parentWidget());
    m_originals.append(&original);
    if (parent < 0) {
        m_calls.append(
            [flags = original.windowFlags(), title = original.windowTitle()](Made& made) {
                made.widgets.append(new QWidget(made.owner, flags));
                made.widgets.last()->setWindowTitle(title);
            });
    } else {
        const auto create = creation<QFrame, QLabel, QLineEdit, QComboBox, QSpinBox, QCheckBox,
                                     QRadioButton, QPushButton, QToolButton>(original);
        m_calls.append([=](Made& made) { made.widgets.append(create(made.widgets[parent])); });
    }
    addSizes(original);
    addContent(original);
    addState(original);
    for (const QObject* const child : original.children()) {
        const auto* const widget = qobject_cast<const QWidget*>(child);
        if (widget && !isPartOfControl(*widget)) {
            add(*widget);
        }
    }
}

void PlainCopy::addSizes(const QWidget& original)
{
    if (original.minimumSize() != QSize(0, 0)) {
        note<QWidget>(
            [size = original.minimumSize()](QWidget& copy) { copy.setMinimumSize(size); });
    }
    note<QWidget>([policy = original.sizePolicy()](QWidget& copy) { copy.setSizePolicy(policy); });
    if (original.maximumSize() != QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)) {
        note<QWidget>(
            [size = original.maximumSize()](QWidget& copy) { copy.setMaximumSize(size); });
    }
}

/// What a control shows.
void PlainCopy::addContent(const QWidget& original)
{
    if (const auto* const label = qobject_cast<const QLabel*>(&original)) {
        note<QLabel>([text = label->text()](QLabel& copy) { copy.setText(text); });
    } else if (const auto* const frame = qobject_cast<const QFrame*>(&original)) {
        note<QFrame>([style = frame->frameStyle()](QFrame& copy) { copy.setFrameStyle(style); });
    } else if (const auto* const edit = qobject_cast<const QLineEdit*>(&original)) {
        addLineEdit(*edit);
    } else if (const auto* const combo = qobject_cast<const QComboBox*>(&original)) {
        addComboBox(*combo);
    } else if (const auto* const spin = qobject_cast<const QSpinBox*>(&original)) {
        note<QSpinBox>([least = spin->minimum(), most = spin->maximum()](QSpinBox& copy) {
            copy.setRange(least, most);
        });
    } else if (const auto* const button = qobject_cast<const QAbstractButton*>(&original)) {
        addButton(*button);
    }
}

void PlainCopy::addLineEdit(const QLineEdit& original)
{
    const QValidator* const validator = original.validator();
    if (const auto* const expression = qobject_cast<const QRegExpValidator*>(validator)) {
        note<QLineEdit>([pattern = expression->regExp().pattern()](QLineEdit& copy) {
            copy.setValidator(new QRegExpValidator(QRegExp(pattern), &copy));
        });
    } else if (const auto* const whole = qobject_cast<const QIntValidator*>(validator)) {
        note<QLineEdit>([least = whole->bottom(), most = whole->top()](QLineEdit& copy) {
            copy.setValidator(new QIntValidator(least, most, &copy));
        });
    } else if (const auto* const number = qobject_cast<const QDoubleValidator*>(validator)) {
        note<QLineEdit>([least = number->bottom(), most = number->top(),
                         decimals = number->decimals()](QLineEdit& copy) {
            copy.setValidator(new QDoubleValidator(least, most, decimals, &copy));
        });
    }
    note<QLineEdit>([text = original.text(), isReadOnly = original.isReadOnly()](QLineEdit& copy) {
        copy.setText(text);
        copy.setReadOnly(isReadOnly);
    });
}

void PlainCopy::addComboBox(const QComboBox& original)
{
    QStringList items;
    QVector<int> greyed;
    for (int i = 0; i < original.count(); ++i) {
        items.append(original.itemText(i));
        if (original.itemData(i, greyRole) == QVariant(0)) {
            greyed.append(i);
        }
    }
    note<QComboBox>([=, index = original.currentIndex()](QComboBox& copy) {
        copy.addItems(items);
        for (const int item : greyed) {
            copy.setItemData(item, 0, greyRole);
        }
        copy.setCurrentIndex(index);
    });
    if (const int characters = original.minimumContentsLength()) {
        note<QComboBox>([=, policy = original.sizeAdjustPolicy()](QComboBox& copy) {
            copy.setSizeAdjustPolicy(policy);
            copy.setMinimumContentsLength(characters);
        });
    }
}

void PlainCopy::addButton(const QAbstractButton& original)
{
    note<QAbstractButton>([text = original.text(), isCheckable = original.isCheckable(),
                           isChecked = original.isChecked()](QAbstractButton& copy) {
        copy.setText(text);
        copy.setCheckable(isCheckable);
        copy.setChecked(isChecked);
    });
    if (!original.icon().isNull()) {
        note<QAbstractButton>(
            [file = pictureOf(original.icon()), size = original.iconSize()](QAbstractButton& copy) {
                copy.setIcon(QIcon(file));
                copy.setIconSize(size);
            });
    }
    if (const auto* const tool = qobject_cast<const QToolButton*>(&original)) {
        note<QToolButton>(
            [isFlat = tool->autoRaise()](QToolButton& copy) { copy.setAutoRaise(isFlat); });
    }
}

void PlainCopy::addState(const QWidget& original)
{
    if (!original.toolTip().isEmpty()) {
        note<QWidget>([tip = original.toolTip()](QWidget& copy) { copy.setToolTip(tip); });
    }
    if (!original.accessibleName().isEmpty()) {
        note<QWidget>(
            [name = original.accessibleName()](QWidget& copy) { copy.setAccessibleName(name); });
    }
    if (original.testAttribute(Qt::WA_ForceDisabled)) {
        note<QWidget>([](QWidget& copy) { copy.setEnabled(false); });
    }
    if (original.testAttribute(Qt::WA_WState_ExplicitShowHide) && original.isHidden()) {
        note<QWidget>([](QWidget& copy) { copy.hide(); });
    }
}

void PlainCopy::addBuddiesAndGroups()
{
    QMap<const QButtonGroup*, QVector<int>> groups;
    for (int i = 0; i < m_originals.size(); ++i) {
        const auto* const label = qobject_cast<const QLabel*>(m_originals[i]);
        if (label && label->buddy()) {
            const int buddy = m_originals.indexOf(label->buddy());
            m_calls.append([=](Made& made) {
                static_cast<QLabel*>(made.widgets[i])->setBuddy(made.widgets[buddy]);
            });
        }
        const auto* const button = qobject_cast<const QAbstractButton*>(m_originals[i]);
        if (button && button->group()) {
            groups[button->group()].append(i);
        }
    }
    for (const QVector<int>& buttons : qAsConst(groups)) {
        m_calls.append([=](Made& made) {
            auto* const group = new QButtonGroup(made.widgets.first());
            for (const int button : buttons) {
                group->addButton(static_cast<QAbstractButton*>(made.widgets[button]));
            }
        });
    }
}

int PlainCopy::addLayout(const QLayout& original, int widget)
{
    const int number = m_layoutCount++;
    const auto* const grid = qobject_cast<const QGridLayout*>(&original);
    const auto* const box = qobject_cast<const QBoxLayout*>(&original);
    m_calls.append([widget, isGrid = bool(grid), margins = original.contentsMargins(),
                    spacing = original.spacing(),
                    direction = box ? box->direction() : QBoxLayout::LeftToRight](Made& made) {
        made.layouts.append(plainLayout(isGrid, direction));
        made.layouts.last()->setContentsMargins(margins);
        made.layouts.last()->setSpacing(spacing);
        if (widget >= 0) {
            made.widgets[widget]->setLayout(made.layouts.last());
        }
    });
    for (int position = 0; position < original.count(); ++position) {
        addItem(original, position, number);
    }
    for (int column = 0; grid && column < grid->columnCount(); ++column) {
        m_calls.append([=, stretch = grid->columnStretch(column)](Made& made) {
            static_cast<QGridLayout*>(made.layouts[number])->setColumnStretch(column, stretch);
        });
    }
    return number;
}

void PlainCopy::addItem(const QLayout& original, int position, int number)
{
    QLayoutItem& item = *original.itemAt(position);
    Content content;
    content.widget = m_originals.indexOf(item.widget());
    content.layout = item.layout() ? addLayout(*item.layout(), -1) : -1;
    content.alignment = item.alignment();
    if (const QSpacerItem* const spacer = item.spacerItem()) {
        content.space = spacer->sizeHint();
        content.policy = spacer->sizePolicy();
    }
    if (const auto* const grid = qobject_cast<const QGridLayout*>(&original)) {
        Cell cell;
        grid->getItemPosition(position, &cell.row, &cell.column, &cell.rows, &cell.columns);
        m_calls.append([=](Made& made) {
            put(made, content, cell, *static_cast<QGridLayout*>(made.layouts[number]));
        });
    } else {
        const int stretch = static_cast<const QBoxLayout&>(original).stretch(position);
        m_calls.append([=](Made& made) {
            put(made, content, stretch, *static_cast<QBoxLayout*>(made.layouts[number]));
        });
    }
}

QSpacerItem* PlainCopy::makeSpacer(const Content& content)
{
    return new QSpacerItem(content.space.width(), content.space.height(),
                           content.policy.horizontalPolicy(), content.policy.verticalPolicy());
}

void PlainCopy::put(const Made& made, const Content& content, const Cell& cell, QGridLayout& grid)
{
    if (content.widget >= 0) {
        grid.addWidget(made.widgets[content.widget], cell.row, cell.column, cell.rows, cell.columns,
                       content.alignment);
    } else if (content.layout >= 0) {
        grid.addLayout(made.layouts[content.layout], cell.row, cell.column, cell.rows,
                       cell.columns);
    } else {
        grid.addItem(makeSpacer(content), cell.row, cell.column, cell.rows, cell.columns);
    }
}

void PlainCopy::put(const Made& made, const Content& content, int stretch, QBoxLayout& box)
{
    if (content.widget >= 0) {
        box.addWidget(made.widgets[content.widget], stretch, content.alignment);
    } else if (content.layout >= 0) {
        box.addLayout(made.layouts[content.layout], stretch);
    } else {
        box.addSpacerItem(makeSpacer(content));
        box.setStretch(box.count() - 1, stretch);
    }
}
