#include "gallery/keys/KeyCommands.h"

#include "gallery/Translations.h"
#include "tests/gallery/RealMenu.h"
#include "tests/gallery/keys/KeyMenu.h"

#include <QSet>

using namespace Qt::StringLiterals;
using Gallery::KeyCommand;
using Gallery::ListKeyCommands;

namespace {

QList<KeyCommand> listed(const Gallery::MenuDocument& document)
{
    KeyMenu menu(document);
    return ListKeyCommands(menu.Menu(), document);
}

}

TEST(KeyCommands, AreInTheOrderOfTheDocument)
{
    QStringList commands;
    for (const KeyCommand& command : listed(KeyDocument()))
        commands << command.command;

    EXPECT_EQ(commands, (QStringList{u"Save"_s, u"Print"_s, u"Red"_s, u"Pan"_s}));
}

TEST(KeyCommands, ACommandOfSeveralEntriesStandsOnce)
{
    const KeyCommand save = listed(KeyDocument()).constFirst();

    EXPECT_EQ(save.ids, (QList<vq_uint32>{2, 11, 91}));
    EXPECT_EQ(save.label, u"Save"_s);
    EXPECT_EQ(save.place, u"File"_s);
}

TEST(KeyCommands, AColourIsCalledByItsColour)
{
    EXPECT_EQ(listed(KeyDocument()).at(2).label, u"#ff0000"_s);
}

TEST(KeyCommands, AKeyWithoutAnEntryHasItsTextAndNoPlace)
{
    const KeyCommand pan = listed(KeyDocument()).constLast();

    EXPECT_EQ(pan.label, u"Pan Left"_s);
    EXPECT_EQ(pan.place, QString());
    EXPECT_EQ(pan.ids, QList<vq_uint32>{90});
}

TEST(KeyCommands, AKeyWithoutEntryAndTextIsCalledByItsCommand)
{
    Gallery::MenuFile file;
    ASSERT_TRUE(
        file.Parse(R"({ "format": 1, "menu": [], "keys": [ { "id": 1, "command": "Pan", "key": "Left" } ] })",
                   u"m.json"_s));

    EXPECT_EQ(listed(file.Document()).constFirst().label, u"Pan"_s);
}

TEST(KeyCommands, TheRealMenuHasALabelForEachInEveryLanguage)
{
    for (const QString& locale : {u"en"_s, u"de"_s}) {
        const Gallery::Translations translations(locale);
        const QList<KeyCommand> commands = listed(RealMenu());

        EXPECT_GT(commands.size(), 250);
        for (const KeyCommand& command : commands)
            EXPECT_FALSE(command.label.isEmpty()) << command.command.toStdString();
    }
}

TEST(KeyCommands, PopupsInsidePopupsAreTheWay)
{
    QString place;
    for (const KeyCommand& command : listed(RealMenu()))
        if (command.command == u"ViewGridSize(50)"_s)
            place = command.place;

    EXPECT_EQ(place, u"View › Grid and Guides › Grid Size"_s);
}
