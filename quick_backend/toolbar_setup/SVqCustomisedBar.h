#pragma once

#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar_setup/CVqToolbarState.h"
#include "system/CVqVariant.h"

#include <QPointer>
#include <QString>

#include <memory>

/// What a CVqQuickToolbarSetup knows of one bar.
struct SVqCustomisedBar
{
    /// More controls than this don't come back from a record as they were.
    static constexpr int MaxRecords = 100;

    QPointer<CVqQuickButtonToolbar> m_bar;
    CVqVariant m_factory;
    QString m_title;
    std::unique_ptr<CVqToolbarState>
        m_state;                  ///< As it was when the session began; null outside of a session.
    bool m_had_drag_drop = false; ///< The same of the bar's drag and drop.
};
