#pragma once

#include "AbstractGui/IVqMenuBase.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// A menu back end that draws nothing and writes down each call as a line of text.
///
///     auto* base = new RecordingMenuBase; // the menu deletes it
///     const auto calls = base->Calls();   // outlives it
///     ...
///     EXPECT_THAT(*calls, ElementsAre("CreateMenuHandle = 1",
///                                     "InsertItem parent 0, position null, item 5 = 0"));
///
/// Items are written by their identifier. The lines:
///
///     Duplicate
///     EnterMenu 102                                       (the character's code)
///     CreateMenuHandle = 1                                (handles are 1, 2, 3, ...)
///     InsertItem parent 0, position null, item 5 = 0
///     DestroyItem 5
///     UpdateItemText 5 "&Open"
///     UpdateItemState 5 status 3
///     Delete
class RecordingMenuBase : public IVqMenuBase
{
public:
    using Lines = std::vector<std::string>;

    RecordingMenuBase();
    ~RecordingMenuBase() override;

    /// The lines so far; shared with duplicates. May be cleared.
    std::shared_ptr<Lines> Calls() const { return m_calls; }

    /// From now on InsertItem gives `code`, for all items or for those with an identifier.
    void FailInserts(int code) { m_code = code; }
    void FailInsertOf(vq_uint32 id, int code) { m_codes[id] = code; }

    IVqMenuBase* Duplicate() override;
    int EnterMenu(vq_wchar character) override;
    vq_uint64 CreateMenuHandle() override;
    int InsertItem(CVqMenuItem* parent, CVqMenuItem* position, CVqMenuItem* item) override;
    void DestroyItem(CVqMenuItem* item) override;
    void UpdateItemText(CVqMenuItem* item) override;
    void UpdateItemState(CVqMenuItem* item) override;

protected:
    RecordingMenuBase(const RecordingMenuBase&) = default;

private:
    int CodeFor(const CVqMenuItem* item) const;

    std::shared_ptr<Lines> m_calls = std::make_shared<Lines>();
    std::map<vq_uint32, int> m_codes;
    int m_code = 0;
    vq_uint64 m_last_handle = 0;
};
