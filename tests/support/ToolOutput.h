#pragma once

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

/// What `program` prints; the test fails when it does not end well.
inline QByteArray ToolOutput(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}
