#include "DialogFixture.h"

#include "DemoJobs.h"
#include "plugin/ExtraWord.h"
#include "plugin/MessageCodes.h"
#include "plugin/PayloadKeys.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QSpinBox>
#include <QtTest>

namespace Accepted = MessageCodes::Accepted;
namespace Sent = MessageCodes::Sent;

namespace {

void setHostsUnit(Unit unit)
{
    using CanvasHost::DisplayUnit;
    CanvasHost::setDisplayUnit(unit == Unit::Metric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
}

void resetHost()
{
    CanvasHost::camApiOverrides() = {};
    CanvasHost::uiApiOverrides() = {};
    setHostsUnit(Unit::Mil);
}

void activate(QWidget& window)
{
    QApplication::setActiveWindow(&window);
    if (!QTest::qWaitForWindowActive(&window) || !window.isActiveWindow()) {
        qFatal("%s does not become active", qPrintable(window.objectName()));
    }
}

}  // namespace

DialogFixture::DialogFixture(Unit unit, Opened opened) : m_opened(opened)
{
    openDemoJobs();
    resetHost();
    window.show();
    if (opened == Opened::Alone) {
        build(unit);
    } else {
        openByTheStrip(unit);
        recorder.clear();
    }
}

void DialogFixture::build(Unit unit)
{
    setHostsUnit(unit);
    activate(window);
    dialog = new AddFeature(&window, "job", "step", &window);
    agreement = std::make_unique<Agreement>(*dialog);
    dialog->setToolStrip(strip);
    setToolActive(true);
    if (unit == Unit::Metric) {
        dialog->change_current_units(true);
    }
    dialog->show();
    activate(*dialog);
}

void DialogFixture::openByTheStrip(Unit unit)
{
    receive(Accepted::JobAndStep, {{PayloadKeys::jobName, "job"}, {PayloadKeys::step, "step"}});
    strip->On_AddFeature_Clicked();
    dialog = window.findChild<AddFeature*>();
    agreement = std::make_unique<Agreement>(*dialog);
    if (unit == Unit::Metric) {
        setUnit(unit);
    }
    open();
}

DialogFixture::~DialogFixture()
{
    agreement.reset();
    delete dialog;
    resetHost();
}

void DialogFixture::click(const QString& name) const
{
    QWidget& widget = find(name);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
}

void DialogFixture::chooseType(const QString& button)
{
    click(button);
    recorder.clear();
}

void DialogFixture::choose(const QString& combo, const QString& item) const
{
    auto& box = find<QComboBox>(combo);
    const int index = box.findText(item);
    if (index < 0) {
        qFatal("%s has no \"%s\", only: %s", qPrintable(combo), qPrintable(item),
               qPrintable(itemTexts(box).join(", ")));
    }
    box.setCurrentIndex(index);
}

void DialogFixture::focus(const QString& name) const
{
    find(name).setFocus(Qt::MouseFocusReason);
    if (!find(name).hasFocus()) {
        qFatal("%s cannot have the focus", qPrintable(name));
    }
}

void DialogFixture::type(const QString& field, const QString& text) const
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

void DialogFixture::press(Qt::Key key) const
{
    if (QWidget* const focused = QApplication::focusWidget()) {
        QTest::keyClick(focused, key);
    }
}

void DialogFixture::leave(By way) const
{
    if (way == By::Mouse) {
        // A click does not move the focus on the windowless platform: done here as a click would.
        find("m_pLineTB").setFocus(Qt::MouseFocusReason);
    } else {
        press(way == By::Tab ? Qt::Key_Tab : Qt::Key_Return);
    }
}

void DialogFixture::perform(const Steps& steps) const
{
    for (const Step& step : steps) {
        step.act(*this);
    }
}

void DialogFixture::open() const
{
    if (!dialog->isVisible()) {
        strip->On_AddFeature_Clicked();
    }
    activate(*dialog);
}

void DialogFixture::enter(const QString& field, const QString& text) const
{
    find<QLineEdit>(field).setText(text);
    const QString slot = "on_" + field + "_editingFinished";
    if (!QMetaObject::invokeMethod(dialog, qPrintable(slot))) {
        qFatal("there is no slot %s()", qPrintable(slot));
    }
}

void DialogFixture::pick(const std::string& symbol) const
{
    const std::map<int, std::string> symbols{{1, symbol}};
    receive(Accepted::SymbolsPicked, {}, ExtraWord::pointingAt(symbols));
}

void DialogFixture::setUnit(Unit unit) const
{
    setHostsUnit(unit);
    if (m_opened == Opened::Alone) {
        dialog->change_current_units(unit == Unit::Metric);
    } else {
        receive(Accepted::UnitChanged);
    }
}

void DialogFixture::setToolActive(bool active) const
{
    strip->SetAllButtonchecked(false, active ? button(Tool::AddFeature) : nullptr);
}

void DialogFixture::openHostBox()
{
    QMessageBox::information(&window, QStringLiteral("Host"), QStringLiteral("Elsewhere"));
}

bool DialogFixture::isShown(const QString& name) const
{
    return find(name).isVisibleTo(dialog);
}

QVariantMap DialogFixture::record()
{
    // Code 52 carries the record whatever the symbol field shows. It comes with the angle, or with
    // the direction if an entry in the angle is unfinished, which must not be taken here.
    const int before = recorder.messages().size();
    if (agreement->isPending("m_pAngleLE")) {
        QMetaObject::invokeMethod(dialog, "on_Line_Button_Clicked",
                                  Q_ARG(QAbstractButton*, nullptr));
    } else {
        QMetaObject::invokeMethod(dialog, "on_m_pAngleLE_editingFinished");
    }
    if (recorder.messages().size() == before) {
        qFatal("the fixed angle is refused: no record to see");
    }
    const QVariantMap record = recorder.messages().last().message.payload;
    recorder.truncate(before);
    return record;
}

QVariantMap DialogFixture::lastRecord()
{
    const QVector<Recorder::Entry>& messages = recorder.messages();
    for (auto entry = messages.crbegin(); entry != messages.crend(); ++entry) {
        if (entry->message.code == Sent::Record || entry->message.code == Sent::DirectionRecord) {
            return entry->message.payload;
        }
    }
    return record();
}
