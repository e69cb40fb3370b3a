#include "AbstractGui/EVqMenuField.h"

#include "AbstractGui/VqPackedAccel.h"

namespace {

using View = std::basic_string_view<vq_wchar>;

struct Row
{
    View name;
    EVqMenuField field;
};

constexpr Row rows[] = {
    {VQ_TEXT("Id"), EVqMenuField::Id},
    {VQ_TEXT("Type"), EVqMenuField::Type},
    {VQ_TEXT("Status"), EVqMenuField::Status},
    {VQ_TEXT("Text"), EVqMenuField::Text},
    {VQ_TEXT("Command"), EVqMenuField::Command},
    {VQ_TEXT("SubMenu"), EVqMenuField::SubMenu},
    {VQ_TEXT("Removed"), EVqMenuField::Removed},
    {VQ_TEXT("Deleted"), EVqMenuField::Deleted},
    {VQ_TEXT("LineWidth"), EVqMenuField::LineWidth},
    {VQ_TEXT("Col1"), EVqMenuField::Col1},
    {VQ_TEXT("Col2"), EVqMenuField::Col2},
    {VQ_TEXT("EnaBmpFileName"), EVqMenuField::EnaBmpFileName},
    {VQ_TEXT("EnaBmpResName"), EVqMenuField::EnaBmpResName},
};

}

EVqMenuField VqMenuFieldOf(View name)
{
    for (const Row& row : rows) {
        if (row.name == name)
            return row.field;
    }
    return VqIsPackedAccelName(name) ? EVqMenuField::AccelKey : EVqMenuField::Unknown;
}
