#pragma once

// QML: ProgressView, made by a CVqQuickProgressWnd only. Properties title, label, fraction, indeterminate,
// secondsElapsed, secondsLeft, cancelling, announcement; function cancel(). ProgressPanel.qml shows it.

#include "IVqProgressView.h"
#include "arbor_quick_backend_export.h"
#include "system/CVqStringW.h"

#include <QObject>
#include <QTimer>
#include <QtQmlIntegration>

#include <functional>
#include <memory>

class CVqProgressEstimate;

/// What a progress window shows, as properties for QML.
///
/// The operations of the interface only store; the properties follow at most once a frame, however fast the
/// work tells of its steps: by a timer while the event loop runs, in ProcessEvents() while the work keeps the
/// thread. Before Start() nothing follows. Lives on the GUI thread.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickProgressView : public QObject, public IVqProgressView
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ProgressView)
    QML_UNCREATABLE("The view belongs to its progress window.")
    Q_PROPERTY(QString title READ Title NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString label READ Label NOTIFY labelChanged FINAL)
    Q_PROPERTY(double fraction READ Fraction NOTIFY fractionChanged FINAL)
    Q_PROPERTY(bool indeterminate READ IsIndeterminate NOTIFY fractionChanged FINAL)
    Q_PROPERTY(int secondsElapsed READ SecondsElapsed NOTIFY timesChanged FINAL)
    Q_PROPERTY(int secondsLeft READ SecondsLeft NOTIFY timesChanged FINAL)
    Q_PROPERTY(bool cancelling READ IsCancelling NOTIFY cancellingChanged FINAL)
    Q_PROPERTY(QString announcement READ Announcement NOTIFY announcementChanged FINAL)

public:
    /// The present time in milliseconds; only differences count.
    using Clock = std::function<double()>;

    /// The work begins now and has `range` steps; 0 for an unknown number.
    CVqQuickProgressView(Clock clock, unsigned int range);
    ~CVqQuickProgressView() override;

    void SetPos(unsigned int position) override;
    void SetLabel(const CVqStringW& label) override;
    void SetTitle(const CVqStringW& title) override;

    /// Emits eventsAsked(); then, from Start() on, brings the properties up to date and lets Qt process what
    /// is waiting. At most 30 times a second; what is called in between costs a look at the clock.
    void ProcessEvents() override;

    /// The properties follow from now on, and have the present values when this returns.
    void Start();

    /// Work of `range` steps begins anew: bar and estimate start from nothing. The time elapsed goes on.
    void StartRun(unsigned int range);

    /// The work has been asked to end.
    void SetCancelling(bool cancelling);

    QString Title() const { return m_title; }
    QString Label() const { return m_label; }

    /// 0 to 1. Never goes back within a run: a position that does is held.
    double Fraction() const { return m_fraction; }

    /// The number of steps is not known.
    bool IsIndeterminate() const { return m_range == 0; }

    int SecondsElapsed() const { return m_seconds_elapsed; }

    /// An estimate of its own that moves calmly, whatever the label says; -1 for none.
    int SecondsLeft() const { return m_seconds_left; }

    bool IsCancelling() const { return m_cancelling; }

    /// The label as screen readers hear it: a new one at most every five seconds.
    QString Announcement() const { return m_announcement; }

    /// Asks for the work to end. Nothing while it is cancelling.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void titleChanged();
    void labelChanged();
    void fractionChanged();
    void timesChanged();
    void cancellingChanged();
    void announcementChanged();

    void cancelRequested();
    void eventsAsked();

    /// The properties are up to date; at most once a frame.
    void published();

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT void Wake();
    ARBOR_QUICK_BACKEND_NO_EXPORT void Publish();
    ARBOR_QUICK_BACKEND_NO_EXPORT void PublishTexts(double now);
    ARBOR_QUICK_BACKEND_NO_EXPORT void PublishTimes(double now);

    // What the work told last.
    unsigned int m_range;
    unsigned int m_position = 0;
    CVqStringW m_told_label;
    CVqStringW m_told_title;

    // What shows.
    QString m_title;
    QString m_label;
    QString m_announcement;
    double m_fraction = 0;
    int m_seconds_elapsed = 0;
    int m_seconds_left = -1;
    bool m_cancelling = false;

    const Clock m_clock;
    const double m_begin;
    double m_next_events; // when ProcessEvents() does something again
    double m_next_announcement;
    bool m_started = false;
    bool m_awake = true; // the frame timer needs no start: it runs, or nothing follows yet
    QTimer m_frame;
    const std::unique_ptr<CVqProgressEstimate> m_estimate;
};
