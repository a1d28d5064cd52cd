// Figures for a key pressed in a field, until the canvas has its message.

#include "DialogWindow.h"
#include "Groups.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "floors/PlainRecord.h"
#include "plugin/RecordKeys.h"

#include <cam_api.h>
#include <ui_api.h>

#include <QAbstractButton>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QVBoxLayout>

namespace {

constexpr char lineSymbol[] = "^[rs]?|[rs][0-9]+(\\.[0-9]+)?$";
const QString noRotation = QStringLiteral("0");

/// As deep in its window as a field of the dialog: an unused key is passed up from there.
QLineEdit* addField(QWidget* window, const QString& text)
{
    auto* const row = new QWidget(window);
    auto* const field = new QLineEdit(text, row);
    (new QVBoxLayout(row))->addWidget(field);
    if (!window->layout()) {
        new QVBoxLayout(window);
    }
    window->layout()->addWidget(row);
    return field;
}

/// Floor of a symbol field: Return stores, checks and sends the symbol, and once more when Qt says
/// that editing has finished.
class PlainSymbolWindow : public Panel {
public:
    PlainSymbolWindow(PlainRecord& record, const QString& symbol)
        : m_record(record), m_field(addField(this, symbol))
    {
        m_field->setValidator(new QRegExpValidator(QRegExp(QLatin1String(lineSymbol)), m_field));
        connect(m_field, &QLineEdit::returnPressed, this, &PlainSymbolWindow::returnPressed);
        connect(m_field, &QLineEdit::editingFinished, this, &PlainSymbolWindow::editingFinished);
    }
    /// A window that is deleted takes the focus from its field, which reports that.
    ~PlainSymbolWindow() override { m_field->disconnect(); }
    QLineEdit* field() const { return m_field; }

private:
    QString stored(const QString& name)
    {
        return ZENTRA::UIAPI::getUnit(this) != 0 ? ZENTRA::UIAPI::setSymbolUIData(name, 0) : name;
    }

    void returnPressed()
    {
        const QString typed = m_field->text().left(m_field->cursorPosition());
        m_field->setText(typed);
        m_record.insert(RecordKeys::symbolText, stored(typed));
        m_record.send(typed);
    }

    void editingFinished()
    {
        m_record.insert(RecordKeys::mirrorRotate, noRotation);
        const QString name = m_field->text();
        ZENTRA::API::symbol_type type{};
        int a = 0;
        int b = 0;
        if (ZENTRA::API::identify_symbol(name.toStdString(), type, a, b, false)) {
            m_record.insert(RecordKeys::symbolText, stored(name));
            m_record.send(name);
        }
    }

    PlainRecord& m_record;
    QLineEdit* m_field;
};

/// Floor of a count field beside a symbol: each change is checked, stored and sent.
class PlainCountWindow : public Panel {
public:
    PlainCountWindow(PlainRecord& record, const QString& symbol)
        : m_record(record),
          m_symbol(addField(this, symbol)),
          m_field(addField(this, QStringLiteral("1")))
    {
        m_field->setValidator(new QIntValidator(m_field));
        connect(m_field, &QLineEdit::textChanged, this, &PlainCountWindow::textChanged);
    }
    QLineEdit* field() const { return m_field; }

private:
    void textChanged(const QString& text)
    {
        if (ZENTRA::UIAPI::isNumValueLegal(text.toDouble(), 0, 50, this)) {
            m_record.insert(RecordKeys::padNx, text);
            m_record.send(m_symbol->text());
        }
    }

    PlainRecord& m_record;
    QLineEdit* m_symbol;
    QLineEdit* m_field;
};

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
