#pragma once

// QML: ToolbarDrag { setup: theSetup }, used by ToolbarDragLayer. Properties `areas`, `lifted`, `control`,
// `command`, `place`, `mark`, `removes`; functions lift(), liftCommand(), moveTo(), drop(), cancel(),
// toolbarOf(), picturedItem().

#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QtQmlIntegration>

/// Drags one thing over the bars of a session: a control, or a command that is not on a bar yet.
///
/// A control that is let go beside all bars is taken off its bar, a command is left alone. Nothing changes
/// before drop(). The areas of open pickers count, too. Places are logical pixels of the window. GUI thread.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbarDrag : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ToolbarDrag)
    Q_PROPERTY(CVqQuickToolbarSetup* setup READ Setup WRITE SetSetup NOTIFY setupChanged FINAL)
    Q_PROPERTY(QVariantList areas READ AreaValues NOTIFY areasChanged FINAL)
    Q_PROPERTY(bool lifted READ IsLifted NOTIFY liftedChanged FINAL)
    Q_PROPERTY(CVqQuickControl* control READ Control NOTIFY liftedChanged FINAL)
    Q_PROPERTY(QString command READ Command NOTIFY liftedChanged FINAL)
    Q_PROPERTY(QPointF place READ Place NOTIFY placeChanged FINAL)
    Q_PROPERTY(QRectF mark READ Mark NOTIFY placeChanged FINAL)
    Q_PROPERTY(bool removes READ Removes NOTIFY placeChanged FINAL)

public:
    explicit CVqQuickToolbarDrag(QObject* parent = nullptr);

    /// Not owned; the end of its session cancels the drag.
    CVqQuickToolbarSetup* Setup() const { return m_setup; }
    void SetSetup(CVqQuickToolbarSetup* setup);

    /// Where things are lifted and dropped: the areas of the bars, and of their pickers; none outside of a
    /// session.
    QList<CVqQuickToolbarArea*> Areas() const;
    QVariantList AreaValues() const;

    bool IsLifted() const { return m_control || !m_command.isEmpty(); }
    CVqQuickControl* Control() const { return m_control; }
    QString Command() const { return m_command; }

    /// Where the pointer is.
    QPointF Place() const { return m_place; }

    /// Where to mark the place at which it would be put in; empty beside the bars.
    QRectF Mark() const { return m_mark; }

    /// Whether letting go now takes the control off its bar.
    bool Removes() const { return m_control && m_mark.isEmpty(); }

    /// Both give whether something was lifted: not outside of a session, nor what no bar holds.
    Q_INVOKABLE bool lift(CVqQuickControl* control, QPointF place);
    Q_INVOKABLE bool liftCommand(const QString& command, QPointF place);

    Q_INVOKABLE void moveTo(QPointF place);

    /// Lets go at the last place. Whether a bar changed.
    Q_INVOKABLE bool drop();

    /// Leaves everything where it was.
    Q_INVOKABLE void cancel();

    /// The bar whose area, or the area of whose picker, this is; null for any other.
    Q_INVOKABLE CVqQuickButtonToolbar* toolbarOf(CVqQuickToolbarArea* area) const;

    /// What to make a picture of for `control`: its look or the item that it hosts; null when there is none,
    /// or it was not made by QML, which can't make a picture of it.
    Q_INVOKABLE QQuickItem* picturedItem(CVqQuickControl* control) const;

Q_SIGNALS:
    void setupChanged();
    void areasChanged();
    void liftedChanged();
    void placeChanged();

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT bool begin(CVqQuickControl* control, const QString& command, QPointF place);
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqQuickToolbarArea* area_at(QPointF place) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void end();

    QPointer<CVqQuickToolbarSetup> m_setup;
    QPointer<CVqQuickControl> m_control;
    QString m_command;
    QPointF m_place;
    QRectF m_mark;
    QPointer<CVqQuickButtonToolbar> m_target;
    QPointer<CVqQuickControl> m_before;
};
