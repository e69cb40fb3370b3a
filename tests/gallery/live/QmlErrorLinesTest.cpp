#include "gallery/live/QmlErrorLines.h"

#include <QQmlError>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QQmlError error_at(const QString& url, int line)
{
    QQmlError error;
    error.setUrl(QUrl(url));
    error.setLine(line);
    error.setColumn(5);
    error.setDescription(u"it is wrong"_s);
    return error;
}

}

TEST(QmlErrorLines, EachErrorHasALineWithPathLineAndText)
{
    EXPECT_EQ(Gallery::QmlErrorLines({error_at(u"file:///a/b.qml"_s, 7), error_at(u"qrc:///c.qml"_s, 1)}),
              (QStringList{u"/a/b.qml:7: it is wrong"_s, u"qrc:///c.qml:1: it is wrong"_s}));
}

TEST(QmlErrorLines, AnErrorWithoutALineHasNone)
{
    EXPECT_EQ(Gallery::QmlErrorLines({error_at(u"file:///a/b.qml"_s, -1), error_at(u"file:///a/b.qml"_s, 0)}),
              (QStringList{u"/a/b.qml: it is wrong"_s, u"/a/b.qml: it is wrong"_s}));
}

TEST(QmlErrorLines, WithoutErrorsThereAreNone)
{
    EXPECT_EQ(Gallery::QmlErrorLines({}), QStringList());
}
