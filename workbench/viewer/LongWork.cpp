#include "viewer/LongWork.h"

#include "shared/Named.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <exception>

namespace {

constexpr int unnoticed = 100;  // milliseconds that nobody notices
constexpr int patience = 500;   // after which the progress is shown
constexpr int steps = 1000;

class WorkThread : public QThread {
public:
    explicit WorkThread(const LongWork::Work& work) : m_work(work) {}

    void cancel() { m_isCancelled = true; }
    int step() const { return m_step; }
    /// Once it has finished: false if it was cancelled; throws what the work has thrown.
    bool result() const
    {
        if (m_error) {
            std::rethrow_exception(m_error);
        }
        return m_isDone;
    }

protected:
    void run() override
    {
        try {
            m_work(Pcb::Progress([this](double share) { takeProgress(share); }));
            m_isDone = true;
        } catch (const Pcb::Cancelled&) {
        } catch (...) {
            m_error = std::current_exception();
        }
    }

private:
    void takeProgress(double share)
    {
        m_step = static_cast<int>(share * steps);
        if (m_isCancelled) {
            throw Pcb::Cancelled();
        }
    }

    const LongWork::Work& m_work;
    std::atomic<bool> m_isCancelled{false};
    std::atomic<int> m_step{0};
    bool m_isDone = false;
    std::exception_ptr m_error;
};

/// Stays open until the work has ended, also when it is cancelled or closed: what is behind it has
/// to wait.
class ProgressDialog : public QProgressDialog {
public:
    using QProgressDialog::QProgressDialog;
    void reject() override {}
};

/// Returns when the thread has finished.
void showProgress(WorkThread& thread, QEventLoop& untilFinished, QWidget* parent,
                  const QString& text)
{
    ProgressDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("m_pProgressDialog"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setWindowTitle(QCoreApplication::translate("LongWork", "Please Wait"));
    auto* const bar = named(new QProgressBar(&dialog), "m_pProgressBar");
    bar->setRange(0, steps);
    dialog.setBar(bar);
    dialog.setLabel(named(new QLabel(text, &dialog), "m_pProgressLB"));
    // The dialog's own button: with another one, Escape would be the shortcut of both.
    dialog.setCancelButtonText(QCoreApplication::translate("LongWork", "Cancel"));
    named(dialog.findChild<QPushButton*>(), "m_pProgressCancelPB");
    // Qt connects them by their names, and ends that connection by their names only.
    QObject::disconnect(&dialog, SIGNAL(canceled()), &dialog, SLOT(cancel()));
    QObject::connect(&dialog, &QProgressDialog::canceled, [&] {
        thread.cancel();
        dialog.setLabelText(QCoreApplication::translate("LongWork", "Cancelling..."));
    });
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [&] { bar->setValue(thread.step()); });
    looks.start(unnoticed / 2);
    dialog.show();
    untilFinished.exec();
}

}  // namespace

bool LongWork::run(QWidget* parent, const QString& text, const Work& work)
{
    WorkThread thread(work);
    QEventLoop untilFinished;
    QObject::connect(&thread, &QThread::finished, &untilFinished, &QEventLoop::quit);
    thread.start();
    if (!thread.wait(unnoticed)) {
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
        QTimer::singleShot(patience - unnoticed, &untilFinished, &QEventLoop::quit);
        untilFinished.exec(QEventLoop::ExcludeUserInputEvents);
        if (!thread.wait(0)) {
            showProgress(thread, untilFinished, parent, text);
        }
        QGuiApplication::restoreOverrideCursor();
        thread.wait();
    }
    return thread.result();
}
