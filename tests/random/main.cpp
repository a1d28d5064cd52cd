// Random use of strip and dialog, endless if wanted; see docs/reliability.md.

#include "RandomUser.h"
#include "Shrinker.h"
#include "plugin/MessageCodes.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <glog/logging.h>

namespace {

constexpr int failed = 1;
constexpr int wrongUse = 2;
constexpr int oneRunMilliseconds = 10 * 60 * 1000;

using Numbers = QVector<quint32>;

/// The numbers that a seed generates.
Numbers numbersOf(quint32 seed, int count)
{
    QRandomGenerator generator(seed);
    Numbers numbers(count);
    generator.fillRange(numbers.data(), count);
    return numbers;
}

/// The code that the module sends under that name; nothing if there is none.
std::optional<int> codeNamed(const QString& name)
{
    for (const int code : MessageCodes::Sent::all()) {
        if (name == QLatin1String(MessageCodes::Sent::nameOf(code))) {
            return code;
        }
    }
    return {};
}

struct Failure {
    int step = 0;  ///< from 1; 0: none
    QString fault;
};

class Program {
public:
    explicit Program(const QCommandLineParser& options)
        : m_steps(options.value("steps").toInt()),
          m_tells(options.isSet("story")),
          m_forbidden(codeNamed(options.value("forbid")))
    {
    }

    int runSeeds(quint32 first, quint32 count)
    {
        for (quint32 seed = first; seed < first + count; ++seed) {
            const Failure failure = play(numbersOf(seed, m_steps));
            if (failure.step > 0) {
                m_out << "seed " << seed << ", step " << failure.step << ": " << failure.fault
                      << "\nAgain:    --seed " << seed << " --steps " << failure.step
                      << " --story\nShorter:  --seed " << seed << " --steps " << failure.step
                      << " --shrink\n";
                return failed;
            }
        }
        m_out << count << " seeds, " << m_steps << " steps each: " << m_messages << " messages of "
              << m_codes.size() << " kinds, " << m_boxes << " boxes, no fault\n";
        tellAgreement();
        return 0;
    }

    int replay(const QString& file)
    {
        QFile source(file);
        if (!source.open(QIODevice::ReadOnly)) {
            m_out << file << ": " << source.errorString() << '\n';
            return wrongUse;
        }
        Numbers numbers;
        for (const QString& word :
             QString::fromUtf8(source.readAll()).simplified().split(' ', Qt::SkipEmptyParts)) {
            bool isNumber = false;
            numbers.append(word.toUInt(&isNumber));
            if (!isNumber) {
                m_out << file << ": \"" << word << "\" is not a number\n";
                return wrongUse;
            }
        }
        const Failure failure = play(numbers);
        if (failure.step > 0) {
            m_out << "step " << failure.step << ": " << failure.fault << '\n';
        }
        return failure.step > 0 ? failed : 0;
    }

    /// Each try is a separate process: what it looks for may be a crash.
    int shrink(quint32 seed, const QString& target)
    {
        QTemporaryDir directory;
        const QString file = directory.filePath("numbers");
        QStringList arguments{"--numbers", file};
        if (m_forbidden) {
            arguments << "--forbid" << QString(MessageCodes::Sent::nameOf(*m_forbidden));
        }
        const auto fails = [&](const Numbers& numbers) {
            write(numbers, file);
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), arguments);
            return child.waitForFinished(oneRunMilliseconds) &&
                   (child.exitStatus() == QProcess::CrashExit || child.exitCode() == failed);
        };
        Numbers numbers = numbersOf(seed, m_steps);
        if (!fails(numbers)) {
            m_out << "seed " << seed << " does not fail within " << m_steps << " steps\n";
            return wrongUse;
        }
        numbers = shrunk(numbers, fails);
        write(numbers, target);
        m_out << numbers.size() << " steps are left of " << m_steps << "; to replay: --numbers "
              << target << " --story\n";
        return failed;
    }

private:
    static void write(const Numbers& numbers, const QString& file)
    {
        QFile target(file);
        if (!target.open(QIODevice::WriteOnly)) {
            qFatal("%s: %s", qPrintable(file), qPrintable(target.errorString()));
        }
        for (const quint32 number : numbers) {
            target.write(QByteArray::number(number) + '\n');
        }
    }

    Failure play(const Numbers& numbers)
    {
        RandomUser user(m_forbidden);
        for (int step = 0; step < numbers.size(); ++step) {
            const QString fault = user.perform(numbers[step]);
            if (m_tells) {
                m_out << step + 1 << ": " << user.story() << '\n';
                m_out.flush();
            }
            if (!fault.isEmpty()) {
                return {step + 1, fault};
            }
        }
        for (auto sent = user.sent().begin(); sent != user.sent().end(); ++sent) {
            m_codes.insert(sent.key());
            m_messages += sent.value();
        }
        m_boxes += user.boxCount();
        for (auto field = user.looks().begin(); field != user.looks().end(); ++field) {
            RandomUser::Looks& looks = m_looks[field.key()];
            looks.held += field->held;
            looks.unfinished += field->unfinished;
            looks.excepted += field->excepted;
        }
        m_lookedSteps += user.steps();
        m_wholeSteps += user.wholeSteps();
        return {};
    }

    static QString share(qint64 part, qint64 whole)
    {
        return QString::number(whole > 0 ? 100.0 * double(part) / double(whole) : 0.0, 'f', 2);
    }

    /// In what share of the steps the record was compared with the fields.
    void tellAgreement()
    {
        qint64 held = 0;
        for (const RandomUser::Looks& looks : qAsConst(m_looks)) {
            held += looks.held;
        }
        m_out << "fields and record agree after " << m_lookedSteps
              << " steps; looked at: " << share(held, m_lookedSteps * m_looks.size())
              << " % of all fields, all at once in " << share(m_wholeSteps, m_lookedSteps)
              << " % of the steps\nfield                  looked at  unfinished  excepted (%)\n";
        for (auto field = m_looks.begin(); field != m_looks.end(); ++field) {
            m_out << field.key().leftJustified(24)
                  << share(field->held, m_lookedSteps).leftJustified(11)
                  << share(field->unfinished, m_lookedSteps).leftJustified(12)
                  << share(field->excepted, m_lookedSteps) << '\n';
        }
    }

    QTextStream m_out{stdout};
    int m_steps;
    bool m_tells;
    std::optional<int> m_forbidden;
    qint64 m_messages = 0;
    qint64 m_boxes = 0;
    QSet<int> m_codes;
    QMap<QString, RandomUser::Looks> m_looks;
    qint64 m_lookedSteps = 0;
    qint64 m_wholeSteps = 0;
};

/// What Qt itself complains about is a fault; what the windowless platform cannot do is not.
void hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool isComplaint = type != QtDebugMsg && type != QtInfoMsg;
    if (isComplaint && !text.startsWith(QLatin1String("This plugin does not support"))) {
        RandomUser::complaint() = QString(context.category) + ": " + text;
    }
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    for (google::LogSeverity severity = 0; severity < google::NUM_SEVERITIES; ++severity) {
        google::SetLogDestination(severity, "");
    }
    google::InitGoogleLogging(argv[0]);

    QCommandLineParser options;
    options.setApplicationDescription("Uses tool strip and dialog at random.");
    options.addHelpOption();
    options.addOptions({
        {"seed", "The first seed (1).", "number", "1"},
        {"seeds", "How many seeds (1).", "number", "1"},
        {"steps", "How many steps for each seed (400).", "number", "400"},
        {"story", "Print each step."},
        {"numbers", "Play these numbers instead of a seed's.", "file"},
        {"shrink", "Find fewer steps that fail."},
        {"to", "Where to write the fewer numbers (random.numbers).", "file", "random.numbers"},
        {"forbid", "Count this code as a fault, to test the program itself.", "name"},
    });
    options.process(application);
    if (options.isSet("forbid") && !codeNamed(options.value("forbid"))) {
        QTextStream(stderr) << "no code is named \"" << options.value("forbid") << "\"\n";
        return wrongUse;
    }
    qInstallMessageHandler(hear);

    Program program(options);
    const quint32 seed = options.value("seed").toUInt();
    if (options.isSet("numbers")) {
        return program.replay(options.value("numbers"));
    }
    return options.isSet("shrink") ? program.shrink(seed, options.value("to"))
                                   : program.runSeeds(seed, options.value("seeds").toUInt());
}
