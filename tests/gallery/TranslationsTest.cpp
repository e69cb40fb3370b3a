#include "gallery/Translations.h"

#include "gallery/menu/KeyText.h"
#include "gallery/menu/MenuBuilder.h"
#include "quick_backend/CVqQuickMenu.h"
#include "tests/gallery/RealMenu.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::MenuEntry;
using Gallery::Translations;

TEST(Translations, EnglishInstallsNothing)
{
    const Translations english(u"en"_s);

    EXPECT_EQ(Gallery::LocalLabel(u"&File"_s), u"&File"_s);
    EXPECT_EQ(Gallery::PrintKey({22, 0x53}), u"Ctrl+Shift+S"_s);
}

TEST(Translations, GermanTranslatesLabelsKeysAndTheWindow)
{
    const Translations german(u"de"_s);

    EXPECT_EQ(Gallery::LocalLabel(u"&File"_s), u"Datei"_s);
    EXPECT_EQ(Gallery::PrintKey({22, 0x53}), u"Strg+Umschalt+S"_s);
    EXPECT_EQ(QCoreApplication::translate("SidePanel", "Histogram"), u"Histogramm"_s);
}

TEST(Translations, JapaneseTranslatesKeysAlone)
{
    const Translations japanese(u"ja"_s);

    EXPECT_EQ(Gallery::PrintKey({22, 0x25}), u"Ctrl+Shift+\u2190"_s);
    EXPECT_EQ(Gallery::LocalLabel(u"&File"_s), u"&File"_s);
}

TEST(Translations, JapaneseLabelsShowJapaneseKeys)
{
    const Translations japanese(u"ja"_s);
    CVqQuickMenu menu;
    Gallery::MenuBuilder(menu).Build(RealMenu());

    CVqStringW text;
    menu.GetIdMenuString(1209, text);

    EXPECT_TRUE(text.ToQString().endsWith(u"\aCtrl+Alt+\u2190"_s)) << text.ToQString().toStdString();
}

TEST(Translations, AreGoneWithTheirObject)
{
    {
        const Translations german(u"de"_s);
    }

    EXPECT_EQ(Gallery::LocalLabel(u"&File"_s), u"&File"_s);
    EXPECT_EQ(Gallery::PrintKey({16, 46}), u"Delete"_s);
}

TEST(Translations, GermanHasEveryLabelOfTheMenu)
{
    QStringList labels;
    const auto note = [&labels](const MenuEntry& entry, int) { labels << entry.text; };
    VisitEntries(RealMenu().menu, note);
    VisitEntries(RealMenu().context, note);
    for (const Gallery::LonelyKey& lonely : RealMenu().keys)
        labels << lonely.text;
    QTranslator german;
    ASSERT_TRUE(german.load(u":/i18n/gallery_de.qm"_s));

    for (const QString& label : std::as_const(labels))
        EXPECT_TRUE(label.isEmpty() || !german.translate("Menu", label.toUtf8().constData()).isEmpty())
            << label.toStdString();
}

class TranslatedKeys : public testing::TestWithParam<const char*>
{ };

TEST_P(TranslatedKeys, FireTheirOwnEntries)
{
    const Translations translations(QString::fromLatin1(GetParam()));
    CVqQuickMenu menu;
    Gallery::MenuBuilder(menu).Build(RealMenu());

    VisitEntries(RealMenu().menu, [&menu](const MenuEntry& entry, int) {
        vq_uint64 target = 0;
        vq_uint32 id = 0;
        if (entry.text_key)
            menu.Translate(entry.text_key->key, entry.text_key->flags & 7, target, id);
        EXPECT_EQ(id, entry.text_key ? entry.id : 0) << entry.key_text.toStdString();
    });
}

INSTANTIATE_TEST_SUITE_P(Translations, TranslatedKeys, testing::Values("de", "ja"),
                         [](const auto& row) { return row.param; });

TEST(Translations, GermanLabelsShowGermanKeys)
{
    const Translations german(u"de"_s);
    CVqQuickMenu menu;
    Gallery::MenuBuilder(menu).Build(RealMenu());

    CVqStringW text;
    menu.GetIdMenuString(1113, text);

    EXPECT_TRUE(text.ToQString().endsWith(u"\aEntf"_s)) << text.ToQString().toStdString();
}
