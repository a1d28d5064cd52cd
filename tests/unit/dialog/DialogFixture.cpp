#include "DialogFixture.h"

#include "DemoJobs.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QToolButton>
#include <QtTest>

namespace {

constexpr int addFeatureTool = 4;

}  // namespace

DialogFixture::DialogFixture(bool metric)
{
    using CanvasHost::DisplayUnit;
    openDemoJobs();
    CanvasHost::camApiOverrides() = {};
    CanvasHost::uiApiOverrides() = {};
    CanvasHost::setDisplayUnit(metric ? DisplayUnit::Micrometre : DisplayUnit::Mil);

    window.setLayout(strip);
    window.show();
    if (!QTest::qWaitForWindowActive(&window)) {
        qFatal("the window does not become active");
    }
    dialog = new AddFeature(&window, "job", "step", &window);
    dialog->setToolStrip(strip);
    setToolActive(true);
    if (metric) {
        dialog->change_current_units(true);
    }
    dialog->show();
    QApplication::setActiveWindow(dialog);
    if (!QTest::qWaitForWindowActive(dialog) || !dialog->isActiveWindow()) {
        qFatal("the dialog does not become active");
    }
}

DialogFixture::~DialogFixture()
{
    delete dialog;
    CanvasHost::camApiOverrides() = {};
    CanvasHost::uiApiOverrides() = {};
}

void DialogFixture::click(const QString& name) const
{
    QWidget& widget = find(name);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
}

void DialogFixture::choose(const QString& typeButton)
{
    click(typeButton);
    recorder.clear();
}

void DialogFixture::type(const QString& text) const
{
    symbol().setFocus();
    symbol().selectAll();
    QTest::keyClick(&symbol(), Qt::Key_Delete);
    QTest::keyClicks(&symbol(), text);
}

void DialogFixture::leave(const QString& way) const
{
    if (way == QLatin1String("mouse")) {
        // The windowless platform moves no focus by a click: done by hand, as a click would.
        find("m_pPolarityCMB").setFocus(Qt::MouseFocusReason);
    } else {
        QTest::keyClick(&symbol(), way == QLatin1String("Tab") ? Qt::Key_Tab : Qt::Key_Return);
    }
}

void DialogFixture::enter(const QString& text) const
{
    symbol().setText(text);
    dialog->on_m_pSymbolTextLE_editingFinished();
}

void DialogFixture::setMetric(bool metric) const
{
    using CanvasHost::DisplayUnit;
    CanvasHost::setDisplayUnit(metric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
    dialog->change_current_units(metric);
}

void DialogFixture::setToolActive(bool active) const
{
    strip->SetAllButtonchecked(false, nullptr);
    if (active) {
        qobject_cast<QToolButton*>(strip->itemAt(addFeatureTool)->widget())->setChecked(true);
    }
}

bool DialogFixture::isShown(const QString& name) const
{
    return find(name).isVisibleTo(dialog);
}

QVariantMap DialogFixture::record()
{
    // Code 52 carries the record whatever the symbol field says.
    const int before = recorder.messages().size();
    QMetaObject::invokeMethod(dialog, "on_m_pAngleLE_editingFinished");
    if (recorder.messages().size() == before) {
        qFatal("the fixed angle is one that is refused: no record to see");
    }
    const QVariantMap record = recorder.messages().last().message.payload;
    recorder.truncate(before);
    return record;
}
