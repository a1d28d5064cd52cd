#include "NameList.h"
#include "common_widgets.h"

#include <CamApiStandIn.h>

namespace {

constexpr int specialTexts = 16;
constexpr int fonts = 17;

std::vector<std::string> namesOf(int type, const std::string& job)
{
    std::vector<std::string> names;
    if (type == fonts) {
        ZENTRA::API::get_fonts(job, names);
    } else if (type == specialTexts) {
        const CanvasHost::Job* const known = CanvasHost::findJob(job);
        names = known ? known->specialTexts : names;
    }
    return names;
}

}  // namespace

class Widget_listpopup::Private {};

Widget_listpopup::Widget_listpopup(int type, std::string job, QWidget* parent)
    : Widget_listpopup(type, std::move(job), std::string(), parent)
{
}

// The stand-in's special texts are the same for every step of a job.
Widget_listpopup::Widget_listpopup(int type, std::string job, std::string /*step*/, QWidget* parent)
    : QWidget(parent, Qt::Dialog)
{
    setObjectName(QStringLiteral("Widget_listpopup"));
    const bool isFonts = type == fonts;
    auto* const list =
        new NameList(isFonts ? QStringLiteral("m_pFontLW") : QStringLiteral("m_pTextLW"),
                     isFonts ? QT_TRANSLATE_NOOP("NameList", "Fonts")
                             : QT_TRANSLATE_NOOP("NameList", "Special Texts"),
                     this);
    QStringList names;
    for (const std::string& name : namesOf(type, job)) {
        names.append(QString::fromStdString(name));
    }
    list->setNames(names);
    connect(list, &NameList::chosen, this,
            isFonts ? &Widget_listpopup::on_send_Font : &Widget_listpopup::on_send_changeText);
}

Widget_listpopup::~Widget_listpopup() = default;
