#include "PlainStrip.h"

#include "Canvas.h"
#include "PlainTools.h"
#include "plugin/ModuleNames.h"

#include <QToolButton>

#include <utility>

namespace {

constexpr int deleteFeature = 5;
constexpr int selectByNet = 23;
constexpr int mark = 24;

}  // namespace

PlainStrip::PlainStrip(QWidget* parent, Receiver& receiver) : m_receiver(receiver)
{
    parent->setFocusPolicy(Qt::NoFocus);
    for (const PlainTool& tool : plainTools()) {
        const int index = m_buttons.size();
        auto* const button = new QToolButton(index == 0 ? parent : nullptr);
        button->setObjectName(tool.name);
        button->setToolTip(tr(tool.tip, tool.note));
        button->setAccessibleName(button->toolTip());
        button->setFixedSize(40, 40);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setEnabled(tool.enabled);
        button->setStyleSheet(tool.sheet);
        addWidget(button, index / 4, index % 4);
        m_buttons.append(button);
        connect(button, &QToolButton::clicked, this, [this, button, code = tool.code] {
            checkOnly(button);
            send(code);
        });
    }
    for (const int index : {deleteFeature, selectByNet, mark}) {
        m_buttons[index]->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(m_buttons[index], &QToolButton::customContextMenuRequested, this,
                &PlainStrip::showMenu);
    }
    checkOnly(m_buttons.first());
}

void PlainStrip::checkOnly(const QToolButton* button)
{
    for (QToolButton* const each : std::as_const(m_buttons)) {
        each->setChecked(each == button);
    }
}

void PlainStrip::send(int code, qint64 extra)
{
    PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
    message.code = code;
    message.extra = extra;
    m_receiver.receive(std::move(message));
}

void PlainStrip::retranslate()
{
    for (int index = 0; index < m_buttons.size(); ++index) {
        const PlainTool& tool = plainTools()[static_cast<size_t>(index)];
        const QString name = tr(tool.tip, tool.note);
        m_buttons[index]->setToolTip(name);
        m_buttons[index]->setAccessibleName(name);
    }
}
