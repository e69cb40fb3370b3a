#include "system/CVqLiteVariantW.h"
#include "tests/system/VariantTrees.h"

#include <QCborValue>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace {

CVqVariant level(std::initializer_list<CVqVariant> children)
{
    CVqVariant node;
    for (const CVqVariant& child : children)
        node.Append(child);
    return node;
}

QByteArray hex(const CVqVariant& tree)
{
    return cbor_of(tree).toHex();
}

const CVqVariantRunType list_type(CVqStringA(VQ_TEXT("CVqListVariant"), 0));

}

TEST(VqCborEncode, ScalarsAreWhatTheyAreInCbor)
{
    const CVqStringW no_name;

    EXPECT_EQ(hex(CVqVariant()), "f6");
    EXPECT_EQ(hex(CVqVariant(true, no_name)), "f5");
    EXPECT_EQ(hex(CVqVariant(false, no_name)), "f4");
    EXPECT_EQ(hex(CVqVariant(10, no_name)), "0a");
    EXPECT_EQ(hex(CVqVariant(-1, no_name)), "20");
    EXPECT_EQ(hex(CVqVariant(VQ_TEXT("a"), no_name)), "6161");
    EXPECT_EQ(hex(CVqVariant(u"\u00FC", no_name)), "62c3bc");
}

TEST(VqCborEncode, AnUnsignedIntegerHasATag)
{
    EXPECT_EQ(hex(CVqVariant(10u, CVqStringW())), "d8580a");
}

TEST(VqCborEncode, ATextThatIsNotUtf16IsABytesOfItsUnits)
{
    const CVqStringW::string_type lone{vq_wchar(0xD800), vq_wchar(0x41)};

    EXPECT_EQ(hex(CVqVariant(CVqStringW(lone), CVqStringW())), "4400d84100");
}

TEST(VqCborEncode, ALevelIsAMapInOrder)
{
    EXPECT_EQ(hex(level({CVqVariant(1, VQ_TEXT("b")), CVqVariant(2, VQ_TEXT("a"))})), "a2616201616102");
}

TEST(VqCborEncode, ARepeatedNameIsANumber)
{
    const CVqVariant tree = level({CVqVariant(1, VQ_TEXT("a")), CVqVariant(2u, VQ_TEXT("b")),
                                   CVqVariant(3, VQ_TEXT("a")), CVqVariant(4u, VQ_TEXT("b"))});

    EXPECT_EQ(hex(tree), "a46161016162d8580200030104");
}

TEST(VqCborEncode, ANameOfBothKindsOfIntegersHasTwoNumbers)
{
    const CVqVariant tree = level({CVqVariant(1, VQ_TEXT("a")), CVqVariant(2u, VQ_TEXT("a")),
                                   CVqVariant(3u, VQ_TEXT("a")), CVqVariant(4, VQ_TEXT("a"))});

    EXPECT_EQ(hex(tree), "a46161016161d8580201030004");
}

TEST(VqCborEncode, AListOfUnnamedElementsIsAnArray)
{
    CVqVariant list = level({CVqVariant(1, VQ_TEXT("")), CVqVariant(2, VQ_TEXT(""))});
    list.SetRunType(list_type);

    EXPECT_EQ(hex(list), "820102");
}

TEST(VqCborEncode, ALevelOfAStreamWithoutNamesIsAnArray)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;
    writer.LevelBegin(VQ_TEXT("r"));
    writer.LevelBegin(VQ_TEXT(""));
    writer.LevelEnd();
    writer.LevelEnd();
    writer.Finalize(reader, 0);

    EXPECT_EQ(cbor_of(reader).toHex(), "a1617281a0");
}

TEST(VqCborEncode, OtherRunTypesAndNamesOfTheTreeAreTagged)
{
    CVqVariant node(1, VQ_TEXT("n"));
    node.SetRunType(CVqVariantRunType(CVqStringA(VQ_TEXT("T"), 0)));

    EXPECT_EQ(hex(node), "d85982616ed81b82615401");
}

TEST(VqCborEncode, TakesFewerBytesThanAMapOfNames)
{
    CVqVariant tree;
    tree.SetRunType(list_type);
    QVariantList peer;
    for (unsigned i = 0; i < 20; ++i) {
        tree.Append(level({CVqVariant(i, VQ_TEXT("Id")), CVqVariant(1u, VQ_TEXT("Type")),
                           CVqVariant(VQ_TEXT("&Open"), VQ_TEXT("Text")), CVqVariant(7, VQ_TEXT("Status"))}));
        peer.append(QVariantMap{{QStringLiteral("Id"), i},
                                {QStringLiteral("Type"), 1u},
                                {QStringLiteral("Text"), QStringLiteral("&Open")},
                                {QStringLiteral("Status"), 7}});
    }

    EXPECT_LT(cbor_of(tree).size() * 2, QCborValue::fromVariant(peer).toCbor().size() * 1.4);
}
