#include "PageFixture.h"

#include "DialogFixture.h"
#include "plugin/MessageCodes.h"

#include <QtTest>
#include <QtWidgets>

namespace {

constexpr int greyRole = Qt::UserRole - 1;

}  // namespace

class PageFixture::Private {
public:
    explicit Private(bool metric) : base(metric) {}

    DialogFixture base;
    QStringList boxes;
    std::unique_ptr<QuotingTranslator> language;
};

PageFixture::PageFixture(bool metric) : d(std::make_unique<Private>(metric)) {}

PageFixture::~PageFixture() = default;

AddFeature& PageFixture::dialog()
{
    return *d->base.dialog;
}

QWidget* PageFixture::widget(const QString& name) const
{
    return &d->base.find(name);
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
            QVERIFY2(
                QMetaObject::invokeMethod(&dialog(), qPrintable("on_" + name + "_editingFinished")),
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
    QWidget* const list = box.view()->viewport();
    // An item may be wider than the list.
    const QRect place = box.view()->visualRect(box.model()->index(item, 0)) & list->rect();
    QVERIFY(!place.isEmpty());
    QTest::mouseMove(list, place.center());
    QTest::mouseClick(list, Qt::LeftButton, Qt::NoModifier, place.center());
    box.hidePopup();
}

void PageFixture::chooseInList(const QString& combo, int item)
{
    auto& box = find<QComboBox>(combo);
    box.showPopup();
    for (int i = 0; i < item; ++i) {
        QTest::keyClick(box.view(), Qt::Key_Down);
    }
    QTest::keyClick(box.view(), Qt::Key_Return);
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
    d->base.setMetric(metric);
}

void PageFixture::changeLanguage()
{
    d->language = std::make_unique<QuotingTranslator>("AddFeature");
    dialog().change_language();
}

QString PageFixture::translated(const QString& text)
{
    return QStringLiteral("<%1>").arg(text);
}

QList<int> PageFixture::codes() const
{
    return d->base.recorder.codes().toList();
}

QVariantMap PageFixture::record()
{
    const QVector<int> codes = d->base.recorder.codes();
    for (int i = codes.size() - 1; i >= 0; --i) {
        if (codes[i] == MessageCodes::Sent::Record ||
            codes[i] == MessageCodes::Sent::DirectionRecord) {
            return d->base.recorder.messages()[i].message.payload;
        }
    }
    return d->base.record();
}

void PageFixture::forget()
{
    d->base.recorder.clear();
    d->base.boxes.take();
    d->boxes.clear();
}

QStringList PageFixture::boxes() const
{
    d->boxes += d->base.boxes.takeTexts();
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
        return of->isVisibleTo(d->base.dialog) == (what == "shown");
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
            if (combo->itemData(item, greyRole) == QVariant(0)) {
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
