#pragma once

#include "Canvas.h"
#include "PlainTools.h"
#include "plugin/ModuleNames.h"

#include <QGridLayout>
#include <QToolButton>
#include <QVector>

#include <utility>

/// Floor of the tool strip: a button per tool with the same sheets, tips, names, sizes and
/// connections, made in the same order. A click checks only the clicked one and sends its code.
class PlainStrip : public QGridLayout {
public:
    enum Index {
        Zoom,
        Measure = 2,
        Add = 4,
        Delete,
        Move,
        Feature = 20,
        Rectangle,
        Polygon,
        Net,
        Mark
    };

    PlainStrip(QWidget* parent, Receiver& receiver) : m_receiver(receiver)
    {
        parent->setFocusPolicy(Qt::NoFocus);
        for (const PlainTool& tool : plainTools()) {
            addButton(tool, m_buttons.isEmpty() ? parent : nullptr);
        }
        for (const Index index : {Delete, Net, Mark}) {
            m_buttons[index]->setContextMenuPolicy(Qt::CustomContextMenu);
            connect(m_buttons[index], &QToolButton::customContextMenuRequested, this, [] {});
        }
        checkOnly(m_buttons.first());
    }

    QToolButton* button(int index) const { return m_buttons[index]; }

    void checkOnly(const QToolButton* button)
    {
        for (QToolButton* const each : std::as_const(m_buttons)) {
            each->setChecked(each == button);
        }
    }

    void send(int code)
    {
        PluginMetaData message(ModuleNames::toolStrip, ModuleNames::viewer);
        message.code = code;
        m_receiver.receive(std::move(message));
    }

    void retranslate()
    {
        for (int index = 0; index < m_buttons.size(); ++index) {
            name(*m_buttons[index], plainTools()[static_cast<size_t>(index)]);
        }
    }

private:
    void name(QToolButton& button, const PlainTool& tool)
    {
        const QString text = tr(tool.tip, tool.note);
        button.setToolTip(text);
        button.setAccessibleName(text);
    }

    void addButton(const PlainTool& tool, QWidget* parent)
    {
        auto* const button = new QToolButton(parent);
        button->setObjectName(tool.name);
        name(*button, tool);
        button->setFixedSize(40, 40);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setEnabled(tool.enabled);
        button->setStyleSheet(tool.sheet);
        addWidget(button, m_buttons.size() / 4, m_buttons.size() % 4);
        m_buttons.append(button);
        connect(button, &QToolButton::clicked, this, [this, button, code = tool.code] {
            checkOnly(button);
            send(code);
        });
    }

    Receiver& m_receiver;
    QVector<QToolButton*> m_buttons;
};
