#include "Steps.h"

#include "DialogFixture.h"

Steps operator+(Steps steps, const Step& next)
{
    steps.append(next);
    return steps;
}

Click::Click(const QString& button)
    : Step{"click " + button, button, [=](const DialogFixture& fixture) { fixture.click(button); }}
{
}

Choose::Choose(const QString& combo, const QString& item)
    : Step{QStringLiteral("choose %2 in %1").arg(combo, item), combo,
           [=](const DialogFixture& fixture) { fixture.choose(combo, item); }}
{
}

ChooseNothing::ChooseNothing(const QString& combo)
    : Step{"choose nothing in " + combo, combo, [=](const DialogFixture& fixture) {
               fixture.find<QComboBox>(combo).setCurrentIndex(-1);
           }}
{
}

Type::Type(const QString& field, const QString& text)
    : Step{QStringLiteral("type \"%2\" in %1").arg(field, text), field,
           [=](const DialogFixture& fixture) {
               fixture.type(field, text);
               fixture.press(Qt::Key_Return);
           }}
{
}

SetText::SetText(const QString& field, const QString& text)
    : Step{QStringLiteral("set \"%2\" in %1").arg(field, text), field,
           [=](const DialogFixture& fixture) { fixture.find<QLineEdit>(field).setText(text); }}
{
}

Enter::Enter(const QString& field, const QString& text)
    : Step{QStringLiteral("enter \"%2\" in %1").arg(field, text), field,
           [=](const DialogFixture& fixture) { fixture.enter(field, text); }}
{
}
