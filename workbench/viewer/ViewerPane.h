#pragma once

#include "board/Feature.h"
#include "plugin/MessageCodes.h"
#include "shared/CanvasControl.h"
#include "shared/Retranslated.h"
#include "viewer/CanvasController.h"
#include "viewer/TypedPlace.h"

#include <PluginMetaData.h>

#include <QPointer>
#include <QWidget>

class BoardView;
class CanvasBar;
class FileActions;
class Inspector;
class PlaceTool;
class QLabel;
class SnapControls;
class ToolLine;

/// The canvas: draws what the tool strip describes, does what its tools do, and sends back what the
/// user picks on the board. It never sends a tool's message back, which would circulate for ever.
class ViewerPane : public Retranslated<QWidget>, public CanvasControl {
    Q_OBJECT
    Q_INTERFACES(CanvasControl)

public:
    /// `parent` is the sender pointer of every message.
    explicit ViewerPane(QWidget* parent);
    ~ViewerPane() override;

    void receive(const PluginMetaData& message);

    CanvasController& canvas() { return m_canvas; }

    // CanvasControl
    BoardFiles& files() override;
    QList<QAction*> actions(Group group) const override;
    QWidget* board() const override;
    QWidget* positionField() const override;
    void stripWasMade() override;
    bool mayMakeStrip() override;
    void overhear(int code) override;

private:
    QLayout* createFoot();
    void connectCanvas();
    void connectLine(ToolLine* line, BoardView* view);
    void clickAt(const TypedPlace::Place& place);
    void createSecondView();

    void takeRecord(const PluginMetaData& message);
    void takeDirection(const PluginMetaData& message);
    void takeAttributes(const PluginMetaData& message);
    void followTool(const PluginMetaData& message);
    void startTool(int code, qint64 mode);
    PlaceTool* startPlacing();
    void openSecondView();
    void startMeasuring();
    void startPicking(const QString& hint, void (ViewerPane::*picked)(int));
    void sendSymbol(int feature);
    void sendAttributes(int feature);
    void send(int code, qint64 extra = 0);
    void openStep(const PluginMetaData& message);
    void askForStep(const QString& job, const QString& step);

    void showHovered(int feature);
    void showTool();
    void showLengths();
    void retranslate() override;

    QWidget* m_parent;
    CanvasController m_canvas;
    BoardView* m_view;
    FileActions* m_files;
    CanvasBar* m_bar;
    SnapControls* m_snapping;
    Inspector* m_inspector;
    std::vector<ToolLine*> m_lines;  ///< that of the pane, and that of the popview
    QLabel* m_pCanvasStatusLB;
    QLabel* m_pRecoveryLB;  ///< hidden unless changes cannot be kept
    QLabel* m_pHoveredLB;
    QPointer<QWidget> m_secondView;
    int m_tool = MessageCodes::Sent::Unset;  ///< the code that announced it
    qint64 m_mode = 0;
    PlaceTool* m_place = nullptr;  ///< the tool at work, when it is this one
    QMap<QString, QVariant> m_record;
    Pcb::Attributes m_attributes;
};
