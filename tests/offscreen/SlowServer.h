#pragma once

#include <QByteArray>
#include <QMap>
#include <QMutex>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QQmlNetworkAccessManagerFactory>
#include <QUrl>

/// An answer that comes when SlowServer says so.
class SlowReply : public QNetworkReply
{
public:
    SlowReply(const QNetworkRequest& request, QObject* parent);

    /// Ends the reply with `text`, or with a failure where it is null. Runs on the reply's own thread.
    void Finish(const QByteArray& text);

    void abort() override { }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return m_text.size() + QNetworkReply::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 max_size) override;

private:
    QByteArray m_text;
};

/// Gives a QML engine addresses that take their time, without any network: they answer once Release() is
/// called.
///
///     SlowServer server;
///     const QUrl url = server.Add("scene.qml", "import QtQuick\nItem {}");
///     engine.setNetworkAccessManagerFactory(&server);
///
/// The engine asks from a thread of its own. Has to outlive the engine.
class SlowServer : public QQmlNetworkAccessManagerFactory
{
public:
    /// Files that were not added are not found.
    QUrl Add(const QString& name, const QByteArray& text);

    /// Answers what has been asked for, and from now on at once.
    void Release();

    QNetworkAccessManager* create(QObject* parent) override;

private:
    class Manager;

    SlowReply* Take(const QNetworkRequest& request, QObject* parent);
    void Answer(SlowReply* reply);

    QMutex m_lock;
    QMap<QUrl, QByteArray> m_texts;
    QList<QPointer<SlowReply>> m_waiting;
    bool m_is_released = false;
};
