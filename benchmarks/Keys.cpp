// Figures for a key pressed in a field, until the canvas has its message.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainFields.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

struct Key {
    int code;
    QString text;
};

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

const QVector<Key>& returnKey()
{
    static const QVector<Key> keys = {{Qt::Key_Return, QStringLiteral("\r")}};
    return keys;
}

/// A digit is typed and removed, so that each press changes the text.
const QVector<Key>& digitKeys()
{
    static const QVector<Key> keys = {{Qt::Key_2, QStringLiteral("2")},
                                      {Qt::Key_Backspace, QStringLiteral("\b")}};
    return keys;
}

// Return sends at once, and again when Qt says that editing has finished.
constexpr long returnMessages = 2;

void pressInSymbol(benchmark::State& state)
{
    const DialogWindow window;
    auto* const field = window.dialog->findChild<QLineEdit*>(QStringLiteral("m_pSymbolTextLE"));
    pressInTurn(state, window.canvas, field, returnKey(), returnMessages);
}

void pressInCount(benchmark::State& state)
{
    const DialogWindow window;
    window.dialog->findChild<QAbstractButton*>(QStringLiteral("m_pPadTB"))->click();
    auto* const field = window.dialog->findChild<QLineEdit*>(QStringLiteral("m_pDrilNxLE"));
    QApplication::processEvents();
    pressInTurn(state, window.canvas, field, digitKeys(), 1);
}

template <class Window>
void pressInPlain(benchmark::State& state, const QVector<Key>& keys, long messages)
{
    // The entries of the module's own record: the same keys and values.
    const DialogWindow dialog;
    CanvasFloor canvas;
    PlainRecord record(dialog.canvas.last().payload, "job", nullptr, canvas);
    Window window(record, QStringLiteral("r10"));
    window.showPainted();
    pressInTurn(state, canvas, window.field(), keys, messages);
}

}  // namespace

void addKeyFigures(Runner& runner)
{
    runner.addPair("key-symbol", {}, pressInSymbol, [](benchmark::State& state) {
        pressInPlain<PlainSymbolWindow>(state, returnKey(), returnMessages);
    });
    runner.addPair("key-count", {}, pressInCount, [](benchmark::State& state) {
        pressInPlain<PlainCountWindow>(state, digitKeys(), 1);
    });
}
