#pragma once

#include "messages/MessageNames.h"

#include <PluginMetaData.h>

#include <QPointF>
#include <QWidget>

#include <optional>

class BoardView;
class QLabel;
class RecordTable;

/// The canvas: shows what the tool strip tells it, and sends back what the user picks on the board.
/// It never sends a tool's message back, which would go round for ever.
class ViewerPane : public QWidget {
    Q_OBJECT

public:
    /// `parent` is the sender pointer of every message.
    explicit ViewerPane(QWidget* parent);
    ~ViewerPane() override;

    void receive(const PluginMetaData& message);

protected:
    void changeEvent(QEvent* event) override;

private:
    /// What a click on the board is for.
    enum class Pick { Nothing, Symbol, Attributes, MeasureStart, MeasureEnd };

    QWidget* createInspector();
    void showRecord(const PluginMetaData& message);
    void followTool(const PluginMetaData& message);
    void setTool(const MessageNames::Row* tool, qint64 variant = 0);
    void startMeasuring();
    void setPick(Pick pick);
    void picked(int feature, const QPointF& point);
    void sendSymbol(int feature);
    void sendAttributes(int feature);
    void send(int code, const void* object = nullptr);
    void showPosition(const QPointF& point);
    void retranslate();

    QWidget* m_parent;
    BoardView* m_board;
    QLabel* m_pActiveToolLB;
    QLabel* m_pPickHintLB;
    QLabel* m_pPositionLB;
    QLabel* m_pRecordLB;
    QLabel* m_pAttributesLB;
    RecordTable* m_record;
    RecordTable* m_attributes;
    Pick m_pick = Pick::Nothing;
    QPointF m_measureStart;
    const MessageNames::Row* m_tool = nullptr;  ///< the message that announced it; null: none
    qint64 m_variant = 0;
    std::optional<int> m_recordCode;
};
