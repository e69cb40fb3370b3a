#pragma once

#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"

#include <QStringList>

class QQuickItem;

// The pieces of docs/toolbars.md, as functions that tests/docs/toolbar_guideTest.cpp calls.
void fill_toolbar(CVqQuickButtonToolbar& bar, CVqQuickMenu& menu);
void add_slider(CVqQuickButtonToolbar& bar, QQuickItem* slider);
bool save_toolbar(CVqQuickButtonToolbar& bar, const QString& name);
bool load_toolbar(CVqQuickButtonToolbar& bar, const QString& name);
QStringList hidden_buttons(CVqQuickButtonToolbar& bar);
void hide_buttons(CVqQuickButtonToolbar& bar, const QStringList& names);
void customise(CVqQuickToolbarSetup& setup, CVqQuickButtonToolbar& bar);
void start_toolbar(CVqQuickToolbarSetup& setup, CVqQuickButtonToolbar& bar, CVqQuickMenu& menu,
                   QQuickItem* slider);
