#include "system/VqVariantStorage.h"

#include "system/CVqLiteVariantW.h"
#include "tests/support/SmallStack.h"
#include "tests/system/SystemPrinters.h"
#include "tests/system/VariantTrees.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

using Result = EVqStorageResult;

/// The operations of one stored form.
struct SForm
{
    const char* name;
    QByteArray (*write)(const CVqVariant&);
    Result (*read)(const QByteArray&, CVqVariant&);
    QByteArray (*write_stream)(const CVqLiteVariantR&);
    Result (*read_stream)(const QByteArray&, CVqLiteVariantR&);
    Result (*write_to)(QIODevice&, const CVqVariant&);
    Result (*read_from)(QIODevice&, CVqVariant&);
    int levels;
};

const SForm cbor{"Cbor", cbor_of, from_cbor, cbor_of, from_cbor, VQ_WriteCbor, VQ_ReadCbor, 4000};
const SForm json{"Json", json_of, from_json, json_of, from_json, VQ_WriteJson, VQ_ReadJson, 1000};

void PrintTo(const SForm& form, std::ostream* out)
{
    *out << form.name;
}

class VqVariantStorage : public testing::TestWithParam<SForm>
{
protected:
    std::string round_trip(const CVqVariant& tree) const
    {
        CVqVariant result;
        EXPECT_EQ(GetParam().read(GetParam().write(tree), result), Result::Ok);
        return described(result);
    }
};

/// Takes three bytes and no more, like a full disk.
class FullDevice : public QIODevice
{
protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override { return qMin<qint64>(size, 3); }
};

CVqLiteVariantR stream()
{
    CVqLiteVariantW writer;
    writer.LevelBegin(VQ_TEXT("Root"));
    writer.LevelBegin(VQ_TEXT(""));
    writer.Set(4000000000u, VQ_TEXT("Id"));
    writer.Set(-1, VQ_TEXT("Col1"));
    writer.Set(true, VQ_TEXT("Removed"));
    writer.Set(VQ_TEXT("&Open"), VQ_TEXT("Text"));
    writer.LevelEnd();
    writer.LevelEnd();
    CVqLiteVariantR reader;
    writer.Finalize(reader, 0);
    return reader;
}

}

INSTANTIATE_TEST_SUITE_P(Forms, VqVariantStorage, testing::Values(cbor, json),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(VqVariantStorage, RandomTreesComeBackWhole)
{
    CRandomTrees trees(20260101);
    for (unsigned i = 0; i < 300; ++i) {
        SCOPED_TRACE(i);
        const CVqVariant tree = trees.next(i);
        ASSERT_EQ(round_trip(tree), described(tree));
    }
}

TEST_P(VqVariantStorage, EveryUnitComesBack)
{
    CVqVariant tree;
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const CVqStringW text(CVqStringW::string_type(1, static_cast<vq_wchar>(unit)));
        tree.Append(CVqVariant(text + text, CVqStringW()));
    }

    EXPECT_EQ(round_trip(tree), described(tree));
}

TEST_P(VqVariantStorage, ScalarsAndEmptyNodesMayStandAtTheTop)
{
    for (const CVqVariant& tree : {CVqVariant(), CVqVariant(true, VQ_TEXT("b")), CVqVariant(-1, VQ_TEXT("")),
                                   CVqVariant(5u, VQ_TEXT("u")), CVqVariant(VQ_TEXT(""), VQ_TEXT("t"))})
        EXPECT_EQ(round_trip(tree), described(tree));
}

TEST_P(VqVariantStorage, NamesMayBeEmptyAndRepeat)
{
    CVqVariant tree;
    for (int i = 0; i < 3; ++i) {
        tree.Append(CVqVariant(i, VQ_TEXT("")));
        tree.Append(CVqVariant(unsigned(i), VQ_TEXT("same")));
        tree.Append(CVqVariant(i, VQ_TEXT("same")));
    }

    EXPECT_EQ(round_trip(tree), described(tree));
}

TEST_P(VqVariantStorage, StreamsComeBackWhole)
{
    CVqLiteVariantR reader;
    CVqStringW text;

    ASSERT_EQ(GetParam().read_stream(GetParam().write_stream(stream()), reader), Result::Ok);

    ASSERT_EQ(reader.LevelBegin(VQ_TEXT("Root")), 0);
    int count = 0;
    ASSERT_EQ(reader.CurrentLevelBegin(&count), 0);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(static_cast<unsigned>(reader.Get(VQ_TEXT("Id"), 0)), 4000000000u);
    EXPECT_EQ(reader.Get(VQ_TEXT("Col1"), 0), -1);
    EXPECT_TRUE(reader.Get(VQ_TEXT("Removed"), false));
    EXPECT_EQ(reader.GetCVqStringW(text, VQ_TEXT("Text"), VQ_TEXT("")), VQ_TEXT("&Open"));
    EXPECT_EQ(GetParam().write_stream(reader), GetParam().write_stream(stream()));
}

TEST_P(VqVariantStorage, AStreamReadsAsATreeAndATreeAsAStream)
{
    CVqVariant tree;
    CVqLiteVariantR reader;

    ASSERT_EQ(GetParam().read(GetParam().write_stream(stream()), tree), Result::Ok);
    EXPECT_STREQ(tree[VQ_TEXT("Root")].GetRunType(), "CVqListVariant");
    EXPECT_EQ(tree[VQ_TEXT("Root")][0][VQ_TEXT("Id")].GetVq_uint32(nullptr), 4000000000u);

    ASSERT_EQ(GetParam().read_stream(GetParam().write(tree), reader), Result::Ok);
    EXPECT_EQ(reader.LevelBegin(VQ_TEXT("Root")), 0);
}

TEST_P(VqVariantStorage, AnEmptyStreamComesBackEmpty)
{
    CVqLiteVariantR reader = stream();

    ASSERT_EQ(GetParam().read_stream(GetParam().write_stream(CVqLiteVariantR()), reader), Result::Ok);

    EXPECT_FALSE(reader.IsNextValue());
}

TEST_P(VqVariantStorage, AStreamNeedsALevelAtTheTop)
{
    CVqLiteVariantR reader = stream();
    const CVqVariant scalar(5, VQ_TEXT("n"));

    EXPECT_EQ(GetParam().read_stream(GetParam().write(scalar), reader), Result::WrongType);
    EXPECT_TRUE(reader.IsValueSet(VQ_TEXT("Root")));
}

TEST_P(VqVariantStorage, EveryCutIsAnErrorAndLeavesTheTarget)
{
    const QByteArray whole = GetParam().write(CRandomTrees(7).next(40)).trimmed();
    CVqVariant target(5, VQ_TEXT("kept"));
    CVqLiteVariantR reader = stream();

    for (qsizetype size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        ASSERT_NE(GetParam().read(whole.first(size), target), Result::Ok);
        ASSERT_NE(GetParam().read_stream(whole.first(size), reader), Result::Ok);
    }

    EXPECT_EQ(described(target), described(CVqVariant(5, VQ_TEXT("kept"))));
    EXPECT_TRUE(reader.IsValueSet(VQ_TEXT("Root")));
}

TEST_P(VqVariantStorage, NoBytesAreCutShort)
{
    CVqVariant target;

    EXPECT_EQ(GetParam().read("", target), Result::CutShort);
}

TEST_P(VqVariantStorage, ChangedBytesNeverCrash)
{
    const QByteArray whole = GetParam().write(CRandomTrees(8).next(60));
    std::mt19937 random(99);
    CVqVariant target;
    CVqLiteVariantR reader;

    for (int i = 0; i < 5000; ++i) {
        QByteArray bytes = whole;
        for (unsigned changes = 1 + random() % 4; changes > 0; --changes)
            bytes[static_cast<qsizetype>(random() % bytes.size())] = static_cast<char>(random());
        GetParam().read(bytes, target);
        GetParam().read_stream(bytes, reader);
    }
}

TEST_P(VqVariantStorage, TrailingBytesAreAnError)
{
    CVqVariant target(5, VQ_TEXT("kept"));

    EXPECT_EQ(GetParam().read(GetParam().write(nested(3)) + 'x', target), Result::TrailingBytes);
    EXPECT_EQ(target.GetVq_int32(nullptr), 5);
}

TEST_P(VqVariantStorage, TheDeepestTreeComesBackInASmallStack)
{
    run_in_small_stack([this] {
        const CVqVariant tree = nested(GetParam().levels);
        EXPECT_EQ(round_trip(tree), described(tree));
    });
}

TEST_P(VqVariantStorage, OneLevelMoreIsTooDeepAndWritesNothing)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);

    EXPECT_EQ(GetParam().write_to(device, nested(GetParam().levels + 1)), Result::TooDeep);
    EXPECT_TRUE(device.data().isEmpty());
}

TEST_P(VqVariantStorage, AClosedDeviceIsADeviceError)
{
    QBuffer device;
    CVqVariant target(5, VQ_TEXT("kept"));

    EXPECT_EQ(GetParam().write_to(device, target), Result::DeviceError);
    EXPECT_EQ(GetParam().read_from(device, target), Result::DeviceError);
    device.open(QIODevice::ReadOnly);
    EXPECT_EQ(GetParam().write_to(device, target), Result::DeviceError);
    EXPECT_EQ(target.GetVq_int32(nullptr), 5);
}

TEST_P(VqVariantStorage, ADeviceThatTakesOnlyAPartIsADeviceError)
{
    FullDevice device;
    device.open(QIODevice::WriteOnly | QIODevice::Unbuffered);

    EXPECT_EQ(GetParam().write_to(device, nested(3)), Result::DeviceError);
}

TEST_P(VqVariantStorage, FilesHoldWhatWasWritten)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const CVqVariant tree = CRandomTrees(3).next(500);
    CVqVariant result;

    ASSERT_EQ(GetParam().write_to(file, tree), Result::Ok);
    file.seek(0);
    ASSERT_EQ(GetParam().read_from(file, result), Result::Ok);

    EXPECT_EQ(described(result), described(tree));
}

TEST_P(VqVariantStorage, AHundredThousandSiblingsComeBack)
{
    CVqVariant tree;
    for (int i = 0; i < 100'000; ++i)
        tree.Append(CVqVariant(i, VQ_TEXT("Id")));
    CVqVariant result;

    ASSERT_EQ(GetParam().read(GetParam().write(tree), result), Result::Ok);

    EXPECT_EQ(result.GetCount(), 100'000);
    EXPECT_EQ(result[99'999].GetVq_int32(nullptr), 99'999);
}
