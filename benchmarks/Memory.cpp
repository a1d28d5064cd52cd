// What the heap holds after many clicks and sends.

#include "DialogWindow.h"
#include "Groups.h"
#include "Heap.h"
#include "Runner.h"
#include "addfeature/AddFeature.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <QLayoutItem>
#include <QToolButton>

namespace {

/// What the heap holds with the same tool checked and everything painted.
double heldBytes(const DialogWindow& window)
{
    qobject_cast<QToolButton*>(window.strip->itemAt(int(Tool::MoveFeature))->widget())->click();
    window.dialog->on_m_pPolarityCMB_ComboBox_Changed();
    QApplication::processEvents();
    return Heap::heldBytes();
}

/// Every tool in turn, and a record after each.
void clickAndSend(const DialogWindow& window, long times)
{
    constexpr long betweenPaints = 1000;
    for (long i = 0; i < times; ++i) {
        const int index = int(i % ToolTable::toolCount);
        qobject_cast<QToolButton*>(window.strip->itemAt(index)->widget())->click();
        window.dialog->on_m_pPolarityCMB_ComboBox_Changed();
        if (i % betweenPaints == 0) {
            QApplication::processEvents();
        }
    }
}

}  // namespace

void addMemoryFigures(Runner& runner)
{
    const long first = runner.effort().quick ? 1000 : 10000;
    const long all = runner.effort().quick ? 20000 : 1000000;
    runner.addCheck("memory", std::to_string(all) + " against " + std::to_string(first), [=] {
        const DialogWindow window;
        clickAndSend(window, first);
        const double before = heldBytes(window);
        clickAndSend(window, all - first);
        return heldBytes(window) - before;
    });
}
