#include "Strip.h"

#include "Dialog.h"
#include "Numbers.h"
#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"
#include "plugin/PayloadKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QGridLayout>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>

namespace Accepted = MessageCodes::Accepted;

namespace {

constexpr int settlingTime = 50;  // milliseconds in which what was left behind would run
constexpr const char* aPicture = ":/Canvas_Tool_Strip/Resources/add_fea.jpg";

}  // namespace

Strip::Strip(Driver& driver, const PairOptions& options)
    : m_driver(driver), m_options(options), m_library(options.module)
{
    // A host's library of widgets may find the class of the toolbar in the module.
    m_library.setLoadHints(QLibrary::ExportExternalSymbolsHint);
}

void Strip::run()
{
    if (!open() || !create()) {
        return;
    }
    tryPictures();
    tryTools();
    tryMenus();
    tryMeasure();
    tryDialog();
    m_driver.step(QStringLiteral("the language changes"),
                  [this] { deliver(Accepted::LanguageChanged); });
    end();
}

bool Strip::open()
{
    m_driver.report().step(QStringLiteral("the module is opened"));
    m_create = reinterpret_cast<decltype(m_create)>(m_library.resolve("GetPluginInstance"));
    m_deliver = reinterpret_cast<decltype(m_deliver)>(m_library.resolve("recMsgFromManager"));
    const bool isOpen = m_create && m_deliver;
    m_driver.report().judge(Row::PairStarts, QStringLiteral("the module is opened"), isOpen,
                            QStringLiteral("two entry points"), m_library.errorString());
    if (isOpen) {
        keepHostLibraries();
    }
    return isOpen;
}

/// They are loaded already, by the module, and would go with it.
void Strip::keepHostLibraries()
{
    for (const QString& file : m_options.hostLibraries) {
        QLibrary library(file);
        library.setLoadHints(QLibrary::PreventUnloadHint);
        library.load();
    }
}

bool Strip::create()
{
    m_driver.step(QStringLiteral("the strip is made and shown"), [this] {
        m_strip = m_create(m_window.get());
        if (m_strip) {
            m_window->setLayout(static_cast<QGridLayout*>(m_strip));
        }
        m_window->show();
    });
    if (!m_driver.report().expect(Row::PairStarts, QStringLiteral("the strip is made"), true,
                                  m_strip != nullptr)) {
        return false;
    }
    m_driver.step(QStringLiteral("a job is opened"), [this] {
        deliver(Accepted::JobOpened,
                {{PayloadKeys::jobName, m_options.job}, {PayloadKeys::stepName, m_options.step}});
    });
    return true;
}

void Strip::deliver(int code, const QMap<QString, QVariant>& payload)
{
    PluginMetaData message(QStringLiteral("host_check"), ModuleNames::toolStrip);
    message.code = code;
    message.payload = payload;
    m_deliver(m_strip, message);
}

/// Those that the style sheets of the buttons name.
void Strip::tryPictures()
{
    static const QRegularExpression url(QStringLiteral("url\\((:[^)]*)\\)"));
    const QList<QToolButton*> tools = m_window->findChildren<QToolButton*>();
    m_driver.report().expect(Row::PairStarts, QStringLiteral("there are tools"), true,
                             !tools.isEmpty());
    for (const QToolButton* const tool : tools) {
        auto match = url.globalMatch(tool->styleSheet());
        while (match.hasNext()) {
            const QString file = match.next().captured(1);
            m_driver.report().expect(Row::PairPictures, file + QStringLiteral(" is read"), true,
                                     !QPixmap(file).isNull());
        }
    }
}

void Strip::tryTools()
{
    for (QToolButton* const tool : m_window->findChildren<QToolButton*>()) {
        const QString name = tool->objectName();
        const bool opensWindow =
            name == QLatin1String("m_pAddFeatureTB") || name == QLatin1String("m_pMeasureTB");
        if (opensWindow || !tool->isEnabled() || !tool->isVisible()) {
            continue;
        }
        const QString what = name + QStringLiteral(" is clicked");
        m_driver.step(what, [&] { Driver::click(*tool); });
        m_driver.report().expect(Row::PairStarts, what + QStringLiteral(": is the active tool"),
                                 true, tool->isChecked());
    }
}

void Strip::tryMenus()
{
    for (QToolButton* const tool : m_window->findChildren<QToolButton*>()) {
        bool isThere = tool->contextMenuPolicy() == Qt::CustomContextMenu;
        for (int entry = 0; isThere; ++entry) {
            m_driver.step(QStringLiteral("%1: entry %2 of its menu, if it has that many")
                              .arg(tool->objectName())
                              .arg(entry + 1),
                          [&] { isThere = Driver::clickMenu(*tool, entry); });
        }
    }
}

void Strip::tryMeasure()
{
    auto* const tool = m_window->findChild<QToolButton*>(QStringLiteral("m_pMeasureTB"));
    if (QWidget* const popup = tool ? m_driver.open(*tool, "Grc_Tbe_measurepopup") : nullptr) {
        m_driver.close(*popup);
    }
}

void Strip::tryDialog()
{
    auto* const tool = m_window->findChild<QToolButton*>(QStringLiteral("m_pAddFeatureTB"));
    QWidget* const dialog = tool ? m_driver.open(*tool, "AddFeature") : nullptr;
    if (!dialog) {
        return;
    }
    // As the canvas answers.
    m_driver.step(QStringLiteral("the dialog is told the unit"),
                  [this] { deliver(Accepted::UnitChanged); });
    for (const QAbstractButton* const button : dialog->findChildren<QAbstractButton*>()) {
        if (!button->icon().isNull() || button->objectName().endsWith(QLatin1String("RB"))) {
            m_driver.report().expect(Row::PairPictures,
                                     button->objectName() + QStringLiteral(" has its picture"),
                                     true, !button->icon().pixmap(button->iconSize()).isNull());
        }
    }
    Dialog hands(m_driver, *dialog);
    hands.start();
    hands.enterAll(m_options.isMetric, Row::PairRecords);
    hands.tryWindows();
    tryUnits(hands);
    m_driver.close(*dialog);
}

void Strip::tryUnits(Dialog& dialog)
{
    const QString symbol = dialog.firstSymbol();
    if (m_options.switchUnit.isEmpty()) {
        return;
    }
    const bool other = !m_options.isMetric;
    dialog.tryUnitSwitch(other, [&] { switchUnit(other); });
    dialog.enterAll(other, Row::PairUnitSwitch);
    judgeChooser(symbol, dialog.firstSymbol());
    dialog.tryUnitSwitch(m_options.isMetric, [&] { switchUnit(m_options.isMetric); });
}

/// By the first symbol that is offered in each unit, as the record has it.
void Strip::judgeChooser(const QString& symbol, const QString& inOtherUnit)
{
    const double ratio = inOtherUnit.mid(1).toDouble() / symbol.mid(1).toDouble();
    const bool isConverted =
        isSameToSixDigits(ratio, factor) || isSameToSixDigits(ratio, 1 / factor);
    if (isConverted || isSameToSixDigits(ratio, 1)) {
        m_driver.report().expect(Row::ChooserUnit,
                                 QStringLiteral("the first symbol is chosen in the other unit"),
                                 symbol, inOtherUnit);
    } else {
        m_driver.report().untried(Row::ChooserUnit,
                                  QStringLiteral("it does not offer the same symbols in both"));
    }
}

void Strip::switchUnit(bool isMetric)
{
    QStringList command = QProcess::splitCommand(m_options.switchUnit);
    const QString program = command.isEmpty() ? QString() : command.takeFirst();
    command.append(isMetric ? QStringLiteral("metric") : QStringLiteral("inch"));
    m_driver.report().expect(Row::PairUnitSwitch, m_options.switchUnit, 0,
                             QProcess::execute(program, command));
    deliver(Accepted::UnitChanged);
}

void Strip::end()
{
    m_driver.step(QStringLiteral("the strip is deleted"),
                  [this] { delete static_cast<QGridLayout*>(std::exchange(m_strip, nullptr)); });
    m_driver.step(QStringLiteral("the window is deleted"), [this] { m_window.reset(); });
    const QString what = QStringLiteral("the module is unloaded");
    m_driver.step(what, [this, what] {
        const bool isUnloaded = m_library.unload();
        m_driver.report().expect(Row::PairUnloads, what, true, isUnloaded);
        m_driver.report().expect(Row::PairUnloads,
                                 what + QStringLiteral(": its pictures are there"), false,
                                 QFile::exists(QLatin1String(aPicture)));
        QTest::qWait(settlingTime);
    });
}
