#include "AbstractGui/EVqMenuField.h"

#include "system/CVqStringW.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

struct Row
{
    const vq_wchar* name;
    EVqMenuField field;
};

const Row rows[] = {
    {VQ_TEXT("Removed"), EVqMenuField::Removed},
    {VQ_TEXT("Deleted"), EVqMenuField::Deleted},
    {VQ_TEXT("Id"), EVqMenuField::Id},
    {VQ_TEXT("Type"), EVqMenuField::Type},
    {VQ_TEXT("Status"), EVqMenuField::Status},
    {VQ_TEXT("Text"), EVqMenuField::Text},
    {VQ_TEXT("Command"), EVqMenuField::Command},
    {VQ_TEXT("LineWidth"), EVqMenuField::LineWidth},
    {VQ_TEXT("Col1"), EVqMenuField::Col1},
    {VQ_TEXT("Col2"), EVqMenuField::Col2},
    {VQ_TEXT("EnaBmpFileName"), EVqMenuField::EnaBmpFileName},
    {VQ_TEXT("EnaBmpResName"), EVqMenuField::EnaBmpResName},
    {VQ_TEXT("SubMenu"), EVqMenuField::SubMenu},
    {VQ_TEXT("AccelKey0"), EVqMenuField::AccelKey},
    {VQ_TEXT("AccelKeyOther"), EVqMenuField::AccelKey},
    {VQ_TEXT("DisBmpFileName"), EVqMenuField::Unknown},
    {VQ_TEXT("DisBmpResName"), EVqMenuField::Unknown},
    {VQ_TEXT("id"), EVqMenuField::Unknown},
    {VQ_TEXT("Col3"), EVqMenuField::Unknown},
    {VQ_TEXT("AccelKe"), EVqMenuField::Unknown},
    {VQ_TEXT(""), EVqMenuField::Unknown},
};

}

TEST(EVqMenuField, NamesAreExactButForThoseOfKeys)
{
    for (const Row& row : rows)
        EXPECT_EQ(VqMenuFieldOf(row.name), row.field) << CVqStringW(row.name).ToQString().toStdString();
}
