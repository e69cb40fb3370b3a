#include "tests/AbstractGui/StoredControls.h"

#include <QFile>

#include <gmock/gmock.h>

// Records as an earlier session left them on disk.

namespace {

template <class Container>
Container read_file(const char* name)
{
    Container container;
    QFile file(QStringLiteral(ARBOR_STORED_CONTROLS) + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    EXPECT_EQ(VQ_ReadJson(file, container), EVqStorageResult::Ok) << name;
    return container;
}

std::string bytes_of(const char* name)
{
    QFile file(QStringLiteral(ARBOR_STORED_CONTROLS) + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll().toStdString();
}

class StoredControlFiles : public testing::Test
{
protected:
    StoredControlFiles()
    {
        TestBitmapPool::Fresh().SetSource(1, VQ_TEXT("images/zoom.svg"), VQ_TEXT("ZOOM_IN"));
        m_control.m_strName = VQ_TEXT("zoom");
        m_control.m_uiStateCount = 2;
        m_control.State(0) = {
            1, VQ_TEXT("&In"), VQ_TEXT("Zoom(\"in\")"), VQ_TEXT("Larger, \"\u00d72\""), 0, 0xFF0000FF, 0, 0};
        m_control.State(1).m_command = VQ_TEXT("Zoom(out)");
        m_control.State(1).m_tooltip = VQ_TEXT("Smaller");
        m_control.m_size = {120, 24};
        m_control.m_bVisible = false;
        m_control.m_bTranslateTooltip = true;
    }

    /// What a control made of either file shows, but for its type.
    static void expect_zoom(const TestControl& control)
    {
        EXPECT_THAT(
            control.Shown(),
            testing::IsSupersetOf({"count=2", "name=zoom", "width=120", "height=24", "visible=0",
                                   "translate=1", "0.bitmap=101", "0.text=&In", "0.command=Zoom(\"in\")",
                                   "0.tooltip=Larger, \"\xC3\x97"
                                   "2\"",
                                   "0.frgcolor=0", "0.bkgcolor=4278190335", "1.bitmap=-1",
                                   "1.text=", "1.command=Zoom(out)", "1.tooltip=Smaller",
                                   "1.frgcolor=4294967295", "1.bkgcolor=4294967295"}));
    }

    TestControl m_control{2};
};

}

TEST_F(StoredControlFiles, LiteFormIsWrittenAsOnDisk)
{
    const auto stored = LiteForm::Filled([&](CVqLiteVariantW& out) { m_control.Save(out); });

    EXPECT_EQ(stored_bytes(stored), bytes_of("control.lite.json"));
}

TEST_F(StoredControlFiles, TreeFormIsWrittenAsOnDisk)
{
    CVqVariant stored;
    m_control.Save(stored);

    EXPECT_EQ(stored_bytes(stored), bytes_of("control.tree.json"));
}

TEST_F(StoredControlFiles, LiteFormIsReadFromDisk)
{
    auto stored = read_file<CVqLiteVariantR>("control.lite.json");
    stored.CurrentLevelBegin();
    TestBitmapPool::Fresh();
    TestControl control;

    EXPECT_EQ(control.Load(stored), 0);

    expect_zoom(control);
    EXPECT_EQ(control.type(), 2);
}

TEST_F(StoredControlFiles, TreeFormIsReadFromDisk)
{
    const auto stored = read_file<CVqVariant>("control.tree.json");
    TestBitmapPool::Fresh();
    TestControl control;

    EXPECT_EQ(control.Load(stored), 0);

    expect_zoom(control);
    EXPECT_EQ(control.type(), 0);
}
