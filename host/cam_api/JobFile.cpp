#include "JobFile.h"

#include <FileKind.h>
#include <Files.h>
#include <Json.h>

#include <QCoreApplication>

namespace CanvasHost {
namespace {

constexpr int supportedFormat = 1;

const QStringList kinds = {QStringLiteral("flag"), QStringLiteral("integer"),
                           QStringLiteral("decimal"), QStringLiteral("text"),
                           QStringLiteral("choice")};

std::vector<std::string> namesOf(const JsonNode& list)
{
    std::vector<std::string> read;
    for (const QString& name : list.names()) {
        read.push_back(name.toStdString());
    }
    return read;
}

std::vector<std::string> readChoices(const JsonNode& attribute, AttributeKind kind)
{
    const QString key = QStringLiteral("choices");
    const bool isChoice = kind == AttributeKind::Choice;
    if (!isChoice && !attribute.has(key)) {
        return {};
    }
    const JsonNode node = attribute.member(key);
    std::vector<std::string> choices = namesOf(node);
    if (choices.empty() == isChoice) {
        node.fail(isChoice ? QCoreApplication::translate("FileErrors", "must not be empty")
                           : QCoreApplication::translate("FileErrors",
                                                         "belongs to the kind \"choice\" only"));
    }
    return choices;
}

/// Reads the objects of a list, which differ by their "name".
template <typename Read>
auto readNamed(const JsonNode& list, const QStringList& keys, Read read)
{
    std::vector<decltype(read(list))> all;
    QStringList names;
    for (const JsonNode& entry : list.entries()) {
        entry.requireObject(keys);
        const JsonNode name = entry.member(QStringLiteral("name"));
        name.requireNew(names);
        names.append(name.name());
        all.push_back(read(entry));
        all.back().name = name.name().toStdString();
    }
    return all;
}

AttributeDefinition readAttribute(const JsonNode& node)
{
    AttributeDefinition attribute;
    attribute.kind = static_cast<AttributeKind>(node.member(QStringLiteral("kind")).choice(kinds));
    attribute.choices = readChoices(node, attribute.kind);
    return attribute;
}

Job readJob(const JsonNode& node)
{
    Job job;
    job.steps = namesOf(node.member(QStringLiteral("steps")));
    job.fonts = namesOf(node.member(QStringLiteral("fonts")));
    job.specialSymbols = namesOf(node.member(QStringLiteral("specialSymbols")));
    job.userSymbols = namesOf(node.member(QStringLiteral("userSymbols")));
    job.specialTexts = namesOf(node.member(QStringLiteral("specialTexts")));
    job.attributes = readNamed(
        node.member(QStringLiteral("attributes")),
        {QStringLiteral("name"), QStringLiteral("kind"), QStringLiteral("choices")}, readAttribute);
    return job;
}

std::vector<Job> jobsFromJson(const QByteArray& text, const QString& file)
{
    const JsonDocument document(text, file);
    const JsonNode root = document.root();
    root.requireObject({QStringLiteral("format"), QStringLiteral("jobs")});
    root.member(QStringLiteral("format")).integer(supportedFormat, supportedFormat);
    return readNamed(root.member(QStringLiteral("jobs")),
                     {QStringLiteral("name"), QStringLiteral("steps"), QStringLiteral("fonts"),
                      QStringLiteral("specialSymbols"), QStringLiteral("userSymbols"),
                      QStringLiteral("specialTexts"), QStringLiteral("attributes")},
                     readJob);
}

}  // namespace

std::vector<Job> readJobFile(const QString& file)
{
    const QByteArray text = readWhole(file);
    return readAs(FileKind::Job, text, [&] { return jobsFromJson(text, file); });
}

}  // namespace CanvasHost
