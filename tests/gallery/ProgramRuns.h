#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// What a run of the program left behind.
struct ProgramOutcome
{
    int code = -1;
    QStringList lines;
    QString errors;
};

/// Runs of the program itself, which find the user's own folder empty. A folder beside it is for what is
/// kept.
class ProgramRuns : public testing::Test
{
protected:
    ProgramOutcome Run(const QStringList& arguments) const
    {
        constexpr int longest_run = 100000; // ms
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), m_users.path());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ARBOR_GALLERY_PROGRAM), arguments);
        EXPECT_TRUE(process.waitForFinished(longest_run)) << process.errorString().toStdString();
        const QString printed = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
        return {process.exitCode(), printed.split(QLatin1Char('\n')),
                QString::fromUtf8(process.readAllStandardError())};
    }

    const QTemporaryDir m_folder;
    const QTemporaryDir m_users;
};
