#pragma once

#include "gallery/resize/ResizeRun.h"

#include <QObject>
#include <QStringList>
#include <QThread>

#include <memory>

class CVqQuickProgressWnd;

namespace Gallery {

/// Resizes folders of images on a thread of its own, behind a progress window, and keeps what became of the
/// last one.
class BatchResize : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool running READ IsRunning NOTIFY Changed)
    Q_PROPERTY(QString outcome READ Outcome NOTIFY Changed)
    Q_PROPERTY(bool failed READ HasFailed NOTIFY Changed)
    Q_PROPERTY(QStringList failedNames READ FailedNames NOTIFY Changed)
    Q_PROPERTY(QStringList reasons READ Reasons NOTIFY Changed)

public:
    explicit BatchResize(QObject* parent = nullptr);

    /// Cancels, and waits for the image in hand.
    ~BatchResize() override;

    bool IsRunning() const { return m_thread != nullptr; }

    /// One or two sentences on the last run, or on why there was none; empty before the first.
    const QString& Outcome() const { return m_outcome; }

    /// The last run could not begin, or an image failed.
    bool HasFailed() const { return m_failed; }

    /// The images that failed, and for each of them the reason.
    const QStringList& FailedNames() const { return m_failed_names; }
    const QStringList& Reasons() const { return m_reasons; }

    /// Begins a run; nothing while one runs. `width` as people write it.
    Q_INVOKABLE void start(const QString& in, const QString& out, const QString& width);

    /// What the progress window's button does. The run ends after the image in hand.
    void Cancel();

Q_SIGNALS:
    void Changed();

private:
    void run(const ResizePlan& plan);
    void finish();
    void tell(const QString& outcome, const ResizeReport& report, bool failed);

    std::unique_ptr<CVqQuickProgressWnd> m_progress;
    std::unique_ptr<QThread> m_thread; // ends before its progress does
    ResizeReport m_report;             // the thread's until it ends
    QString m_outcome;
    bool m_failed = false;
    QStringList m_failed_names;
    QStringList m_reasons;
};

}
