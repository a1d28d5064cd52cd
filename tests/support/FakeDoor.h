#pragma once

#include "addfeature/record/DialogDoor.h"
#include "addfeature/record/FeatureRecord.h"
#include "addfeature/record/HostUnits.h"
#include "addfeature/record/RefusalGuard.h"
#include "addfeature/record/ValueChecks.h"

#include <QObject>
#include <QStringList>

#include <functional>

/// The dialog as a field or page sees it, without strip, window or host: it notes what it is asked,
/// answers the checks as told, and routes each signal straight to the field that sends it.
class FakeDoor : public QObject, public DialogDoor {
    Q_OBJECT

public:
    /// What was done since the last call: "record", "direction", "attributes", "restore",
    /// "hide placement rows", "length 7 up to 50000", ..., in order.
    QStringList takeCalls();
    /// Each connection as "object signal slot", without the codes of SIGNAL() and SLOT().
    const QStringList& connections() const { return m_connections; }
    /// Runs `rule` instead of the field when the signal for `slot` comes.
    void route(const char* slot, std::function<void()> rule);

    bool accepts = true;  ///< what every check answers
    HostUnits hostUnits{nullptr};
    bool survives = true;  ///< what restoreCommonRows() answers
    std::string jobName = "job";
    /// Called while a refusal's box would be open.
    std::function<void()> onBox;
    /// Called at each record or direction that is sent.
    std::function<void()> onSend;

    FeatureRecord& record() override { return m_record; }
    RefusalGuard& refusals() override { return m_refusals; }
    const HostUnits& units() const override { return hostUnits; }
    const ValueChecks& checks() const override { return m_checks; }
    QWidget* hostWidget() const override { return nullptr; }
    const std::string& job() const override { return jobName; }
    const std::string& step() const override { return m_step; }
    FeatureType featureType() const override { return FeatureType::Line; }
    int rotation() const override { return 0; }
    bool isToolActive() const override { return true; }
    void sendRecord() override;
    void sendDirection() override;
    void sendAttributes(const std::map<std::string, std::string>& attributes) override;
    bool restoreCommonRows() override;
    void hideAttributeRows() override;
    void hidePlacementRows() override;
    void connectToSlot(QObject* sender, const char* signal, const char* slot) override;
    void disconnectFromSlot(QObject* sender, const char* signal, const char* slot) override;
    void connectSignal(const char* signal, QObject* receiver, const char* slot) override;

private Q_SLOTS:
    void take();

private:
    /// Notes what is checked, and answers as the door is told.
    class Checks : public ValueChecks {
    public:
        explicit Checks(FakeDoor& door);
        bool length(const QString& text, double maximumInMil) const override;
        bool coordinate(double value) const override;
        bool number(double value, double minimum, double maximum) const override;
        bool symbolSizes(const QString& name) const override;

    private:
        FakeDoor& m_door;
    };

    bool answer(const QString& call);

    FeatureRecord m_record;
    RefusalGuard m_refusals;
    Checks m_checks{*this};
    std::string m_step = "step";
    QStringList m_calls;
    QStringList m_connections;
    QMap<QObject*, QString> m_slots;  // of each sender
    QMap<QString, std::function<void()>> m_routes;
};
