#pragma once

#include <UiApiStandIn.h>

#include <QString>

#include <vector>

class QCommandLineParser;

/// A language by its code; its own name for itself is never translated.
struct LanguageChoice {
    const char* code;
    const char* text;
};
const std::vector<LanguageChoice>& languageChoices();

/// What the command line asks for.
struct Options {
    QString moduleDirectory;
    QString file;  ///< a board or a job; empty: none
    QString jobFile;
    bool isJobGiven = false;
    QString traceFile;       ///< empty: no trace
    QString screenshotFile;  ///< empty: no picture
    QString sessionFile;     ///< empty: nothing is played
    QString recordFile;      ///< empty: nothing is recorded
    QString boardFile;       ///< empty: the canvas starts with its own
    QString exportFile;      ///< empty: nothing is exported
    QString settingsFile;    ///< empty: the user's, or none in unattended runs
    bool recovery = false;   ///< of changed boards in unattended runs as well
    bool exit = false;       ///< leave after playing, or after the first paint
    bool log = false;        ///< debug lines go to the terminal
    CanvasHost::DisplayUnit unit = CanvasHost::DisplayUnit::Mil;
    bool isUnitGiven = false;
    QString language = QStringLiteral("en");
    bool isLanguageGiven = false;
    bool isDark = false;
    int fontSize = 0;     ///< in points; 0: as the desktop has it
    QString answer = {};  ///< help or version, to be shown; empty when neither is asked for

    /// The options of the program, read before there is an application object. A wrong one is
    /// thrown as a CanvasHost::FileError of the program; with --help or --version the program ends
    /// here.
    static Options ofProgram(int argc, char* argv[]);
    /// The same from `arguments` (the program's name first). The options of Qt itself ("-platform
    /// offscreen") are skipped.
    static Options parse(const QStringList& arguments);
    /// What the command line leaves open is as the user chose it last; needs the application
    /// object.
    void recall();

    /// The names under which the settings keep what the user chose.
    static const QString unitChoice;
    static const QString languageChoice;

private:
    static QStringList withoutQts(const QStringList& arguments);
    void take(const QCommandLineParser& parser);
};
