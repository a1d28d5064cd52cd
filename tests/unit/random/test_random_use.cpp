// Random use of strip and dialog. After every step the invariants hold: at most one checked tool,
// every message well formed, the record whole. A failure names seed and step; RANDOM_SEED and
// RANDOM_STEPS in the environment repeat or prolong a run.

#include "DialogFixture.h"
#include "Main.h"

#include <CamApiStandIn.h>
#include <UiApiStandIn.h>

#include <QAbstractButton>
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTimer>

namespace {

const QSet<int> sentCodes = {-1,       20000201, 20000202, 20000203, 20000206, 20000207, 20000208,
                             20000211, 20000212, 20000215, 20000216, 20000221, 20000222, 20000223,
                             20000225, 20000227, 20000241, 20000242, 20000244, 20000245, 20000246,
                             20000266, 20000268, 20001405, 20003950, 20004801, 50,       51,
                             52,       53,       20002838};
const int acceptedCodes[] = {10000205, 20000201, 20000202, 20000203, 20000223, 20000241,
                             20000242, 20000244, 20000245, 20000247, 20001637, 20001715,
                             20001807, 20001811, 20001824, 20002003, 20002200, 20002201,
                             20002400, 20002403, 20004602, 20004603, 20004604};
// "OrbotechType" is an integer for an index outside its list only.
const QSet<QString> integerKeys = {"OrbotechType", "Features",         "AngleGroup",  "CornerType",
                                   "BarcodeMode",  "OrbotechFontSize", "OrbotechZoom"};

struct Bound {
    const char* key;
    double least;
    double most;
};
const Bound bounds[] = {
    {"CornerRadius", 0, 1270000},
    {"SlotLength", 0, 1270000},
    {"PadDx", -2540000, 2540000},
    {"PadDy", -2540000, 2540000},
    {"PadNx", 0, 50},
    {"PadNy", 0, 50},
    {"PadXscl", -100, 100},
    {"PadYscl", -100, 100},
    {"Angel(deg)", 0, 360},
    {"StringXSize", 0, 254000},
    {"StringYSize", 0, 254000},
    {"StringLineWidth", 0, 254000},
    {"BarcodeHeight", 0, 1270000},
    {"CannedHoleSize", 0, 1270000},
};

quint32 numberOf(const char* variable, quint32 otherwise)
{
    bool isNumber = false;
    const quint32 number = qEnvironmentVariable(variable).toUInt(&isNumber);
    return isNumber ? number : otherwise;
}

/// What is wrong with a record; empty when nothing is.
QString faultOf(const QVariantMap& record)
{
    if (record.size() != 45) {
        return QStringLiteral("%1 keys").arg(record.size());
    }
    for (auto entry = record.begin(); entry != record.end(); ++entry) {
        const bool isText = entry->userType() == QMetaType::QString;
        const bool isInteger = entry->userType() == QMetaType::Int;
        if (!isText && !(isInteger && integerKeys.contains(entry.key()))) {
            return entry.key() + " is a " + entry->typeName();
        }
    }
    for (const Bound& bound : bounds) {
        const double value = record.value(bound.key).toString().toDouble();
        if (!(value >= bound.least && value <= bound.most)) {
            return QString(bound.key) + " is " + record.value(bound.key).toString();
        }
    }
    return {};
}

QString faultOf(const Recorder::Entry& entry)
{
    const PluginMetaData& message = entry.message;
    const int code = message.code;
    const QString sender = code == 20002838   ? "Canvas_RuleMenu.dll"
                           : code == 20000227 ? "Canvas_Tool_Strip"
                                              : "Canvas_Tool_Strip.dll";
    const QString receiver = code == 20000246 ? "Canvas_JobTree.dll" : "Canvas_Viewer.dll";
    const bool isRecord = code == 50 || code == 52;
    if (!sentCodes.contains(code)) {
        return QStringLiteral("code %1").arg(code);
    }
    if (message.sender != sender || message.receiver != receiver) {
        return QStringLiteral("%1 from %2 to %3").arg(code).arg(message.sender, message.receiver);
    }
    const bool hasMode = code == 20000206 || code == 20000266;
    const bool isExtraGood = code == 51 ? message.extra != 0
                             : hasMode  ? message.extra == 0 || message.extra == 1
                                        : message.extra == 0;
    if (!isExtraGood) {
        return QStringLiteral("%1 with extra %2").arg(code).arg(message.extra);
    }
    if (isRecord == message.payload.isEmpty()) {
        return QStringLiteral("%1 with %2 entries").arg(code).arg(message.payload.size());
    }
    return isRecord ? faultOf(message.payload) : QString();
}

}  // namespace

class TestRandomUse : public QObject {
    Q_OBJECT

    std::unique_ptr<DialogFixture> m_fixture;
    QRandomGenerator m_random;
    QMap<int, int> m_seen;  // how often each code was sent

    int below(int limit) { return m_random.bounded(limit); }

    QString randomText()
    {
        static const QStringList words = {
            "",    "0",      "1",        "5",      "51",       "-1",        "10",   "12.5",
            "1e3", "100001", "50001",    "400",    "360",      "r10",       "s20",  "r",
            "foo", "r10_45", "r10_4x",   "_",      "nan",      "inf",       "abc",  " 7 ",
            "1,5", "$$JOB",  "standard", "r60000", "99999999", "rect20x40", "logo", "0.00001"};
        return words[below(words.size())];
    }

    void clickTool()
    {
        QTest::mouseClick(m_fixture->strip->itemAt(below(26))->widget(), Qt::LeftButton);
    }

    void openMenu()
    {
        QTimer::singleShot(0, this, [this] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu && below(3) > 0) {
                const QAction* const entry = menu->actions().at(below(menu->actions().size()));
                QTest::mouseClick(menu, Qt::LeftButton, {},
                                  menu->actionGeometry(const_cast<QAction*>(entry)).center());
            } else if (menu) {
                menu->close();
            }
        });
        const int tools[] = {5, 23, 24};
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
        QApplication::sendEvent(m_fixture->strip->itemAt(tools[below(3)])->widget(), &event);
    }

    void receive()
    {
        PluginMetaData message("Sibling.dll", "Canvas_Tool_Strip.dll");
        const bool isKnown = below(4) > 0;
        message.code = isKnown ? acceptedCodes[below(int(std::size(acceptedCodes)))]
                               : int(m_random.generate());
        const QVariant values[] = {"job", "other", "", 7, QVariant(), QStringList("a"), 2.5};
        for (const char* const key : {"JobName", "Step", "StepName", "Odd"}) {
            if (below(2)) {
                message.payload[key] = values[below(int(std::size(values)))];
            }
        }
        const std::string job = "other";
        const std::map<int, std::string> symbols{{1, "r10"}, {2, "s5"}, {3, "Odd name"}};
        const std::map<std::string, std::string> attributes{{".net", "gnd"}, {"", ""}};
        const void* object = message.code == 20002003   ? static_cast<const void*>(&job)
                             : message.code == 20001811 ? static_cast<const void*>(&symbols)
                             : message.code == 20001807 ? static_cast<const void*>(&attributes)
                                                        : nullptr;
        message.extra = below(4) ? qint64(reinterpret_cast<quintptr>(object)) : 0;
        if (message.code == 20002200) {
            CanvasHost::setDisplayUnit(CanvasHost::DisplayUnit(below(4)));
        }
        m_fixture->strip->recMsgFromManager(message);
    }

    void useDialog()
    {
        QList<QWidget*> controls;
        for (QWidget* const widget : m_fixture->dialog->findChildren<QWidget*>()) {
            if (widget->window() == m_fixture->dialog && !widget->objectName().startsWith("qt_")) {
                controls.append(widget);
            }
        }
        QWidget* const widget = controls[below(controls.size())];
        if (auto* const combo = qobject_cast<QComboBox*>(widget)) {
            combo->setCurrentIndex(below(combo->count() + 1) - 1);
        } else if (auto* const spin = qobject_cast<QSpinBox*>(widget)) {
            spin->setValue(below(400));
            QTest::keyClick(spin, Qt::Key_Return);
        } else if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
            enterText(edit);
        } else if (qobject_cast<QAbstractButton*>(widget)) {
            QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
        }
    }

    void enterText(QLineEdit* edit)
    {
        if (below(2)) {
            edit->setText(randomText());
        } else {
            edit->selectAll();
            QTest::keyClicks(edit, randomText());
        }
        QTest::keyClick(edit, below(2) ? Qt::Key_Return : Qt::Key_Tab);
    }

    void step()
    {
        switch (below(10)) {
            case 0:
                return clickTool();
            case 1:
                return openMenu();
            case 2:
            case 3:
                return receive();
            case 4:
                m_fixture->dialog->setVisible(true);
                return;
            case 5:
                if (below(4) == 0) {
                    m_fixture->dialog->close();
                }
                return;
            default:
                return useDialog();
        }
    }

    QString fault()
    {
        int checked = 0;
        for (int tool = 0; tool < 26; ++tool) {
            checked += m_fixture->strip->isToolButtonChecked(tool);
        }
        if (checked > 1) {
            return QStringLiteral("%1 checked tools").arg(checked);
        }
        for (const Recorder::Entry& entry : m_fixture->recorder.messages()) {
            ++m_seen[entry.message.code];
            const QString fault = faultOf(entry);
            if (!fault.isEmpty()) {
                return fault;
            }
        }
        m_fixture->recorder.clear();
        return {};
    }

private Q_SLOTS:
    void use_data()
    {
        QTest::addColumn<quint32>("seed");
        const quint32 first = numberOf("RANDOM_SEED", 1);
        const quint32 count = qEnvironmentVariableIsSet("RANDOM_SEED") ? 1 : 5;
        for (quint32 seed = first; seed < first + count; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    void use()
    {
        QFETCH(quint32, seed);
        m_random.seed(seed);
        const quint32 steps = numberOf("RANDOM_STEPS", 400);
        m_fixture = std::make_unique<DialogFixture>();
        connectAsTheStripDoes();
        for (quint32 number = 1; number <= steps; ++number) {
            step();
            m_fixture->boxes.take();
            const QString found = fault();
            QVERIFY2(found.isEmpty(),
                     qPrintable(
                         QStringLiteral("seed %1, step %2: %3").arg(seed).arg(number).arg(found)));
        }
        m_fixture.reset();
    }

    void cleanup() { m_fixture.reset(); }

    void cleanupTestCase()
    {
        // The run did what it was to do.
        QVERIFY(m_seen.size() > 20);
        QVERIFY(m_seen.value(50) > 100);
    }

private:
    void connectAsTheStripDoes() const
    {
        const AddFeature* const dialog = m_fixture->dialog;
        const Canvas_Tool_Strip* const strip = m_fixture->strip;
        connect(strip, SIGNAL(Current_Unit_Changed(bool)), dialog,
                SLOT(change_current_units(bool)));
        connect(strip, SIGNAL(language_changed()), dialog, SLOT(change_language()));
        connect(strip, SIGNAL(send_Symbol_Info(std::map<int, std::string>)), dialog,
                SLOT(get_ChangeSymbol_Info(std::map<int, std::string>)));
        connect(strip, SIGNAL(send_job_info(const std::string&, const std::string&)), dialog,
                SLOT(set_job_info(const std::string&, const std::string&)));
        connect(dialog, SIGNAL(change_viewtool()), strip, SLOT(On_AreaZoom_Clicked()));
    }
};

CTS_MAIN(TestRandomUse)
#include "test_random_use.moc"
