#include "tests/contract/MenuContract.h"
#include "tests/contract/MirrorMenuBase.h"
#include "tests/support/TestMenu.h"

namespace {

/// The abstract menu over a back end that knows only what it is told.
class RecordingTraits
{
public:
    RecordingTraits() : m_mirror(new MirrorMenuBase) { m_menu.MenuBase() = m_mirror; }

    CVqAbstractMenu& Menu() { return m_menu; }
    std::string Rows() const { return m_mirror->Text(); }

private:
    TestMenu m_menu{TestMenu::BackEnd::None};
    MirrorMenuBase* m_mirror; // owned by the menu
};

}

INSTANTIATE_TYPED_TEST_SUITE_P(Recording, MenuContract, RecordingTraits);
