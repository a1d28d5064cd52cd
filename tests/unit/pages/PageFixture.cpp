#include "PageFixture.h"

#include "addfeature/AddFeature.h"

#include <CamApiStandIn.h>
#include <PluginManagerStandIn.h>
#include <UiApiStandIn.h>

#include <QtTest>
#include <QtWidgets>

namespace {

constexpr int flagsRole = Qt::UserRole - 1;
constexpr int directionCode = 52;
constexpr int recordCode = 50;

/// Another language: every text of the dialog in angle quotes.
class QuotingTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "AddFeature") == 0
                   ? PageFixture::translated(QString::fromUtf8(sourceText))
                   : QString();
    }
};

QStringList warnings;
void recordWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg) {
        warnings.append(text);
    }
}

}  // namespace

class PageFixture::Private {
public:
    void watchBoxes()
    {
        QObject::connect(&boxTimer, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                boxes.append(box->windowTitle() + "|" + box->text());
                QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
            }
        });
        boxTimer.start(1);
    }

    QWidget window;
    std::unique_ptr<AddFeature> dialog;
    QList<PluginMetaData> messages;
    QStringList boxes;
    QTimer boxTimer;
    QuotingTranslator translator;
};

PageFixture::PageFixture(bool metric) : d(std::make_unique<Private>())
{
    using CanvasHost::DisplayUnit;
    CanvasHost::setDisplayUnit(metric ? DisplayUnit::Micrometre : DisplayUnit::Mil);
    CanvasHost::clearJobs();
    CanvasHost::Job job;
    job.name = "job";
    job.steps = {"step"};
    job.fonts = {"simple", "standard"};
    job.specialTexts = {"JOB", "DATE"};
    CanvasHost::addJob(job);
    CanvasHost::setObserver(
        [this](const CanvasHost::Transfer& sent) { d->messages.append(sent.message); });
    d->watchBoxes();

    warnings.clear();
    const QtMessageHandler previous = qInstallMessageHandler(recordWarning);
    d->window.show();
    d->dialog = std::make_unique<AddFeature>(&d->window, "job", "step", &d->window);
    qInstallMessageHandler(previous);
    for (const QString& warning : std::as_const(warnings)) {
        QTest::qFail(qPrintable(warning), __FILE__, __LINE__);
    }
    if (!d->messages.isEmpty()) {
        QTest::qFail("Building the dialog has sent a message", __FILE__, __LINE__);
    }
    d->dialog->show();
    d->dialog->activateWindow();
    QTest::qWaitForWindowActive(d->dialog.get());
    if (metric) {
        changeUnit(true);
    }
}

PageFixture::~PageFixture()
{
    QCoreApplication::removeTranslator(&d->translator);
    d->dialog.reset();
    CanvasHost::setObserver({});
}

AddFeature& PageFixture::dialog()
{
    return *d->dialog;
}

QWidget* PageFixture::widget(const QString& name) const
{
    auto* found = d->dialog->findChild<QWidget*>(name);
    if (!found) {
        qFatal("no widget named %s", qPrintable(name));
    }
    return found;
}

void PageFixture::perform(const QStringList& steps)
{
    for (const QString& step : steps) {
        perform(step);
    }
}

void PageFixture::perform(const QString& step)
{
    const int at = step.indexOf(QRegularExpression(QStringLiteral("[:<=~]")));
    const QString name = step.left(at);
    const QString argument = step.mid(at + 1);
    switch (at < 0 ? '\0' : step.at(at).toLatin1()) {
        case '=':
            find<QComboBox>(name).setCurrentIndex(argument.toInt());
            break;
        case '~':
            setText(name, argument);
            break;
        case '<':
            setText(name, argument);
            QVERIFY2(QMetaObject::invokeMethod(d->dialog.get(),
                                               qPrintable("on_" + name + "_editingFinished")),
                     qPrintable(step));
            break;
        case ':':
            type(name, argument);
            QTest::keyClick(widget(name), Qt::Key_Return);
            break;
        default:
            click(name);
    }
}

void PageFixture::click(const QString& name)
{
    QTest::mouseClick(widget(name), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, widget(name)->height() / 2));
}

void PageFixture::setText(const QString& field, const QString& text)
{
    find<QLineEdit>(field).setText(text);
}

void PageFixture::type(const QString& field, const QString& text)
{
    auto& edit = find<QLineEdit>(field);
    edit.setFocus();
    edit.selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&edit, Qt::Key_Delete);
    }
    QTest::keyClicks(&edit, text);
}

void PageFixture::leave(const QString& field, const QString& way, const QString& neighbour)
{
    if (way == "mouse") {
        click(neighbour);
        find<QWidget>(neighbour).setFocus(Qt::MouseFocusReason);
    } else {
        QTest::keyClick(widget(field), way == "Tab" ? Qt::Key_Tab : Qt::Key_Return);
    }
}

void PageFixture::chooseByMouse(const QString& combo, int item)
{
    auto& box = find<QComboBox>(combo);
    box.showPopup();
    const QRect place = box.view()->visualRect(box.model()->index(item, 0));
    QTest::mouseMove(box.view()->viewport(), place.center());
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    box.hidePopup();
}

void PageFixture::chooseByTypingAhead(const QString& combo, int item)
{
    auto& box = find<QComboBox>(combo);
    const QString word = box.itemText(item).section(' ', 0, 0);
    QTest::keyClicks(&box, word);
    QTest::qWait(QApplication::keyboardInputInterval() + 10);
    QTest::keyClicks(&box, QString(box.count(), word.at(0)));
    QTest::qWait(QApplication::keyboardInputInterval() + 10);
}

void PageFixture::press(const QString& combo, int key, int times)
{
    for (int i = 0; i < times; ++i) {
        QTest::keyClick(widget(combo), static_cast<Qt::Key>(key));
    }
}

void PageFixture::turnWheel(const QString& combo, int notches)
{
    QWidget* const box = widget(combo);
    const QPointF middle = box->rect().center();
    for (int i = 0; i < notches; ++i) {
        QWheelEvent event(middle, box->mapToGlobal(middle.toPoint()), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &event);
    }
}

void PageFixture::changeUnit(bool metric)
{
    d->dialog->change_current_units(metric);
}

void PageFixture::changeLanguage()
{
    QCoreApplication::installTranslator(&d->translator);
    d->dialog->change_language();
}

QString PageFixture::translated(const QString& text)
{
    return QStringLiteral("<%1>").arg(text);
}

QList<int> PageFixture::codes() const
{
    QList<int> codes;
    for (const PluginMetaData& message : d->messages) {
        codes.append(message.code);
    }
    return codes;
}

QVariantMap PageFixture::record()
{
    const auto isRecord = [](const PluginMetaData& message) {
        return message.code == recordCode || message.code == directionCode;
    };
    if (std::none_of(d->messages.cbegin(), d->messages.cend(), isRecord)) {
        d->dialog->getChangeCurrentTool();
    }
    const auto last = std::find_if(d->messages.crbegin(), d->messages.crend(), isRecord);
    return last == d->messages.crend() ? QVariantMap() : last->payload;
}

void PageFixture::forget()
{
    d->messages.clear();
    d->boxes.clear();
}

QStringList PageFixture::boxes() const
{
    return d->boxes;
}

QString PageFixture::text(const QString& field) const
{
    return find<QLineEdit>(field).text();
}

QString PageFixture::labelText(const QString& label) const
{
    return find<QLabel>(label).text();
}

int PageFixture::index(const QString& combo) const
{
    return find<QComboBox>(combo).currentIndex();
}

bool PageFixture::hasState(const QString& state) const
{
    const QString what = state.section(' ', 0, 0);
    const QWidget* const of = widget(state.section(' ', 1));
    if (what == "shown" || what == "hidden") {
        return of->isVisibleTo(d->dialog.get()) == (what == "shown");
    }
    if (what == "enabled" || what == "disabled") {
        return of->isEnabled() == (what == "enabled");
    }
    const auto* const button = qobject_cast<const QAbstractButton*>(of);
    return button && button->isChecked() == (what == "checked");
}

QList<int> PageFixture::indices(const QString& page) const
{
    QList<int> indices;
    for (const QComboBox* combo : widget(page)->findChildren<QComboBox*>()) {
        indices.append(combo->currentIndex());
    }
    return indices;
}

QStringList PageFixture::greyedItems(const QString& page) const
{
    QStringList greyed;
    for (const QComboBox* combo : widget(page)->findChildren<QComboBox*>()) {
        for (int item = 0; item < combo->count(); ++item) {
            if (combo->itemData(item, flagsRole) == QVariant(0)) {
                greyed.append(QStringLiteral("%1 %2").arg(combo->objectName()).arg(item));
            }
        }
    }
    return greyed;
}

QStringList PageFixture::visibleTexts(const QString& page) const
{
    QStringList texts;
    for (const QWidget* child : widget(page)->findChildren<QWidget*>()) {
        if (const auto* label = qobject_cast<const QLabel*>(child)) {
            texts.append(label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(child)) {
            texts.append(button->text());
        } else if (const auto* combo = qobject_cast<const QComboBox*>(child)) {
            for (int item = 0; item < combo->count(); ++item) {
                texts.append(combo->itemText(item));
            }
        }
    }
    texts.removeAll(QString());
    return texts;
}
