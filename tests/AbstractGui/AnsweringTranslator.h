#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <functional>

/// Answers for the key names with a function of source text and comment, as long as it lives.
class AnsweringTranslator : public QTranslator
{
public:
    using Answer = std::function<QString(const QString& text, const QString& comment)>;

    explicit AnsweringTranslator(Answer answer) : m_answer(std::move(answer))
    {
        QCoreApplication::installTranslator(this);
    }

    ~AnsweringTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char* comment, int) const override
    {
        const bool is_key_name = qstrcmp(context, "AbstractGui\\CVqAbstractMenu") == 0;
        return is_key_name ? m_answer(QString::fromUtf8(text), QString::fromUtf8(comment)) : QString();
    }

private:
    Answer m_answer;
};
