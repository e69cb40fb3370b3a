#include "tests/translations/Catalogues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::Key;

using namespace Qt::StringLiterals;

TEST(Catalogues, AreGermanAndJapanese)
{
    EXPECT_THAT(Catalogues(), ElementsAre(Key("arbor_de"), Key("arbor_ja")));
}

TEST(Catalogues, HoldTheContextsOfTheTablesAndTheQmlFilesAndNoOther)
{
    for (const auto& [name, catalogue] : Catalogues()) {
        SCOPED_TRACE(name);
        EXPECT_EQ(ContextsOf(catalogue),
                  (QStringList{u"AbstractGui\\CVqAbstractMenu"_s, u"DelayedProgressWndBase"_s,
                               u"ProgressPanel"_s, u"ToolbarMenu"_s, u"ToolbarSession"_s,
                               u"ToolbarSetupButtons"_s, u"ToolbarSetupCommands"_s, u"ToolbarSetupPad"_s,
                               u"ToolbarSetupPanel"_s, u"ToolbarSetupRow"_s, u"ToolbarSetupTabs"_s}));
    }
}
