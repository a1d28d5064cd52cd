#pragma once

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

#include <functional>
#include <type_traits>

/// Floor of a window: for each widget of its tree a plain one of the same class in the same layout,
/// with the same texts, picture, validator and state. Nothing is connected, and the only names are
/// those for screen readers.
class PlainCopy {
public:
    /// Walks the window once, before it is shown, and notes the calls that make the copy.
    explicit PlainCopy(const QWidget& original)
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

    QWidget* make(QWidget* owner) const
    {
        Made made{owner, {}, {}};
        for (const auto& call : m_calls) {
            call(made);
        }
        return made.widgets.first();
    }

private:
    struct Made {
        QWidget* owner;
        QVector<QWidget*> widgets;
        QVector<QLayout*> layouts;
    };
    using Create = std::function<QWidget*(QWidget* parent)>;

    /// Makes a widget of the last of these classes that the original belongs to.
    template <class... Classes>
    static Create creation(const QWidget& original)
    {
        Create create;
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
    static bool isPartOfControl(const QWidget& widget)
    {
        const QWidget* const parent = widget.parentWidget();
        return qobject_cast<const QComboBox*>(parent) || qobject_cast<const QSpinBox*>(parent) ||
               qobject_cast<const QLineEdit*>(parent);
    }

    /// The module's file that the icon was made from.
    static QString pictureOf(const QIcon& icon)
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

    /// Notes a call for the widget made last.
    template <class Widget, class Call>
    void note(Call call)
    {
        m_calls.append([=](Made& made) { call(static_cast<Widget&>(*made.widgets.last())); });
    }

    /// Notes that the widget made last gets this property, if it has it, and another value than
    /// the one that it begins with.
    template <class Widget, class Value, class Argument>
    void copy(const QWidget& original, Value (Widget::*get)() const, void (Widget::*set)(Argument),
              const std::decay_t<Value>& first = {})
    {
        const auto* const found = qobject_cast<const Widget*>(&original);
        if (found && (found->*get)() != first) {
            note<Widget>([set, value = (found->*get)()](Widget& made) { (made.*set)(value); });
        }
    }

    void add(const QWidget& original)
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
            const auto create =
                creation<QWidget, QFrame, QLabel, QLineEdit, QComboBox, QSpinBox, QCheckBox,
                         QRadioButton, QPushButton, QToolButton>(original);
            m_calls.append([=](Made& made) { made.widgets.append(create(made.widgets[parent])); });
        }
        addProperties(original);
        for (const QObject* const child : original.children()) {
            const auto* const widget = qobject_cast<const QWidget*>(child);
            if (widget && !isPartOfControl(*widget)) {
                add(*widget);
            }
        }
    }

    /// What a control looks like and shows.
    void addProperties(const QWidget& original)
    {
        copy(original, &QWidget::minimumSize, qOverload<const QSize&>(&QWidget::setMinimumSize),
             QSize(0, 0));
        copy(original, &QWidget::maximumSize, qOverload<const QSize&>(&QWidget::setMaximumSize),
             QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        copy(original, &QWidget::sizePolicy, qOverload<QSizePolicy>(&QWidget::setSizePolicy));
        copy(original, &QWidget::toolTip, &QWidget::setToolTip);
        copy(original, &QWidget::accessibleName, &QWidget::setAccessibleName);
        copy(original, &QLabel::text, &QLabel::setText);
        if (!qobject_cast<const QLabel*>(&original)) {
            copy(original, &QFrame::frameStyle, &QFrame::setFrameStyle);
        }
        copy(original, &QSpinBox::minimum, &QSpinBox::setMinimum);
        copy(original, &QSpinBox::maximum, &QSpinBox::setMaximum);
        copy(original, &QAbstractButton::text, &QAbstractButton::setText);
        copy(original, &QAbstractButton::isCheckable, &QAbstractButton::setCheckable);
        copy(original, &QAbstractButton::isChecked, &QAbstractButton::setChecked);
        copy(original, &QToolButton::autoRaise, &QToolButton::setAutoRaise);
        if (const auto* const edit = qobject_cast<const QLineEdit*>(&original)) {
            addValidator(edit->validator());
        }
        copy(original, &QLineEdit::text, &QLineEdit::setText);
        copy(original, &QLineEdit::isReadOnly, &QLineEdit::setReadOnly);
        if (const auto* const combo = qobject_cast<const QComboBox*>(&original)) {
            addItems(*combo);
        }
        copy(original, &QComboBox::sizeAdjustPolicy, &QComboBox::setSizeAdjustPolicy);
        copy(original, &QComboBox::minimumContentsLength, &QComboBox::setMinimumContentsLength);
        const auto* const button = qobject_cast<const QAbstractButton*>(&original);
        if (button && !button->icon().isNull()) {
            note<QAbstractButton>([file = pictureOf(button->icon()),
                                   size = button->iconSize()](QAbstractButton& made) {
                made.setIcon(QIcon(file));
                made.setIconSize(size);
            });
        }
        if (original.testAttribute(Qt::WA_ForceDisabled)) {
            note<QWidget>([](QWidget& made) { made.setEnabled(false); });
        }
        if (original.testAttribute(Qt::WA_WState_ExplicitShowHide) && original.isHidden()) {
            note<QWidget>([](QWidget& made) { made.hide(); });
        }
    }

    void addValidator(const QValidator* original)
    {
        if (const auto* const expression = qobject_cast<const QRegExpValidator*>(original)) {
            note<QLineEdit>([pattern = expression->regExp().pattern()](QLineEdit& made) {
                made.setValidator(new QRegExpValidator(QRegExp(pattern), &made));
            });
        } else if (const auto* const whole = qobject_cast<const QIntValidator*>(original)) {
            note<QLineEdit>([least = whole->bottom(), most = whole->top()](QLineEdit& made) {
                made.setValidator(new QIntValidator(least, most, &made));
            });
        } else if (const auto* const number = qobject_cast<const QDoubleValidator*>(original)) {
            note<QLineEdit>([least = number->bottom(), most = number->top(),
                             decimals = number->decimals()](QLineEdit& made) {
                made.setValidator(new QDoubleValidator(least, most, decimals, &made));
            });
        }
    }

    void addItems(const QComboBox& original)
    {
        QStringList items;
        QVector<int> greyed;
        for (int i = 0; i < original.count(); ++i) {
            items.append(original.itemText(i));
            if (original.itemData(i, greyRole) == QVariant(0)) {
                greyed.append(i);
            }
        }
        note<QComboBox>([=, index = original.currentIndex()](QComboBox& made) {
            made.addItems(items);
            for (const int item : greyed) {
                made.setItemData(item, 0, greyRole);
            }
            made.setCurrentIndex(index);
        });
    }

    void addBuddiesAndGroups()
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

    /// Of the widget with that number; -1: nested in another. Returns the number of the copy.
    int addLayout(const QLayout& original, int widget)
    {
        const int number = m_layoutCount++;
        const auto* const grid = qobject_cast<const QGridLayout*>(&original);
        const auto* const box = qobject_cast<const QBoxLayout*>(&original);
        m_calls.append([widget, isGrid = bool(grid), margins = original.contentsMargins(),
                        spacing = original.spacing(),
                        direction = box ? box->direction() : QBoxLayout::LeftToRight](Made& made) {
            made.layouts.append(isGrid ? static_cast<QLayout*>(new QGridLayout)
                                       : new QBoxLayout(direction));
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

    void addItem(const QLayout& original, int position, int number)
    {
        QLayoutItem& item = *original.itemAt(position);
        const int widget = m_originals.indexOf(item.widget());
        const int nested = item.layout() ? addLayout(*item.layout(), -1) : -1;
        const QSize space = item.sizeHint();
        const QSizePolicy policy =
            item.spacerItem() ? item.spacerItem()->sizePolicy() : QSizePolicy();
        const auto makeSpacer = [=] {
            return new QSpacerItem(space.width(), space.height(), policy.horizontalPolicy(),
                                   policy.verticalPolicy());
        };
        if (const auto* const grid = qobject_cast<const QGridLayout*>(&original)) {
            int row = 0;
            int column = 0;
            int rows = 1;
            int columns = 1;
            grid->getItemPosition(position, &row, &column, &rows, &columns);
            m_calls.append([=, alignment = item.alignment()](Made& made) {
                auto& copy = static_cast<QGridLayout&>(*made.layouts[number]);
                if (widget >= 0) {
                    copy.addWidget(made.widgets[widget], row, column, rows, columns, alignment);
                } else if (nested >= 0) {
                    copy.addLayout(made.layouts[nested], row, column, rows, columns);
                } else {
                    copy.addItem(makeSpacer(), row, column, rows, columns);
                }
            });
            return;
        }
        const int stretch = static_cast<const QBoxLayout&>(original).stretch(position);
        m_calls.append([=, alignment = item.alignment()](Made& made) {
            auto& copy = static_cast<QBoxLayout&>(*made.layouts[number]);
            if (widget >= 0) {
                copy.addWidget(made.widgets[widget], stretch, alignment);
            } else if (nested >= 0) {
                copy.addLayout(made.layouts[nested], stretch);
            } else {
                copy.addSpacerItem(makeSpacer());
                copy.setStretch(copy.count() - 1, stretch);
            }
        });
    }

    static constexpr int greyRole = Qt::UserRole - 1;
    QVector<const QWidget*> m_originals;  // while they are walked
    int m_layoutCount = 0;
    QVector<std::function<void(Made&)>> m_calls;
};
