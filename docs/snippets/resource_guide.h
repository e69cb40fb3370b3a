#pragma once

#include <QList>
#include <QString>
#include <QUrl>

// The pieces of docs/resources.md, as functions that tests/docs/resource_guideTest.cpp calls.
QUrl main_page();
QUrl skinned_icon(const QString& skin, const QString& standard);
