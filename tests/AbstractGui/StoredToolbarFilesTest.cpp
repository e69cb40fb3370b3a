#include "tests/AbstractGui/StoredToolbars.h"

#include <QFile>

#include <gmock/gmock.h>

// Toolbars as an earlier session left them on disk.

namespace {

QByteArray bytes_of(const char* name)
{
    QFile file(QStringLiteral(ARBOR_STORED_TOOLBARS) + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

template <class Container>
Container read_file(const char* name)
{
    Container container;
    QBuffer device;
    device.setData(bytes_of(name));
    device.open(QIODevice::ReadOnly);
    EXPECT_EQ(VQ_ReadJson(device, container), EVqStorageResult::Ok) << name;
    return container;
}

/// A button with an image, a separator, and a hidden button of two states and a size of its own.
class StoredToolbarFiles : public testing::Test
{
protected:
    StoredToolbarFiles()
    {
        m_pool.SetSource(1, VQ_TEXT("images/open.svg"), VQ_TEXT(""));
        const vq_uint64 open = m_bar.AddButton(VQ_TEXT("open"));
        m_bar.SetTextsOnButton(open, 0, VQ_TEXT("Open an image"), VQ_TEXT("&Open"),
                               VQ_TEXT("Open(\"last\")"));
        m_bar.SetBitmapOnButton(open, 0, 1u);
        m_bar.AppendSeparator(nullptr);
        const vq_uint64 zoom = m_bar.AddButton(VQ_TEXT("zoom"));
        m_bar.SetStatesCountOnButton(zoom, 2);
        m_bar.SetTextsOnButton(zoom, 0, VQ_TEXT("Larger, \u00d72"), VQ_TEXT("In"), VQ_TEXT("ZoomIn"));
        m_bar.SetTextsOnButton(zoom, 1, VQ_TEXT("Smaller"), VQ_TEXT("Out"), VQ_TEXT("ZoomOut"));
        m_bar.SetButtonSize(zoom, 30, 24);
        m_bar.SetButtonVisibility(zoom, false);
    }

    /// What a toolbar made of either file holds.
    void ExpectLoaded(TestButtonToolbar& bar)
    {
        const vq_uint64 open = bar.FindButton(VQ_TEXT("open"));
        const vq_uint64 zoom = bar.FindButton(VQ_TEXT("zoom"));
        CVqStringW command;
        CVqStringW tooltip;
        CVqSizeBase<int> size;
        bar.GetCommandOnButton(open, 0, command);
        bar.GetTooltipOnButton(zoom, 0, tooltip);
        bar.GetButtonSize(zoom, size, -1);

        EXPECT_EQ(bar.Bar().Order(), "open separator zoom |picker");
        EXPECT_EQ(command, VQ_TEXT("Open(\"last\")"));
        EXPECT_EQ(tooltip, VQ_TEXT("Larger, \u00d72"));
        EXPECT_EQ(size, (CVqSizeBase<int>{30, 24}));
        EXPECT_GE(bar.GetBitmap(open, 0), 100);
        EXPECT_FALSE(bar.GetButtonVisibility(zoom));
    }

    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
    TestButtonToolbar m_bar;
};

}

TEST_F(StoredToolbarFiles, LiteFormIsWrittenAsOnDisk)
{
    CVqLiteVariantR stored;
    m_bar.Save(stored);

    EXPECT_EQ(stored_bytes(stored), bytes_of("toolbar.lite.json").toStdString());
}

TEST_F(StoredToolbarFiles, TreeFormIsWrittenAsOnDisk)
{
    CVqVariant stored;
    m_bar.Save(stored, VQ_TEXT("Main bar"));

    EXPECT_EQ(stored_bytes(stored), bytes_of("toolbar.tree.json").toStdString());
}

TEST_F(StoredToolbarFiles, LiteFormIsReadFromDisk)
{
    auto stored = read_file<CVqLiteVariantR>("toolbar.lite.json");
    TestButtonToolbar bar;

    EXPECT_EQ(bar.Load(stored), 0);

    ExpectLoaded(bar);
}

TEST_F(StoredToolbarFiles, TreeFormIsReadFromDisk)
{
    auto stored = read_file<CVqVariant>("toolbar.tree.json");
    TestButtonToolbar bar;
    CVqStringW name;

    EXPECT_EQ(bar.Load(stored, &name), 0);

    ExpectLoaded(bar);
    EXPECT_EQ(name, VQ_TEXT("Main bar"));
}

TEST_F(StoredToolbarFiles, TreeOnDiskEqualsWhatIsSavedNow)
{
    auto on_disk = read_file<CVqVariant>("toolbar.tree.json");
    CVqVariant stored;
    m_bar.Save(stored, VQ_TEXT("Another name"));

    EXPECT_TRUE(CVqAbstractButtonToolbar::IsEqual(on_disk, stored));
}
