#pragma once

#include "Canvas.h"
#include "plugin/ModuleNames.h"
#include "toolbar/ToolTable.h"

#include <QGridLayout>
#include <QToolButton>
#include <QVector>

#include <utility>

/// Floor of the tool strip: a button per tool with the same sheets, tips, names, sizes and
/// connections, made in the same order. A click checks only the clicked one and sends its code.
class PlainStrip : public QGridLayout {
public:
    PlainStrip(QWidget* parent, Receiver& receiver) : m_receiver(receiver)
    {
        parent->setFocusPolicy(Qt::NoFocus);
        for (const ToolTable::Row& tool : ToolTable::rows()) {
            addButton(tool, m_buttons.isEmpty() ? parent : nullptr);
        }
        for (const ToolTable::Menu& menu : ToolTable::menus()) {
            button(menu.owner)->setContextMenuPolicy(Qt::CustomContextMenu);
            connect(button(menu.owner), &QToolButton::customContextMenuRequested, this, [] {});
        }
        checkOnly(m_buttons.first());
    }

    QToolButton* button(Tool tool) const { return m_buttons[static_cast<int>(tool)]; }

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
            name(*m_buttons[index], ToolTable::rows()[index].tip);
        }
    }

private:
    /// The sheets of the tools are made once.
    static const QString& sheet(int index)
    {
        static const auto sheets = [] {
            QStringList made;
            for (const ToolTable::Row& tool : ToolTable::rows()) {
                made.append(ToolTable::styleSheet(tool.pictures, tool.imageProperty));
            }
            return made;
        }();
        return sheets[index];
    }

    void name(QToolButton& button, const ToolTable::Tip& tip)
    {
        const QString text = tr(tip.text, tip.note);
        button.setToolTip(text);
        button.setAccessibleName(text);
    }

    void addButton(const ToolTable::Row& tool, QWidget* parent)
    {
        auto* const button = new QToolButton(parent);
        button->setObjectName(QLatin1String(tool.objectName));
        name(*button, tool.tip);
        button->setFixedSize(40, 40);
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setEnabled(tool.start != ToolTable::Start::Disabled);
        button->setStyleSheet(sheet(m_buttons.size()));
        addWidget(button, m_buttons.size() / 4, m_buttons.size() % 4);
        m_buttons.append(button);
        connect(button, &QToolButton::clicked, this, [this, button, code = tool.onCode] {
            checkOnly(button);
            send(code);
        });
    }

    Receiver& m_receiver;
    QVector<QToolButton*> m_buttons;
};
