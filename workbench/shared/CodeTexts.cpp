#include "shared/CodeTexts.h"

#include "plugin/MessageCodes.h"

#include <QCoreApplication>
#include <QHash>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

/// Texts that differ from the name of the code in words; a tool is called as in the tool strip. For
/// those that do not, the build makes a list for the translations, see translations/CMakeLists.txt.
using Texts = QHash<int, const char*>;

const Texts acceptedTexts{
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Job and Step Opened")},
    {Accepted::JobAndStep, QT_TRANSLATE_NOOP("MessageNames", "Job and Step")},
    {Accepted::CheckAndMeasure, QT_TRANSLATE_NOOP("MessageNames", "Check and Measure")},
    {Accepted::ReleaseAll, QT_TRANSLATE_NOOP("MessageNames", "Release All Tools")},
    {Accepted::AddFeatureActive, QT_TRANSLATE_NOOP("MessageNames", "Add Feature Is Active")},
};

const Texts sentTexts{
    {Sent::Unset, QT_TRANSLATE_NOOP("MessageNames", "No Code")},
    {Sent::OpenPopView, QT_TRANSLATE_NOOP("MessageNames", "Open a Popview")},
    {Sent::FeatureHighLight, QT_TRANSLATE_NOOP("MessageNames", "Feature HighLight")},
    {Sent::RotateFeature, QT_TRANSLATE_NOOP("MessageNames", "Rotate")},
    {Sent::MirrorFeature, QT_TRANSLATE_NOOP("MessageNames", "Mirror")},
    {Sent::RoutDimension, QT_TRANSLATE_NOOP("MessageNames", "Rout Dimension Editor")},
    {Sent::MoveTriplet, QT_TRANSLATE_NOOP("MessageNames", "Move Triplet(Angle)")},
    {Sent::RerouteTrace, QT_TRANSLATE_NOOP("MessageNames", "Reroute Trace(Fix Point)")},
    {Sent::SelectSymbol, QT_TRANSLATE_NOOP("MessageNames", "Select a Symbol on the Board")},
    {Sent::Eq, QT_TRANSLATE_NOOP("MessageNames", "EQ")},
    {Sent::Record, QT_TRANSLATE_NOOP("MessageNames", "Feature Record")},
    {Sent::AttributeMap, QT_TRANSLATE_NOOP("MessageNames", "Attributes")},
    {Sent::DirectionRecord, QT_TRANSLATE_NOOP("MessageNames", "Feature Record (Direction)")},
    {Sent::SelectFromEditor, QT_TRANSLATE_NOOP("MessageNames", "Select Attributes on the Board")},
};

/// "Add Feature Started" for "AddFeatureStarted".
QByteArray inWords(const QByteArray& name)
{
    QByteArray words = name.left(1);
    for (const char letter : name.mid(1)) {
        words += letter >= 'A' && letter <= 'Z' ? QByteArray(" ") + letter : QByteArray(1, letter);
    }
    return words;
}

QString textOf(const char* name, const char* text)
{
    return !name ? QString()
                 : QCoreApplication::translate("MessageNames",
                                               text ? QByteArray(text) : inWords(name));
}

}  // namespace

QString CodeTexts::sent(int code)
{
    return textOf(Sent::nameOf(code), sentTexts.value(code));
}

QString CodeTexts::accepted(int code)
{
    return textOf(Accepted::nameOf(code), acceptedTexts.value(code));
}
