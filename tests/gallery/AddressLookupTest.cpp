#include "gallery/AddressLookup.h"

#include "tests/gallery/DeveloperMode.h"

using namespace Qt::StringLiterals;
using Gallery::AddressLookup;

namespace {

const QString g_theme = u"qrc:///qt/qml/K7/Arbor/Gallery/Theme.qml"_s;

}

TEST(AddressLookup, ACompiledResourceStaysWhatItIs)
{
    AddressLookup lookup;

    lookup.SetAddress(g_theme);

    EXPECT_EQ(lookup.Result(), g_theme);
    EXPECT_EQ(lookup.GetPlace(), AddressLookup::Compiled);
    EXPECT_FALSE(AddressLookup::IsDeveloping());
    EXPECT_EQ(AddressLookup::SourceFolder(), QString());
}

TEST(AddressLookup, InTheDevelopersModeItIsAFileOfTheSourceTree)
{
    const DeveloperModeOnCopy mode;
    AddressLookup lookup;

    lookup.SetAddress(g_theme);

    EXPECT_EQ(lookup.Result(), mode.Copy().Path(u"Theme.qml"_s));
    EXPECT_EQ(lookup.GetPlace(), AddressLookup::OnDisk);
    EXPECT_TRUE(AddressLookup::IsDeveloping());
    EXPECT_EQ(AddressLookup::SourceFolder(), mode.Copy().Folder());
}

TEST(AddressLookup, NothingIsFoundWhereNothingIs)
{
    for (const QString& address :
         {u"qrc:///nowhere/a.qml"_s, u"file:///nowhere/a.qml"_s, u"wobble"_s, QString()}) {
        AddressLookup lookup;

        lookup.SetAddress(address);

        EXPECT_EQ(lookup.GetPlace(), AddressLookup::Nothing) << address.toStdString();
    }
}

TEST(AddressLookup, AChangeIsToldOnce)
{
    AddressLookup lookup;
    int told = 0;
    QObject::connect(&lookup, &AddressLookup::Changed, [&told] { ++told; });

    lookup.SetAddress(g_theme);
    lookup.SetAddress(g_theme);

    EXPECT_EQ(told, 1);
    EXPECT_EQ(lookup.Address(), g_theme);
}
