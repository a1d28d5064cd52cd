#include "PlainDialog.h"

#include "PlainPages.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

PlainDialog::PlainDialog(QWidget* parent) : QWidget(parent, Qt::Window)
{
    setWindowTitle("Add Feature");
    setFixedWidth(350);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(typeRow());
    layout->addWidget(attributeRow());
    layout->addWidget(PlainPages::combo({"Positive", "Negative"}, this));
    auto* const mirror = PlainPages::combo({"Mir", "No Mir"}, this);
    mirror->setCurrentIndex(1);
    auto* const rotation = new QSpinBox(this);
    rotation->setRange(0, 360);
    for (QWidget* const hidden : {static_cast<QWidget*>(mirror), static_cast<QWidget*>(rotation)}) {
        layout->addWidget(hidden);
        hidden->hide();
    }
    layout->addWidget(symbolRow());
    layout->addWidget(PlainPages::line(this));
    for (QWidget* const hidden : {PlainPages::pad(this), PlainPages::surface(this),
                                  PlainPages::arc(this), PlainPages::text(this)}) {
        layout->addWidget(hidden);
        hidden->hide();
    }
    layout->addStretch();
}

QLayout* PlainDialog::typeRow()
{
    struct Type {
        const char* icon;
        const char* tip;
    };
    static constexpr Type types[] = {{":/Canvas_Tool_Strip/Resources/Line1.jpg", "Line"},
                                     {":/Canvas_Tool_Strip/Resources/Pad1.jpg", "Pad"},
                                     {":/Canvas_Tool_Strip/Resources/Surf1.jpg", "Surface"},
                                     {":/Canvas_Tool_Strip/Resources/Arc1.jpg", "Arc"},
                                     {":/Canvas_Tool_Strip/Resources/Text1.jpg", "Text"}};
    auto* const group = new QButtonGroup(this);
    auto* const row = new QHBoxLayout;
    for (const Type& type : types) {
        auto* const button = new QToolButton(this);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setIconSize({32, 32});
        button->setIcon(QIcon(QLatin1String(type.icon)));
        button->setToolTip(QLatin1String(type.tip));
        group->addButton(button);
        row->addWidget(button);
    }
    row->addStretch();
    group->buttons().first()->setChecked(true);
    return row;
}

QWidget* PlainDialog::attributeRow()
{
    auto* const page = new QWidget(this);
    auto* const row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    auto* const values = new QPushButton("Values...", page);
    values->hide();
    auto* const fill = new QPushButton("Fill...", page);
    fill->setEnabled(false);
    row->addWidget(new QCheckBox("Attributes", page));
    row->addWidget(values);
    row->addWidget(fill);
    return page;
}

QWidget* PlainDialog::symbolRow()
{
    auto* const page = new QWidget(this);
    auto* const row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    auto* const pick = new QPushButton(page);
    pick->setFixedSize(25, 25);
    pick->setIconSize(pick->size());
    pick->setIcon(QIcon(":/Canvas_Tool_Strip/Resources/add_fea.jpg"));
    pick->setToolTip("Select from editor");
    row->addWidget(new QPushButton("Symbol", page));
    row->addWidget(PlainPages::field({}, "^[rs]?|[rs][0-9]+(\\.[0-9]+)?$", page));
    row->addWidget(pick);
    for (const char* const pattern : {"^[a-z0-9_.+-]*$", "[r]?|[r][0-9]+(\\.[0-9]+)?$"}) {
        new QRegExpValidator(QRegExp(QLatin1String(pattern)), page);
    }
    return page;
}
