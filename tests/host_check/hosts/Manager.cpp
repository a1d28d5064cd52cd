#include "Host.h"

#include "plugin/ExtraWord.h"

#include <QTpluginsManger4CAM.h>

#include <QApplication>
#include <QDebug>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

/// Hides each window that it does not know.
class Jealous : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && widget && widget->windowType() == Qt::Window &&
            widget->parentWidget()) {
            QTimer::singleShot(0, widget, &QWidget::hide);
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

QTpluginsManger4CAM* QTpluginsManger4CAM::instance()
{
    static QTpluginsManger4CAM manager;
    static QObject* const jealous = isWrong("dialogs") ? new Jealous(qApp) : nullptr;
    if (jealous) {
        qApp->installEventFilter(jealous);
    }
    return &manager;
}

/// None of its modules is loaded.
void QTpluginsManger4CAM::recMegToPlugin(void* /*sender*/, PluginMetaData message)
{
    if (isWrong("messages") && message.extra != 0) {
        // Not every extra word is an address.
        qDebug() << ExtraWord::object<QObject>(message.extra)->objectName();
    }
}
