#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/TestControl.h"

#include <QMetaMethod>
#include <QMetaProperty>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CVqAbstractControlProperties : public testing::Test
{
protected:
    CVqAbstractControlProperties() { m_control.FillStates(3); }

    TestControl m_control;
};

}

TEST(CVqAbstractControlMetaObject, HasFourPropertiesWithTheirSignals)
{
    TestControl::Lines lines;
    const QMetaObject& meta = CVqAbstractControl::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        lines.push_back(std::string(property.typeName()) + " " + property.name()
                        + (property.isWritable() ? ", written, " : ", ")
                        + property.notifySignal().methodSignature().toStdString());
    }

    EXPECT_THAT(lines,
                ElementsAre("int type, written, typeChanged()", "int state, written, stateChanged()",
                            "int bitmap, written, bitmapChanged()",
                            "QString label, written, labelChanged()"));
}

TEST_F(CVqAbstractControlProperties, SetTypeTells)
{
    m_control.setType(3);

    EXPECT_EQ(m_control.type(), 3);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("type"));
}

TEST_F(CVqAbstractControlProperties, SetStateTellsOfAllThatDependsOnIt)
{
    m_control.setState(2);

    EXPECT_EQ(m_control.state(), 2);
    EXPECT_EQ(m_control.bitmap(), 12);
    EXPECT_EQ(m_control.label(), u"text2"_s);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state", "bitmap", "label"));
}

TEST_F(CVqAbstractControlProperties, SetStateTellsEvenIfBothStatesAreAlike)
{
    m_control.State(1) = m_control.State(0);

    m_control.setState(1);

    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state", "bitmap", "label"));
}

TEST_F(CVqAbstractControlProperties, NewStateIsThereWhenItsSignalsFire)
{
    TestControl::Lines seen;
    const auto note
        = [&] { seen.push_back(std::to_string(m_control.state()) + m_control.label().toStdString()); };
    QObject::connect(&m_control, &CVqAbstractControl::stateChanged, &m_control, note);
    QObject::connect(&m_control, &CVqAbstractControl::labelChanged, &m_control, note);

    m_control.setState(1);

    EXPECT_THAT(seen, ElementsAre("1text1", "1text1"));
}

TEST_F(CVqAbstractControlProperties, SetBitmapReachesTheCurrentStateOnly)
{
    m_control.setState(1);
    m_control.TakeSignals();
    const auto before = m_control.Shown();

    m_control.setBitmap(99);

    EXPECT_EQ(m_control.bitmap(), 99);
    EXPECT_THAT(m_control.ChangesSince(before), ElementsAre("1.bitmap=99"));
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("bitmap"));
}

TEST_F(CVqAbstractControlProperties, SetLabelReachesTheCurrentStateOnly)
{
    m_control.setState(1);
    m_control.TakeSignals();
    const auto before = m_control.Shown();

    m_control.setLabel(u"New"_s);

    EXPECT_EQ(m_control.label(), u"New"_s);
    EXPECT_THAT(m_control.ChangesSince(before), ElementsAre("1.text=New"));
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("label"));
}

TEST_F(CVqAbstractControlProperties, UnchangedValuesTellNothing)
{
    const auto before = m_control.Shown();

    m_control.setType(0);
    m_control.setState(0);
    m_control.setBitmap(10);
    m_control.setLabel(u"text0"_s);

    EXPECT_EQ(m_control.Shown(), before);
    EXPECT_THAT(m_control.TakeSignals(), IsEmpty());
}

TEST_F(CVqAbstractControlProperties, LabelMayBecomeEmpty)
{
    m_control.setLabel(QString());

    EXPECT_EQ(m_control.label(), QString());
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("label"));
}

TEST_F(CVqAbstractControlProperties, LabelKeepsAllUnits)
{
    const QString label = u"\u00e4\U0001F600"_s + QChar(0xD800); // with half of a pair

    m_control.setLabel(label);

    EXPECT_EQ(m_control.label(), label);
}

TEST_F(CVqAbstractControlProperties, LabelEndsAtItsFirstZero)
{
    m_control.setLabel(u"New\0Label"_s);

    EXPECT_EQ(m_control.label(), u"New"_s);
    EXPECT_EQ(m_control.State(0).m_text.GetLength(), 3);
}

TEST_F(CVqAbstractControlProperties, LabelThatIsCutToTheSameTextTellsAllTheSame)
{
    m_control.setLabel(u"text0\0Label"_s);

    EXPECT_EQ(m_control.label(), u"text0"_s);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("label"));
}

TEST_F(CVqAbstractControlProperties, LabelShowsATextUpToItsFirstZero)
{
    const vq_wchar units[] = VQ_TEXT("New\0Label");
    m_control.State(0).m_text.Assign({units, 9});

    EXPECT_EQ(m_control.label(), u"New"_s);
}

// The current state is not held against the count ---------------------------------------------------

TEST_F(CVqAbstractControlProperties, StateMayLieAboveTheCount)
{
    m_control.setState(5);

    EXPECT_EQ(m_control.state(), 5);
    EXPECT_EQ(m_control.bitmap(), -1);
    EXPECT_EQ(m_control.label(), QString());
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("state", "bitmap", "label"));
}

TEST_F(CVqAbstractControlProperties, SettersReachAStateAboveTheCount)
{
    m_control.setState(5);
    m_control.TakeSignals();

    m_control.setBitmap(99);
    m_control.setLabel(u"New"_s);

    EXPECT_EQ(m_control.State(5).m_bitmap, 99);
    EXPECT_EQ(TestMenu::Plain(m_control.State(5).m_text), "New");
    EXPECT_EQ(m_control.m_uiStateCount, 3u);
    EXPECT_THAT(m_control.TakeSignals(), ElementsAre("bitmap", "label"));
}

TEST_F(CVqAbstractControlProperties, StateThatFellOutOfUseCanStillBeShown)
{
    m_control.Command(vq_control_delete_state, 0, nullptr);

    m_control.setState(2);

    EXPECT_EQ(m_control.bitmap(), 12);
    EXPECT_EQ(m_control.label(), u"text2"_s);
}

TEST_F(CVqAbstractControlProperties, WithoutStatesTheFormerOneIsShown)
{
    m_control.setState(2);

    m_control.Command(vq_control_clear_states, 0, nullptr);

    EXPECT_EQ(m_control.state(), 2);
    EXPECT_EQ(m_control.bitmap(), 12);
    EXPECT_EQ(m_control.label(), u"text2"_s);
}
