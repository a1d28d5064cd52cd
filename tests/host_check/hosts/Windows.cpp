#include "Host.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <common_widgets.h>
#include <ui_api.h>

#include <QCoreApplication>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

// What a window is, which its header says as well.
using Window = HOST_WINDOW;

namespace {

void setUp(Window* window)
{
    window->setAttribute(Qt::WA_DeleteOnClose, habits.deletesOnClose);
    new QVBoxLayout(window);
    window->resize(200, 200);
}

QListWidget* addList(Window* window)
{
    auto* const list = new QListWidget(window);
    window->layout()->addWidget(list);
    return list;
}

void addButton(Window* window, const char* text, const std::function<void()>& clicked)
{
    auto* const button = new QPushButton(QLatin1String(text), window);
    QObject::connect(button, &QPushButton::clicked, window, clicked);
    window->layout()->addWidget(button);
}

/// A list of names, of which `chosen` gets one.
QListWidget* addNames(Window* window, const std::function<void(QString)>& chosen)
{
    QListWidget* const list = addList(window);
    const auto take = [window, list, chosen] {
        if (list->currentItem()) {
            chosen(list->currentItem()->text());
            window->setVisible(!habits.hidesOnChoice);
        }
    };
    if (habits.choosesByButton) {
        addButton(window, "Take", take);
    } else {
        QObject::connect(list, &QListWidget::itemClicked, window, take);
    }
    return list;
}

QStringList texts(const std::vector<std::string>& names)
{
    QStringList all;
    for (const std::string& name : names) {
        all.append(QString::fromStdString(name));
    }
    return all;
}

}  // namespace

class Widget_Attributes::Private {
public:
    std::vector<std::pair<std::string, std::string>> values;
    QListWidget* list;
};

Widget_Attributes::Widget_Attributes(QWidget* owner) : Window(owner, Qt::Tool), d(new Private)
{
    setUp(this);
    d->list = addList(this);
    addButton(this, "Ask", [this] { Q_EMIT send_attribute_signal(); });
    addButton(this, "Apply", [this] { Q_EMIT send_attribute_list(d->values); });
}

Widget_Attributes::~Widget_Attributes() = default;

void Widget_Attributes::getAttributeData(std::map<std::string, std::string>& out)
{
    out = {d->values.begin(), d->values.end()};
}

void Widget_Attributes::get_attributeinfo_list(
    std::vector<std::pair<std::string, std::string>> values)
{
    d->values = std::move(values);
    d->list->clear();
    for (const auto& [name, value] : d->values) {
        d->list->addItem(QString::fromStdString(name + ": " + value));
    }
    // At each change: a button that is red already stays red.
    d->values.empty() ? Q_EMIT remove_button_color() : Q_EMIT change_button_color();
}

class Widget_SymbolSelection::Private {
public:
    QListWidget* list;
    bool all = false;
};

Widget_SymbolSelection::Widget_SymbolSelection(std::string /*job*/, QWidget* /*context*/,
                                               QWidget* parent)
    : Window(parent, Qt::Window), d(new Private)
{
    setUp(this);
    d->list = addNames(this, [this](const QString& name) {
        Q_EMIT sendText(name);
        if (isWrong("choice")) {
            Q_EMIT sendText(name);
        }
    });
    read();
}

Widget_SymbolSelection::~Widget_SymbolSelection() = default;

void Widget_SymbolSelection::changeAvailableItemView(int all)
{
    d->all = all != 0;
    read();
}

void Widget_SymbolSelection::read()
{
    QStringList names = {"r10", "r12.5", "s40"};
    for (const Habits::Shape& shape : habits.shapes) {
        if (d->all && shape.sizes == 2) {
            names.append(QLatin1String(shape.prefix) + "20x40");
        }
    }
    if (isMetric()) {
        for (QString& name : names) {
            name = ZENTRA::UIAPI::setSymbolUIData(name, 1);
        }
    }
    d->list->clear();
    d->list->addItems(names + (d->all ? texts(specialSymbols()) : QStringList()));
}

void Widget_SymbolSelection::setJob(std::string /*job*/)
{
    read();
}

void Widget_SymbolSelection::change_unit()
{
    read();
}

class Widget_listpopup::Private {};

Widget_listpopup::Widget_listpopup(int /*type*/, std::string job, QWidget* parent)
    : Window(parent, Qt::Window)
{
    setUp(this);
    addNames(this, [this](const QString& name) {
        Q_EMIT on_send_Font(name);
    })->addItems(texts(fontsOf(job)));
    if (isWrong("warnings")) {
        connect(this, SIGNAL(chosen(QString)), SLOT(close()));
    }
}

Widget_listpopup::Widget_listpopup(int /*type*/, std::string /*job*/, std::string step,
                                   QWidget* parent)
    : Window(parent, Qt::Window)
{
    setUp(this);
    addNames(this, [this](const QString& name) {
        Q_EMIT on_send_changeText(name);
    })->addItems({"LAYER", QString::fromStdString(step)});
}

Widget_listpopup::~Widget_listpopup() = default;

class Grc_Tbe_measurepopup::Private {};

namespace {

const QMetaObject* classOfStrip = nullptr;

void sayGoodbye()
{
    qInfo("of %s", classOfStrip->className());
}

}  // namespace

Grc_Tbe_measurepopup::Grc_Tbe_measurepopup(Canvas_Tool_Strip* strip, QWidget* parent)
    : Window(parent, Qt::Tool)
{
    setUp(this);
    if (isWrong("unloading") && !classOfStrip) {
        classOfStrip = static_cast<QObject*>(strip)->metaObject();
        qAddPostRoutine(sayGoodbye);
    }
}

Grc_Tbe_measurepopup::~Grc_Tbe_measurepopup() = default;

void Grc_Tbe_measurepopup::change_language()
{
    setWindowTitle(tr("Distance"));
}

void Grc_Tbe_measurepopup::onMeasureButtonClicked() {}
