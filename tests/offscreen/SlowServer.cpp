#include "tests/offscreen/SlowServer.h"

#include <cstring>

using namespace Qt::Literals::StringLiterals;

SlowReply::SlowReply(const QNetworkRequest& request, QObject* parent) : QNetworkReply(parent)
{
    setRequest(request);
    setUrl(request.url());
    setOperation(QNetworkAccessManager::GetOperation);
    open(QIODevice::ReadOnly);
}

void SlowReply::Finish(const QByteArray& text)
{
    m_text = text;
    if (text.isNull())
        setError(ContentNotFoundError, u"not there"_s);
    setFinished(true);
    Q_EMIT finished();
}

qint64 SlowReply::readData(char* data, qint64 max_size)
{
    const qint64 size = qMin<qint64>(max_size, m_text.size());
    std::memcpy(data, m_text.constData(), static_cast<std::size_t>(size));
    m_text.remove(0, size);
    return size;
}

class SlowServer::Manager : public QNetworkAccessManager
{
public:
    Manager(SlowServer& server, QObject* parent) : QNetworkAccessManager(parent), m_server(server) { }

protected:
    QNetworkReply* createRequest(Operation, const QNetworkRequest& request, QIODevice*) override
    {
        return m_server.Take(request, this);
    }

private:
    SlowServer& m_server;
};

QUrl SlowServer::Add(const QString& name, const QByteArray& text)
{
    const QMutexLocker guard(&m_lock);
    const QUrl url(u"http://slow.invalid/"_s + name);
    m_texts.insert(url, text);
    return url;
}

void SlowServer::Release()
{
    const QMutexLocker guard(&m_lock);
    m_is_released = true;
    for (const QPointer<SlowReply>& reply : std::as_const(m_waiting)) {
        if (reply)
            Answer(reply);
    }
    m_waiting.clear();
}

QNetworkAccessManager* SlowServer::create(QObject* parent)
{
    return new Manager(*this, parent);
}

SlowReply* SlowServer::Take(const QNetworkRequest& request, QObject* parent)
{
    const QMutexLocker guard(&m_lock);
    auto* reply = new SlowReply(request, parent);
    if (m_is_released)
        Answer(reply);
    else
        m_waiting.append(reply);
    return reply;
}

// Queued: whoever asked has to be listening by then.
void SlowServer::Answer(SlowReply* reply)
{
    const QByteArray text = m_texts.value(reply->url());
    QMetaObject::invokeMethod(reply, [reply, text] { reply->Finish(text); }, Qt::QueuedConnection);
}
