#pragma once

#include "IVqProgressView.h"
#include "arbor_qml_support_export.h"
#include "system/CVqStringW.h"
#include "system/VqTypes.h"

#include <QObject>

namespace QmlSupport {

/// The logic of a progress window that appears only after a delay: position, range, title and flags, the
/// label with the percentage and an estimate of the time left, and whether the user has cancelled.
///
/// A concrete class derives from this one, supplies the clock, and makes the view that displays. There is no
/// timer here: the delay is stored for the concrete class. Without a view nothing is shown, and all else
/// works.
///
/// Flags are a sum of:
///
/// | Flag | Meaning |
/// |---|---|
/// | 1 | the label shows the time left, from position 2 on |
/// | 2 | the title shows position and range |
/// | 4 | the label shows the percentage |
/// | 8 | a label of the caller's own is set |
/// | 16 | CheckCanceled() lets no events through |
/// | 32 | the percentage has two decimals |
///
/// There is no lock: all calls come on one thread.
class ARBOR_QML_SUPPORT_EXPORT CVqDelayedProgressWndBase : public QObject
{
    Q_OBJECT

public:
    /// `title` is copied; null reads as the empty text. `range` counts steps; one of 0 shows as 0 percent.
    /// `delay` is in milliseconds. The estimate of the time left does not count from here: call
    /// ResetRemaining() when the work begins.
    CVqDelayedProgressWndBase(const vq_wchar* title, unsigned int range, unsigned int delay,
                              bool suppressOtherWnds, int flags);

    /// Deletes the view.
    ~CVqDelayedProgressWndBase() override;

    /// The native window; null where there is none.
    virtual __vq_hwnd* GetHandle();

    /// Stores a copy. The view gets it with the next position, and with flag 2 only.
    virtual void setTitle(const vq_wchar* title);

    /// Stores it and lets the estimate count from now.
    virtual void setRange(unsigned int range);

    /// As setRange(); milliseconds.
    virtual void setDelay(unsigned int delay);

    /// Stored for the concrete class.
    virtual void setSuppressOtherWnds(bool suppress);

    virtual void setFlags(int flags);

    /// The flags as setFlags() takes them, but with 16 turned round: the result holds it when CheckCanceled()
    /// does let events through.
    virtual int getFlags();

protected:
    /// The time in milliseconds since any fixed moment; only differences count. Read modulo 2^32 without its
    /// fraction; what is no finite number reads as 0.
    virtual double currentTimeMs() = 0;

    /// Called on every change of position or label, before the view is told: the place to make the view once
    /// the delay is over.
    virtual void positionChanged() = 0;

public:
    /// Sets the steps done. Not held against the range; beyond it the estimate of the time left wraps.
    void SetPos(unsigned int position);

    /// As SetPos(), with `delta` added to the position.
    void SetPosRelative(unsigned int delta);

    /// As SetPos(), with 1 added to the position.
    void IncrementPos();

    /// Shows `label` and sets flag 8. With one of the flags 1, 2 and 4 the next position replaces the text.
    void SetLabel(const CVqStringW& label);

    /// The estimate counts from now.
    void ResetRemaining();

    /// Lets the view process events, unless flag 16 is set, and tells whether the user has cancelled.
    bool CheckCanceled();

    /// Marks the work as cancelled and calls nobody.
    void CancelProgress();

    /// Marks the work of `window` as cancelled, and calls its cancel callback, then its abort callback.
    /// Always 0. For interfaces that take a function and a pointer: `window` was a CVqDelayedProgressWndBase*
    /// before it became untyped, and is not null.
    static int CancelProgress(void* window);

    /// Called with `data`, which is not owned, by the static CancelProgress(); null for none.
    void SetCustomCancelCallback(void (*callback)(void*), void* data);
    void SetCustomAbortCallback(void (*callback)(bool*), bool* data);

    /// Always true, whether or not there is a window.
    static bool IsAnyProgressVisible();

Q_SIGNALS:
    /// The delay is over. Sent by concrete classes.
    void delayElapsed();

protected:
    /// Gives the view the label and, with flag 2, the title for `pos`. The percentage is that of the stored
    /// position. The estimate is elapsed milliseconds times steps left over `pos` in 32 bits, so it wraps
    /// where the product is larger; a view that shows long work makes one of its own.
    void UpdateLabel(unsigned int pos);

    IVqProgressView* m_pView = nullptr; ///< Owned. Set by the concrete class; null until there is a window.
    bool m_bCanceled = false;
    unsigned int m_uiRange;
    unsigned int m_uiPos = 0;
    CVqStringW m_strTitle;
    unsigned int m_uiDelay; ///< ms
    bool m_bSuppressOtherWnds;
    bool m_bShowRemaining = false;
    bool m_bShowCounter = false;
    bool m_bShowPercent = false;
    bool m_bPercentDecimals = false;
    bool m_bLabelSet = false;
    bool m_bProcessEvents = false;
    int m_iStartTime = 0; ///< ms, the low 32 bits of the clock
    void (*m_pCancelCallback)(void*) = nullptr;
    void (*m_pAbortCallback)(bool*) = nullptr;
    bool* m_pAbortData = nullptr;
    void* m_pCancelData = nullptr;

    static bool m_bProgressVisible; ///< True from a constructor to the next destructor.
};

}
