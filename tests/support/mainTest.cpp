#include <QGuiApplication>
#include <QLocale>

#include <gtest/gtest.h>

#include <clocale>

using namespace Qt::Literals::StringLiterals;

TEST(main, SetsTheLocaleOfTheCLibrary)
{
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C.UTF-8");
}

TEST(main, SetsTheLocaleOfQt)
{
    EXPECT_EQ(QLocale(), QLocale::c());
}

TEST(main, MakesAnApplicationObjectWithADisplay)
{
    ASSERT_NE(qGuiApp, nullptr);

    EXPECT_NE(QGuiApplication::primaryScreen(), nullptr);
}

TEST(main, ChoosesSoftwareRendering)
{
    EXPECT_EQ(qEnvironmentVariable("QT_QUICK_BACKEND"), u"software"_s);
}

TEST(main, LetsATestReplaceTheApplicationObject)
{
    static int argc = 1;
    static char name[] = "replaced";
    static char* argv[] = {name, nullptr};
    delete QCoreApplication::instance();

    new QGuiApplication(argc, argv);

    EXPECT_EQ(QCoreApplication::arguments(), QStringList{u"replaced"_s});
}
