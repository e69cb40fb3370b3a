#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

#include <gtest/gtest.h>

/// Translates by a compiled catalogue for the time of its scope.
class ScopedCatalogue
{
public:
    explicit ScopedCatalogue(const QString& path)
    {
        EXPECT_TRUE(m_translator.load(path)) << path.toStdString();
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator; // takes itself off the application
};
