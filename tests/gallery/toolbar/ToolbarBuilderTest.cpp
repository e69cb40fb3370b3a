#include "gallery/toolbar/ToolbarBuilder.h"

#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "gallery/Translations.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "tests/gallery/toolbar/ToolbarSet.h"

#include <QCoreApplication>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

class ToolbarBuilderTest : public ToolbarSet
{
protected:
    ToolbarBuilderTest()
    {
        m_first.SetMenu(&m_menu);
        m_second.SetMenu(&m_menu);
        m_builder.Build(m_first);
        m_builder.Build(m_second);
    }

    /// As in the next run: a bar that was saved and loaded, without what records do not hold.
    void Reload(CVqQuickButtonToolbar& bar)
    {
        CVqVariant record;
        bar.Save(record, nullptr);
        m_builder.TakeItems(bar);
        ASSERT_EQ(bar.Load(record, nullptr), 0);
    }

    QString Image(CVqQuickButtonToolbar& bar, const QString& name)
    {
        CVqStringW file;
        CVqStringW resource;
        const int index = bar.GetBitmap(Looked(bar).IdOf(name), 0);
        CVqAbstractBitmapPool::GetImageSource(static_cast<vq_uint32>(index), file, resource);
        return resource.ToQString();
    }

    QStringList m_names{u"FileOpen"_s, u"|"_s, u"zoom"_s, u"ViewZoom(100)"_s, u"ViewGrid"_s};
};

}

TEST_F(ToolbarBuilderTest, ControlsStandInTheOrderOfTheFile)
{
    EXPECT_EQ(Looked(m_first).Names(), m_names);
    EXPECT_EQ(Looked(m_second).Names(), (QStringList{u"Tool(brush)"_s, u"Tool(crop)"_s}));
}

TEST_F(ToolbarBuilderTest, EachControlIsOfItsKind)
{
    EXPECT_EQ(Looked(m_first).Named(u"FileOpen"_s)->GetKind(), CVqQuickControl::Button);
    EXPECT_EQ(Looked(m_first).Named(u"zoom"_s)->GetKind(), CVqQuickControl::General);
    EXPECT_EQ(Looked(m_first).Named(u"ViewZoom(100)"_s)->GetKind(), CVqQuickControl::TextButton);
}

TEST_F(ToolbarBuilderTest, TextsAndTipsAreThoseOfTheMenu)
{
    EXPECT_EQ(Looked(m_first).Named(u"FileOpen"_s)->Tooltip(), u"Open"_s);
    EXPECT_EQ(Looked(m_first).Named(u"ViewZoom(100)"_s)->label(), u"100 %"_s);
    EXPECT_EQ(Looked(m_first).Named(u"ViewZoom(100)"_s)->Tooltip(), u"Zoom: 100 %"_s);
    EXPECT_EQ(Looked(m_first).Named(u"zoom"_s)->Tooltip(), u"Zoom Slider"_s);
}

TEST_F(ToolbarBuilderTest, ImagesAreThoseOfTheMenuUnlessTheFileHasOne)
{
    EXPECT_EQ(Image(m_first, u"FileOpen"_s), u"OPEN"_s);
    EXPECT_EQ(Image(m_second, u"Tool(crop)"_s), u"COPY"_s);
}

TEST_F(ToolbarBuilderTest, ATextButtonHasNoImageOfTheMenu)
{
    EXPECT_LT(m_first.GetBitmap(Looked(m_first).IdOf(u"ViewZoom(100)"_s), 0), 0);
}

TEST_F(ToolbarBuilderTest, AnArrowOpensThePopupOfTheFile)
{
    EXPECT_EQ(Looked(m_first).Named(u"FileOpen"_s)->DropDownId(), 1009u);
    EXPECT_FALSE(Looked(m_first).Named(u"ViewGrid"_s)->HasDropDown());
}

TEST_F(ToolbarBuilderTest, ACommandThatTheMenuDoesNotHaveGetsNoButton)
{
    CVqQuickMenu other;
    other.AppendPopup(1, 0, VQ_TEXT("View"));
    other.AppendMenuItem(2, 1, VQ_TEXT("Grid"), VQ_TEXT("ViewGrid"), 1);
    other.AppendMenuItem(3, 1, VQ_TEXT("Open"), VQ_TEXT("FileOpen"), 1);
    Gallery::ToolbarBuilder builder(other, m_document);
    CVqQuickButtonToolbar bar(VQ_TEXT("first"));

    builder.Build(bar);

    EXPECT_EQ(Looked(bar).Names(), (QStringList{u"FileOpen"_s, u"|"_s, u"zoom"_s, u"ViewGrid"_s}));
    EXPECT_FALSE(Looked(bar).Named(u"FileOpen"_s)->HasDropDown());
}

TEST_F(ToolbarBuilderTest, AToolbarThatTheFileDoesNotHaveIsEmpty)
{
    CVqQuickButtonToolbar bar(VQ_TEXT("third"));
    bar.AddButton(VQ_TEXT("old"));

    m_builder.Build(bar);

    EXPECT_EQ(Looked(bar).Names(), QStringList());
}

TEST_F(ToolbarBuilderTest, BuildingAgainGivesTheSameItem)
{
    const QPointer<CVqQuickControl> item = Looked(m_first).Named(u"zoom"_s);

    m_builder.Build(m_first);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_EQ(Looked(m_first).Names(), m_names);
    EXPECT_TRUE(item);
    EXPECT_EQ(Looked(m_first).Named(u"zoom"_s), item);
}

TEST_F(ToolbarBuilderTest, ALoadedToolbarIsMadeWhole)
{
    const CVqQuickControl* item = Looked(m_first).Named(u"zoom"_s);
    Reload(m_first);
    ASSERT_EQ(Looked(m_first).Named(u"zoom"_s)->GetKind(), CVqQuickControl::Button);

    m_builder.Dress(m_first);

    EXPECT_EQ(Looked(m_first).Names(), m_names);
    EXPECT_EQ(Looked(m_first).Named(u"zoom"_s), item);
    EXPECT_EQ(Looked(m_first).Named(u"ViewZoom(100)"_s)->GetKind(), CVqQuickControl::TextButton);
    EXPECT_EQ(Looked(m_first).Named(u"FileOpen"_s)->DropDownId(), 1009u);
}

TEST_F(ToolbarBuilderTest, ALoadedToolbarGetsTheTextsOfThePresentLanguage)
{
    CVqVariant record;
    m_first.Save(record, nullptr);
    const Gallery::Translations german(u"de"_s);
    CVqQuickMenu menu;
    Gallery::MenuBuilder(menu).Build(RealMenu());
    Gallery::ToolbarBuilder builder(menu, m_document);
    CVqQuickButtonToolbar bar(VQ_TEXT("first"));
    bar.Load(record, nullptr);

    builder.Dress(bar);

    EXPECT_EQ(Looked(bar).Named(u"FileOpen"_s)->Tooltip(), u"Öffnen"_s);
    EXPECT_EQ(Looked(bar).Named(u"zoom"_s)->Tooltip(), u"Zoomregler"_s);
}

TEST_F(ToolbarBuilderTest, AButtonThatMovedToAnotherToolbarIsKnownThere)
{
    const vq_uint64 id = m_second.AddButton(VQ_TEXT("FileOpen2"));
    m_second.SetCommandOnButton(id, 0, VQ_TEXT("FileOpen"));

    m_builder.Dress(m_second);

    EXPECT_EQ(Looked(m_second).Named(u"FileOpen2"_s)->DropDownId(), 1009u);
    EXPECT_EQ(Looked(m_second).Named(u"FileOpen2"_s)->Tooltip(), u"Open"_s);
}

TEST_F(ToolbarBuilderTest, AButtonWithAnImageStaysAButton)
{
    const vq_uint64 id = m_second.AddButton(VQ_TEXT("ViewZoom(100)"));
    m_second.SetCommandOnButton(id, 0, VQ_TEXT("ViewZoom(100)"));
    m_second.SetBitmapOnButton(id, 0, VQ_TEXT("k7_tile_assets.dll"), VQ_TEXT("ZOOM_100"));

    m_builder.Dress(m_second);

    EXPECT_EQ(Looked(m_second).Named(u"ViewZoom(100)"_s)->GetKind(), CVqQuickControl::Button);
}

TEST_F(ToolbarBuilderTest, AnItemIsNeverOnTwoToolbars)
{
    m_second.AddButton(VQ_TEXT("zoom"));

    m_builder.Dress(m_second);

    EXPECT_EQ(Looked(m_second).Names(), (QStringList{u"Tool(brush)"_s, u"Tool(crop)"_s}));
    EXPECT_EQ(Looked(m_first).Names(), m_names);
}

TEST_F(ToolbarBuilderTest, AnItemMayComeBackOnAnotherToolbar)
{
    m_builder.TakeItems(m_first);
    m_second.AddButton(VQ_TEXT("zoom"));

    m_builder.Dress(m_second);

    EXPECT_EQ(Looked(m_second).Named(u"zoom"_s)->GetKind(), CVqQuickControl::General);
    EXPECT_TRUE(Looked(m_second).Named(u"zoom"_s)->IsVertical());
}

TEST_F(ToolbarBuilderTest, AnItemOnNoToolbarGoesWithTheBuilder)
{
    QPointer<CVqQuickControl> item;
    {
        Gallery::ToolbarBuilder builder(m_menu, m_document);
        CVqQuickButtonToolbar bar(VQ_TEXT("first"));
        builder.Build(bar);
        item = Looked(bar).Named(u"zoom"_s);
        builder.TakeItems(bar);
    }

    EXPECT_FALSE(item);
}
