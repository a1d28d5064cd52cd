#include "shared/CodeTexts.h"

#include "plugin/MessageCodes.h"

#include <QCoreApplication>
#include <QHash>

namespace Sent = MessageCodes::Sent;
namespace Accepted = MessageCodes::Accepted;

namespace {

/// Texts that differ from the name of the code in words. For those that do not, the build makes a
/// list for the translations, see translations/CMakeLists.txt.
using Texts = QHash<int, const char*>;

const Texts acceptedTexts{
    {Accepted::JobOpened, QT_TRANSLATE_NOOP("MessageNames", "Job and step opened")},
    {Accepted::ReleaseAll, QT_TRANSLATE_NOOP("MessageNames", "Release all tools")},
    {Accepted::AddFeatureActive, QT_TRANSLATE_NOOP("MessageNames", "Add feature is active")},
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
