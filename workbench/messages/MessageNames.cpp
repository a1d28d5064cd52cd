#include "messages/MessageNames.h"

#include "plugin/MessageCodes.h"
#include "plugin/ModuleNames.h"

#include <PluginManagerStandIn.h>

#include <QCoreApplication>
#include <QHash>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace MessageNames {
namespace {

/// Texts that differ from the name of the code in words. For those that do not, the build makes a
/// list for the translations, see translations/CMakeLists.txt.
using Texts = QHash<int, const char*>;

const Texts acceptedTexts{
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Job and step opened")},
    {Accepted::ReleaseAll, QT_TRANSLATE_NOOP("MessageNames", "Release all tools")},
    {Accepted::AddFeatureActive, QT_TRANSLATE_NOOP("MessageNames", "Add feature is active")},
};

/// What a sibling may ask of the host itself.
const Texts hostTexts{
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Open job and step")},
};

const Texts sentTexts{
    {Sent::Unset, QT_TRANSLATE_NOOP("MessageNames", "No code")},
    {Sent::OpenPopView, QT_TRANSLATE_NOOP("MessageNames", "Open a pop view")},
    {Sent::FeatureHighLight, QT_TRANSLATE_NOOP("MessageNames", "Feature highlight")},
    {Sent::SelectSymbol, QT_TRANSLATE_NOOP("MessageNames", "Select a symbol on the board")},
    {Sent::Eq, QT_TRANSLATE_NOOP("MessageNames", "EQ")},
    {Sent::Record, QT_TRANSLATE_NOOP("MessageNames", "Feature record")},
    {Sent::AttributeMap, QT_TRANSLATE_NOOP("MessageNames", "Attributes")},
    {Sent::DirectionRecord, QT_TRANSLATE_NOOP("MessageNames", "Feature record (direction)")},
    {Sent::SelectFromEditor, QT_TRANSLATE_NOOP("MessageNames", "Select attributes on the board")},
};

/// What `receiver` understands by a code.
struct Meaning {
    const char* name;  ///< null: nothing
    const Texts& texts;
};
Meaning meaningOf(const QString& receiver, int code)
{
    // The canvas is told of the open step as the tool strip is.
    const bool openedStep = code == Accepted::JobOpened;
    if (receiver == CanvasHost::hostName) {
        return {openedStep ? Accepted::nameOf(code) : nullptr, hostTexts};
    }
    if (receiver == ModuleNames::toolStrip || (receiver == ModuleNames::viewer && openedStep)) {
        return {Accepted::nameOf(code), acceptedTexts};
    }
    return {Sent::nameOf(code), sentTexts};
}

/// "Add feature started" for "AddFeatureStarted".
QByteArray inWords(const QByteArray& name)
{
    QByteArray words = name.left(1);
    for (const char letter : name.mid(1)) {
        words += letter >= 'A' && letter <= 'Z' ? QByteArray(" ") + char(letter + 'a' - 'A')
                                                : QByteArray(1, letter);
    }
    return words;
}

}  // namespace

Extra extraOf(const QString& receiver, int code)
{
    static const QHash<int, Extra> taken{{Accepted::JobName, Extra::String},
                                         {Accepted::SymbolsPicked, Extra::Symbols},
                                         {Accepted::AttributesPicked, Extra::Attributes}};
    if (receiver == ModuleNames::toolStrip) {
        return taken.value(code, Extra::Number);
    }
    return code == Sent::AttributeMap ? Extra::Attributes : Extra::Number;
}

QString name(const QString& receiver, int code)
{
    return QString::fromLatin1(meaningOf(receiver, code).name);
}

QString text(const QString& receiver, int code)
{
    const Meaning meaning = meaningOf(receiver, code);
    const char* const text = meaning.texts.value(code);
    return !meaning.name ? QString()
                         : QCoreApplication::translate(
                               "MessageNames", text ? QByteArray(text) : inWords(meaning.name));
}

const QVector<QVector<int>>& accepted()
{
    static const QVector<QVector<int>> groups{
        {Accepted::JobOpened, Accepted::JobAndStep, Accepted::JobName, Accepted::UnitChanged,
         Accepted::LanguageChanged, Accepted::SymbolsPicked, Accepted::AttributesPicked,
         Accepted::UserSymbolsChanged, Accepted::ReleaseAll},
        {Accepted::AreaZoom, Accepted::FeatureSelection, Accepted::RectangleSelection,
         Accepted::PolygonSelection, Accepted::SelectPolyline, Accepted::SelectLayerNet,
         Accepted::SelectBoardNet, Accepted::CheckAndMeasure, Accepted::Measure,
         Accepted::AddFeatureActive, Accepted::AddFeature, Accepted::DeleteFeature,
         Accepted::MoveFeature},
        {Accepted::CloseDialogs}};
    return groups;
}

}  // namespace MessageNames
