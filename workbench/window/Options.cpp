#include "window/Options.h"

#include <FileError.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString languageCodes()
{
    QStringList codes;
    for (const LanguageChoice& choice : languageChoices()) {
        codes.append(QLatin1String(choice.code));
    }
    return codes.join(QStringLiteral(" or "));
}

const QCommandLineOption modulesOption(QStringLiteral("modules"),
                                       QStringLiteral("Load the modules from <dir>."),
                                       QStringLiteral("dir"));
const QCommandLineOption jobOption(
    QStringLiteral("job"), QStringLiteral("Read the jobs from <file> instead of the samples."),
    QStringLiteral("file"));
const QCommandLineOption traceOption(
    QStringLiteral("trace"),
    QStringLiteral("Write every message to <file>, one JSON object per line."),
    QStringLiteral("file"));
const QCommandLineOption screenshotOption(
    QStringLiteral("screenshot"),
    QStringLiteral("Save a picture of the window as <file>, after playing or the first paint."),
    QStringLiteral("file"));
const QCommandLineOption playOption(QStringLiteral("play"),
                                    QStringLiteral("Play the session <file>."),
                                    QStringLiteral("file"));
const QCommandLineOption recordOption(
    QStringLiteral("record"),
    QStringLiteral("Record mouse and keyboard to <file>, as a session to play."),
    QStringLiteral("file"));
const QCommandLineOption boardOption(QStringLiteral("board"),
                                     QStringLiteral("Show the board <file> (JSON) on the canvas."),
                                     QStringLiteral("file"));
const QCommandLineOption exportOption(
    QStringLiteral("export"),
    QStringLiteral("Write the board to <file>, after playing or the first paint: .json, .gbr "
                   "(Gerber), .png or .svg."),
    QStringLiteral("file"));
const QCommandLineOption settingsOption(
    QStringLiteral("settings"),
    QStringLiteral("Keep the settings in <file>. Otherwise sessions, pictures and other "
                   "unattended runs start without settings and keep none."),
    QStringLiteral("file"));
const QCommandLineOption exitOption(
    QStringLiteral("exit"), QStringLiteral("Exit after playing, or after the first paint."));
const QCommandLineOption unitOption(QStringLiteral("unit"),
                                    QStringLiteral("Start in <unit>: mil, inch, um or mm."),
                                    QStringLiteral("unit"), QStringLiteral("mil"));
const QCommandLineOption languageOption(
    QStringLiteral("language"), QStringLiteral("Start in <language>: %1.").arg(languageCodes()),
    QStringLiteral("language"), QStringLiteral("en"));
const QCommandLineOption darkOption(QStringLiteral("dark"),
                                    QStringLiteral("Start with a dark palette."));
const QCommandLineOption fontSizeOption(QStringLiteral("font-size"),
                                        QStringLiteral("Start with a font of <points> (6 to 48)."),
                                        QStringLiteral("points"));

const QCommandLineOption logOption(QStringLiteral("log"),
                                   QStringLiteral("Show the debug lines of the modules as well."));
const QCommandLineOption versionOption({QStringLiteral("v"), QStringLiteral("version")},
                                       QStringLiteral("Show the version."));
const QCommandLineOption helpOption({QStringLiteral("h"), QStringLiteral("help")},
                                    QStringLiteral("Show this help."));

/// The options that QApplication itself takes, and whether a value follows.
const QHash<QString, bool> qtOptions{
    {QStringLiteral("-display"), true},       {QStringLiteral("-geometry"), true},
    {QStringLiteral("-name"), true},          {QStringLiteral("-platform"), true},
    {QStringLiteral("-platformtheme"), true}, {QStringLiteral("-qwindowgeometry"), true},
    {QStringLiteral("-qwindowtitle"), true},  {QStringLiteral("-session"), true},
    {QStringLiteral("-style"), true},         {QStringLiteral("-stylesheet"), true},
    {QStringLiteral("-title"), true},         {QStringLiteral("-platformpluginpath"), true},
    {QStringLiteral("-reverse"), false},      {QStringLiteral("-sync"), false},
};

QString besideProgram(const QString& path)
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(path));
}

QString defaultModuleDirectory()
{
    const QString built = besideProgram(QStringLiteral("../modules"));
    return QDir(built).exists() ? built
                                : besideProgram(QStringLiteral("../" WORKBENCH_MODULE_DIRECTORY));
}

[[noreturn]] void refuse(const QString& reason)
{
    throw CanvasHost::FileError{QStringLiteral("workbench"), 0,
                                reason + QStringLiteral("; see --help")};
}

/// The choice that the option names.
template <typename Choice>
const Choice& choose(const QCommandLineParser& parser, const QCommandLineOption& option,
                     const std::vector<Choice>& choices, const char* Choice::*key)
{
    const QString name = parser.value(option);
    const auto found = std::find_if(choices.begin(), choices.end(), [&](const Choice& choice) {
        return name == QLatin1String(choice.*key);
    });
    if (found != choices.end()) {
        return *found;
    }
    QStringList names;
    for (const Choice& choice : choices) {
        names.append(QLatin1String(choice.*key));
    }
    refuse(QStringLiteral("unknown %1 \"%2\"; choose from %3")
               .arg(option.names().constFirst(), name, names.join(QStringLiteral(", "))));
}

int fontSize(const QCommandLineParser& parser)
{
    constexpr int smallest = 6;
    constexpr int largest = 48;
    if (!parser.isSet(fontSizeOption)) {
        return 0;
    }
    const int size = parser.value(fontSizeOption).toInt();
    if (size < smallest || size > largest) {
        refuse(QStringLiteral("\"%1\" is not a font size (%2 to %3)")
                   .arg(parser.value(fontSizeOption))
                   .arg(smallest)
                   .arg(largest));
    }
    return size;
}

}  // namespace

const std::vector<LanguageChoice>& languageChoices()
{
    static const std::vector<LanguageChoice> choices{{"en", "English"},
                                                     {"zh_CN", "\u7b80\u4f53\u4e2d\u6587"}};
    return choices;
}

QStringList Options::withoutQts(const QStringList& arguments)
{
    QStringList own;
    for (int i = 0; i < arguments.size(); ++i) {
        const auto option = qtOptions.find(arguments[i].section(QLatin1Char('='), 0, 0));
        if (option == qtOptions.end()) {
            own.append(arguments[i]);
        } else if (*option && !arguments[i].contains(QLatin1Char('='))) {
            ++i;
        }
    }
    return own;
}

Options Options::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("A small host application for the Canvas Tool Strip."));
    parser.addOptions({modulesOption, jobOption, traceOption, screenshotOption, playOption,
                       recordOption, boardOption, exportOption, settingsOption, exitOption,
                       unitOption, languageOption, darkOption, fontSizeOption, logOption,
                       versionOption, helpOption});
    Options options;
    if (!parser.parse(withoutQts(arguments))) {
        // Qt ends some of its texts with a full stop.
        refuse(parser.errorText().remove(QRegularExpression(QStringLiteral("\\.$"))));
    }
    if (parser.isSet(helpOption)) {
        options.answer = parser.helpText();
        return options;
    }
    if (parser.isSet(versionOption)) {
        options.answer = QStringLiteral("workbench " WORKBENCH_VERSION "\n");
        return options;
    }
    if (!parser.positionalArguments().isEmpty()) {
        refuse(QStringLiteral("unexpected argument \"%1\"")
                   .arg(parser.positionalArguments().constFirst()));
    }
    const auto valueOr = [&](const QCommandLineOption& option, const QString& other) {
        return parser.isSet(option) ? parser.value(option) : other;
    };
    options.moduleDirectory = valueOr(modulesOption, defaultModuleDirectory());
    options.jobFile = valueOr(
        jobOption, besideProgram(QStringLiteral("../" WORKBENCH_SAMPLE_DIRECTORY "/board.json")));
    options.traceFile = parser.value(traceOption);
    options.screenshotFile = parser.value(screenshotOption);
    options.sessionFile = parser.value(playOption);
    options.recordFile = parser.value(recordOption);
    options.boardFile = parser.value(boardOption);
    options.exportFile = parser.value(exportOption);
    options.exit = parser.isSet(exitOption);
    options.settingsFile = parser.value(settingsOption);
    options.log = parser.isSet(logOption);
    options.isDark = parser.isSet(darkOption);
    options.fontSize = ::fontSize(parser);
    options.language = QLatin1String(
        choose(parser, languageOption, languageChoices(), &LanguageChoice::code).code);
    options.unit =
        choose(parser, unitOption, CanvasHost::lengthUnits(), &CanvasHost::LengthUnit::name).unit;
    return options;
}

Options Options::ofProgram(int argc, char* argv[])
{
    // Before the program has a screen: wrong options are reported without one as well.
    const QCoreApplication program(argc, argv);
    Options options = parse(QCoreApplication::arguments());
    if (!options.answer.isEmpty()) {
        fputs(qPrintable(options.answer), stdout);
        ::exit(EXIT_SUCCESS);
    }
    return options;
}
