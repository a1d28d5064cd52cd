#pragma once

#include "Agreement.h"
#include "BoxCatcher.h"
#include "QuotingTranslator.h"
#include "Recorder.h"
#include "addfeature/AddFeature.h"
#include "toolbar/Canvas_Tool_Strip.h"

#include <UiApiStandIn.h>

#include <QMap>
#include <QPointer>
#include <QRandomGenerator>
#include <QWidget>

#include <memory>
#include <optional>

/// A user and a host in one, acting at random: does with the module what a number says.
///
/// What a number does depends only on it and on the state, so that a list of numbers can be played
/// again, and shortened.
class RandomUser {
public:
    explicit RandomUser(std::optional<int> forbiddenCode);
    ~RandomUser();
    RandomUser(const RandomUser&) = delete;
    RandomUser& operator=(const RandomUser&) = delete;

    /// Does one thing, and says what is wrong afterwards; empty: nothing.
    QString perform(quint32 number);

    /// What the last number did, in a few words.
    const QString& story() const { return m_story; }
    /// How often each code was sent.
    const QMap<int, int>& sent() const { return m_sent; }
    int boxCount() const { return m_boxCount; }

    /// How often a field was in each state, after a step with the dialog.
    struct Looks {
        qint64 held = 0;
        qint64 unfinished = 0;
        qint64 excepted = 0;
    };
    const QMap<QString, Looks>& looks() const { return m_looks; }
    /// The steps after which the fields were checked, and those of them that left none out.
    qint64 steps() const { return m_steps; }
    qint64 wholeSteps() const { return m_wholeSteps; }

    /// What Qt itself reports (a connection that fails, a style sheet that it cannot read) is a
    /// fault; set by the program's message handler.
    static QString& complaint();

private:
    int below(int limit) { return m_random.bounded(limit); }
    template <class Range>
    auto oneOf(const Range& range)
    {
        return *(std::begin(range) + below(int(std::size(range))));
    }
    QString randomText();

    struct Action;
    static const QVector<Action>& actions();
    void act();
    void clickTool();
    void openMenu();
    void receive();
    void prepareAnswer();
    void receiveAnswer();
    PluginMetaData message();
    void prepareExtra(PluginMetaData& message);
    void callDirectly();
    void switchLanguage();
    void useAnyWindow();
    void useDialog();
    void openDialog();
    void useWindow(QWidget* window);
    void useControl(QWidget* control);
    bool enterText(QLineEdit* field);
    void leave(QWidget* field);
    void activate(QWidget* window);
    bool focus(QWidget* control);
    bool hadToOpenDialog();
    void chooseType();
    QList<QWidget*> reachable(bool (*isWanted)(const QWidget& control)) const;
    void typeAndStay();
    void moveFocus();
    void closeWindow();
    void deliver(const PluginMetaData& message);
    void greetTheDialog();

    QString fault();
    QString faultOfBoxes();
    QString faultOfMessages();
    QString faultOfFields();
    AddFeature* dialog() const;
    QVariantMap record();

    QRandomGenerator m_random;
    Recorder m_recorder;
    BoxCatcher m_boxes;
    std::unique_ptr<QuotingTranslator> m_translator;
    std::unique_ptr<QWidget> m_window;
    QPointer<Canvas_Tool_Strip> m_strip;
    std::unique_ptr<Agreement> m_agreement;
    QMap<QString, Looks> m_looks;
    qint64 m_steps = 0;
    qint64 m_wholeSteps = 0;
    std::optional<PluginMetaData> m_answer;
    CanvasHost::DisplayUnit m_unitToCome = CanvasHost::DisplayUnit::Mil;
    std::optional<int> m_forbiddenCode;
    QString m_story;
    QMap<int, int> m_sent;
    int m_boxCount = 0;
    bool m_isMetric = false;         // what the dialog was last told
    bool m_mayRefuse = false;        // something doubtful was entered or picked
    bool m_mayHaveAllTools = false;  // all tools were checked on purpose
    const std::string m_job = "other";
    std::map<int, std::string> m_symbols;
    std::map<std::string, std::string> m_attributes;
};
