#include "PairRun.h"

#include "Report.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace {

constexpr int longestStep = 60000;  // milliseconds

}  // namespace

void PairRun::readLine(const QByteArray& line)
{
    // What the host's own libraries print is skipped.
    const auto judgement = Judgement::fromLine(QString::fromUtf8(line).trimmed());
    if (!judgement) {
        return;
    }
    if (judgement->kind == Judgement::Kind::Step) {
        m_step = judgement->done;
        m_isFinished = m_step == lastStep;
    }
    m_take(*judgement);
}

void PairRun::run()
{
    Report report(m_take);
    const QString program =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("host_check_pair"));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, m_options);
    if (!process.waitForStarted()) {
        report.judge(Row::PairStarts, program, false, QStringLiteral("a program"),
                     process.errorString());
        return;
    }
    bool isAnswering = true;
    while (isAnswering) {
        isAnswering = process.canReadLine() || process.waitForReadyRead(longestStep);
        while (process.canReadLine()) {
            readLine(process.readLine());
        }
    }
    const bool isHanging =
        process.state() != QProcess::NotRunning && !process.waitForFinished(1000);
    if (isHanging) {
        process.kill();
        process.waitForFinished();
    }
    const bool isCrashed = process.exitStatus() == QProcess::CrashExit;
    const bool isGood = m_isFinished && !isHanging && !isCrashed && process.exitCode() == 0;
    report.judge(Row::PairSurvives, m_step, isGood, QStringLiteral("it goes on"),
                 isHanging   ? QStringLiteral("it hangs")
                 : isCrashed ? QStringLiteral("it crashes")
                             : QStringLiteral("it ends, with status %1").arg(process.exitCode()));
}
