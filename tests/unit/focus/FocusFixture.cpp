#include "FocusFixture.h"

#include "DemoJobs.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QSpinBox>
#include <QtTest>

namespace Accepted = MessageCodes::Accepted;

FocusFixture::FocusFixture(bool metric)
{
    // Thousands of dialogs, each of whose records would be written out.
    QLoggingCategory::setFilterRules(QStringLiteral("canvastoolstrip.*.debug=false"));
    openDemoJobs();
    CanvasHost::camApiOverrides() = {};
    CanvasHost::uiApiOverrides() = {};
    CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
    window.setLayout(strip);
    window.show();
    receive(Accepted::JobAndStep, 0, {{PayloadKeys::jobName, "job"}, {PayloadKeys::step, "step"}});
    strip->On_AddFeature_Clicked();
    dialog = window.findChild<AddFeature*>();
    agreement = std::make_unique<Agreement>(*dialog);
    if (metric) {
        setMetric(true);
    }
    open();
    recorder.clear();
}

FocusFixture::~FocusFixture()
{
    agreement.reset();
    delete dialog;
    CanvasHost::camApiOverrides() = {};
    CanvasHost::uiApiOverrides() = {};
    CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit::Mil);
}

void FocusFixture::open() const
{
    if (!dialog->isVisible()) {
        strip->On_AddFeature_Clicked();
    }
    QApplication::setActiveWindow(dialog);
    if (!dialog->isActiveWindow()) {
        qFatal("the dialog does not become active");
    }
}

void FocusFixture::click(const QString& name) const
{
    QWidget& widget = find(name);
    if (widget.isVisible()) {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
    }
}

void FocusFixture::choose(const QString& combo, int item) const
{
    find<QComboBox>(combo).setCurrentIndex(item);
}

void FocusFixture::focus(const QString& name) const
{
    find(name).setFocus(Qt::MouseFocusReason);
    if (!find(name).hasFocus()) {
        qFatal("%s cannot have the focus", qPrintable(name));
    }
}

void FocusFixture::type(const QString& field, const QString& text) const
{
    focus(field);
    QWidget& widget = find(field);
    if (auto* const edit = qobject_cast<QLineEdit*>(&widget)) {
        edit->selectAll();
    } else {
        find<QSpinBox>(field).selectAll();
    }
    if (text.isEmpty()) {
        QTest::keyClick(&widget, Qt::Key_Delete);
    }
    QTest::keyClicks(&widget, text);
}

void FocusFixture::key(Qt::Key key) const
{
    if (QWidget* const focused = QApplication::focusWidget()) {
        QTest::keyClick(focused, key);
    }
}

void FocusFixture::leave() const
{
    find("m_pLineTB").setFocus(Qt::MouseFocusReason);
}

void FocusFixture::receive(int code, qint64 extra, const QVariantMap& payload) const
{
    PluginMetaData message("Sibling.dll", "Canvas_Tool_Strip.dll");
    message.code = code;
    message.extra = extra;
    message.payload = payload;
    strip->recMsgFromManager(message);
}

void FocusFixture::pick(const std::string& symbol) const
{
    const std::map<int, std::string> symbols{{1, symbol}};
    receive(Accepted::SymbolsPicked, ExtraWord::pointingAt(symbols));
}

void FocusFixture::setMetric(bool metric) const
{
    using CanvasHost::DisplayUnit;
    CanvasHost::setDisplayUnit(metric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
    receive(Accepted::UnitChanged);
}

void FocusFixture::openHostBox()
{
    QMessageBox::information(&window, QStringLiteral("Host"), QStringLiteral("Elsewhere"));
}

QVariantMap FocusFixture::record()
{
    // Code 52 carries the record whatever the symbol field says.
    const int before = recorder.messages().size();
    QMetaObject::invokeMethod(dialog, "on_Line_Button_Clicked", Q_ARG(QAbstractButton*, nullptr));
    const QVariantMap record = recorder.messages().last().message.payload;
    recorder.truncate(before);
    return record;
}
