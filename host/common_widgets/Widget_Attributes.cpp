#include "AttributePane.h"
#include "CommonWidgetsStandIn.h"
#include "common_widgets.h"

#include <QAction>
#include <QVBoxLayout>

namespace CanvasHost {

CommonWidgetsOverrides& commonWidgetsOverrides()
{
    static CommonWidgetsOverrides overrides;
    return overrides;
}

void closeByEscape(QWidget* window)
{
    auto* const close = new QAction(window);
    close->setObjectName(QStringLiteral("m_pCloseAct"));
    close->setShortcut(Qt::Key_Escape);
    QObject::connect(close, &QAction::triggered, window, &QWidget::close);
    window->addAction(close);
}

}  // namespace CanvasHost

class Widget_Attributes::Private {
public:
    AttributePane* pane;
    bool isColoured = false;
};

Widget_Attributes::Widget_Attributes(QWidget* owner) : QWidget(owner, Qt::Dialog), d(new Private)
{
    setObjectName(QStringLiteral("Widget_Attributes"));
    d->pane = new AttributePane(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->pane);
    resize(420, 360);
    CanvasHost::closeByEscape(this);
    connect(d->pane, &AttributePane::changed, this, [this] {
        const bool isColoured = !d->pane->values().empty();
        if (isColoured != d->isColoured) {
            d->isColoured = isColoured;
            isColoured ? Q_EMIT change_button_color() : Q_EMIT remove_button_color();
        }
    });
    connect(d->pane, &AttributePane::applied, this,
            [this] { Q_EMIT send_attribute_list(d->pane->values()); });
    connect(d->pane, &AttributePane::editorAsked, this, &Widget_Attributes::send_attribute_signal);
}

Widget_Attributes::~Widget_Attributes() = default;

void Widget_Attributes::getAttributeData(std::map<std::string, std::string>& out)
{
    if (const auto& replacement = CanvasHost::commonWidgetsOverrides().getAttributeData) {
        replacement(out);
        return;
    }
    const auto values = d->pane->values();
    out = {values.begin(), values.end()};
}

void Widget_Attributes::get_attributeinfo_list(
    std::vector<std::pair<std::string, std::string>> attributes)
{
    d->pane->setValues(attributes);
}
