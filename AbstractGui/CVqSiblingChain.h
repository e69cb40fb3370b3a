#pragma once

#include "system/VqText.h"
#include "system/VqTypes.h"

#include <utility>
#include <vector>

class CVqMenuItem;

/// How far the tidying of separators got along a chain.
struct SVqSeparatorRun
{
    bool inRun = false;      ///< A separator came since the last visible item that is none.
    bool anyVisible = false; ///< A visible item came.
};

/// What is known about the sibling chain that starts at a certain item, so that appending to a long popup
/// does not walk it: the last member, how far its separators are tidy, and the mnemonics in use.
///
/// All members hold the same object, which dies with the last of them. The setters of CVqMenuItem tell it of
/// every change; it then drops what no longer holds, and the next append walks the chain again. Only
/// members of exactly class CVqMenuItem, or of one that promises to keep its fields there, are taken, since
/// nothing would tell of a change in an item that keeps them elsewhere.
class CVqSiblingChain
{
public:
    CVqSiblingChain(const CVqSiblingChain&) = delete;
    CVqSiblingChain& operator=(const CVqSiblingChain&) = delete;

    /// What is known already of the chain that starts at `first`, or null.
    static CVqSiblingChain* Find(const CVqMenuItem* first);

    /// Links `item`, with the siblings that follow it, behind the last member of the chain from `first`.
    static void Append(CVqMenuItem* first, CVqMenuItem* item);

    bool HasMnemonic(vq_wchar mnemonic) const;
    bool HasMnemonicInAnyCase(vq_wchar mnemonic) const;

    /// The last item through which the separators are tidy, or null when nothing is known about them.
    CVqMenuItem* TidyThrough() const { return m_pTidy; }
    SVqSeparatorRun RunThere() const { return m_run; }
    void SetTidyThrough(CVqMenuItem* item, SVqSeparatorRun run);

    // For the setters of a member ----------------------------------------------------------------------

    /// The order of the chain changed: nothing is known any more.
    void Forget() { m_bKnown = false; }

    /// A type or a flag changed: the separators may want tidying from the start.
    void Untidy() { m_pTidy = nullptr; }

    void ReplaceMnemonic(vq_wchar former, vq_wchar present);
    void Release();

private:
    using Uses = std::pair<vq_wchar, vq_uint32>; // a mnemonic and how many members have it

    explicit CVqSiblingChain(CVqMenuItem* first);
    ~CVqSiblingChain() = default;

    static bool IsPlain(const CVqMenuItem* item);
    static bool AllPlain(const CVqMenuItem* first);
    static CVqSiblingChain* Learn(CVqMenuItem* first);
    void Extend(CVqMenuItem* item);
    void Join(CVqMenuItem* item);
    void Use(vq_wchar mnemonic);
    void Unuse(vq_wchar mnemonic);

    CVqMenuItem* m_pFirst; // members are looked at only while the chain is known: then all are alive
    CVqMenuItem* m_pLast;
    CVqMenuItem* m_pTidy = nullptr;
    std::vector<Uses> m_mnemonics; // by character; a popup has few
    vq_uint32 m_uiMembers = 0;
    SVqSeparatorRun m_run;
    bool m_bKnown = true;
};
