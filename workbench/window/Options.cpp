#include "window/Options.h"

#include "shared/Settings.h"

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

/// An option, in the order of the help, and where its value goes.
struct Row {
    const char* name;
    const char* text;
    const char* value = nullptr;  ///< the name of its value; null: it takes none
    QString Options::*word = nullptr;
    bool Options::*flag = nullptr;
};
constexpr Row rows[] = {
    {"modules", "Load the modules from <dir>.", "dir", &Options::moduleDirectory},
    {"job", "Read the jobs from <file> instead of the samples.", "file", &Options::jobFile},
    {"trace", "Write every message to <file>, one JSON object per line.", "file",
     &Options::traceFile},
    {"screenshot", "Save a picture of the window as <file>, after playing or the first paint.",
     "file", &Options::screenshotFile},
    {"play", "Play the session <file>.", "file", &Options::sessionFile},
    {"record", "Record mouse and keyboard to <file>, as a session to play.", "file",
     &Options::recordFile},
    {"board", "Show the board <file> (JSON) on the canvas.", "file", &Options::boardFile},
    {"export",
     "Write the board to <file>, after playing or the first paint: .json, .gbr (Gerber), .png or "
     ".svg.",
     "file", &Options::exportFile},
    {"settings",
     "Keep the settings in <file>. Otherwise sessions, pictures and other unattended runs start "
     "without settings and keep none.",
     "file", &Options::settingsFile},
    {"recovery",
     "Keep changed boards for recovery after a crash, and offer those that a crash has left, in "
     "sessions and other unattended runs as well. Needs --settings there.",
     nullptr, nullptr, &Options::recovery},
    {"exit", "Exit after playing, or after the first paint.", nullptr, nullptr, &Options::exit},
    {"unit", "Start in <unit>: mil, inch, um or mm.", "unit"},
    {"language", "Start in <language>: %1.", "language", &Options::language},
    {"dark", "Start with a dark palette.", nullptr, nullptr, &Options::isDark},
    {"font-size", "Start with a font of <points> (6 to 48).", "points"},
    {"log", "Show the debug lines of the modules as well.", nullptr, nullptr, &Options::log},
};

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

/// The choice that is called `name`.
template <typename Choice>
const Choice& choose(const char* option, const QString& name, const std::vector<Choice>& choices,
                     const char* Choice::*key)
{
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
               .arg(QLatin1String(option), name, names.join(QStringLiteral(", "))));
}

int fontSize(const QString& points)
{
    constexpr int smallest = 6;
    constexpr int largest = 48;
    const int size = points.toInt();
    if (size < smallest || size > largest) {
        refuse(QStringLiteral("\"%1\" is not a font size (%2 to %3)")
                   .arg(points)
                   .arg(smallest)
                   .arg(largest));
    }
    return size;
}

}  // namespace

// They are called as the options are.
const QString Options::unitChoice = QStringLiteral("unit");
const QString Options::languageChoice = QStringLiteral("language");

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
    for (const Row& row : rows) {
        QString text = QLatin1String(row.text);
        text.replace(QStringLiteral("%1"), languageCodes());
        parser.addOption({QLatin1String(row.name), text,
                          row.value ? QString::fromLatin1(row.value) : QString()});
    }
    parser.addOption(
        {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Show the version.")});
    parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
    parser.addPositionalArgument(QStringLiteral("file"),
                                 QStringLiteral("A board or a job to open, whichever it is."),
                                 QStringLiteral("[file]"));
    Options options;
    if (!parser.parse(withoutQts(arguments))) {
        // Qt ends some of its texts with a full stop.
        refuse(parser.errorText().remove(QRegularExpression(QStringLiteral("\\.$"))));
    }
    if (parser.isSet(QStringLiteral("help"))) {
        options.answer = parser.helpText();
    } else if (parser.isSet(QStringLiteral("version"))) {
        options.answer = QStringLiteral("workbench " WORKBENCH_VERSION "\n");
    } else if (parser.positionalArguments().size() > 1) {
        refuse(QStringLiteral("unexpected argument \"%1\"").arg(parser.positionalArguments()[1]));
    } else {
        options.take(parser);
    }
    return options;
}

void Options::take(const QCommandLineParser& parser)
{
    moduleDirectory = defaultModuleDirectory();
    jobFile = besideProgram(QStringLiteral("../" WORKBENCH_SAMPLE_DIRECTORY "/board.json"));
    for (const Row& row : rows) {
        const bool isSet = parser.isSet(QLatin1String(row.name));
        if (isSet && row.word) {
            this->*row.word = parser.value(QLatin1String(row.name));
        } else if (isSet && row.flag) {
            this->*row.flag = true;
        }
    }
    isJobGiven = parser.isSet(QStringLiteral("job"));
    file = parser.positionalArguments().value(0);
    choose("language", language, languageChoices(), &LanguageChoice::code);
    isLanguageGiven = parser.isSet(languageChoice);
    isUnitGiven = parser.isSet(unitChoice);
    if (isUnitGiven) {
        unit = choose("unit", parser.value(unitChoice), CanvasHost::lengthUnits(),
                      &CanvasHost::LengthUnit::name)
                   .unit;
    }
    if (parser.isSet(QStringLiteral("font-size"))) {
        fontSize = ::fontSize(parser.value(QStringLiteral("font-size")));
    }
}

void Options::recall()
{
    const QString unitName = Settings::choice(unitChoice).toString();
    const QString code = Settings::choice(languageChoice).toString();
    for (const CanvasHost::LengthUnit& known : CanvasHost::lengthUnits()) {
        if (!isUnitGiven && unitName == QLatin1String(known.name)) {
            unit = known.unit;
        }
    }
    for (const LanguageChoice& known : languageChoices()) {
        if (!isLanguageGiven && code == QLatin1String(known.code)) {
            language = code;
        }
    }
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
