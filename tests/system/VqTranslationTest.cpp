#include "system/VqTranslation.h"

#include "system/VqText.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QThread>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

constexpr char file[] = "AbstractGui\\CVqAbstractMenu";
const vq_wchar* const null_text = nullptr;

/// Answers with context, text and comment, so that a test sees what was asked, and counts how often.
class EchoTranslator : public QTranslator
{
public:
    explicit EchoTranslator(const char* mark) : m_mark(mark) { }

    QString translate(const char* context, const char* text, const char* comment, int) const override
    {
        ++m_asked;
        if (QByteArrayView(text) == "unknown")
            return {};
        return QString::fromUtf8(QByteArray(m_mark) + context + '|' + text + '|' + (comment ? comment : ""));
    }

    bool isEmpty() const override { return false; }

    mutable int m_asked = 0;

private:
    const char* m_mark;
};

class VqTranslation : public testing::Test
{
protected:
    VqTranslation()
    {
        QCoreApplication::installTranslator(&m_translator);
        m_translator.m_asked = 0; // Qt itself asks for the layout direction
    }

    ~VqTranslation() override { QCoreApplication::removeTranslator(&m_translator); }

    EchoTranslator m_translator{"1:"};
};

std::u16string copied(const vq_wchar* text)
{
    return std::u16string(VqView(text));
}

}

TEST(VqTranslationOfNothing, WithoutATranslatorTheTextComesBack)
{
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("Ctrl"), file)), u"Ctrl");
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("Alt"), VQ_TEXT("keyboard key"), file)), u"Alt");
}

TEST_F(VqTranslation, FileIsTheContextAndCommentTheDisambiguation)
{
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("Ctrl"), file)), u"1:AbstractGui\\CVqAbstractMenu|Ctrl|");
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("Alt"), VQ_TEXT("keyboard key"), file)),
              u"1:AbstractGui\\CVqAbstractMenu|Alt|keyboard key");
    EXPECT_EQ(copied(VQ_GetTranslation(u"\u00DCber", u"\u65E5", "f")), u"1:f|\u00DCber|\u65E5");
}

TEST_F(VqTranslation, ATextWithoutAnEntryComesBack)
{
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("unknown"), file)), u"unknown");
}

TEST_F(VqTranslation, ALoneSurrogateComesBackWhole)
{
    QCoreApplication::removeTranslator(&m_translator);
    const vq_wchar lone[] = {0x41, 0xD800, 0};

    EXPECT_EQ(copied(VQ_GetTranslation(lone, file)), std::u16string(lone));
}

TEST_F(VqTranslation, NullAndEmptyTextsAreEmpty)
{
    EXPECT_EQ(copied(VQ_GetTranslation(null_text, file)), u"");
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT(""), null_text, nullptr)), u"");
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), null_text, nullptr)), u"1:|a|");
    EXPECT_EQ(m_translator.m_asked, 1);
}

TEST_F(VqTranslation, RepeatedCallsAskOnceAndGiveTheSamePointer)
{
    const std::u16string text = u"Backspace";
    const std::string context = file;
    const vq_wchar* first = VQ_GetTranslation(VQ_TEXT("Backspace"), VQ_TEXT("key"), file);

    const vq_wchar* second = VQ_GetTranslation(text.c_str(), VQ_TEXT("key"), context.c_str());

    EXPECT_EQ(first, second);
    EXPECT_EQ(m_translator.m_asked, 1);
}

TEST_F(VqTranslation, TextCommentAndFileAllTell)
{
    const auto plain = copied(VQ_GetTranslation(VQ_TEXT("Alt"), file));

    EXPECT_NE(copied(VQ_GetTranslation(VQ_TEXT("Alt"), VQ_TEXT("c"), file)), plain);
    EXPECT_NE(copied(VQ_GetTranslation(VQ_TEXT("Alt"), "other")), plain);
    EXPECT_NE(copied(VQ_GetTranslation(VQ_TEXT("alt"), file)), plain);
}

TEST_F(VqTranslation, AnotherTranslatorIsAskedFromThenOn)
{
    EchoTranslator second("2:");
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"1:f|a|");

    QCoreApplication::installTranslator(&second);
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"2:f|a|");

    QCoreApplication::removeTranslator(&second);
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"1:f|a|");
}

TEST_F(VqTranslation, AnswersOutliveTheLanguageChangeOfAnotherObject)
{
    QObject other;
    QEvent change(QEvent::LanguageChange);
    const vq_wchar* first = VQ_GetTranslation(VQ_TEXT("a"), "f");

    QCoreApplication::sendEvent(&other, &change);
    EXPECT_EQ(VQ_GetTranslation(VQ_TEXT("a"), "f"), first);
    EXPECT_EQ(m_translator.m_asked, 1);

    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    m_translator.m_asked = 0;
    VQ_GetTranslation(VQ_TEXT("a"), "f");
    EXPECT_EQ(m_translator.m_asked, 1);
}

TEST_F(VqTranslation, ManyAnswersStayValidUntilTheLanguageChanges)
{
    const vq_wchar* first = VQ_GetTranslation(VQ_TEXT("a"), "f");

    for (int i = 0; i < 5000; ++i)
        VQ_GetTranslation((u"text" + std::u16string(1, static_cast<char16_t>(0x4E00 + i))).c_str(), "f");

    EXPECT_EQ(copied(first), u"1:f|a|");
}

TEST_F(VqTranslation, AnotherThreadGetsTheSameAnswers)
{
    std::u16string first;
    std::u16string second;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        const vq_wchar* one = VQ_GetTranslation(VQ_TEXT("a"), "f");
        const vq_wchar* two = VQ_GetTranslation(VQ_TEXT("b"), "f");
        first = copied(one);
        second = copied(two);
    }));
    thread->start();
    thread->wait();

    EXPECT_EQ(first, u"1:f|a|");
    EXPECT_EQ(second, u"1:f|b|");
}

TEST_F(VqTranslation, AnAnswerOnAnotherThreadStaysValidForFifteenFurtherCalls)
{
    std::u16string first;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        const vq_wchar* answer = VQ_GetTranslation(VQ_TEXT("a"), "f");
        for (int i = 0; i < 15; ++i)
            VQ_GetTranslation(VQ_TEXT("b"), "f");
        first = copied(answer);
    }));
    thread->start();
    thread->wait();

    EXPECT_EQ(first, u"1:f|a|");
}

TEST_F(VqTranslation, WithoutAnApplicationTheTextComesBackAndANewOneIsNoticed)
{
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"1:f|a|");

    delete QCoreApplication::instance();
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"a");

    static int count = 1;
    static char name[] = "tests";
    static char* arguments[] = {name, nullptr};
    new QGuiApplication(count, arguments);
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"a");
    EchoTranslator second("2:");
    QCoreApplication::installTranslator(&second);
    EXPECT_EQ(copied(VQ_GetTranslation(VQ_TEXT("a"), "f")), u"2:f|a|");
}
