// Figures for a key pressed in a field, until the canvas has its message.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainRecord.h"
#include "plugin/RecordKeys.h"

#include <QAbstractButton>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QVBoxLayout>

namespace {

struct Key {
    int code;
    QString text;
};

const QVector<Key> returnKey = {{Qt::Key_Return, QStringLiteral("\r")}};
// A digit is typed and removed, so that each press changes the text.
const QVector<Key> digitKeys = {{Qt::Key_2, QStringLiteral("2")},
                                {Qt::Key_Backspace, QStringLiteral("\b")}};

// Return sends at once, and again when Qt says that editing has finished.
constexpr long returnMessages = 2;

/// Presses the keys in turn; each must send `messages` messages.
void pressInTurn(benchmark::State& state, const CanvasFloor& canvas, QLineEdit* field,
                 const QVector<Key>& keys, long messages)
{
    field->setFocus();
    const long before = canvas.count();
    long pressed = 0;
    for (auto _ : state) {
        const Key& key = keys[int(pressed++ % keys.size())];
        QKeyEvent press(QEvent::KeyPress, key.code, Qt::NoModifier, key.text);
        QApplication::sendEvent(field, &press);
    }
    if (canvas.count() - before != pressed * messages) {
        state.SkipWithError("a key did not send the messages that it should");
    }
    QApplication::processEvents();
}

void pressInSymbol(benchmark::State& state)
{
    const DialogWindow window;
    auto* const field = window.dialog->findChild<QLineEdit*>(QStringLiteral("m_pSymbolTextLE"));
    pressInTurn(state, window.canvas, field, returnKey, returnMessages);
}

void pressInCount(benchmark::State& state)
{
    const DialogWindow window;
    window.dialog->findChild<QAbstractButton*>(QStringLiteral("m_pPadTB"))->click();
    auto* const field = window.dialog->findChild<QLineEdit*>(QStringLiteral("m_pDrilNxLE"));
    QApplication::processEvents();
    pressInTurn(state, window.canvas, field, digitKeys, 1);
}

/// A plain window with a record, whose entries are those of the module's own.
struct PlainWindow {
    /// As deep in the window as a field of the dialog: an unused key is passed up from there.
    QLineEdit* addField(const QString& text)
    {
        auto* const row = new QWidget(&window);
        auto* const field = new QLineEdit(text, row);
        (new QVBoxLayout(row))->addWidget(field);
        rows.addWidget(row);
        return field;
    }

    CanvasFloor canvas;
    PlainRecord record{DialogWindow().canvas.last().payload, canvas};
    QWidget window;
    QVBoxLayout rows{&window};
};

/// Floor of a symbol field: Return stores, checks and sends the symbol, and once more when Qt says
/// that editing has finished.
void pressInPlainSymbol(benchmark::State& state)
{
    PlainWindow plain;
    PlainRecord& record = plain.record;
    QLineEdit* const field = plain.addField(QStringLiteral("r10"));
    field->setValidator(
        new QRegExpValidator(QRegExp(QStringLiteral("^[rs]?|[rs][0-9]+(\\.[0-9]+)?$")), field));
    const auto storeAndSend = [&](const QString& name) {
        record.insert(RecordKeys::symbolText, ZENTRA::UIAPI::getUnit(field) != 0
                                                  ? ZENTRA::UIAPI::setSymbolUIData(name, 0)
                                                  : name);
        record.send(name);
    };
    QObject::connect(field, &QLineEdit::returnPressed, [&] {
        const QString typed = field->text().left(field->cursorPosition());
        field->setText(typed);
        storeAndSend(typed);
    });
    QObject::connect(field, &QLineEdit::editingFinished, [&] {
        record.insert(RecordKeys::mirrorRotate, QStringLiteral("0"));
        const QString name = field->text();
        ZENTRA::API::symbol_type type{};
        int a = 0;
        int b = 0;
        if (ZENTRA::API::identify_symbol(name.toStdString(), type, a, b, false)) {
            storeAndSend(name);
        }
    });
    showPainted(plain.window);
    pressInTurn(state, plain.canvas, field, returnKey, returnMessages);
    field->disconnect();  // as its window is deleted, it loses the focus and reports that
}

/// Floor of a count field beside a symbol: each change is checked, stored and sent.
void pressInPlainCount(benchmark::State& state)
{
    PlainWindow plain;
    const QLineEdit* const symbol = plain.addField(QStringLiteral("r10"));
    QLineEdit* const field = plain.addField(QStringLiteral("1"));
    field->setValidator(new QIntValidator(field));
    QObject::connect(field, &QLineEdit::textChanged, [&](const QString& text) {
        if (ZENTRA::UIAPI::isNumValueLegal(text.toDouble(), 0, 50, &plain.window)) {
            plain.record.insert(RecordKeys::padNx, text);
            plain.record.send(symbol->text());
        }
    });
    showPainted(plain.window);
    pressInTurn(state, plain.canvas, field, digitKeys, 1);
}

}  // namespace

void addKeyFigures(Runner& runner)
{
    runner.add({"key-symbol", "Return in the symbol field to message received", 1.20},
               pressInSymbol, pressInPlainSymbol);
    runner.add({"key-count", "key in a pad count field to message received", 1.20}, pressInCount,
               pressInPlainCount);
}
