#include "addfeature/pages/Fields.h"

#include "addfeature/PageHost.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QLabel>

namespace Fields {

ZENTRA::UIAPI::ZTLineEdit* create(PageHost& host, Pattern pattern, const QString& name,
                                  QWidget* page)
{
    auto* context = static_cast<QWidget*>(host.ownerContext());
    auto* field =
        new ZENTRA::UIAPI::ZTLineEdit(static_cast<ZENTRA::UIAPI::ZTERegExp>(pattern), context);
    // At once, not only by the layout: the tab order follows the order of arrival.
    field->setParent(page);
    field->setObjectName(name);
    return field;
}

QLabel* createLabel(const QString& name, QWidget* page, QWidget* field)
{
    auto* label = new QLabel(page);
    label->setObjectName(name);
    label->setBuddy(field);
    return label;
}

bool shownMetric(const PageHost& host)
{
    ZENTRA::API::show_param shown{};
    ZENTRA::UIAPI::getShowPara(host.ownerContext(), shown);
    return shown.metric;
}

}  // namespace Fields
