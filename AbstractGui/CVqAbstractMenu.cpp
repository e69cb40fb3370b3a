#include "AbstractGui/CVqAbstractMenu.h"

#include <memory>
#include <new>

namespace {

constexpr int not_implemented = -2;
constexpr int no_back_end = -12;

}

CVqAbstractMenu::CVqAbstractMenu() = default;
CVqAbstractMenu::CVqAbstractMenu(const CVqAbstractMenu& other) = default;
CVqAbstractMenu& CVqAbstractMenu::operator=(const CVqAbstractMenu& other) = default;

// The object that Manipulators() of a derived class gives may be gone by now.
CVqAbstractMenu::~CVqAbstractMenu()
{
    delete m_pMenuBase;
    SVqManipulators::Instance().free_all(m_pRoot);
    SVqManipulators::Instance().free_all(m_pLonelyAccels);
    m_pMenuBase = nullptr;
    m_pRoot = nullptr;
    m_pLonelyAccels = nullptr;
}

CVqAbstractMenu* CVqAbstractMenu::Duplicate()
{
    std::unique_ptr<CVqAbstractMenu> copy(new (std::nothrow) CVqAbstractMenu);
    if (!copy || Manipulators().copy_items_tree(copy->m_pRoot, m_pRoot) != 0)
        return nullptr;
    if (m_pMenuBase)
        copy->m_pMenuBase = m_pMenuBase->Duplicate();
    copy->m_hNative = m_hNative;
    return copy.release();
}

int CVqAbstractMenu::TrackContextMenu(vq_uint32 id, int x, int y, __vq_hwnd* window, vq_uint32* resultId,
                                      bool flag1, bool flag2)
{
    return TrackContextMenuEx(id, x, y, window, resultId, nullptr, flag1, flag2);
}

int CVqAbstractMenu::TrackContextMenuEx(vq_uint32, int, int, __vq_hwnd*, vq_uint32*, const CVqRectBase<int>*,
                                        bool, bool)
{
    return not_implemented;
}

int CVqAbstractMenu::ShowDisabledMenuButtons(bool, int*)
{
    return not_implemented;
}

int CVqAbstractMenu::CallCmdHandler(vq_uint32)
{
    return not_implemented;
}

bool CVqAbstractMenu::IsMenuBreakRecommended(vq_uint32, int)
{
    return false;
}

int CVqAbstractMenu::PrintAllIn(vq_uint32 id)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    Manipulators().print_all(item ? item : m_pRoot, 0);
    return 0;
}

int CVqAbstractMenu::EnableFixedLeftColumnWidth(bool enable)
{
    m_bFixedLeftColumnWidth = enable;
    return 0;
}

int CVqAbstractMenu::EnterMenu(vq_wchar character)
{
    if (!m_pMenuBase)
        return no_back_end;
    m_pMenuBase->EnterMenu(character);
    return 0;
}

vq_uint32 CVqAbstractMenu::GetSafeId(vq_uint32 seed)
{
    return m_pRoot ? m_pRoot->safeId(seed) : seed;
}

CVqMenuItem* CVqAbstractMenu::getRootMenuItem()
{
    return m_pRoot;
}

void CVqAbstractMenu::setIgnoreAdditionalBitmapZoomRecursive(bool ignore)
{
    if (m_pRoot)
        m_pRoot->setIgnoreAdditionalZoomRecursive(ignore);
}

CVqAbstractMenu::SVqManipulators& CVqAbstractMenu::Manipulators()
{
    return SVqManipulators::Instance();
}
