#include "system/VqTranslation.h"

#include "system/VqQtText.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QThread>

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace {

using string_type = std::basic_string<vq_wchar>;
using view_type = std::basic_string_view<vq_wchar>;

struct SRequest
{
    view_type m_text;
    view_type m_comment;
    std::string_view m_file;
};

struct SKey
{
    string_type m_text;
    string_type m_comment;
    std::string m_file;

    operator SRequest() const { return {m_text, m_comment, m_file}; }
};

struct SHash
{
    using is_transparent = void;

    // The file is left out: all texts of one module share it.
    std::size_t operator()(const SRequest& request) const
    {
        const std::hash<view_type> hash;
        return hash(request.m_text) * 31 + hash(request.m_comment);
    }
};

struct SEqual
{
    using is_transparent = void;

    bool operator()(const SRequest& left, const SRequest& right) const
    {
        return left.m_text == right.m_text && left.m_comment == right.m_comment
            && left.m_file == right.m_file;
    }
};

using answers_type = std::unordered_map<SKey, string_type, SHash, SEqual>;

/// Empties the answers when the application changes language. It sees every event of the application's
/// thread, so it looks at the type first. Windows are told later, and one by one: that changes no answer.
class CLanguageWatch : public QObject
{
public:
    CLanguageWatch(QCoreApplication* app, answers_type& answers) : QObject(app), m_answers(answers)
    {
        m_answers.clear();
        app->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange && receiver == parent())
            m_answers.clear();
        return false;
    }

private:
    answers_type& m_answers;
};

/// What the application's thread keeps. The watch is a child of the application object that the answers
/// belong to, so a new object at the address of an old one is not mistaken for it.
struct SStore
{
    answers_type m_answers;
    QPointer<CLanguageWatch> m_watch;
};

SStore& store()
{
    static SStore instance;
    return instance;
}

string_type asked(const SRequest& request)
{
    const QByteArray text = to_qview(request.m_text).toUtf8();
    const QByteArray comment = to_qview(request.m_comment).toUtf8();
    const QByteArray file(request.m_file.data(), static_cast<qsizetype>(request.m_file.size()));
    const QString answer = QCoreApplication::translate(file.constData(), text.constData(),
                                                       comment.isEmpty() ? nullptr : comment.constData());
    // Where there is no entry Qt hands back the UTF-8 form, which has lost lone surrogates.
    if (answer == QString::fromUtf8(text))
        return string_type(request.m_text);
    return string_type(from_qview(answer));
}

const vq_wchar* asked_once(const SRequest& request)
{
    thread_local std::array<string_type, 16> recent;
    thread_local std::size_t next = 0;
    string_type& slot = recent[next++ % recent.size()];
    slot = asked(request);
    return slot.c_str();
}

const vq_wchar* kept_answer(QCoreApplication* app, const SRequest& request)
{
    SStore& kept = store();
    if (!kept.m_watch || kept.m_watch->parent() != app)
        kept.m_watch = new CLanguageWatch(app, kept.m_answers);
    const auto found = kept.m_answers.find(request);
    if (found != kept.m_answers.end())
        return found->second.c_str();
    SKey key{string_type(request.m_text), string_type(request.m_comment), std::string(request.m_file)};
    return kept.m_answers.emplace(std::move(key), asked(request)).first->second.c_str();
}

const vq_wchar* translated(const vq_wchar* text, const vq_wchar* comment, const char* file)
{
    QCoreApplication* app = QCoreApplication::instance();
    if (!app || !text || !*text)
        return text ? text : VQ_TEXT("");
    const SRequest request{VqView(text), VqView(comment), file ? std::string_view(file) : std::string_view()};
    return app->thread() == QThread::currentThread() ? kept_answer(app, request) : asked_once(request);
}

}

const vq_wchar* VQ_GetTranslation(const vq_wchar* text, const char* file)
{
    return translated(text, nullptr, file);
}

const vq_wchar* VQ_GetTranslation(const vq_wchar* text, const vq_wchar* comment, const char* file)
{
    return translated(text, comment, file);
}
