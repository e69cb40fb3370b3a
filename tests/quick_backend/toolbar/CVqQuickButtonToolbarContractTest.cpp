#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "tests/contract/ToolbarContract.h"

#include <QCoreApplication>

namespace {

/// The Qt Quick toolbar, seen by where the items of its controls lie.
class QuickTraits
{
public:
    QuickTraits()
    {
        m_bar.Area()->setParentItem(&m_root);
        m_bar.Toolbar().Picker()->Area()->setParentItem(&m_root);
        SetLength(600);
    }

    CVqAbstractButtonToolbar& Bar() { return m_bar; }
    CVqAbstractToolbar& Toolbar() { return m_bar.Toolbar(); }
    IVqUIcontrol* MakeGeneral() { return new CVqQuickItemControl(new QQuickItem); }

    /// Lays out only when the toolbar asks for it.
    void Settle()
    {
        if (Toolbar().*SOpenToolbar::LayoutDirty)
            m_bar.Toolbar().Layout();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ExpectItemsInPlace();
    }

    bool IsShown(IVqUIcontrol& control) const { return static_cast<CVqQuickControl&>(control).IsShown(); }
    bool IsInPicker(IVqUIcontrol& control) const
    {
        return static_cast<CVqQuickControl&>(control).Item()->parentItem() != m_bar.Area();
    }

    void SetLength(int length)
    {
        m_bar.Area()->setSize(m_bar.Area()->IsVertical() ? QSizeF(40, length) : QSizeF(length, 40));
        m_bar.Toolbar().Layout();
    }

private:
    void ExpectItemsInPlace()
    {
        for (CVqList::CVqNode* node = Toolbar().GetFirstNode(); node;) {
            const auto& control = static_cast<CVqQuickControl&>(*Toolbar().GetNextControl(node));
            const QQuickItem* area = control.IsInPicker() ? m_bar.Toolbar().Picker()->Area() : m_bar.Area();
            EXPECT_EQ(control.Item()->parentItem(), area);
            EXPECT_EQ(control.Item()->isVisible(), control.IsShown());
        }
    }

    QQuickItem m_root; // what has no parent does not show
    CVqQuickButtonToolbar m_bar{VQ_TEXT("bar")};
};

}

ARBOR_TOOLBAR_CONTRACT(QtQuick, QuickTraits);
