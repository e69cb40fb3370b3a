#pragma once

#include "system/VqVariantStorage.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestBitmapPool.h"
#include "tests/AbstractGui/TestControl.h"

#include <QBuffer>

#include <string>
#include <utility>

/// What the control saves, as the form shows it.
template <class Form>
std::string saved_control(TestControl& control)
{
    return Form::Show(Form::Filled([&](auto& out) { EXPECT_EQ(control.Save(out), 0); }));
}

/// Loads a record that holds these fields.
template <class Form>
int load_control(TestControl& control, const Stored::Children& fields)
{
    auto container = Form::Make(fields);
    return control.Load(container);
}

/// A state with all of its texts, behind `fields`, so that one of those counts where a text is among them.
inline Stored::Children stored_state(Stored::Children fields = {})
{
    for (const vq_wchar* name : {VQ_TEXT("m_command"), VQ_TEXT("m_text"), VQ_TEXT("m_tooltip")})
        fields.emplace_back(name, VQ_TEXT(""));
    return fields;
}

/// The container in its readable form, in which names, values and their types show.
template <class Container>
std::string stored_bytes(const Container& container)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    EXPECT_EQ(VQ_WriteJson(device, container), EVqStorageResult::Ok);
    return device.data().toStdString();
}

/// A new state as either form shows it.
inline constexpr const char* empty_state = "m_bitmap=-1 m_command= m_text= m_tooltip= m_filename= m_resname= "
                                           "m_bkgcolor=4294967295 m_frgcolor=4294967295";

/// What a typed test of both forms starts from: an image pool and a new control.
template <class Form>
class StoredControlFixture : public testing::Test
{
protected:
    int load(const Stored::Children& fields) { return load_control<Form>(m_control, fields); }

    /// The first state as it comes back from a record with these fields more.
    SVqControlState& loaded(Stored::Children fields)
    {
        load({{VQ_TEXT("State0"), stored_state(std::move(fields))}});
        return m_control.State(0);
    }

    TestBitmapPool& m_pool = TestBitmapPool::Fresh();
    TestControl m_control; // has asked for image 100
};
