#include "quick_backend/CVqQuickBitmapPool.h"
#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

#include <cmath>

namespace {

constexpr char Stencil[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">
    <rect width="24" height="24" fill="#000000"/></svg>)";
constexpr char Coloured[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">
    <rect width="24" height="24" fill="#ff0000"/><rect width="1" height="1" fill="#0000ff"/></svg>)";

/// A toolbar whose images come from the pool.
class ToolbarFace : public testing::Test
{
protected:
    explicit ToolbarFace(const QByteArray& properties = {})
        : window("imageSource: 'image://arbor/'; " + properties)
    {
        pool.AddImageProvider(window.Engine());
    }

    void SetImage(CVqQuickControl& button, const char* svg, vq_uint32 state = 0)
    {
        vq_int32 index = CVqAbstractBitmapPool::AddImageSVG(VQ_TEXT("image"), svg);
        if (svg == Coloured)
            index = CVqAbstractBitmapPool::AddImageSVG(VQ_TEXT("coloured"), svg);
        button.Set(vq_control_bitmap, state, &index);
    }

    QRectF Image(const CVqQuickControl& button)
    {
        return ToolbarWindow::Place(window.Part(button, "toolbarImage"));
    }
    QRectF Text(const CVqQuickControl& button)
    {
        return ToolbarWindow::Place(window.Part(button, "toolbarText"));
    }

    CVqQuickBitmapPool pool;
    ToolbarWindow window;
};

class MirroredToolbarFace : public ToolbarFace
{
protected:
    MirroredToolbarFace() : ToolbarFace("LayoutMirroring.enabled: true") { }
};

struct STextPlace
{
    const char* name;
    CVqQuickControl::TextPlace place;
    int x; ///< Of the text's centre, seen from the image's.
    int y;
};

class ToolbarFaceTexts : public ToolbarFace, public testing::WithParamInterface<STextPlace>
{ };

int sign(double value)
{
    return value > 1 ? 1 : value < -1 ? -1 : 0;
}

}

TEST_F(ToolbarFace, ShowsItsTextWithoutAnImage)
{
    auto& button = window.AddButton("open");

    EXPECT_EQ(window.Part(button, "toolbarText")->property("text"), QStringLiteral("Open"));
    EXPECT_EQ(window.Part(button, "toolbarImage"), nullptr);
}

TEST_F(ToolbarFace, ShowsAnAmpersandAsItIs)
{
    auto& button = window.AddButton("cut", QStringLiteral("Cut & <b>Go</b>"));

    EXPECT_EQ(window.Part(button, "toolbarText")->property("text"), QStringLiteral("Cut & <b>Go</b>"));
    EXPECT_EQ(window.Part(button, "toolbarText")->property("textFormat").toInt(), Qt::PlainText);
}

TEST_F(ToolbarFace, ShowsItsImageAloneInTheMiddle)
{
    auto& button = window.AddButton("open");
    SetImage(button, Stencil);

    const QRectF whole = ToolbarWindow::Place(window.Look(button));
    EXPECT_EQ(Image(button).size(), QSizeF(24, 24));
    EXPECT_EQ(Image(button).center(), whole.center());
    EXPECT_EQ(window.Part(button, "toolbarText"), nullptr);
}

TEST_P(ToolbarFaceTexts, StandBesideTheImageAsTheyAreAligned)
{
    auto& button = window.AddButton("open");
    SetImage(button, Stencil);
    button.SetTextBesideImage(true);
    button.SetTextAlign(GetParam().place);

    const QPointF offset = Text(button).center() - Image(button).center();
    EXPECT_EQ(sign(offset.x()), GetParam().x);
    EXPECT_EQ(sign(offset.y()), GetParam().y);
    EXPECT_FALSE(Text(button).intersects(Image(button)));
}

INSTANTIATE_TEST_SUITE_P(ToolbarFace, ToolbarFaceTexts,
                         testing::Values(STextPlace{"Behind", CVqQuickControl::TextBehind, 1, 0},
                                         STextPlace{"Below", CVqQuickControl::TextBelow, 0, 1},
                                         STextPlace{"Before", CVqQuickControl::TextBefore, -1, 0},
                                         STextPlace{"Above", CVqQuickControl::TextAbove, 0, -1}),
                         [](const auto& row) { return row.param.name; });

TEST_P(ToolbarFaceTexts, HaveTheSameRoomAroundThem)
{
    auto& button = window.AddButton("open");
    SetImage(button, Stencil);
    button.SetTextBesideImage(true);
    button.SetTextAlign(GetParam().place);

    const QRectF whole = ToolbarWindow::Place(window.Look(button));
    const QRectF inner = Text(button).united(Image(button));
    EXPECT_LE(std::abs(inner.left() - whole.left() - CVqQuickButton::Padding), 1);
    EXPECT_LE(std::abs(whole.right() - inner.right() - CVqQuickButton::Padding), 1);
    EXPECT_LE(std::abs(inner.top() - whole.top() - CVqQuickButton::Padding), 1);
    EXPECT_LE(std::abs(whole.bottom() - inner.bottom() - CVqQuickButton::Padding), 1);
}

TEST_F(MirroredToolbarFace, ATextBehindStandsAtTheLeft)
{
    auto& button = window.AddButton("open");
    SetImage(button, Stencil);
    button.SetTextBesideImage(true);

    EXPECT_LT(Text(button).right(), Image(button).left());
}

TEST_F(ToolbarFace, ALongTextIsCutToItsSize)
{
    auto& button = window.AddButton("open", QStringLiteral("A very long text for a button"));
    button.SetControlSize({60, 34});
    window.Toolbar().ChangeToolbarOrientation(EOrientation::Vertical);
    button.SetOrientation(EOrientation::Vertical);

    EXPECT_TRUE(window.Look(button)->property("truncated").toBool());
    EXPECT_LE(Text(button).right(), ToolbarWindow::Place(window.Look(button)).right());
}

TEST_F(ToolbarFace, ATextIsWholeInItsNaturalSize)
{
    auto& button = window.AddButton("open", QStringLiteral("A very long text for a button"));

    EXPECT_FALSE(window.Look(button)->property("truncated").toBool());
}

TEST_F(ToolbarFace, ATextIsWholeAtAnyZoom)
{
    auto& button = window.AddButton("open", QStringLiteral("A long text"));
    for (const double zoom : {1.1, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        window.Toolbar().SetAdditionalToolbarGuiZoom(zoom);

        EXPECT_FALSE(window.Look(button)->property("truncated").toBool()) << zoom;
    }
}

TEST_F(ToolbarFace, GrowsWithTheZoom)
{
    auto& button = window.AddButton("open");
    SetImage(button, Stencil);

    window.Toolbar().SetAdditionalToolbarGuiZoom(1.5);

    EXPECT_EQ(Image(button).size(), QSizeF(36, 36));
    EXPECT_EQ(window.Look(button)->height(), 51);
}

TEST_F(ToolbarFace, ShowsItsCurrentState)
{
    auto& button = window.AddButton("lock");
    button.SetTextBesideImage(true);
    vq_uint32 count = 2;
    button.Set(vq_control_state_count, 0, &count);
    CVqStringW unlocked(VQ_TEXT("Unlocked"));
    button.Set(vq_control_text, 1, &unlocked);
    SetImage(button, Stencil, 1);
    EXPECT_EQ(window.Part(button, "toolbarImage"), nullptr);

    button.setState(1);

    EXPECT_TRUE(window.Part(button, "toolbarImage"));
    EXPECT_EQ(window.Part(button, "toolbarText")->property("text"), QStringLiteral("Unlocked"));
}

TEST_F(ToolbarFace, AnImageOfOneColourTakesThatOfTheText)
{
    auto& button = window.AddButton("open");
    SetImage(button, Stencil);

    EXPECT_EQ(window.ColorAt(window.Part(button, "toolbarImage"), {12, 12}), QColor(0x20, 0x20, 0x20));
}

TEST_F(ToolbarFace, ADisabledImageOfSeveralColoursIsGray)
{
    auto& button = window.AddButton("open");
    SetImage(button, Coloured);
    EXPECT_EQ(window.ColorAt(window.Part(button, "toolbarImage"), {12, 12}), QColor(Qt::red));

    button.Enable(false);

    const QColor drawn = window.ColorAt(window.Part(button, "toolbarImage"), {12, 12});
    EXPECT_EQ(drawn.red(), drawn.green());
    EXPECT_EQ(drawn.green(), drawn.blue());
}
